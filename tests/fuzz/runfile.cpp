#include "TarnwickKit/model/format/DisplayText.h"
#include "TarnwickKit/model/runs/RunCodec.h"
#include "TarnwickKit/model/runs/RunExport.h"
#include "TarnwickKit/model/runs/RunText.h"
#include "fuzz/Fuzz.h"

using namespace TarnwickKit::model;

/// What was read can be written, and reads as the same again. Of a history without damage all is recovered.
void fuzz::read(Bytes bytes) {
    const auto runs = decodeRuns(viewOf(bytes));
    const auto recovered = recoverRuns(viewOf(bytes));
    require(!runs || *runs == recovered);
    // What is exported can be read again, and steers nothing on its way.
    if (runs) {
        require(requireRuns(jsonList(*runs)) == *runs);
        require(isExport(csvTable(*runs)));
        for (const QString& text :
             {runTexts(*runs), markdownTable(*runs), QString::fromUtf8(csvTable(*runs)).remove("\r\n")})
            for (const QString& line : text.split('\n'))
                require(harmless(line) == line);
    }
    const auto run = decodeRun(viewOf(bytes));
    if (!run)
        return;
    const auto written = encodeRun(*run);
    require(written.has_value());
    const auto again = decodeRun(*written);
    require(again.has_value() && encodeRun(*again) == written);
}
