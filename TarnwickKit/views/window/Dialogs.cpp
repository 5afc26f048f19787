#include "TarnwickKit/views/window/Dialogs.h"

#include "TarnwickKit/model/runs/RunFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QMimeDatabase>
#include <QStandardPaths>

#include <string>
#include <utility>

namespace fs = std::filesystem;

namespace TarnwickKit::views {

using model::TarnwickFile;
using OndelDesktop::FileQuestion;

namespace {

struct DialogsText {
    Q_DECLARE_TR_FUNCTIONS(DialogsText)
};

/// Whose dialog is open.
Dialogs* asking = nullptr;

fs::path pathOf(const QString& file) { return QFile::encodeName(file).toStdString(); }

/// Below the files, since the desktop cuts a long title.
void addMessage(QFileDialog& dialog, const QString& message) {
    auto* words = new QLabel(message);
    words->setTextFormat(Qt::PlainText);
    words->setWordWrap(true);
    if (auto* layout = qobject_cast<QGridLayout*>(dialog.layout()))
        layout->addWidget(words, layout->rowCount(), 0, 1, -1);
}

void beginAt(QFileDialog& dialog, const FileQuestion& question) {
    if (question.startingAt)
        dialog.setDirectory(QFile::decodeName(question.startingAt->c_str()));
    dialog.selectFile(QString::fromStdString(question.proposedName));
}

/// Qt's dialog even where Qt would take a toolkit's: on Wayland the toolkit's has no parent, and it has no
/// room for a message.
QFileDialog* fileDialogFor(const FileQuestion& question) {
    auto* dialog = new QFileDialog;
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setWindowTitle(QString::fromStdString(question.title));
    switch (question.kind) {
    case FileQuestion::Kind::Folder:
        dialog->setFileMode(QFileDialog::Directory);
        dialog->setOption(QFileDialog::ShowDirsOnly);
        break;
    case FileQuestion::Kind::Files:
        dialog->setFileMode(QFileDialog::ExistingFiles);
        break;
    case FileQuestion::Kind::NewFile:
        dialog->setAcceptMode(QFileDialog::AcceptSave);
        dialog->setFileMode(QFileDialog::AnyFile);
        dialog->setDefaultSuffix(QString::fromStdString(fs::path(question.proposedName).extension()).mid(1));
        break;
    }
    if (!question.acceptLabel.empty())
        dialog->setLabelText(QFileDialog::Accept, QString::fromStdString(question.acceptLabel));
    if (question.type && !question.type->mimeType.empty())
        dialog->setMimeTypeFilters({QString::fromStdString(question.type->mimeType)});
    else if (question.type)
        dialog->setNameFilter(QStringLiteral("%1 (%2)").arg(QString::fromStdString(question.type->name),
                                                            QString::fromStdString(question.type->pattern)));
    if (!question.note.first.empty())
        addMessage(*dialog, QString::fromStdString(question.title));
    beginAt(*dialog, question);
    return dialog;
}

} // namespace

Dialogs::~Dialogs() { close(); }

void Dialogs::close() {
    m_desktops.close();
    delete m_dialog;
    if (asking == this)
        asking = nullptr;
}

void Dialogs::ask(const Question& question, const ChosenFiles& chosen) {
    if (Dialogs* previous = std::exchange(asking, this))
        previous->close();
    asking = this;
    m_desktops.ask(question, m_window, chosen, [this, question, chosen] {
        QFileDialog* dialog = fileDialogFor(question);
        QObject::connect(dialog, &QFileDialog::filesSelected, dialog, [chosen](const QStringList& names) {
            std::vector<fs::path> files;
            for (const QString& name : names)
                files.push_back(pathOf(name));
            chosen(files);
        });
        show(dialog);
    });
}

void Dialogs::show(QDialog* dialog) {
    delete m_dialog;
    m_dialog = dialog;
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->winId(); // creates the window, which needs the parent
    dialog->windowHandle()->setTransientParent(m_window);
    dialog->show();
}

void Dialogs::askForFolder(const QString& message, const QString& prompt,
                           const std::optional<fs::path>& startingAt, Chosen chosen) {
    const Question question{
        .kind = Question::Kind::Folder,
        .title = message.toStdString(),
        .acceptLabel = prompt.toStdString(),
        .note = {DialogsText::tr("Working folder:").toStdString(),
                 DialogsText::tr("temporary, is written there and removed").toStdString()},
        .startingAt = startingAt,
        .proposedName = {},
        .type = {}};
    ask(question,
        [chosen = std::move(chosen)](const std::vector<fs::path>& files) { chosen(files.front()); });
}

void Dialogs::askForNewFile(const QString& proposedName, const char* mimeType, const QString& folder,
                            const Chosen& chosen) {
    const QString type = QString::fromLatin1(mimeType);
    const Question question{
        .kind = Question::Kind::NewFile,
        .title = DialogsText::tr("Save As").toStdString(),
        .acceptLabel = {},
        .note = {},
        .startingAt = folder.isEmpty() ? std::nullopt : std::optional(pathOf(folder)),
        .proposedName = proposedName.toStdString(),
        .type = Question::Type{.name = QMimeDatabase().mimeTypeForName(type).comment().toStdString(),
                               .pattern = {},
                               .mimeType = mimeType}};
    ask(question, [chosen](const std::vector<fs::path>& files) { chosen(files.front()); });
}

void Dialogs::askForTextFile(const QString& proposedName, Chosen chosen) {
    askForNewFile(proposedName, "text/plain", {}, chosen);
}

void Dialogs::askForImageFile(const QString& proposedName, const Chosen& chosen) {
    askForNewFile(proposedName, "image/png",
                  QStandardPaths::writableLocation(QStandardPaths::PicturesLocation), chosen);
}

void Dialogs::askForExportFile(const QString& proposedName, const QString& kind, const Chosen& chosen) {
    const std::string ending = fs::path(proposedName.toStdString()).extension();
    const Question question{
        .kind = Question::Kind::NewFile,
        .title = DialogsText::tr("Save As").toStdString(),
        .acceptLabel = {},
        .note = {},
        .startingAt = pathOf(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)),
        .proposedName = proposedName.toStdString(),
        .type = Question::Type{.name = kind.toStdString(), .pattern = "*" + ending, .mimeType = {}}};
    ask(question, [chosen](const std::vector<fs::path>& files) { chosen(files.front()); });
}

void Dialogs::askForRunFiles(const std::function<void(const std::vector<fs::path>&)>& chosen) {
    const Question question{.kind = Question::Kind::Files,
                            //: The title of a dialog that asks for files
                            .title = DialogsText::tr("Open").toStdString(),
                            .acceptLabel = {},
                            .note = {},
                            .startingAt = {},
                            .proposedName = {},
                            .type = Question::Type{.name = DialogsText::tr("Tarnwick runs").toStdString(),
                                                   .pattern = "*." + std::string(TarnwickFile::runExtension),
                                                   .mimeType = {}}};
    ask(question, chosen);
}

void Dialogs::showError(const QString& sentence) {
    auto* box =
        new QMessageBox(QMessageBox::Warning, QStringLiteral("Ondel Tarnwick"), sentence, QMessageBox::Ok);
    box->setTextFormat(Qt::PlainText); // it names files
    show(box);
}

} // namespace TarnwickKit::views
