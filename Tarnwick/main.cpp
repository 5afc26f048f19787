#include "OndelAppSupport/AppIdentity.h"
#include "OndelAppSupport/LaunchLog.h"
#include "OndelCore/platform/GraphicsDevice.h"
#include "Tarnwick/AppDelegate.h"
#include "TarnwickKit/views/TarnwickFonts.h"

#include <QApplication>
#include <QFont>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <string_view>

namespace {

constexpr const char* usage =
    "Usage: tarnwick [FOLDER]\n"
    "Opens the disk speed and volume analyzer, with FOLDER chosen when it is given.\n";

/// The toolkit aborts when there is no display. People get a sentence instead.
void explainMissingDisplay(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (type != QtFatalMsg)
        return;
    std::fprintf(stderr, "tarnwick: no display could be opened; in a terminal, tarnwick-host run FOLDER does "
                         "the same work.\n");
    if (qEnvironmentVariableIsSet("QT_DEBUG_PLUGINS"))
        std::fprintf(stderr, "%s\n", qPrintable(message));
    std::_Exit(EXIT_FAILURE);
}

/// OpenGL drawn by the processor is slower and larger than the toolkit's own software renderer.
void chooseRenderer() {
    const bool chosenByUser =
        qEnvironmentVariableIsSet("QT_QUICK_BACKEND") || qEnvironmentVariableIsSet("QSG_RHI_BACKEND");
    if (!chosenByUser && !OndelCore::platform::hasGraphicsDevice())
        QQuickWindow::setSceneGraphBackend(QStringLiteral("software"));
    if (!qEnvironmentVariableIsSet("QSG_DISTANCEFIELD_ANTIALIASING"))
        qputenv("QSG_DISTANCEFIELD_ANTIALIASING", "gray"); // else coloured fringes in images of text
}

/// Prints and answers what was asked for without a window; absent when a window is wanted.
std::optional<int> answerWithoutWindow(std::span<char*> arguments) {
    for (const std::string_view argument : arguments) {
        if (argument == "--help" || argument == "-h") {
            std::fputs(usage, stdout);
            return EXIT_SUCCESS;
        }
        if (argument == "--version") {
            std::printf("Ondel Tarnwick %s\n", ONDEL_VERSION);
            return EXIT_SUCCESS;
        }
    }
    return std::nullopt;
}

} // namespace

int main(int argc, char** argv) {
    if (const auto status = answerWithoutWindow(std::span(argv, static_cast<std::size_t>(argc)).subspan(1)))
        return *status;

    chooseRenderer();
    const auto previous = qInstallMessageHandler(explainMissingDisplay);
    QApplication application(argc, argv);
    qInstallMessageHandler(previous);
    application.setApplicationName(QStringLiteral("Ondel Tarnwick"));
    application.setOrganizationName(
        QStringLiteral("Ondel")); // names the settings file together with the line above
    application.setApplicationVersion(QStringLiteral(ONDEL_VERSION));
    application.setDesktopFileName(QStringLiteral("tools.ondel.tarnwick"));
    application.setQuitOnLastWindowClosed(false); // AppDelegate decides

    const std::span<char*> rest = std::span(argv, static_cast<std::size_t>(argc)).subspan(1);
    if (rest.size() > 1 || (!rest.empty() && *rest.front() == '-')) {
        std::fputs(usage, stderr);
        return 2;
    }
    OndelAppSupport::AppIdentity::current() = OndelAppSupport::AppIdentity::tarnwick();
    TarnwickKit::views::TarnwickFonts::registerFrom();
    application.setFont(TarnwickKit::views::TarnwickFonts::applicationFont());

    AppDelegate delegate;
    if (!rest.empty() && !delegate.select(rest.front()))
        std::fprintf(stderr, "tarnwick: %s is not a folder that can be opened.\n", rest.front());

    QQmlApplicationEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine.setInitialProperties({{QStringLiteral("delegate"), QVariant::fromValue(&delegate)}});
    engine.load(QUrl(QStringLiteral("qrc:/qt/qml/Tarnwick/TarnwickWindow.qml")));
    if (engine.rootObjects().isEmpty())
        return EXIT_FAILURE;
    QTimer::singleShot(0, [] { OndelAppSupport::startLogging(); });
    return QApplication::exec();
}
