#include "OndelDesktop/DesktopNotice.h"

#include "DesktopInterfaces.h"
#include "OndelDesktop/linux/Portal.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <utility>

namespace OndelDesktop {

namespace {

/// The action of a press on the notice itself.
const QString defaultAction = QStringLiteral("default");

/// The portal's name for the one notice.
const QString portalNotice = QStringLiteral("notice");

void callNoticePortal(const QString& method, const QVariantList& arguments) {
    callPortal({.interface = QStringLiteral("Notification"), .method = method, .arguments = arguments});
}

} // namespace

/// Shows notices through the desktop's notification service, which reports a press. Without that service it
/// uses the portal, which calls the application's Activate for a press.
class NoticeService final : public QObject {
public:
    NoticeService(const std::string& applicationId, const std::string& applicationName,
                  std::function<void(const std::string& activationToken)> chosen)
        : m_applicationId(QString::fromStdString(applicationId))
        , m_applicationName(QString::fromStdString(applicationName))
        , m_chosen(std::move(chosen)) {}

    void show(const QString& title, const QString& text);
    void withdraw();

private:
    using Notifications = org::freedesktop::Notifications;

    void connectService();
    QDBusPendingReply<uint> notify(const QString& title, const QString& text);
    void addToPortal(const QString& title, const QString& text);

    QString m_applicationId;
    QString m_applicationName;
    std::function<void(const std::string& activationToken)> m_chosen;
    std::unique_ptr<Notifications> m_service; ///< made with the first notice
    bool m_isWanted = false;                  ///< the reply to the last call may be under way
    bool m_isInPortal = false;
    uint m_id = 0; ///< given by the service; 0: no notice is shown
    QString m_token;
};

void NoticeService::connectService() {
    m_service = std::make_unique<Notifications>(QStringLiteral("org.freedesktop.Notifications"),
                                                QStringLiteral("/org/freedesktop/Notifications"),
                                                QDBusConnection::sessionBus());
    connect(m_service.get(), &Notifications::ActivationToken, this, [this](uint id, const QString& token) {
        if (id == m_id)
            m_token = token;
    });
    connect(m_service.get(), &Notifications::ActionInvoked, this, [this](uint id, const QString& action) {
        if (id == m_id && id != 0 && action == defaultAction)
            m_chosen(std::exchange(m_token, {}).toStdString());
    });
}

QDBusPendingReply<uint> NoticeService::notify(const QString& title, const QString& text) {
    constexpr int desktopsOwnDuration = -1;
    return m_service->Notify(m_applicationName, m_id, m_applicationId, title, text.toHtmlEscaped(),
                             {defaultAction, QString()}, {{QStringLiteral("desktop-entry"), m_applicationId}},
                             desktopsOwnDuration);
}

void NoticeService::show(const QString& title, const QString& text) {
    if (!QDBusConnection::sessionBus().isConnected())
        return;
    if (!m_service)
        connectService();
    m_isWanted = true;
    auto* answer = new QDBusPendingCallWatcher(notify(title, text), this);
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
    callNoticePortal(QStringLiteral("AddNotification"), {portalNotice, notice});
}

void NoticeService::withdraw() {
    m_isWanted = false;
    if (std::exchange(m_isInPortal, false))
        callNoticePortal(QStringLiteral("RemoveNotification"), {portalNotice});
    if (m_id != 0)
        m_service->CloseNotification(std::exchange(m_id, 0));
}

DesktopNotice::DesktopNotice(const std::string& applicationId, const std::string& applicationName,
                             std::function<void(const std::string&)> chosen)
    : m_service(std::make_unique<NoticeService>(applicationId, applicationName, std::move(chosen))) {}

DesktopNotice::~DesktopNotice() = default;

void DesktopNotice::show(const std::string& title, const std::string& text) {
    m_service->show(QString::fromStdString(title), QString::fromStdString(text));
}

void DesktopNotice::withdraw() { m_service->withdraw(); }

} // namespace OndelDesktop
