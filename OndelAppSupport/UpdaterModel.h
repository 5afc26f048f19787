#pragma once

#include "OndelAppSupport/UpdaterController.h"

#include <QObject>

namespace OndelAppSupport {

/// Updates as menus and settings see them. A build without a feed's address and a key ("SUFeedURL",
/// "SUPublicEDKey") is not configured: it never contacts anybody.
/// Threads: main, with an event loop. Fails: never; what goes wrong in a check is told in the update window.
class UpdaterModel : public QObject {
    Q_OBJECT

public:
    explicit UpdaterModel(UpdaterEnvironment environment, QObject* parent = nullptr);

    /// What the update window is bound to.
    Q_PROPERTY(OndelAppSupport::UpdaterController* controller READ controller CONSTANT)
    UpdaterController* controller() { return &m_controller; }

    /// Whether the user can check now: false in a build that is not configured, and while a check that the
    /// user asked for goes on.
    Q_PROPERTY(bool canCheckForUpdates READ canCheckForUpdates NOTIFY canCheckForUpdatesChanged)
    bool canCheckForUpdates() const { return m_canCheckForUpdates; }
    Q_SIGNAL void canCheckForUpdatesChanged();

    Q_PROPERTY(bool isConfigured READ isConfigured CONSTANT)
    bool isConfigured() const { return m_isConfigured; }

    /// Whether a new version is looked for about once a day. Kept in the settings.
    Q_PROPERTY(bool automaticallyChecksForUpdates READ automaticallyChecksForUpdates WRITE
                   setAutomaticallyChecksForUpdates NOTIFY automaticallyChecksForUpdatesChanged)
    bool automaticallyChecksForUpdates() const { return m_controller.automaticallyChecksForUpdates(); }
    void setAutomaticallyChecksForUpdates(bool checks) {
        m_controller.setAutomaticallyChecksForUpdates(checks);
    }
    Q_SIGNAL void automaticallyChecksForUpdatesChanged();

    /// Checks by the user's hand: opens the update window, or asks an open one to come to the front.
    Q_INVOKABLE void checkForUpdates() { m_controller.checkForUpdates(); }

private:
    const bool m_isConfigured;
    bool m_canCheckForUpdates = false;
    UpdaterController m_controller;
};

} // namespace OndelAppSupport
