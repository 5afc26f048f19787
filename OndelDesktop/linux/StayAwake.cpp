#include "OndelDesktop/StayAwake.h"

#include "OndelCore/platform/process/SystemCalls.h"
#include "OndelCore/platform/storage/FileDescriptor.h"
#include "OndelDesktop/linux/AwakePortal.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusUnixFileDescriptor>

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

/// The login manager may have to be started first.
constexpr std::chrono::milliseconds inhibitPatience = std::chrono::seconds(10);

/// Each wish asks over a connection of a name of its own.
QString newConnectionName() {
    static std::atomic<unsigned> count = 0;
    return QStringLiteral("ondel_awake_%1").arg(++count);
}

/// Asks the login manager over a connection of its own. Blocks.
FileDescriptor loginManagerInhibition(const QString& who, const QString& why) {
    const QString name = newConnectionName();
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

/// Outlives its owner for as long as the login manager's answer is awaited.
struct StayAwake::Wish {
    QString who;
    QString why;
    std::unique_ptr<AwakePortal> portal; ///< the owner's thread's

    std::mutex mutex;
    bool isOver = false;
    FileDescriptor lock; ///< the login manager's, which holds until it is closed

    static void askLoginManager(const std::shared_ptr<Wish>& wish);
    void end();
};

void StayAwake::Wish::askLoginManager(const std::shared_ptr<Wish>& wish) {
    std::thread([wish] {
        enterBackground("ondel-awake");
        FileDescriptor lock = loginManagerInhibition(wish->who, wish->why);
        const std::lock_guard guard(wish->mutex);
        if (!wish->isOver)
            wish->lock = std::move(lock);
    }).detach();
}

void StayAwake::Wish::end() {
    portal.reset();
    const std::lock_guard guard(mutex);
    isOver = true;
    lock = FileDescriptor();
}

StayAwake::StayAwake(const std::string& who, const std::string& why)
    : m_wish(std::make_shared<Wish>()) {
    m_wish->who = QString::fromStdString(who);
    m_wish->why = QString::fromStdString(why);
    m_wish->portal = std::make_unique<AwakePortal>(m_wish->why, [wish = std::weak_ptr(m_wish)] {
        if (const auto held = wish.lock())
            Wish::askLoginManager(held);
    });
}

StayAwake::~StayAwake() { m_wish->end(); }

} // namespace OndelDesktop
