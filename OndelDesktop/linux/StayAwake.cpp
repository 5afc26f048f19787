#include "OndelDesktop/StayAwake.h"

#include "OndelCore/platform/process/SystemCalls.h"
#include "OndelCore/platform/storage/FileDescriptor.h"
#include "OndelDesktop/linux/Portal.h"

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

/// The portal and the login manager may have to be started first.
constexpr std::chrono::milliseconds inhibitTimeout = std::chrono::seconds(10);

/// Asks the login manager over a connection of its own. Blocks.
FileDescriptor loginManagerInhibition(const QString& who, const QString& why) {
    static std::atomic<unsigned> count = 0;
    const QString name = QStringLiteral("ondel_awake_%1").arg(++count);
    FileDescriptor kept;
    {
        const auto bus = QDBusConnection::connectToBus(QDBusConnection::SystemBus, name);
        auto message = QDBusMessage::createMethodCall(
            QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1"),
            QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("Inhibit"));
        message << QStringLiteral("sleep:idle") << who << why << QStringLiteral("block");
        const QDBusReply<QDBusUnixFileDescriptor> reply =
            bus.call(message, QDBus::Block, static_cast<int>(inhibitTimeout.count()));
        if (reply.isValid())
            kept = FileDescriptor(fcntl(reply.value().fileDescriptor(), F_DUPFD_CLOEXEC, 0));
    }
    QDBusConnection::disconnectFromBus(name);
    return kept;
}

} // namespace

/// Outlives its owner until the login manager has answered.
struct StayAwake::Wish {
    QString who;
    QString why;
    std::unique_ptr<PortalRequest> request; ///< used by the owner's thread alone

    std::mutex mutex;
    bool isOver = false;
    FileDescriptor lock; ///< the login manager's, which holds until it is closed

    static void askPortal(const std::shared_ptr<Wish>& wish);
    static void askLoginManager(const std::shared_ptr<Wish>& wish);
    void end();
};

/// A portal accepts the request before it asks the desktop behind it, which may refuse.
void StayAwake::Wish::askPortal(const std::shared_ptr<Wish>& wish) {
    constexpr uint suspendAndIdle = 4U | 8U;
    const QString inhibit = QStringLiteral("Inhibit");
    PortalCall call{.interface = inhibit,
                    .method = inhibit,
                    .arguments = {QString(), suspendAndIdle},
                    .timeout = inhibitTimeout};
    wish->request =
        std::make_unique<PortalRequest>(std::move(call), QVariantMap{{QStringLiteral("reason"), wish->why}});
    QObject::connect(wish->request.get(), &PortalRequest::answered, wish->request.get(),
                     [weak = std::weak_ptr(wish)](PortalRequest::Outcome outcome) {
                         const auto held = weak.lock();
                         if (held && outcome != PortalRequest::Outcome::done)
                             askLoginManager(held);
                     });
}

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
    request->close();
    request.reset();
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
