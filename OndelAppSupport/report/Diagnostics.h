#pragma once

#include "OndelCore/platform/storage/PrivateFolder.h"

#include <QString>
#include <QStringList>

#include <filesystem>
#include <functional>
#include <optional>

namespace OndelAppSupport {

/// The optional attachment of a problem report: the product, the machine, and the newest log lines, which the
/// log redacts before it stores them. Threads: main.
class Diagnostics {
public:
    /// Lines that the host program adds to the header.
    static inline std::function<QStringList()> extraHeader = [] { return QStringList(); };

    /// The text as of now.
    static QString snapshot();

    /// Writes the text into a file that only the user can read. Fails: absent, with a line in the log.
    static std::optional<std::filesystem::path> writeForPreview(
        const QString& text,
        const std::optional<std::filesystem::path>& folder = OndelCore::platform::privateTemporaryFolder());
};

} // namespace OndelAppSupport
