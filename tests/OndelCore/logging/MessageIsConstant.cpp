// Compiled by three tests: CONSTANT must compile, the other two variants must not.

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
