#include "TarnwickKit/model/format/BenchmarkTestTitle.h"

#include "TarnwickKit/model/format/Format.h"

#include <cstdlib>

namespace TarnwickKit::model {

using OndelCore::benchmark::BenchmarkTest;
using namespace Qt::StringLiterals;

QString name(BenchmarkTest test) { return QString::fromLatin1(rawValue(test)); }

QString title(BenchmarkTest test, std::int64_t randomBlock) {
    switch (test) {
    case BenchmarkTest::sequentialWrite:
        return u"Sequential write"_s;
    case BenchmarkTest::sequentialRead:
        return u"Sequential read"_s;
    case BenchmarkTest::randomRead:
        return u"Random read (%1)"_s.arg(Format::block(randomBlock));
    case BenchmarkTest::randomWrite:
        return u"Random write (%1)"_s.arg(Format::block(randomBlock));
    case BenchmarkTest::fileOps:
        return u"File operations"_s;
    }
    std::abort();
}

} // namespace TarnwickKit::model
