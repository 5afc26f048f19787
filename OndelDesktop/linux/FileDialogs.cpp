#include "OndelDesktop/FileDialogs.h"

#include "OndelCore/volumes/FileUrl.h"
#include "OndelDesktop/OpenRequests.h"
#include "OndelDesktop/linux/ExportedWindow.h"
#include "OndelDesktop/linux/Portal.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QElapsedTimer>
#include <QList>
#include <QWindow>

#include <chrono>
#include <utility>

namespace OndelDesktop {

namespace {

namespace fs = std::filesystem;

constexpr std::chrono::milliseconds fileChooserTimeout = std::chrono::seconds(5);

/// Nobody sees a dialog and dismisses it within this time: it was never shown.
constexpr std::chrono::milliseconds quickestDismissal(400);

/// "a(sa(us))": kinds of files and their patterns, each of a pattern of names (0) or a MIME type (1).
using FilterRule = std::pair<uint, QString>;
using Filter = std::pair<QString, QList<FilterRule>>;

/// "a(ssa(ss)s)": rows below the files, each with a label and a list to choose from.
using ChoiceOption = std::pair<QString, QString>;
struct Choice {
    QString id;
    QString label;
    QList<ChoiceOption> options;
    QString chosen;
};

QDBusArgument& operator<<(QDBusArgument& out, const Choice& row) {
    out.beginStructure();
    out << row.id << row.label << row.options << row.chosen;
    out.endStructure();
    return out;
}

const QDBusArgument& operator>>(const QDBusArgument& in, Choice& row) {
    in.beginStructure();
    in >> row.id >> row.label >> row.options >> row.chosen;
    in.endStructure();
    return in;
}

void registerTypes() {
    qDBusRegisterMetaType<FilterRule>();
    qDBusRegisterMetaType<QList<FilterRule>>();
    qDBusRegisterMetaType<Filter>();
    qDBusRegisterMetaType<QList<Filter>>();
    qDBusRegisterMetaType<ChoiceOption>();
    qDBusRegisterMetaType<QList<ChoiceOption>>();
    qDBusRegisterMetaType<Choice>();
    qDBusRegisterMetaType<QList<Choice>>();
}

QString words(const std::string& text) { return QString::fromStdString(text); }

Filter filterOf(const FileQuestion::Type& type) {
    constexpr uint byName = 0;
    constexpr uint byMimeType = 1;
    const auto rule = type.mimeType.empty() ? FilterRule(byName, words(type.pattern))
                                            : FilterRule(byMimeType, words(type.mimeType));
    return {words(type.name), {rule}};
}

/// The portal's dialog has a title, which the desktop cuts where it is too long, and no place for a sentence.
/// A choice of one is shown whole.
Choice rowOf(const std::pair<std::string, std::string>& note) {
    const QString id = QStringLiteral("note");
    return {id, words(note.first), {{id, words(note.second)}}, id};
}

QVariantMap optionsOf(const FileQuestion& question) {
    using Kind = FileQuestion::Kind;
    // While a modal dialog is open, GNOME lets no press reach the window, not even its close button. A dialog
    // with a parent stays above it anyway.
    QVariantMap options{{QStringLiteral("modal"), false}};
    if (question.kind == Kind::Folder)
        options.insert(QStringLiteral("directory"), true);
    if (question.kind == Kind::Files)
        options.insert(QStringLiteral("multiple"), true);
    if (!question.acceptLabel.empty())
        options.insert(QStringLiteral("accept_label"), words(question.acceptLabel));
    if (!question.proposedName.empty())
        options.insert(QStringLiteral("current_name"), words(question.proposedName));
    if (question.startingAt) {
        const std::string& path = question.startingAt->native();
        options.insert(QStringLiteral("current_folder"), // with the NUL at its end
                       QByteArray(path.c_str(), static_cast<qsizetype>(path.size()) + 1));
    }
    if (question.type)
        options.insert(QStringLiteral("filters"),
                       QVariant::fromValue(QList<Filter>{filterOf(*question.type)}));
    if (!question.note.first.empty())
        options.insert(QStringLiteral("choices"), QVariant::fromValue(QList<Choice>{rowOf(question.note)}));
    return options;
}

/// Absent: the answer has no list of URIs.
std::optional<std::vector<fs::path>> localFiles(const QVariantMap& results) {
    const QVariant uris = results.value(QStringLiteral("uris"));
    if (uris.typeId() != QMetaType::QStringList)
        return std::nullopt;
    std::vector<fs::path> files;
    for (const QString& uri : uris.toStringList()) {
        if (files.size() == FileDialogs::mostFiles)
            break;
        if (static_cast<std::size_t>(uri.size()) > OpenRequests::longestUrl)
            continue;
        if (auto file = OndelCore::volumes::localPath(std::string_view(uri.toStdString())))
            files.push_back(*std::move(file));
    }
    return files;
}

} // namespace

class FileDialogs::Dialog {
public:
    Dialog(FileDialogs& owner, const FileQuestion& question, QWindow* parent, Chosen chosen,
           Unavailable unavailable)
        : m_owner(owner)
        , m_call{.interface = QStringLiteral("FileChooser"),
                 .method = question.kind == FileQuestion::Kind::NewFile ? QStringLiteral("SaveFile")
                                                                        : QStringLiteral("OpenFile"),
                 .arguments = {},
                 .timeout = fileChooserTimeout}
        , m_title(words(question.title))
        , m_options(optionsOf(question))
        , m_chosen(std::move(chosen))
        , m_unavailable(std::move(unavailable))
        , m_parent(parent, [this](const QString& identifier) { open(identifier); }) {}

    ~Dialog() {
        if (m_request)
            m_request->close();
    }
    Dialog(const Dialog&) = delete;
    Dialog& operator=(const Dialog&) = delete;

private:
    void open(const QString& parent);
    void take(PortalRequest::Outcome outcome, const QVariantMap& results);

    FileDialogs& m_owner;
    PortalCall m_call;
    QString m_title;
    QVariantMap m_options;
    Chosen m_chosen;
    Unavailable m_unavailable;
    QElapsedTimer m_age;
    std::unique_ptr<PortalRequest> m_request;
    ExportedWindow m_parent;
};

void FileDialogs::Dialog::open(const QString& parent) {
    m_age.start();
    m_call.arguments = {parent, m_title};
    m_request = std::make_unique<PortalRequest>(m_call, m_options);
    QObject::connect(
        m_request.get(), &PortalRequest::answered, m_request.get(),
        [this](PortalRequest::Outcome outcome, const QVariantMap& results) { take(outcome, results); });
}

/// Destroys this before it calls anything: the callee may ask the next question.
void FileDialogs::Dialog::take(PortalRequest::Outcome outcome, const QVariantMap& results) {
    using Outcome = PortalRequest::Outcome;
    if (outcome == Outcome::failed)
        m_request->close();             // a portal that did not answer in time may still open the dialog
    m_request.release()->deleteLater(); // it is telling this answer
    const auto files = outcome == Outcome::done ? localFiles(results) : std::nullopt;
    const bool wasDismissed = outcome == Outcome::cancelled ||
                              (outcome == Outcome::ended && m_age.elapsed() > quickestDismissal.count());
    const Chosen chosen = std::move(m_chosen);
    const Unavailable unavailable = std::move(m_unavailable);
    m_owner.close();
    if (files && !files->empty())
        chosen(*files);
    else if (!files && !wasDismissed)
        unavailable();
}

FileDialogs::FileDialogs() = default;
FileDialogs::~FileDialogs() = default;

void FileDialogs::ask(const FileQuestion& question, QWindow* parent, Chosen chosen, Unavailable unavailable) {
    registerTypes();
    close();
    m_dialog = std::make_unique<Dialog>(*this, question, parent, std::move(chosen), std::move(unavailable));
}

void FileDialogs::close() { m_dialog.reset(); }

} // namespace OndelDesktop
