#pragma once

#include <QDateTime>
#include <QObject>
#include <QSettings>
#include <QTimer>
#include <QUrl>

#include <functional>

namespace OndelAppSupport {

/// When the note that asks for support is shown: at first, and again a week after it was put away, until the
/// user says to have supported the product. Threads: main.
class SupportNudges : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isSupporter READ isSupporter WRITE setSupporter NOTIFY isSupporterChanged)
    Q_PROPERTY(bool showsNote READ showsNote NOTIFY showsNoteChanged)
public:
    static constexpr double snoozeInterval = 604800.0; ///< seconds: a week
    static QUrl supportURL();

    /// Over the user's settings and the real clock. It lives as long as the process.
    static SupportNudges& shared();

    /// Owner: the caller keeps `defaults` for as long as this lives. Units: seconds.
    explicit SupportNudges(QSettings& defaults,
                           std::function<QDateTime()> now = &QDateTime::currentDateTimeUtc,
                           double interval = snoozeInterval, QObject* parent = nullptr);

    bool isSupporter() const { return m_isSupporter; }
    void setSupporter(bool isSupporter);
    Q_SIGNAL void isSupporterChanged();

    bool showsNote() const { return m_showsNote; }
    Q_SIGNAL void showsNoteChanged();

    /// A note that waits for its time.
    bool isWaiting() const { return m_wake.isActive(); }

    Q_INVOKABLE void notNow();

    /// `fromNote`: the user has answered the note, which is put away.
    Q_INVOKABLE void openSupportPage(bool fromNote);

    /// Someone with a desktop is asked to open the page.
    Q_SIGNAL void pageWanted(const QUrl& page);

    /// To be told whenever the application becomes the active one: the machine may have slept through the
    /// moment.
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
