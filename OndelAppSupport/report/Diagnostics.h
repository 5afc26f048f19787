#pragma once

#include "OndelCore/platform/storage/PrivateFolder.h"

#include <QString>
#include <QStringList>

#include <filesystem>
#include <functional>
#include <optional>

namespace OndelAppSupport {

/// What a problem report may tell of this session beside the user's own words: the product, the machine, and
/// the newest log lines, which were made safe before they were kept. Threads: main.
class Diagnostics {
public:
    /// Lines that a host program adds to the header.
    static inline std::function<QStringList()> extraHeader = [] { return QStringList(); };

    /// As of now. Later log lines are not in it.
    static QString snapshot();

    /// Writes the text for the user to read, into a file that only the user can read.
    /// Fails: absent, and a line in the log.
    static std::optional<std::filesystem::path> writeForPreview(
        const QString& text,
        const std::optional<std::filesystem::path>& folder = OndelCore::platform::privateTemporaryFolder());
};

} // namespace OndelAppSupport
