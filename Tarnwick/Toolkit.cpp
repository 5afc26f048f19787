#include "Tarnwick/Toolkit.h"

#include "OndelCore/logging/LogScrubber.h"
#include "OndelCore/platform/process/UnifiedLog.h"
#include "OndelDesktop/GraphicsDevice.h"
#include "Tarnwick/Product.h"

#include <QIcon>
#include <QQuickWindow>
#include <QThreadPool>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

/// Qt aborts when there is no display. This prints a sentence instead.
void explainMissingDisplay(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (type != QtFatalMsg)
        return;
    std::fprintf(stderr, "tarnwick: no display could be opened; in a terminal, tarnwick-host run FOLDER does "
                         "the same work.\n");
    if (qEnvironmentVariableIsSet("QT_DEBUG_PLUGINS"))
        std::fprintf(stderr, "%s\n", qPrintable(message));
    std::_Exit(EXIT_FAILURE);
}

QtMessageHandler defaultHandler = nullptr;

/// Removes file names from Qt's warnings.
void warnWithoutNames(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    std::string text = message.toStdString();
    OndelCore::logging::LogScrubber::shared().scrub(text);
    defaultHandler(type, context, QString::fromStdString(text));
}

/// Without a graphics processor, Qt's software renderer is faster and smaller than OpenGL.
void chooseRenderer() {
    const bool chosenByUser =
        qEnvironmentVariableIsSet("QT_QUICK_BACKEND") || qEnvironmentVariableIsSet("QSG_RHI_BACKEND");
    if (!chosenByUser && !OndelDesktop::hasGraphicsDevice())
        QQuickWindow::setSceneGraphBackend(QStringLiteral("software"));
    if (!qEnvironmentVariableIsSet("QSG_DISTANCEFIELD_ANTIALIASING"))
        qputenv("QSG_DISTANCEFIELD_ANTIALIASING", "gray"); // avoids coloured fringes in images of text
}

/// Qt's theme for GNOME and Xfce starts GTK, which puts the program on the accessibility bus a second time,
/// as one without a window. Only while Qt starts, because programs that this one starts have need of it.
Toolkit withoutSecondBridge(int& argc, char** argv) {
    const bool isSetByUser = qEnvironmentVariableIsSet("NO_AT_BRIDGE");
    if (!isSetByUser)
        qputenv("NO_AT_BRIDGE", "1");
    Toolkit application(new QApplication(argc, argv));
    if (!isSetByUser)
        qunsetenv("NO_AT_BRIDGE");
    return application;
}

} // namespace

void EndOfToolkit::operator()(QApplication* application) const {
    if (!QGuiApplication::platformName().startsWith(u"wayland")) {
        delete application;
        return;
    }
    QThreadPool::globalInstance()->waitForDone(); // as the destructor does
    // Qt 6.8 warns about remaining objects when the process ends.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
}

Toolkit startToolkit(int& argc, char** argv) {
    chooseRenderer();
    defaultHandler = qInstallMessageHandler(explainMissingDisplay);
    Toolkit application = withoutSecondBridge(argc, argv);
    qInstallMessageHandler(OndelCore::platform::isStandardErrorLogged() ? warnWithoutNames : defaultHandler);
    application->setApplicationName(QString::fromLatin1(product::name));
    application->setOrganizationName(QString::fromLatin1(product::organization));
    application->setApplicationVersion(QStringLiteral(ONDEL_VERSION));
    application->setDesktopFileName(QString::fromLatin1(product::id));
    application->setQuitOnLastWindowClosed(false); // AppDelegate decides
    return application;
}

QIcon applicationIcon() {
    return QIcon::fromTheme(QString::fromLatin1(product::id),
                            QIcon(QStringLiteral(":/tarnwick/TarnwickIcon.svg")));
}
