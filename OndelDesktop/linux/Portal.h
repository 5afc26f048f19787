#pragma once

#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QObject>
#include <QString>
#include <QVariantList>
#include <QVariantMap>

#include <chrono>
#include <vector>

/// The desktop's portal on the session bus: https://flatpak.github.io/xdg-desktop-portal/docs
/// Threads: the main one, with an event loop; no call waits for an answer.
namespace OndelDesktop {

inline const QString portalService = QStringLiteral("org.freedesktop.portal.Desktop");
inline const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");

struct PortalCall {
    QString interface; ///< the last part of its name: "Email"
    QString method;
    QVariantList arguments;
    /// A portal that has to be started first takes seconds. One that hangs counts as absent after this time.
    std::chrono::milliseconds timeout = std::chrono::seconds(25);
};

QDBusPendingCall callPortal(const PortalCall& call);

/// A call that the portal accepts at once and answers later, by a signal from an object that belongs to the
/// call.
class PortalRequest final : public QObject {
    Q_OBJECT

public:
    enum class Outcome {
        done,
        cancelled, ///< by the user
        ended,     ///< for another reason; closing a dialog's window is one for some desktops
        failed     ///< without a portal, or one that vanished or sent nonsense
    };

    /// `options` become the last argument of `call`.
    PortalRequest(PortalCall call, QVariantMap options);

    /// Emitted at most once, from the event loop.
    Q_SIGNAL void answered(OndelDesktop::PortalRequest::Outcome outcome, const QVariantMap& results);

    /// Ends what was requested. The name of the portal's object is chosen by the caller, so this works before
    /// the portal has replied.
    void close();

private:
    Q_SLOT void receive(const QDBusMessage& response);
    void accept(const QDBusMessage& reply);
    void settle(Outcome outcome, const QVariantMap& results = {});

    QString m_token;
    QString m_portal; ///< the unique name of the process that accepted the call
    std::vector<QDBusMessage> m_early;
    bool m_isSettled = false;
};

} // namespace OndelDesktop
