#include "Tarnwick/AppDelegate.h"

#include "OndelAppSupport/AppIdentity.h"
#include "OndelAppSupport/LaunchLog.h"
#include "OndelCore/platform/process/TerminationRequest.h"
#include "OndelDesktop/StartupNotice.h"
#include "OndelDesktop/WindowAttention.h"
#include "Tarnwick/OpenUrls.h"
#include "Tarnwick/Product.h"
#include "TarnwickKit/model/capacity/CapacityChecks.h"
#include "TarnwickKit/model/session/AnswerLater.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QEventLoop>
#include <QGuiApplication>
#include <QSocketNotifier>
#include <QUuid>

#include <algorithm>
#include <array>
#include <chrono>
#include <string_view>
#include <utility>

namespace fs = std::filesystem;
namespace platform = OndelCore::platform;

namespace {

struct AppDelegateText {
    Q_DECLARE_TR_FUNCTIONS(AppDelegateText)
};

QString titleDuringRun(int percent, const QString& name) {
    //: The title of the window during a run: how much is done, and the program's name
    return AppDelegateText::tr("%1 % – %2").arg(percent).arg(name);
}

/// Desktops move the focus at once, or not at all.
constexpr std::chrono::milliseconds focusPatience = std::chrono::seconds(1);

/// On X11 the launch feedback lasts until the desktop is told that the start is complete.
bool hasLaunchFeedback() { return QGuiApplication::platformName() == QLatin1String("xcb"); }

constexpr std::string_view checkCapacity = "check-capacity";
constexpr std::string_view chooseFolder = "choose-folder";
constexpr std::string_view openFile = "open-run-file";
constexpr std::string_view showRun = "show-run";
constexpr std::array actions{checkCapacity, chooseFolder, openFile, showRun};

std::vector<std::string> encodedUrls(const QList<QUrl>& urls) {
    std::vector<std::string> encoded;
    encoded.reserve(static_cast<std::size_t>(urls.size()));
    for (const QUrl& url : urls)
        encoded.push_back(url.toEncoded().toStdString());
    return encoded;
}

} // namespace

AppDelegate::AppDelegate()
    : m_updater(updaterEnvironment())
    , m_notifier(m_model, [this](const std::string& token) { comeToFront(token); }) {
    m_model.setDialogs(&m_dialogs);
    connect(&m_notifier, &RunNotifier::percentChanged, this, &AppDelegate::windowTitleChanged);
    connect(&m_end, &QFutureWatcher<void>::finished, this, [] { QCoreApplication::exit(0); });

    auto* notifier =
        new QSocketNotifier(platform::terminationRequestDescriptor(), QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this, notifier] {
        notifier->setEnabled(false);
        terminate();
    });
    // Other processes of this user may have saved runs and checks.
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, [this](const QWindow* window) {
        if (!window)
            return;
        m_model.history().refresh();
        m_model.capacityChecks().refresh();
    });
    m_attention.setInterval(focusPatience);
    m_attention.setSingleShot(true);
    connect(&m_attention, &QTimer::timeout, this, [this] {
        if (m_window && !QGuiApplication::focusWindow())
            OndelDesktop::askForAttention(m_window, product::id);
    });
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, &m_attention, &QTimer::stop);
    // Direct, because the session ends when the call returns. The request to save the state is ignored:
    // session managers send it right after the start.
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &AppDelegate::endOfSession,
            Qt::DirectConnection);
}

/// Packages are opened by the desktop's installer. No check disturbs a run.
OndelAppSupport::UpdaterEnvironment AppDelegate::updaterEnvironment() {
    OndelAppSupport::UpdaterEnvironment environment;
    environment.settings = &m_defaults;
    environment.openPackage = [](const QUrl& package) { return QDesktopServices::openUrl(package); };
    environment.isBusy = [this] { return m_model.isBusy(); };
    return environment;
}

QString AppDelegate::windowTitle() const {
    const QString name = QString::fromLatin1(product::name);
    const auto percent = m_notifier.percent();
    return percent ? titleDuringRun(*percent, name) : name;
}

QUrl AppDelegate::website() { return OndelAppSupport::AppIdentity::current().website; }

void AppDelegate::setShowReport(bool show) {
    if (std::exchange(m_showReport, show) != show)
        Q_EMIT showReportChanged();
}

void AppDelegate::setWindow(QWindow* window) {
    m_window = window;
    m_dialogs.setWindow(window);
}

void AppDelegate::applicationDidFinishLaunching() { OndelAppSupport::startLogging(); }

AppDelegate::TerminateReply AppDelegate::applicationShouldTerminate() {
    if (!m_model.isBusy())
        return TerminateReply::Now;
    m_end.setFuture(m_model.cancelAndWait());
    return TerminateReply::Later;
}

void AppDelegate::terminate() {
    if (std::exchange(m_terminating, true))
        return;
    Q_EMIT terminating();
    m_dialogs.close();
    if (applicationShouldTerminate() == TerminateReply::Now)
        QCoreApplication::exit(0);
}

void AppDelegate::endOfSession() {
    terminate();
    if (!m_model.isBusy())
        return;
    QEventLoop loop;
    connect(&m_end, &QFutureWatcher<void>::finished, &loop, &QEventLoop::quit);
    loop.exec();
}

void AppDelegate::open(const std::vector<std::string>& urls, const std::string& activationToken) {
    queue({.urls = urls, .action = {}, .activationToken = activationToken});
}

void AppDelegate::queue(const OndelDesktop::OpenRequest& request) {
    m_toOpen.push_back(request);
    if (m_toOpen.size() == 1)
        openNext();
}

/// Handles requests in order. The file systems are queried on another thread.
void AppDelegate::openNext() {
    TarnwickKit::model::answerLater(
        this, [urls = m_toOpen.front().urls] { return OpenUrls::from(urls); },
        [this](const OpenUrls& sorted) {
            if (!sorted.ignored.empty())
                m_model.refuse(sorted.ignoredNames(m_toOpen.front().urls));
            if (!sorted.isEmpty())
                open(sorted, m_toOpen.front());
            m_toOpen.pop_front();
            if (!m_toOpen.empty())
                openNext();
        });
}

void AppDelegate::open(const OpenUrls& sorted, const OndelDesktop::OpenRequest& request) {
    // The target must not change during a run.
    if (sorted.folder && !m_model.isBusy())
        m_model.select(*sorted.folder);
    m_model.importRuns(sorted.runs);
    comeToFront(request.activationToken);
    if (sorted.folder && request.action == checkCapacity)
        m_model.openCheck();
}

void AppDelegate::drop(const QList<QUrl>& urls) { open(encodedUrls(urls)); }

void AppDelegate::consider(const QList<QUrl>& urls) {
    setDragWelcome(false);
    const auto asked = ++m_consideredDrags;
    if (urls.isEmpty())
        return;
    TarnwickKit::model::answerLater(
        this, [encoded = encodedUrls(urls)] { return !OpenUrls::from(encoded).isEmpty(); },
        [this, asked](bool isWelcome) {
            if (asked == m_consideredDrags)
                setDragWelcome(isWelcome);
        });
}

void AppDelegate::setDragWelcome(bool welcome) {
    if (std::exchange(m_isDragWelcome, welcome) != welcome)
        Q_EMIT isDragWelcomeChanged();
}

void AppDelegate::openRunFile() {
    m_dialogs.askForRunFiles([this](const std::vector<fs::path>& files) { m_model.importRuns(files); });
}

bool AppDelegate::take(const OndelDesktop::OpenRequest& request) {
    const bool isTaken = answer(request);
    if (hasLaunchFeedback())
        OndelDesktop::completeStartup(request.activationToken); // also if no window comes to the front
    if (isTaken)
        m_attention.start();
    return isTaken;
}

bool AppDelegate::answer(const OndelDesktop::OpenRequest& request) {
    if (!request.action.empty() && std::ranges::find(actions, request.action) == actions.end())
        return false;
    if (!request.urls.empty() && (request.action.empty() || request.action == checkCapacity)) {
        queue(request);
        return true;
    }
    comeToFront(request.activationToken);
    act(request);
    return true;
}

void AppDelegate::act(const OndelDesktop::OpenRequest& request) {
    if (request.action == chooseFolder)
        m_model.chooseFolder();
    else if (request.action == openFile)
        openRunFile();
    else if (request.action == checkCapacity)
        m_model.openCheck();
    else if (request.action == showRun && !request.urls.empty())
        m_model.showRun(QUuid(QString::fromStdString(request.urls.front())));
}

void AppDelegate::comeToFront(const std::string& activationToken) {
    if (!m_window)
        return;
    if (!activationToken.empty())
        qputenv("XDG_ACTIVATION_TOKEN", activationToken.c_str()); // Qt reads it from there
    m_window->setWindowStates(m_window->windowStates() & ~Qt::WindowMinimized);
    m_window->setVisible(true);
    if (hasLaunchFeedback())
        OndelDesktop::completeStartup(activationToken, static_cast<std::uint32_t>(m_window->winId()));
    m_window->raise();
    m_window->requestActivate();
    qunsetenv("XDG_ACTIVATION_TOKEN"); // single use
}
