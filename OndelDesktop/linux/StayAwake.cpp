#include "OndelDesktop/StayAwake.h"

#include "OndelCore/platform/process/SystemCalls.h"
#include "OndelCore/platform/storage/FileDescriptor.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusReply>
#include <QDBusUnixFileDescriptor>
#include <QVariantMap>

#include <fcntl.h>

#include <atomic>
#include <chrono>
#include <mutex>
#include <thread>
#include <utility>

namespace OndelDesktop {

using OndelCore::platform::enterBackground;
using OndelCore::platform::FileDescriptor;

namespace {

/// The desktop may have to start its portal first.
constexpr std::chrono::milliseconds inhibitPatience = std::chrono::seconds(10);

const QString portal = QStringLiteral("org.freedesktop.portal.Desktop");

/// Each wish has a name of its own; the portal makes an object of it that is closed in the end.
QString newToken() {
    static std::atomic<unsigned> count = 0;
    return QStringLiteral("ondel_awake_%1").arg(++count);
}

QDBusMessage portalInhibition(const QString& token, const QString& why) {
    constexpr uint suspendAndIdle = 4U | 8U;
    auto message = QDBusMessage::createMethodCall(portal, QStringLiteral("/org/freedesktop/portal/desktop"),
                                                  QStringLiteral("org.freedesktop.portal.Inhibit"),
                                                  QStringLiteral("Inhibit"));
    const QVariantMap options{{QStringLiteral("handle_token"), token}, {QStringLiteral("reason"), why}};
    message << QString() << suspendAndIdle << options;
    return message;
}

/// Asks the login manager over a connection of its own. Blocks.
FileDescriptor loginManagerInhibition(const QString& name, const QString& who, const QString& why) {
    FileDescriptor kept;
    {
        const auto bus = QDBusConnection::connectToBus(QDBusConnection::SystemBus, name);
        auto message = QDBusMessage::createMethodCall(
            QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1"),
            QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("Inhibit"));
        message << QStringLiteral("sleep:idle") << who << why << QStringLiteral("block");
        const QDBusReply<QDBusUnixFileDescriptor> reply =
            bus.call(message, QDBus::Block, static_cast<int>(inhibitPatience.count()));
        if (reply.isValid())
            kept = FileDescriptor(fcntl(reply.value().fileDescriptor(), F_DUPFD_CLOEXEC, 0));
    }
    QDBusConnection::disconnectFromBus(name);
    return kept;
}

} // namespace

/// Outlives its owner for as long as an answer is awaited.
struct StayAwake::Wish {
    QString token = newToken();
    QString who;
    QString why;

    std::mutex mutex;
    bool isOver = false;
    FileDescriptor lock; ///< the login manager's, which holds until it is closed

    static void askPortal(const std::shared_ptr<Wish>& wish);
    static void askLoginManager(const std::shared_ptr<Wish>& wish);
    void end();
};

void StayAwake::Wish::askPortal(const std::shared_ptr<Wish>& wish) {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        askLoginManager(wish);
        return;
    }
    auto* answer = new QDBusPendingCallWatcher(
        bus.asyncCall(portalInhibition(wish->token, wish->why), static_cast<int>(inhibitPatience.count())));
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, answer, [answer, wish] {
        answer->deleteLater();
        if (answer->isError())
            askLoginManager(wish);
    });
}

void StayAwake::Wish::askLoginManager(const std::shared_ptr<Wish>& wish) {
    std::thread([wish] {
        enterBackground("ondel-awake");
        FileDescriptor lock = loginManagerInhibition(wish->token, wish->who, wish->why);
        const std::lock_guard guard(wish->mutex);
        if (!wish->isOver)
            wish->lock = std::move(lock);
    }).detach();
}

/// The portal's object has the name that was asked for, so it can be closed before its answer is here.
void StayAwake::Wish::end() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    QString sender = bus.baseService().mid(1);
    sender.replace(u'.', u'_');
    auto message = QDBusMessage::createMethodCall(
        portal, QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2").arg(sender, token),
        QStringLiteral("org.freedesktop.portal.Request"), QStringLiteral("Close"));
    message.setAutoStartService(false);
    if (bus.isConnected())
        bus.send(message);
    const std::lock_guard guard(mutex);
    isOver = true;
    lock = FileDescriptor();
}

StayAwake::StayAwake(const std::string& who, const std::string& why)
    : m_wish(std::make_shared<Wish>()) {
    m_wish->who = QString::fromStdString(who);
    m_wish->why = QString::fromStdString(why);
    Wish::askPortal(m_wish);
}

StayAwake::~StayAwake() { m_wish->end(); }

} // namespace OndelDesktop
