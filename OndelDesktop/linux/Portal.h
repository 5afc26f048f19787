#pragma once

#include <QDBusPendingCall>
#include <QObject>
#include <QString>
#include <QVariantList>
#include <QVariantMap>

#include <chrono>

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
    enum class Outcome { done, cancelled, failed };

    /// `options` become the last argument of `call`.
    PortalRequest(PortalCall call, QVariantMap options);

    /// Emitted at most once, from the event loop. The user cancels; without a portal the request has failed.
    Q_SIGNAL void answered(OndelDesktop::PortalRequest::Outcome outcome);

    /// Ends what was requested. The name of the portal's object is chosen by the caller, so this works before
    /// the portal has replied.
    void close();

private:
    Q_SLOT void receive(uint response, const QVariantMap& results);
    void settle(Outcome outcome);

    QString m_token;
    bool m_isSettled = false;
};

} // namespace OndelDesktop
