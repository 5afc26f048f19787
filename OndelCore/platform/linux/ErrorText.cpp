#include "OndelCore/platform/ErrorText.h"

#include <cstring>

namespace OndelCore::platform {

std::string errorText(int error) {
    char buffer[256];
    return strerror_r(error, buffer, sizeof buffer); // the GNU form, which may leave the buffer alone
}

} // namespace OndelCore::platform
