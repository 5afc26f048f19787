#include "OndelAppSupport/views/AppSupport.h"

#include "OndelAppSupport/ThirdPartyNotices.h"
#include "OndelAppSupport/report/BugReporter.h"

#include <QDesktopServices>
#include <QFile>
#include <QGuiApplication>

namespace OndelAppSupport::views {

namespace {

/// Connects the shared note to the application's activation and to the desktop's browser.
SupportNudges* sharedNudges() {
    SupportNudges& nudges = SupportNudges::shared();
    QObject::connect(qGuiApp, &QGuiApplication::applicationStateChanged, &nudges,
                     [&nudges](Qt::ApplicationState state) {
                         if (state == Qt::ApplicationActive)
                             nudges.applicationBecameActive();
                     });
    QObject::connect(&nudges, &SupportNudges::pageWanted, &nudges, &AppSupport::openPage);
    QQmlEngine::setObjectOwnership(&nudges, QQmlEngine::CppOwnership);
    return &nudges;
}

} // namespace

SupportNudges* AppSupport::nudges() {
    static SupportNudges* const nudges = sharedNudges();
    return nudges;
}

QString AppSupport::appVersion() { return BugReporter::appVersion(); }

QString AppSupport::osVersion() { return BugReporter::osVersion(); }

QString AppSupport::hardwareModel() { return BugReporter::hardwareModel(); }

QString AppSupport::siteName() { return shown(makerSitePage(QString())); }

QUrl AppSupport::reportPage() { return makerSitePage(QStringLiteral("/report")); }

QUrl AppSupport::notices() {
    const auto file = thirdPartyNotices();
    return file ? QUrl::fromLocalFile(QFile::decodeName(file->c_str())) : QUrl();
}

QString AppSupport::shown(const QUrl& page) {
    const QString host = page.host();
    const QString www = QStringLiteral("www.");
    return (host.startsWith(www) ? host.sliced(www.size()) : host) + page.path();
}

void AppSupport::openPage(const QUrl& page) { QDesktopServices::openUrl(page); }

void AppSupport::openFile(const QString& path) { QDesktopServices::openUrl(QUrl::fromLocalFile(path)); }

} // namespace OndelAppSupport::views
