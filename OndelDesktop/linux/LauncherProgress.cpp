#include "OndelDesktop/LauncherProgress.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QVariantMap>

namespace OndelDesktop {

LauncherProgress::LauncherProgress(const std::string& applicationId)
    : m_applicationId(applicationId) {}

LauncherProgress::~LauncherProgress() { show(std::nullopt); }

/// The desktop listens to this signal from any program: https://wiki.ubuntu.com/Unity/LauncherAPI
void LauncherProgress::show(std::optional<int> percent) {
    if (percent == m_percent)
        return;
    m_percent = percent;
    auto update = QDBusMessage::createSignal(QStringLiteral("/tools/ondel/launcherentry"),
                                             QStringLiteral("com.canonical.Unity.LauncherEntry"),
                                             QStringLiteral("Update"));
    update << QStringLiteral("application://%1.desktop").arg(QString::fromStdString(m_applicationId))
           << QVariantMap{{QStringLiteral("progress"), percent.value_or(0) / 100.0},
                          {QStringLiteral("progress-visible"), percent.has_value()}};
    QDBusConnection::sessionBus().send(update);
}

} // namespace OndelDesktop
