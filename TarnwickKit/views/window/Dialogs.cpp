#include "TarnwickKit/views/window/Dialogs.h"

#include "TarnwickKit/model/runs/RunFile.h"

#include <QFile>
#include <QMessageBox>
#include <QStandardPaths>
#include <QWindow>

#include <utility>

namespace fs = std::filesystem;

namespace TarnwickKit::views {

using model::TarnwickFile;

namespace {

fs::path pathOf(const QString& file) { return QFile::encodeName(file).toStdString(); }

} // namespace

Dialogs::~Dialogs() { delete m_dialog; }

QFileDialog* Dialogs::newFileDialog(const Chosen& chosen) {
    auto* dialog = new QFileDialog;
    QObject::connect(dialog, &QFileDialog::fileSelected, dialog,
                     [chosen](const QString& file) { chosen(pathOf(file)); });
    return dialog;
}

void Dialogs::show(QDialog* dialog) {
    delete m_dialog;
    m_dialog = dialog;
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowModality(Qt::WindowModal);
    dialog->winId(); // creates the window, which needs the parent
    dialog->windowHandle()->setTransientParent(m_window);
    dialog->show();
}

void Dialogs::askForFolder(const QString& message, const QString& prompt,
                           const std::optional<fs::path>& startingAt, Chosen chosen) {
    QFileDialog* dialog = newFileDialog(chosen);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    dialog->setLabelText(QFileDialog::Accept, prompt);
    dialog->setWindowTitle(message);
    if (startingAt)
        dialog->setDirectory(QFile::decodeName(startingAt->c_str()));
    show(dialog);
}

QFileDialog* Dialogs::newSaveDialog(const QString& type, const QString& suffix, const Chosen& chosen) {
    QFileDialog* dialog = newFileDialog(chosen);
    dialog->setWindowTitle(QFileDialog::tr("Save As")); // the desktop's own dialog would have no title
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setMimeTypeFilters({type});
    dialog->setDefaultSuffix(suffix);
    return dialog;
}

void Dialogs::askForTextFile(const QString& proposedName, Chosen chosen) {
    QFileDialog* dialog = newSaveDialog(QStringLiteral("text/plain"), QStringLiteral("txt"), chosen);
    dialog->selectFile(proposedName);
    show(dialog);
}

void Dialogs::askForImageFile(const QString& proposedName, const Chosen& chosen) {
    QFileDialog* dialog = newSaveDialog(QStringLiteral("image/png"), QStringLiteral("png"), chosen);
    dialog->setDirectory(QStandardPaths::writableLocation(QStandardPaths::PicturesLocation));
    dialog->selectFile(proposedName);
    show(dialog);
}

void Dialogs::askForExportFile(const QString& proposedName, const QString& kind, const Chosen& chosen) {
    const QString ending = proposedName.section(QLatin1Char('.'), -1);
    QFileDialog* dialog = newFileDialog(chosen);
    dialog->setWindowTitle(QFileDialog::tr("Save As"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setNameFilter(QStringLiteral("%1 (*.%2)").arg(kind, ending));
    dialog->setDefaultSuffix(ending);
    dialog->setDirectory(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    dialog->selectFile(proposedName);
    show(dialog);
}

void Dialogs::askForRunFiles(std::function<void(const std::vector<fs::path>&)> chosen) {
    auto* dialog = new QFileDialog;
    dialog->setWindowTitle(QFileDialog::tr("Open"));
    dialog->setFileMode(QFileDialog::ExistingFiles);
    const auto extension =
        QLatin1StringView(TarnwickFile::runExtension.data(), qsizetype{TarnwickFile::runExtension.size()});
    dialog->setNameFilter(QFileDialog::tr("Tarnwick runs (*.%1)").arg(extension));
    QObject::connect(dialog, &QFileDialog::filesSelected, dialog,
                     [chosen = std::move(chosen)](const QStringList& names) {
                         std::vector<fs::path> files;
                         for (const QString& name : names)
                             files.push_back(pathOf(name));
                         chosen(files);
                     });
    show(dialog);
}

void Dialogs::showError(const QString& sentence) {
    auto* box =
        new QMessageBox(QMessageBox::Warning, QStringLiteral("Ondel Tarnwick"), sentence, QMessageBox::Ok);
    box->setTextFormat(Qt::PlainText); // it names files
    show(box);
}

} // namespace TarnwickKit::views
