#pragma once

#include <QDateTime>
#include <QObject>
#include <QSettings>
#include <QTimer>
#include <QUrl>

#include <functional>

namespace OndelAppSupport {

/// The schedule of the note that asks for support. It is shown at first and again a week after it was
/// dismissed, until the user states to have supported the product. Threads: main.
class SupportNudges : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isSupporter READ isSupporter WRITE setSupporter NOTIFY isSupporterChanged)
    Q_PROPERTY(bool showsNote READ showsNote NOTIFY showsNoteChanged)
public:
    static constexpr double snoozeInterval = 604800.0; ///< seconds: a week
    static QUrl supportURL();

    /// Uses the user's settings and the real clock. Lives as long as the process.
    static SupportNudges& shared();

    /// Owner: `defaults` outlives this. Units: seconds.
    explicit SupportNudges(QSettings& defaults,
                           std::function<QDateTime()> now = &QDateTime::currentDateTimeUtc,
                           double interval = snoozeInterval, QObject* parent = nullptr);

    bool isSupporter() const { return m_isSupporter; }
    void setSupporter(bool isSupporter);
    Q_SIGNAL void isSupporterChanged();

    bool showsNote() const { return m_showsNote; }
    Q_SIGNAL void showsNoteChanged();

    /// Whether the note is scheduled for later.
    bool isWaiting() const { return m_wake.isActive(); }

    Q_INVOKABLE void notNow();

    /// `fromNote`: by the note's own button, which also dismisses it.
    Q_INVOKABLE void openSupportPage(bool fromNote);

    /// Asks the views to open the page.
    Q_SIGNAL void pageWanted(const QUrl& page);

    /// Called whenever the application becomes active: the timer may be late after a suspend.
    void applicationBecameActive() { refresh(); }

private:
    double snoozeRemaining() const;
    void refresh();
    void setShowsNote(bool showsNote);

    QSettings& m_defaults;
    const std::function<QDateTime()> m_now;
    const double m_interval;
    QTimer m_wake;
    bool m_isSupporter = false;
    bool m_showsNote = false;
};

} // namespace OndelAppSupport
