#include "OndelAppSupport/UpdaterEnvironment.h"

#include "OndelCore/platform/storage/PrivateFolder.h"

#include <QSysInfo>

namespace OndelAppSupport {

UpdaterEnvironment::UpdaterEnvironment()
    : folder(OndelCore::platform::privateTemporaryFolder)
    , platforms{QSysInfo::kernelType(),
                QSysInfo::kernelType() + QLatin1Char('-') + QSysInfo::buildCpuArchitecture()}
    , systemVersion(QSysInfo::kernelVersion()) {}

} // namespace OndelAppSupport
