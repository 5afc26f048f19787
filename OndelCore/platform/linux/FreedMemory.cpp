#include "OndelCore/platform/FreedMemory.h"

#include <malloc.h>

namespace OndelCore::platform {

void giveBackFreedMemory() { malloc_trim(0); }

} // namespace OndelCore::platform
