#pragma once

#include "TarnwickKit/model/format/DisplayText.h"

#include <map>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace TarnwickHost {

using TarnwickKit::model::quoted;

/// The program was called wrongly. `what` is one line for people, without the program's name.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// One option as a command declares it.
struct Option {
    std::string_view name;     ///< with its dashes: "--size"
    std::string_view argument; ///< what --help calls its value: "BYTES|fill"; empty for a switch
    std::string_view help;     ///< without a full stop; line breaks are kept
};

/// The words behind a command's name, sorted into options and operands.
///
/// Options may stand anywhere, as "--size 1G" or "--size=1G"; the last of the same name counts; "--" ends
/// them. Every command knows --help (-h). Words are bytes as the system passed them: a path need not be valid
/// UTF-8.
/// Owner: the words belong to the caller and outlive the object.
class CommandLine {
public:
    /// Fails: throws UsageError for an unknown option, a missing value and a value that a switch does not
    /// take.
    CommandLine(std::span<const Option> options, std::span<const char* const> words);

    bool wantsHelp() const { return m_wantsHelp; }
    bool has(std::string_view option) const { return m_values.contains(option); }
    std::optional<std::string_view> value(std::string_view option) const;
    const std::vector<std::string_view>& operands() const { return m_operands; }

private:
    void takeOption(std::span<const Option> options, std::span<const char* const> words, std::size_t& index);

    std::map<std::string_view, std::string_view> m_values;
    std::vector<std::string_view> m_operands;
    bool m_wantsHelp = false;
};

} // namespace TarnwickHost
