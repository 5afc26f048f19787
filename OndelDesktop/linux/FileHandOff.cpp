#include "OndelDesktop/FileHandOff.h"

#include "OndelDesktop/linux/EmailPortal.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QFile>
#include <QProcess>
#include <QStringList>
#include <QUrl>

#include <chrono>

namespace OndelDesktop {

namespace {

using Failed = std::function<void()>;

/// A file manager that must first be started may take its time.
constexpr std::chrono::milliseconds handOffPatience = std::chrono::seconds(10);

/// Starts one of the desktop's own tools, which find the user's programs. It outlives this process.
void start(const QString& tool, const QStringList& arguments, const Failed& failed) {
    auto* process = new QProcess; // without an owner, who would end it with himself
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

} // namespace

void showInFolder(const std::filesystem::path& file, Failed failed) {
    const auto openFolder = [folder = textOf(file.parent_path()), failed = std::move(failed)] {
        start(QStringLiteral("xdg-open"), {folder}, failed);
    };
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        openFolder();
        return;
    }
    const auto name = QStringLiteral("org.freedesktop.FileManager1");
    auto question = QDBusMessage::createMethodCall(name, QStringLiteral("/org/freedesktop/FileManager1"),
                                                   name, QStringLiteral("ShowItems"));
    question << QStringList{QUrl::fromLocalFile(textOf(file)).toString(QUrl::FullyEncoded)} << QString();
    auto* shown =
        new QDBusPendingCallWatcher(bus.asyncCall(question, static_cast<int>(handOffPatience.count())));
    QObject::connect(shown, &QDBusPendingCallWatcher::finished, shown, [shown, openFolder] {
        if (shown->isError())
            openFolder();
        shown->deleteLater();
    });
}

void sendByEmail(const std::filesystem::path& file, const std::string& subject, Failed failed) {
    const QString path = textOf(file);
    const QString words = QString::fromStdString(subject);
    EmailPortal::compose(path, words, [path, words, failed = std::move(failed)] {
        start(
            QStringLiteral("xdg-email"),
            {QStringLiteral("--utf8"), QStringLiteral("--subject"), words, QStringLiteral("--attach"), path},
            failed);
    });
}

} // namespace OndelDesktop
