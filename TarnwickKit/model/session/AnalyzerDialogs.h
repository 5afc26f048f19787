#pragma once

#include "OndelCore/Export.h"

#include <QString>

#include <filesystem>
#include <functional>
#include <optional>

namespace TarnwickKit::model {

/// The model's questions to people, asked by the views in dialogs. A dialog may return immediately and call
/// back later. It does not call back if it is dismissed.
class ONDEL_PUBLIC AnalyzerDialogs {
public:
    /// Takes the answer; not called without one.
    using Chosen = std::function<void(const std::filesystem::path&)>;

    virtual ~AnalyzerDialogs() = default;

    /// Asks for one existing folder. `message`: why; `prompt`: the accepting button. Without `startingAt` the
    /// dialog chooses where to begin.
    virtual void askForFolder(const QString& message, const QString& prompt,
                              const std::optional<std::filesystem::path>& startingAt, Chosen chosen) = 0;
    /// Asks where to save a plain text file. The dialog itself confirms replacing an existing file.
    virtual void askForTextFile(const QString& proposedName, Chosen chosen) = 0;
    /// Tells of something that went wrong, in one sentence.
    virtual void showError(const QString& sentence) = 0;
};

} // namespace TarnwickKit::model
