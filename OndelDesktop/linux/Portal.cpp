#include "OndelDesktop/linux/Portal.h"

#include "OndelCore/platform/process/SystemCalls.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>

#include <utility>

namespace OndelDesktop {

namespace {

const QString requestInterface = QStringLiteral("org.freedesktop.portal.Request");

QString requestPath(const QString& token) {
    QString sender = QDBusConnection::sessionBus().baseService().mid(1);
    return portalPath + QStringLiteral("/request/") + sender.replace(u'.', u'_') + u'/' + token;
}

} // namespace

QDBusPendingCall callPortal(const PortalCall& call) {
    auto message = QDBusMessage::createMethodCall(
        portalService, portalPath, QStringLiteral("org.freedesktop.portal.") + call.interface, call.method);
    message.setArguments(call.arguments);
    return QDBusConnection::sessionBus().asyncCall(message, static_cast<int>(call.timeout.count()));
}

PortalRequest::PortalRequest(PortalCall call, QVariantMap options)
    : m_token(u'o' + QString::fromStdString(OndelCore::platform::newUuid()).remove(u'-')) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        QMetaObject::invokeMethod(this, [this] { settle(Outcome::failed); }, Qt::QueuedConnection);
        return;
    }
    // With the portal's name as the sender, Qt waits for the bus to look up its owner, and drops signals of
    // an owner that it has not heard of yet.
    bus.connect(QString(), requestPath(m_token), requestInterface, QStringLiteral("Response"), this,
                SLOT(receive(QDBusMessage)));
    auto* watch = new QDBusServiceWatcher(portalService, bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watch, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString& previous) {
                if (!m_portal.isEmpty() && previous == m_portal)
                    settle(Outcome::failed);
            });
    options.insert(QStringLiteral("handle_token"), m_token);
    call.arguments.append(options);
    auto* accepted = new QDBusPendingCallWatcher(callPortal(call), this);
    connect(accepted, &QDBusPendingCallWatcher::finished, this, [this, accepted] {
        accepted->deleteLater();
        accept(accepted->reply());
    });
}

void PortalRequest::accept(const QDBusMessage& reply) {
    if (reply.type() != QDBusMessage::ReplyMessage)
        return settle(Outcome::failed);
    m_portal = reply.service();
    for (const QDBusMessage& response : std::exchange(m_early, {}))
        receive(response);
}

void PortalRequest::close() {
    auto message = QDBusMessage::createMethodCall(portalService, requestPath(m_token), requestInterface,
                                                  QStringLiteral("Close"));
    message.setAutoStartService(false);
    QDBusConnection::sessionBus().send(message);
}

/// Others can send this signal too, if they listen to the bus. An answer may come before the acceptance, when
/// it is not known yet who the portal is.
void PortalRequest::receive(const QDBusMessage& response) {
    constexpr std::size_t mostEarly = 8;
    if (m_portal.isEmpty()) {
        if (m_early.size() < mostEarly)
            m_early.push_back(response);
        return;
    }
    if (response.service() != m_portal)
        return;
    if (response.signature() != u"ua{sv}")
        return settle(Outcome::failed);
    const uint code = response.arguments().at(0).toUInt();
    settle(code == 0   ? Outcome::done
           : code == 1 ? Outcome::cancelled
                       : Outcome::ended,
           qdbus_cast<QVariantMap>(response.arguments().at(1)));
}

void PortalRequest::settle(Outcome outcome, const QVariantMap& results) {
    if (!std::exchange(m_isSettled, true))
        Q_EMIT answered(outcome, results);
}

} // namespace OndelDesktop
