#pragma once

#include <QCoreApplication>
#include <QString>

#include <string_view>

namespace TarnwickHost {

// Contexts of the texts that several files say. Texts of --help are in the context "HostHelp": their English
// line breaks are kept, and those of a translation are made by Help.

/// Why a call is wrong.
struct HostUsage {
    Q_DECLARE_TR_FUNCTIONS(HostUsage)
};

/// Why a file or a folder cannot be read or written.
struct HostFiles {
    Q_DECLARE_TR_FUNCTIONS(HostFiles)
};

/// The facts of a volume and its drive.
struct HostFacts {
    Q_DECLARE_TR_FUNCTIONS(HostFacts)
};

/// A path, an option or another name in UTF-8, for a place in a sentence, in whichever direction it runs.
QString isolated(std::string_view name);

/// What a person typed or what a file is called, in quotes, for a place in a sentence.
QString inQuotes(std::string_view typed);

/// What the system says about a file. `name`: isolated.
QString because(const QString& name, int error);

} // namespace TarnwickHost
