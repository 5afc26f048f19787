#include "OndelDesktop/DesktopNotice.h"

#include "OndelDesktop/linux/NoticeService.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QVariantMap>

#include <utility>

namespace OndelDesktop {

namespace {

const QString noticeService = QStringLiteral("org.freedesktop.Notifications");
const QString noticePath = QStringLiteral("/org/freedesktop/Notifications");

/// The name of what pressing the notice itself does.
const QString defaultAction = QStringLiteral("default");

/// Of several notices of one application the portal tells them apart by such a name.
const QString portalNotice = QStringLiteral("notice");

QDBusMessage portalCall(const QString& method, const QVariantList& arguments) {
    auto message = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.portal.Desktop"), QStringLiteral("/org/freedesktop/portal/desktop"),
        QStringLiteral("org.freedesktop.portal.Notification"), method);
    message.setArguments(arguments);
    return message;
}

} // namespace

NoticeService::NoticeService(QString applicationId, QString applicationName,
                             std::function<void(const std::string&)> chosen)
    : m_applicationId(std::move(applicationId))
    , m_applicationName(std::move(applicationName))
    , m_chosen(std::move(chosen))
    , m_bus(QDBusConnection::sessionBus()) {}

/// Only once there is something to hear of.
void NoticeService::listen() {
    if (std::exchange(m_isListening, true))
        return;
    m_bus.connect(noticeService, noticePath, noticeService, QStringLiteral("ActionInvoked"), this,
                  SLOT(actionInvoked(uint, QString)));
    m_bus.connect(noticeService, noticePath, noticeService, QStringLiteral("ActivationToken"), this,
                  SLOT(activationToken(uint, QString)));
}

/// The text is markup to the noticeService.
QDBusMessage NoticeService::notify(const QString& title, const QString& text) const {
    constexpr int asLongAsTheDesktopLikes = -1;
    auto message =
        QDBusMessage::createMethodCall(noticeService, noticePath, noticeService, QStringLiteral("Notify"));
    message << m_applicationName << m_id << m_applicationId << title << text.toHtmlEscaped()
            << QStringList{defaultAction, QString()}
            << QVariantMap{{QStringLiteral("desktop-entry"), m_applicationId}} << asLongAsTheDesktopLikes;
    return message;
}

void NoticeService::show(const QString& title, const QString& text) {
    if (!m_bus.isConnected())
        return;
    listen();
    m_isWanted = true;
    auto* answer = new QDBusPendingCallWatcher(m_bus.asyncCall(notify(title, text)), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, title, text] {
        answer->deleteLater();
        const QDBusPendingReply<uint> reply = *answer;
        if (reply.isValid())
            m_id = reply.value();
        else if (m_isWanted)
            addToPortal(title, text);
        if (!m_isWanted)
            withdraw();
    });
}

void NoticeService::addToPortal(const QString& title, const QString& text) {
    m_isInPortal = true;
    const QVariantMap notice{{QStringLiteral("title"), title}, {QStringLiteral("body"), text}};
    m_bus.send(portalCall(QStringLiteral("AddNotification"), {portalNotice, notice}));
}

void NoticeService::withdraw() {
    m_isWanted = false;
    if (std::exchange(m_isInPortal, false))
        m_bus.send(portalCall(QStringLiteral("RemoveNotification"), {portalNotice}));
    if (m_id == 0)
        return;
    auto message = QDBusMessage::createMethodCall(noticeService, noticePath, noticeService,
                                                  QStringLiteral("CloseNotification"));
    message << std::exchange(m_id, 0);
    m_bus.send(message);
}

void NoticeService::activationToken(uint id, const QString& token) {
    if (id == m_id)
        m_token = token;
}

void NoticeService::actionInvoked(uint id, const QString& action) {
    if (id == m_id && id != 0 && action == defaultAction)
        m_chosen(std::exchange(m_token, {}).toStdString());
}

DesktopNotice::DesktopNotice(const std::string& applicationId, const std::string& applicationName,
                             std::function<void(const std::string&)> chosen)
    : m_service(std::make_unique<NoticeService>(QString::fromStdString(applicationId),
                                                QString::fromStdString(applicationName), std::move(chosen))) {
}

DesktopNotice::~DesktopNotice() = default;

void DesktopNotice::show(const std::string& title, const std::string& text) {
    m_service->show(QString::fromStdString(title), QString::fromStdString(text));
}

void DesktopNotice::withdraw() { m_service->withdraw(); }

} // namespace OndelDesktop
