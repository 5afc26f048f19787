#include "OndelCore/platform/Uuid.h"

#include <QUuid>

namespace OndelCore::platform {

std::string newUuid() { return QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper().toStdString(); }

} // namespace OndelCore::platform
