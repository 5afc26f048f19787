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
#include <QTimer>
#include <QUrl>
#include <QWindow>
#include <QtQml/qqmlregistration.h>

#include <deque>
#include <string>
#include <vector>

struct OpenUrls;

/// The application's life cycle: owns the model, handles requests of the desktop, and delays the end of the
/// process until a run has removed its files. Threads: main.
class AppDelegate : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The application owns the only one.")
    Q_PROPERTY(TarnwickKit::model::AnalyzerModel* model READ model CONSTANT)
    Q_PROPERTY(OndelAppSupport::UpdaterModel* updater READ updater CONSTANT)
    /// The product's name, and before it during a run how much of it is done.
    Q_PROPERTY(QString windowTitle READ windowTitle NOTIFY windowTitleChanged)
    /// The product's page.
    Q_PROPERTY(QUrl website READ website CONSTANT)
    /// Whether the sheet for problem reports is shown.
    Q_PROPERTY(bool showReport READ showReport WRITE setShowReport NOTIFY showReportChanged)
    /// Whether something of what is dragged over the window could be opened.
    Q_PROPERTY(bool isDragWelcome READ isDragWelcome NOTIFY isDragWelcomeChanged)
public:
    enum class TerminateReply { Now, Later };

    AppDelegate();

    TarnwickKit::model::AnalyzerModel* model() { return &m_model; }
    OndelAppSupport::UpdaterModel* updater() { return &m_updater; }
    QString windowTitle() const;
    Q_SIGNAL void windowTitleChanged();
    static QUrl website();
    bool showReport() const { return m_showReport; }
    void setShowReport(bool show);
    Q_SIGNAL void showReportChanged();

    /// The main window: the parent of dialogs. Owner: the caller.
    Q_INVOKABLE void setWindow(QWindow* window);

    /// Starts the log file and writes its first line.
    void applicationDidFinishLaunching();

    /// Whether the process may end at once. Later: a run is being cancelled, and the process ends after it;
    /// until then the window stays responsive.
    TerminateReply applicationShouldTerminate();

    /// Ends the process. The window's close button, the menu, SIGTERM, SIGINT, SIGHUP and the end of the
    /// session all call it. There is no confirmation; further calls do nothing.
    Q_INVOKABLE void terminate();
    /// Emitted once, before the process ends.
    Q_SIGNAL void terminating();

    /// Opens a list of URLs: the first folder becomes the target unless a run is under way, run files are
    /// added to the history, of anything else the window tells that it is not opened. The window comes to the
    /// front if there was a folder or a run file. All of it happens later, from the event loop, because file
    /// systems may be slow.
    void open(const std::vector<std::string>& urls, const std::string& activationToken = {});
    /// The same for URLs dropped on the window.
    Q_INVOKABLE void drop(const QList<QUrl>& urls);
    /// URLs are being dragged over the window. Whether they are welcome is known a moment later, because file
    /// systems may be slow. No URLs: the drag has ended.
    Q_INVOKABLE void consider(const QList<QUrl>& urls);
    bool isDragWelcome() const { return m_isDragWelcome; }
    Q_SIGNAL void isDragWelcomeChanged();
    /// Adds run files that the user chooses in a dialog.
    Q_INVOKABLE void openRunFile();

    /// Handles a request from outside. Actions: "choose-folder", "open-run-file", "check-capacity" with at
    /// most a folder's URL, "show-run" with a stored run's id. Fails: false for an unknown action.
    bool take(const OndelDesktop::OpenRequest& request);

    /// Shows the window above others, where the desktop allows it.
    void comeToFront(const std::string& activationToken);

private:
    OndelAppSupport::UpdaterEnvironment updaterEnvironment();
    bool answer(const OndelDesktop::OpenRequest& request);
    void act(const OndelDesktop::OpenRequest& request);
    void queue(const OndelDesktop::OpenRequest& request);
    void open(const OpenUrls& sorted, const OndelDesktop::OpenRequest& request);
    void openNext();
    void setDragWelcome(bool welcome);
    void endOfSession();

    TarnwickKit::views::Dialogs m_dialogs;
    QSettings m_defaults;
    TarnwickKit::model::AnalyzerModel m_model;
    OndelAppSupport::UpdaterModel m_updater;
    bool m_showReport = false;
    RunNotifier m_notifier;
    QFutureWatcher<void> m_end;
    bool m_terminating = false;
    QPointer<QWindow> m_window;
    QTimer m_attention; ///< runs while a request may still bring the window forward
    std::deque<OndelDesktop::OpenRequest> m_toOpen;
    bool m_isDragWelcome = false;
    unsigned m_consideredDrags = 0;
};
