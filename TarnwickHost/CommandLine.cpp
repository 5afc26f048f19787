#include "TarnwickHost/CommandLine.h"

#include "OndelCore/platform/process/Sandbox.h"
#include "OndelCore/platform/volumes/PathFacts.h"
#include "OndelCore/platform/volumes/PortalFolder.h"
#include "TarnwickHost/HostText.h"
#include "TarnwickHost/Output.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <optional>
#include <stdexcept>
#include <string>
#include <system_error>

namespace TarnwickHost {

namespace {

const Option& find(std::span<const Option> options, std::string_view name) {
    const auto found = std::find_if(options.begin(), options.end(),
                                    [&](const Option& option) { return option.name == name; });
    if (found == options.end())
        throw UsageError(HostUsage::tr("there is no option %1").arg(inQuotes(name)));
    return *found;
}

/// Absent unless the whole of `text` is one number that `Number` can hold.
template <typename Number>
std::optional<Number> parsed(std::string_view text) {
    Number number{};
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc{} || stop != end)
        return std::nullopt;
    return number;
}

/// The shift that `unit` stands for. Absent: no unit of ours.
std::optional<int> binaryShift(std::string_view unit) {
    struct Unit {
        std::string_view letter;
        std::string_view name;
        int shift;
    };
    static constexpr std::array units{Unit{"", "B", 0}, Unit{"k", "kib", 10}, Unit{"m", "mib", 20},
                                      Unit{"g", "gib", 30}, Unit{"t", "tib", 40}};
    std::string lower(unit);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](char letter) { return letter >= 'A' && letter <= 'Z' ? char(letter + 32) : letter; });
    for (const Unit& known : units)
        if (lower == known.letter || lower == known.name || unit == known.name)
            return known.shift;
    return std::nullopt;
}

/// `sentence`: on the option, both limits and what was typed.
UsageError outside(Range range, const QString& sentence, std::string_view option, std::string_view text) {
    return UsageError(sentence.arg(isolated(option), QString::number(range.least),
                                   QString::number(range.most), inQuotes(text)));
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
            throw UsageError(HostUsage::tr("%1 takes no value").arg(isolated(option.name)));
    } else if (equals != std::string_view::npos) {
        value = word.substr(equals + 1);
    } else if (++index < words.size()) {
        value = words[index];
    } else {
        throw UsageError(
            HostUsage::tr("%1 needs a value: %2").arg(isolated(option.name), isolated(option.argument)));
    }
    m_values.insert_or_assign(option.name, value);
}

std::optional<std::string_view> CommandLine::value(std::string_view option) const {
    const auto found = m_values.find(option);
    return found == m_values.end() ? std::nullopt : std::optional(found->second);
}

UsageError goesOnlyWith(std::string_view option, std::string_view other) {
    //: Two options or commands of the program.
    return UsageError(HostUsage::tr("%1 goes with %2 only").arg(isolated(option), isolated(other)));
}

std::int64_t wholeNumber(std::string_view option, std::string_view text, Range range) {
    const auto number = parsed<std::int64_t>(text);
    if (!number || *number < range.least || *number > range.most)
        throw outside(range, HostUsage::tr("%1 needs a whole number from %2 to %3, not %4"), option, text);
    return *number;
}

std::int64_t byteCount(std::string_view option, std::string_view text, Range range) {
    const std::size_t digitsEnd = std::min(text.find_first_not_of("-0123456789"), text.size());
    std::string_view unit = text.substr(digitsEnd);
    if (unit.starts_with(' '))
        unit.remove_prefix(1);
    const auto number = parsed<std::int64_t>(text.substr(0, digitsEnd));
    const auto shift = binaryShift(unit);
    std::int64_t bytes = 0;
    if (!number || !shift || __builtin_mul_overflow(*number, std::int64_t{1} << *shift, &bytes) ||
        bytes < range.least || bytes > range.most)
        throw outside(
            range,
            HostUsage::tr("%1 needs a number of bytes, such as 4096, 64K or 5GiB, from %2 to %3, not %4"),
            option, text);
    return bytes;
}

double seconds(std::string_view option, std::string_view text) {
    const auto number = parsed<double>(text);
    if (!number || !std::isfinite(*number) || std::signbit(*number))
        throw UsageError(HostUsage::tr("%1 needs a number of seconds, 0 or more, not %2")
                             .arg(isolated(option), inQuotes(text)));
    return *number;
}

FolderLook look(std::string_view folder, const OndelCore::platform::MountTable& mounts) {
    using namespace OndelCore::platform;
    const auto facts = pathFacts(folder, PathQuestion::place, mounts.mounts(), {.patience = defaultPatience});
    if (!facts)
        throw std::runtime_error(HostFiles::tr("%1 does not answer").arg(inQuotes(folder)).toStdString());
    const auto mount = std::ranges::find(mounts.mounts(), facts->mountId, &Mount::id);
    return {.error = facts->error,
            .isFolder = facts->isFolder,
            .isOfSandbox = mount != mounts.mounts().end() && mount->mountPoint == "/" && sandbox()};
}

QString lookUpFailure(std::string_view folder, int error) {
    if (error == ENOENT && folder.starts_with('/') && OndelCore::platform::sandbox())
        //: %1 is a folder
        return HostFiles::tr("%1 is not in this sandbox, which has only some of the machine’s folders")
            .arg(inQuotes(folder));
    return because(inQuotes(folder), error);
}

std::filesystem::path folderIn(const CommandLine& line, const OndelCore::platform::MountTable& mounts) {
    if (line.operands().empty())
        throw UsageError(HostUsage::tr("a FOLDER is missing"));
    if (line.operands().size() > 1)
        throw UsageError(HostUsage::tr("one FOLDER at a time"));
    const std::string_view folder = line.operands().front();
    const FolderLook seen = look(folder, mounts);
    if (seen.error != 0)
        throw UsageError(lookUpFailure(folder, seen.error));
    if (seen.isOfSandbox)
        //: %1 is a folder
        complain(
            HostFiles::tr("%1 is the sandbox’s own; the machine’s folder of that name is hidden from it.")
                .arg(inQuotes(folder)));
    return OndelCore::platform::folderBehindPortal(folder, mounts.mounts(),
                                                   {.patience = OndelCore::platform::defaultPatience});
}

} // namespace TarnwickHost
