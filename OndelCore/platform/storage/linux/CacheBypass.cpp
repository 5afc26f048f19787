#include "OndelCore/platform/storage/CacheBypass.h"

#include <fcntl.h>

namespace OndelCore::platform {

CacheBypass::CacheBypass(int descriptor)
    : m_descriptor(descriptor)
    , m_statusFlags(fcntl(descriptor, F_GETFL)) {
    // Not as a flag of open(2), which fails on a file system without direct transfers.
    m_isOn = m_statusFlags >= 0 && fcntl(descriptor, F_SETFL, m_statusFlags | O_DIRECT) == 0;
}

// open(2), "O_DIRECT": a length or offset that is no multiple of the device's logical block fails with
// EINVAL.
bool CacheBypass::isRefusal(int error) { return error == EINVAL; }

void CacheBypass::suspend() const { fcntl(m_descriptor, F_SETFL, m_statusFlags); }

void CacheBypass::resume() const { fcntl(m_descriptor, F_SETFL, m_statusFlags | O_DIRECT); }

} // namespace OndelCore::platform
