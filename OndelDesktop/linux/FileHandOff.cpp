#include "OndelDesktop/FileHandOff.h"

#include "OndelCore/platform/storage/FileDescriptor.h"
#include "OndelDesktop/linux/Portal.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusUnixFileDescriptor>
#include <QFile>
#include <QList>
#include <QProcess>
#include <QStringList>
#include <QUrl>

#include <fcntl.h>

#include <chrono>

namespace OndelDesktop {

using OndelCore::platform::FileDescriptor;

namespace {

using Failed = std::function<void()>;

/// A file manager or a portal may have to be started first.
constexpr std::chrono::milliseconds fileManagerTimeout = std::chrono::seconds(10);
constexpr std::chrono::milliseconds emailTimeout = std::chrono::seconds(5);

/// Starts one of the desktop's own tools, which find the user's programs. It may outlive this process.
void start(const QString& tool, const QStringList& arguments, const Failed& failed) {
    auto* process = new QProcess; // without a parent, whose end would kill it
    QObject::connect(process, &QProcess::errorOccurred, process,
                     [process, failed](QProcess::ProcessError error) {
                         if (error != QProcess::FailedToStart)
                             return;
                         failed();
                         process->deleteLater();
                     });
    QObject::connect(process, &QProcess::finished, process, [process, failed](int status) {
        if (status != 0)
            failed();
        process->deleteLater();
    });
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    process->start(tool, arguments);
}

QString textOf(const std::filesystem::path& path) { return QFile::decodeName(path.c_str()); }

/// The request deletes itself. A user who cancels is not told of a failure.
void composeByPortal(const FileDescriptor& attachment, const QString& subject, const Failed& failed) {
    using Descriptors = QList<QDBusUnixFileDescriptor>;
    qDBusRegisterMetaType<Descriptors>();
    PortalCall call{.interface = QStringLiteral("Email"),
                    .method = QStringLiteral("ComposeEmail"),
                    .arguments = {QString()}, // no parent window
                    .timeout = emailTimeout};
    auto* request = new PortalRequest(
        std::move(call), {{QStringLiteral("subject"), subject},
                          {QStringLiteral("attachment_fds"),
                           QVariant::fromValue(Descriptors{QDBusUnixFileDescriptor(attachment.get())})}});
    QObject::connect(request, &PortalRequest::answered, request,
                     [request, failed](PortalRequest::Outcome outcome) {
                         using Outcome = PortalRequest::Outcome;
                         if (outcome == Outcome::failed || outcome == Outcome::ended)
                             failed();
                         request->deleteLater();
                     });
}

/// Asks the file manager of the desktop to show `file`. Without one the desktop's opener opens `folder`.
void askFileManager(const QString& method, const std::filesystem::path& file,
                    const std::filesystem::path& folder, Failed failed) {
    const auto openFolder = [folder = textOf(folder), failed = std::move(failed)] {
        start(QStringLiteral("xdg-open"), {folder}, failed);
    };
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        openFolder();
        return;
    }
    const auto name = QStringLiteral("org.freedesktop.FileManager1");
    auto question =
        QDBusMessage::createMethodCall(name, QStringLiteral("/org/freedesktop/FileManager1"), name, method);
    question << QStringList{QUrl::fromLocalFile(textOf(file)).toString(QUrl::FullyEncoded)} << QString();
    auto* shown =
        new QDBusPendingCallWatcher(bus.asyncCall(question, static_cast<int>(fileManagerTimeout.count())));
    QObject::connect(shown, &QDBusPendingCallWatcher::finished, shown, [shown, openFolder] {
        if (shown->isError())
            openFolder();
        shown->deleteLater();
    });
}

} // namespace

void showInFolder(const std::filesystem::path& file, Failed failed) {
    askFileManager(QStringLiteral("ShowItems"), file, file.parent_path(), std::move(failed));
}

void showFolder(const std::filesystem::path& folder, Failed failed) {
    askFileManager(QStringLiteral("ShowFolders"), folder, folder, std::move(failed));
}

void sendByEmail(const std::filesystem::path& file, const std::string& subject, Failed failed) {
    const QString path = textOf(file);
    const QString title = QString::fromStdString(subject);
    const auto openMailProgram = [path, title, failed = std::move(failed)] {
        start(
            QStringLiteral("xdg-email"),
            {QStringLiteral("--utf8"), QStringLiteral("--subject"), title, QStringLiteral("--attach"), path},
            failed);
    };
    const FileDescriptor attachment(open(file.c_str(), O_RDONLY | O_CLOEXEC));
    if (attachment)
        composeByPortal(attachment, title, openMailProgram);
    else
        openMailProgram();
}

} // namespace OndelDesktop
