#include "TarnwickHost/Terminal.h"

#include <langinfo.h>
#include <sys/ioctl.h>

#include <string_view>

namespace TarnwickHost {

LineStyle lineStyle(int descriptor) {
    winsize size{};
    const bool isKnown = ioctl(descriptor, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return {.columns = (isKnown ? size.ws_col : 80) - 1,
            // NOLINTNEXTLINE(concurrency-mt-unsafe): nobody changes the locale after main's first lines.
            .unicode = std::string_view(nl_langinfo(CODESET)) == "UTF-8"};
}

} // namespace TarnwickHost
