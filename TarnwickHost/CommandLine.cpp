#include "TarnwickHost/CommandLine.h"

#include <algorithm>

namespace TarnwickHost {

namespace {

const Option& find(std::span<const Option> options, std::string_view name) {
    const auto found = std::find_if(options.begin(), options.end(),
                                    [&](const Option& option) { return option.name == name; });
    if (found == options.end())
        throw UsageError("there is no option " + quoted(name));
    return *found;
}

} // namespace

CommandLine::CommandLine(std::span<const Option> options, std::span<const char* const> words) {
    bool onlyOperands = false;
    for (std::size_t index = 0; index < words.size(); ++index) {
        const std::string_view word = words[index];
        if (onlyOperands || word.size() < 2 || word.front() != '-')
            m_operands.push_back(word);
        else if (word == "--")
            onlyOperands = true;
        else if (word == "--help" || word == "-h")
            m_wantsHelp = true;
        else
            takeOption(options, words, index);
    }
}

void CommandLine::takeOption(std::span<const Option> options, std::span<const char* const> words,
                             std::size_t& index) {
    const std::string_view word = words[index];
    const std::size_t equals = word.find('=');
    const Option& option = find(options, word.substr(0, equals));
    std::string_view value;
    if (option.argument.empty()) {
        if (equals != std::string_view::npos)
            throw UsageError(std::string(option.name) + " takes no value");
    } else if (equals != std::string_view::npos) {
        value = word.substr(equals + 1);
    } else if (++index < words.size()) {
        value = words[index];
    } else {
        throw UsageError(std::string(option.name) + " needs a value: " + std::string(option.argument));
    }
    m_values.insert_or_assign(option.name, value);
}

std::optional<std::string_view> CommandLine::value(std::string_view option) const {
    const auto found = m_values.find(option);
    return found == m_values.end() ? std::nullopt : std::optional(found->second);
}

} // namespace TarnwickHost
