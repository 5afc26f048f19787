#include "OndelCore/logging/LogScrubber.h"
#include "OndelCore/logging/Redact.h"
#include "OndelCore/logging/Utf8.h"
#include "fuzz/Fuzz.h"

using namespace OndelCore::logging;

/// A scrubbed line is text and holds nobody's name.
void fuzz::read(Bytes bytes) {
    static const LogScrubber scrubber({"annika", "Annika Example", "kestrel-tower", "/srv/people/annika"});
    std::string line(bytes);
    mendUtf8(line);
    scrubber.scrub(line);
    std::string mended = line;
    mendUtf8(mended);
    require(mended == line);
    require(line.find("annika") == std::string::npos);
    Redact::path(bytes);
}
