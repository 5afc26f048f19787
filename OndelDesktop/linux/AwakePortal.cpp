// https://flatpak.github.io/xdg-desktop-portal/docs/doc-org.freedesktop.portal.Inhibit.html

#include "OndelDesktop/linux/AwakePortal.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>

#include <atomic>
#include <chrono>
#include <utility>

namespace OndelDesktop {

namespace {

/// The desktop may have to start its portal first.
constexpr std::chrono::milliseconds awakePatience = std::chrono::seconds(10);

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString request = QStringLiteral("org.freedesktop.portal.Request");

/// Each wish has a name of its own; the portal makes an object of it that is closed in the end.
QString newToken() {
    static std::atomic<unsigned> count = 0;
    return QStringLiteral("ondel_awake_%1").arg(++count);
}

QString awakeRequestPath(const QString& token) {
    QString sender = QDBusConnection::sessionBus().baseService().mid(1);
    return path + QStringLiteral("/request/") + sender.replace(u'.', u'_') + u'/' + token;
}

} // namespace

AwakePortal::AwakePortal(const QString& why, std::function<void()> refused)
    : m_token(newToken())
    , m_refused(std::move(refused)) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        giveUp();
        return;
    }
    // From whom it comes is left open: the toolkit would wait for the bus to tell who has the portal's name.
    bus.connect(QString(), awakeRequestPath(m_token), request, QStringLiteral("Response"), this,
                SLOT(answered(uint, QVariantMap)));
    ask(why);
}

/// The portal's object has the name that was asked for, so it can be closed before the answer is here.
AwakePortal::~AwakePortal() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    auto message =
        QDBusMessage::createMethodCall(service, awakeRequestPath(m_token), request, QStringLiteral("Close"));
    message.setAutoStartService(false);
    bus.send(message);
}

void AwakePortal::ask(const QString& why) {
    constexpr uint suspendAndIdle = 4U | 8U;
    auto message = QDBusMessage::createMethodCall(
        service, path, QStringLiteral("org.freedesktop.portal.Inhibit"), QStringLiteral("Inhibit"));
    const QVariantMap options{{QStringLiteral("handle_token"), m_token}, {QStringLiteral("reason"), why}};
    message << QString() << suspendAndIdle << options;
    auto* taken = new QDBusPendingCallWatcher(
        QDBusConnection::sessionBus().asyncCall(message, static_cast<int>(awakePatience.count())), this);
    connect(taken, &QDBusPendingCallWatcher::finished, this, [this, taken] {
        taken->deleteLater();
        if (taken->isError())
            giveUp();
    });
}

void AwakePortal::giveUp() {
    if (const auto refused = std::exchange(m_refused, nullptr))
        refused();
}

void AwakePortal::answered(uint response, const QVariantMap& results) {
    Q_UNUSED(results)
    if (response != 0)
        giveUp();
}

} // namespace OndelDesktop
