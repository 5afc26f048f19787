#pragma once

#include <QString>

#include <filesystem>
#include <functional>
#include <optional>

namespace TarnwickKit::model {

/// The questions that the model puts to people, for the views to ask in dialogs. A dialog may return at once
/// and call back later; one that is dismissed does not call back.
class AnalyzerDialogs {
public:
    using Chosen = std::function<void(const std::filesystem::path&)>;

    virtual ~AnalyzerDialogs() = default;

    /// Asks for one existing folder. `message`: why; `prompt`: the accepting button. Begins at `startingAt`,
    /// or wherever the dialog likes.
    virtual void askForFolder(const QString& message, const QString& prompt,
                              const std::optional<std::filesystem::path>& startingAt, Chosen chosen) = 0;
    /// Asks where to save a plain text file. An existing file has been confirmed by whoever is asked.
    virtual void askForTextFile(const QString& proposedName, Chosen chosen) = 0;
    virtual void showError(const QString& sentence) = 0;
};

} // namespace TarnwickKit::model
