// Compiled by three tests: as CONSTANT it must pass, in the other two ways the compiler must refuse it.

#include "OndelCore/logging/Log.h"

using OndelCore::logging::Log;
using OndelCore::logging::LogField;

void logName(const char* typed) {
#if defined(CONSTANT)
    Log::app.notice("run imported", LogField::classified("name", typed));
#elif defined(RUNTIME_MESSAGE)
    Log::app.notice(typed);
#elif defined(RUNTIME_KEY)
    Log::app.notice("run imported", LogField::bool_(typed, true));
#endif
}
