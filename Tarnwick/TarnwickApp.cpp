#include "Tarnwick/TarnwickApp.h"

#include "OndelAppSupport/AppIdentity.h"
#include "OndelAppSupport/LaunchLog.h"
#include "OndelControls/ViewEngine.h"
#include "OndelCore/platform/process/SessionBus.h"
#include "OndelCore/platform/process/Signals.h"
#include "Tarnwick/CommandLine.h"
#include "Tarnwick/Product.h"
#include "Tarnwick/Toolkit.h"
#include "TarnwickKit/model/language/ChosenLanguage.h"
#include "TarnwickKit/model/language/Language.h"
#include "TarnwickKit/views/style/TarnwickFonts.h"

#include <QCoreApplication>
#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTimer>

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>

using OndelDesktop::HandOver;
using OndelDesktop::OpenRequest;
using OndelDesktop::OpenRequests;
using TarnwickKit::model::AnalyzerModel;

namespace {

/// Qt calls exit() when the display goes away. The run's files have to be removed then as well.
AnalyzerModel* modelAtExit = nullptr;

void cleanUpAtExit() {
    if (modelAtExit)
        modelAtExit->abandonRun();
    OndelAppSupport::endLogging();
}

const QUrl& windowFile() {
    static const QUrl file(QStringLiteral("qrc:/qt/qml/Tarnwick/TarnwickWindow.qml"));
    return file;
}

struct TarnwickAppText {
    Q_DECLARE_TR_FUNCTIONS(TarnwickAppText)
};

QString noAnswerFrom(const std::optional<std::uint32_t>& process) {
    if (!process)
        return TarnwickAppText::tr(
            "the window that is already open does not answer; it will do what was asked "
            "as soon as it can.");
    return TarnwickAppText::tr(
               "the window that is already open (process %1) does not answer; it will do what "
               "was asked as soon as it can.")
        .arg(*process);
}

constexpr std::chrono::milliseconds busPatience = std::chrono::seconds(1);

/// Enough for the first process to reach its event loop on a machine that is busy starting both.
constexpr std::chrono::milliseconds handOverPatience = std::chrono::seconds(5);

} // namespace

int TarnwickApp::run(int argc, char** argv) {
    if (const auto status = CommandLine::answerWithoutWindow(argc, argv))
        return *status;
    OpenRequest start{.urls = {}, .action = {}, .activationToken = OpenRequests::activationTokenOfStart()};

    OndelCore::platform::surviveFileSizeLimit();
    OndelAppSupport::prepareLogging();
    if (!OndelCore::platform::sessionBusAnswers(busPatience))
        OndelCore::platform::doWithoutSessionBus();
    const auto application = startToolkit(argc, argv);
    TarnwickKit::model::Language::install(TarnwickKit::model::ChosenLanguage::code());
    if (TarnwickKit::model::Language::isRightToLeft())
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    OpenRequests requests(product::id);
    OndelAppSupport::AppIdentity::current() = OndelAppSupport::AppIdentity::tarnwick();
    const auto commandLine = CommandLine::parse(argc, argv);
    if (!commandLine)
        return 2;
    start.urls = commandLine->urls;
    start.action = commandLine->action;
    if (const auto status = handOver(requests, start))
        return *status;

    TarnwickApp app(requests);
    if (!app.declareScenes())
        return EXIT_FAILURE;
    QTimer::singleShot(0, [&] { app.finishLaunching(start); });
    return QApplication::exec();
}

/// The exit status, if another process handles this start's request.
std::optional<int> TarnwickApp::handOver(OpenRequests& requests, const OpenRequest& start) {
    const auto [outcome, process] = requests.handOver(start, handOverPatience);
    if (outcome == HandOver::Outcome::nobodyElse)
        return std::nullopt;
    if (outcome == HandOver::Outcome::taken)
        return EXIT_SUCCESS;
    // It keeps the name and the messages sent to it until it continues or ends.
    std::fprintf(stderr, "tarnwick: %s\n", qUtf8Printable(noAnswerFrom(process)));
    return EXIT_FAILURE;
}

TarnwickApp::TarnwickApp(OpenRequests& requests)
    : m_requests(requests)
    , m_window(&m_engine) {
    OndelControls::prepareEngine(m_engine);
    m_window.loadUrl(windowFile(), QQmlComponent::Asynchronous);
    TarnwickKit::views::TarnwickFonts::registerFrom();
    QApplication::setFont(TarnwickKit::views::TarnwickFonts::applicationFont());
    AppDelegate& delegate = m_delegate.emplace();
    modelAtExit = delegate.model();
    std::atexit(cleanUpAtExit);
    QObject::connect(&delegate, &AppDelegate::terminating, &delegate, [this] { m_requests.close(); });
}

TarnwickApp::~TarnwickApp() { modelAtExit = nullptr; }

bool TarnwickApp::declareScenes() {
    m_engine.setInitialProperties({{QStringLiteral("delegate"), QVariant::fromValue(&*m_delegate)}});
    m_engine.load(windowFile()); // waits for what is compiled already
    if (m_engine.rootObjects().isEmpty())
        return false;
    const auto flags = static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection);
    auto* window = qobject_cast<QQuickWindow*>(m_engine.rootObjects().constFirst());
    QObject::connect(
        window, &QQuickWindow::frameSwapped, window, [this, window] { finishWindow(window); }, flags);
    return true;
}

/// After the first frame: the views of the other windows and the search of the icon theme take as long as
/// drawing the window.
void TarnwickApp::finishWindow(QQuickWindow* window) {
    QQmlComponent others(&m_engine, QUrl(QStringLiteral("qrc:/qt/qml/Tarnwick/OtherWindows.qml")));
    QObject* made = others.createWithInitialProperties(
        {{QStringLiteral("window"), QVariant::fromValue(window)},
         {QStringLiteral("parent"), QVariant::fromValue(window->contentItem())}});
    if (!made)
        qFatal("%s", qPrintable(others.errorString()));
    made->setParent(window);
    QApplication::setWindowIcon(applicationIcon());
}

void TarnwickApp::finishLaunching(const OpenRequest& start) {
    m_delegate->applicationDidFinishLaunching();
    if (start.action.empty())
        m_delegate->open(start.urls, start.activationToken);
    else
        m_delegate->take(start);
    m_requests.deliverTo([this](const OpenRequest& request) { return m_delegate->take(request); });
}
