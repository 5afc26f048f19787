#include "OndelAppSupport/UpdaterController.h"

#include "OndelCore/platform/PrivateFolder.h"

#include <QSysInfo>

namespace OndelAppSupport {

namespace {

const QString automaticKey = QStringLiteral("updatesAutomatically");

} // namespace

UpdaterEnvironment::UpdaterEnvironment()
    : folder(OndelCore::platform::privateTemporaryFolder)
    , platforms{QSysInfo::kernelType(),
                QSysInfo::kernelType() + QLatin1Char('-') + QSysInfo::buildCpuArchitecture()}
    , systemVersion(QSysInfo::kernelVersion()) {}

UpdaterController::UpdaterController(UpdaterEnvironment environment, QObject* parent)
    : QObject(parent)
    , m_environment(std::move(environment)) {
    Q_ASSERT(m_environment.settings);
}

void UpdaterController::start() { m_started = true; }

bool UpdaterController::automaticallyChecksForUpdates() const {
    return m_environment.settings->value(automaticKey, false).toBool();
}

void UpdaterController::setAutomaticallyChecksForUpdates(bool checks) {
    m_environment.settings->setValue(automaticKey, checks);
}

void UpdaterController::checkForUpdates() {
    if (canCheckForUpdates())
        Q_EMIT stateChanged();
}

} // namespace OndelAppSupport
