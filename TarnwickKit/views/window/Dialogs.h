#pragma once

#include "TarnwickKit/model/session/AnalyzerDialogs.h"

#include <QFileDialog>
#include <QPointer>

#include <filesystem>
#include <functional>
#include <vector>

class QWindow;

namespace TarnwickKit::views {

/// Asks the model's questions in the desktop's dialogs over the main window. No call blocks.
/// Threads: main. Needs a QApplication.
class Dialogs : public model::AnalyzerDialogs {
public:
    ~Dialogs() override;

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
    void askForRunFiles(std::function<void(const std::vector<std::filesystem::path>&)> chosen);

private:
    QFileDialog* newFileDialog(const Chosen& chosen);
    QFileDialog* newSaveDialog(const QString& type, const QString& suffix, const Chosen& chosen);
    void show(QDialog* dialog);

    QPointer<QWindow> m_window;
    QPointer<QDialog> m_dialog;
};

} // namespace TarnwickKit::views
