#include "TarnwickKit/model/runs/RunCodec.h"
#include "fuzz/Fuzz.h"

using namespace TarnwickKit::model;

/// What was read can be written, and reads as the same again. Of a history without damage all is recovered.
void fuzz::read(Bytes bytes) {
    const auto runs = decodeRuns(viewOf(bytes));
    const auto recovered = recoverRuns(viewOf(bytes));
    require(!runs || *runs == recovered);
    const auto run = decodeRun(viewOf(bytes));
    if (!run)
        return;
    const auto written = encodeRun(*run);
    require(written.has_value());
    const auto again = decodeRun(*written);
    require(again.has_value() && encodeRun(*again) == written);
}
