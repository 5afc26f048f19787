#pragma once

#include "OndelAppSupport/UpdaterEnvironment.h"

#include <QObject>
#include <QString>

namespace OndelAppSupport {

/// One update at a time, from the look into the feed to the desktop's installer, and what its window shows.
/// Threads: main, with an event loop; the network, the disk and the signature are left to a thread of its
/// own.
class UpdaterController : public QObject {
    Q_OBJECT

public:
    /// A declarative view only sees names that begin with a capital.
    enum class State {
        Idle,      ///< nothing to show; an automatic check may be under way
        Checking,  ///< by the user's hand
        UpToDate,  ///< told after a check by the user's hand
        Available, ///< asks whether to install
        Loading,
        Verifying,
        Opened, ///< the desktop's installer has the package
        Failed, ///< told after what the user asked for
    };
    Q_ENUM(State)

    explicit UpdaterController(UpdaterEnvironment environment, QObject* parent = nullptr);

    Q_PROPERTY(State state READ state NOTIFY stateChanged)
    State state() const { return m_state; }
    Q_SIGNAL void stateChanged();

    /// Begins to look for updates. Without it nobody is ever contacted.
    void start();

    bool canCheckForUpdates() const { return m_started && m_state != State::Checking; }

    bool automaticallyChecksForUpdates() const;
    void setAutomaticallyChecksForUpdates(bool checks);

    void checkForUpdates();

private:
    UpdaterEnvironment m_environment;
    State m_state = State::Idle;
    bool m_started = false;
};

} // namespace OndelAppSupport
