#include "OndelCore/platform/process/ApplicationBus.h"

#include "OndelCore/platform/process/SessionBus.h"
#include "OndelCore/platform/process/SystemCalls.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QFile>
#include <QProcess>
#include <QStringList>
#include <QUrl>
#include <QVariantMap>

#include <algorithm>
#include <memory>

namespace OndelCore::platform {

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

milliseconds left(steady_clock::time_point end) {
    const auto rest = std::chrono::duration_cast<milliseconds>(end - steady_clock::now());
    return std::max(rest, milliseconds(0));
}

/// Through a connection of its own: the shared one belongs to the host's main thread.
bool openOnBus(const QString& application, const QString& file, milliseconds patience) {
    const QString name = QString::fromStdString("opener-" + newUuid());
    bool isTaken = false;
    {
        const QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
        if (bus.isConnected()) {
            const QString path =
                QLatin1Char('/') + QString(application).replace(QLatin1Char('.'), QLatin1Char('/'));
            QDBusMessage call = QDBusMessage::createMethodCall(
                application, path, QStringLiteral("org.freedesktop.Application"), QStringLiteral("Open"));
            call << QStringList(QUrl::fromLocalFile(file).toString(QUrl::FullyEncoded)) << QVariantMap();
            const QDBusMessage answer = bus.call(call, QDBus::Block, static_cast<int>(patience.count()));
            isTaken = answer.type() == QDBusMessage::ReplyMessage;
        }
    }
    QDBusConnection::disconnectFromBus(name);
    return isTaken;
}

/// On some desktops the tool waits for the program that it has found, so one that is still there has found
/// one. It is not ended then.
bool openByType(const QString& file, milliseconds patience) {
    auto opener = std::make_unique<QProcess>();
    for (const auto set : {&QProcess::setStandardOutputFile, &QProcess::setStandardErrorFile})
        (*opener.*set)(QProcess::nullDevice(), QIODevice::Truncate);
    opener->setStandardInputFile(QProcess::nullDevice());
    opener->start(QStringLiteral("xdg-open"), {file});
    if (!opener->waitForStarted())
        return false;
    if (!opener->waitForFinished(static_cast<int>(patience.count()))) {
        static_cast<void>(opener.release()); // its end would kill the tool
        return true;
    }
    return opener->exitStatus() == QProcess::NormalExit && opener->exitCode() == 0;
}

} // namespace

bool openWithApplication(std::string_view application, const std::filesystem::path& file,
                         milliseconds patience) {
    const auto end = steady_clock::now() + patience;
    const QString path = QFile::decodeName(file.c_str());
    const QString id = QString::fromUtf8(application.data(), static_cast<qsizetype>(application.size()));
    const milliseconds forBus(std::min<milliseconds>(patience, milliseconds(500)));
    if (sessionBusAnswers(forBus) && openOnBus(id, path, left(end)))
        return true;
    return openByType(path, left(end));
}

} // namespace OndelCore::platform
