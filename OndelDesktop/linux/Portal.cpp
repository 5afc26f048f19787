#include "OndelDesktop/linux/Portal.h"

#include "OndelCore/platform/process/SystemCalls.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>

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
    // Any sender is accepted, since nobody can guess the path. With the portal's name as the sender, Qt waits
    // for the bus to look up its owner, and drops signals of an owner that it has not heard of yet.
    bus.connect(QString(), requestPath(m_token), requestInterface, QStringLiteral("Response"), this,
                SLOT(receive(uint, QVariantMap)));
    options.insert(QStringLiteral("handle_token"), m_token);
    call.arguments.append(options);
    auto* accepted = new QDBusPendingCallWatcher(callPortal(call), this);
    connect(accepted, &QDBusPendingCallWatcher::finished, this, [this, accepted] {
        accepted->deleteLater();
        if (accepted->isError())
            settle(Outcome::failed);
    });
}

void PortalRequest::close() {
    auto message = QDBusMessage::createMethodCall(portalService, requestPath(m_token), requestInterface,
                                                  QStringLiteral("Close"));
    message.setAutoStartService(false);
    QDBusConnection::sessionBus().send(message);
}

void PortalRequest::receive(uint response, const QVariantMap& results) {
    Q_UNUSED(results)
    settle(response == 0 ? Outcome::done : response == 1 ? Outcome::cancelled : Outcome::failed);
}

void PortalRequest::settle(Outcome outcome) {
    if (!std::exchange(m_isSettled, true))
        Q_EMIT answered(outcome);
}

} // namespace OndelDesktop
