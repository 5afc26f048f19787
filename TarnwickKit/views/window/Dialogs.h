#pragma once

#include "OndelDesktop/FileDialogs.h"
#include "TarnwickKit/model/session/AnalyzerDialogs.h"

#include <QDialog>
#include <QPointer>
#include <QWindow>

#include <filesystem>
#include <functional>
#include <vector>

namespace TarnwickKit::views {

/// Asks the model's questions in the desktop's dialogs, or else Qt's, over the main window. The window stays
/// usable. A new question closes the dialog of the previous one, also of another object. No call blocks.
/// Threads: main. Needs a QApplication.
class Dialogs : public model::AnalyzerDialogs {
public:
    Dialogs() = default;
    ~Dialogs() override;
    Dialogs(const Dialogs&) = delete;
    Dialogs& operator=(const Dialogs&) = delete;

    /// Sets the parent window of later dialogs. Owner: the caller.
    void setWindow(QWindow* window) { m_window = window; }

    void askForFolder(const QString& message, const QString& prompt,
                      const std::optional<std::filesystem::path>& startingAt, Chosen chosen) override;
    void askForTextFile(const QString& proposedName, Chosen chosen) override;
    /// Asks where to save a PNG image, starting in the user's folder of pictures.
    void askForImageFile(const QString& proposedName, const Chosen& chosen);
    /// Asks where to save runs. `kind`: what files with the proposed name's ending are, in the plural.
    void askForExportFile(const QString& proposedName, const QString& kind, const Chosen& chosen);
    void showError(const QString& sentence) override;

    /// Asks for existing run files, one or several.
    void askForRunFiles(const std::function<void(const std::vector<std::filesystem::path>&)>& chosen);

    void close();

private:
    using Question = OndelDesktop::FileQuestion;
    using ChosenFiles = OndelDesktop::FileDialogs::Chosen;

    void ask(const Question& question, const ChosenFiles& chosen);
    void askForNewFile(const QString& proposedName, const char* mimeType, const QString& folder,
                       const Chosen& chosen);
    void show(QDialog* dialog);

    QPointer<QWindow> m_window;
    OndelDesktop::FileDialogs m_desktops;
    QPointer<QDialog> m_dialog; ///< Qt's own
};

} // namespace TarnwickKit::views
