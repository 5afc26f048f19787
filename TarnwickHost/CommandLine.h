#pragma once

#include "OndelCore/platform/volumes/Mounts.h"

#include <QString>

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace TarnwickHost {

/// The program was called wrongly. `what` is one line for people, without the program's name.
class UsageError : public std::runtime_error {
public:
    explicit UsageError(const QString& text)
        : std::runtime_error(text.toStdString()) {}
};

/// One option as a command declares it.
struct Option {
    std::string_view name;     ///< with its dashes: "--size"
    std::string_view argument; ///< what --help calls its value: "BYTES|fill"; empty for a switch
    const char* help;          ///< without a full stop; of the context "HostHelp"
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

/// For an option that another one needs.
UsageError goesOnlyWith(std::string_view option, std::string_view other);

/// The limits of a whole number on the command line; both ends are allowed.
struct Range {
    std::int64_t least = 0;
    std::int64_t most = 0;
};

/// `text` as a whole number in plain decimal digits.
/// Fails: throws UsageError naming `option` unless all of `text` is one number within `range`.
std::int64_t wholeNumber(std::string_view option, std::string_view text, Range range);

/// `text` as a number of bytes: plain digits, or with a binary unit behind them (K, M, G, T, KiB, MiB, GiB,
/// TiB; "5G" is 5 x 1024 x 1024 x 1024). Decimal units are refused, because "5 GB" is read in two ways.
/// Fails: as wholeNumber.
std::int64_t byteCount(std::string_view option, std::string_view text, Range range);

/// `text` as seconds, not negative. Fails: throws UsageError naming `option`, also for what is not finite.
double seconds(std::string_view option, std::string_view text);

/// How a folder on the command line can be looked at. `error`: errno of a look-up that failed, else 0.
struct FolderLook {
    int error = 0;
    bool isFolder = false;
    bool isOfSandbox = false; ///< it belongs to the root folder that a sandbox made for this program
};

/// Waits up to half a minute for a volume that may be waking up; signals end the program meanwhile. Fails:
/// throws std::runtime_error with a sentence for people if it does not answer.
FolderLook look(std::string_view folder, const OndelCore::platform::MountTable& mounts = {});

/// Why a look-up of the folder failed. A sandbox hides folders that are there outside of it.
QString lookUpFailure(std::string_view folder, int error);

/// The one operand of a command, which must exist, or the folder behind it (see folderBehindPortal). Says on
/// standard error if that is none of the machine's folders. Fails:
/// throws UsageError, else as `look`.
std::filesystem::path folderIn(const CommandLine& line, const OndelCore::platform::MountTable& mounts);

} // namespace TarnwickHost
