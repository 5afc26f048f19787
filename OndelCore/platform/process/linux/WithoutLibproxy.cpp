#include "OndelCore/platform/process/linux/DesktopProxies.h"

namespace OndelCore::platform {

std::vector<std::string> libproxyProxies(const std::string&) { return {}; }

} // namespace OndelCore::platform
