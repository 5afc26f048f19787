#pragma once

#include "OndelAppSupport/UpdaterModel.h"
#include "OndelDesktop/OpenRequests.h"
#include "Tarnwick/RunNotifier.h"
#include "TarnwickKit/model/session/AnalyzerModel.h"
#include "TarnwickKit/views/window/Dialogs.h"

#include <QFutureWatcher>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QSettings>
#include <QUrl>
#include <QWindow>
#include <QtQml/qqmlregistration.h>

#include <deque>
#include <string>
#include <vector>

struct OpenUrls;

/// The application's life: owns the one model, takes what the desktop asks for, and holds the process back
/// from ending while a benchmark still has files on somebody's disk. Threads: main.
class AppDelegate : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("There is one for the life of the process.")
    Q_PROPERTY(TarnwickKit::model::AnalyzerModel* model READ model CONSTANT)
    Q_PROPERTY(OndelAppSupport::UpdaterModel* updater READ updater CONSTANT)
    /// The product's page.
    Q_PROPERTY(QUrl website READ website CONSTANT)
    /// The sheet for problem reports is on the screen.
    Q_PROPERTY(bool showReport READ showReport WRITE setShowReport NOTIFY showReportChanged)
public:
    enum class TerminateReply { Now, Later };

    AppDelegate();

    TarnwickKit::model::AnalyzerModel* model() { return &m_model; }
    OndelAppSupport::UpdaterModel* updater() { return &m_updater; }
    static QUrl website();
    bool showReport() const { return m_showReport; }
    void setShowReport(bool show);
    Q_SIGNAL void showReportChanged();

    /// The window over which dialogs open and which comes to the front. Owner: the caller.
    Q_INVOKABLE void setWindow(QWindow* window);

    /// Starts the log file and writes its first line.
    void applicationDidFinishLaunching();

    /// Whether the process may end at once. Later: a run is being cancelled, and the end follows it whatever
    /// its outcome; the window stays alive meanwhile.
    TerminateReply applicationShouldTerminate();

    /// The one road on which the process ends: the window's close button, the menu, SIGTERM, SIGINT, SIGHUP
    /// and the end of the session all come here. Nobody is asked, and further requests change nothing.
    Q_INVOKABLE void terminate();
    /// From here on the process is about to end.
    Q_SIGNAL void terminating();

    /// Opens what a list of URLs holds: the first folder becomes the target unless a run goes on, each run
    /// file is added to the history, anything else is ignored. The application comes to the front if there
    /// was any of the two. All of it follows later, from the event loop: file systems may take their time.
    void open(const std::vector<std::string>& urls, const std::string& activationToken = {});
    /// The same for what was dropped on the window.
    Q_INVOKABLE void drop(const QList<QUrl>& urls);
    /// The same for what people choose in a dialog.
    Q_INVOKABLE void openRunFile();

    /// Does what somebody outside asks for. Fails: false, when it is an action that does not exist.
    bool take(const OndelDesktop::OpenRequest& request);

    /// Shows the window above others, where the desktop allows it.
    void comeToFront(const std::string& activationToken);

private:
    OndelAppSupport::UpdaterEnvironment updaterEnvironment();
    bool answer(const OndelDesktop::OpenRequest& request);
    void open(const OpenUrls& sorted, const std::string& activationToken);
    void openNext();
    void endOfSession();

    TarnwickKit::views::Dialogs m_dialogs;
    QSettings m_defaults;
    TarnwickKit::model::AnalyzerModel m_model;
    OndelAppSupport::UpdaterModel m_updater;
    bool m_showReport = false;
    RunNotifier m_attendant;
    QFutureWatcher<void> m_end;
    bool m_terminating = false;
    QPointer<QWindow> m_window;
    std::deque<OndelDesktop::OpenRequest> m_toOpen;
};
