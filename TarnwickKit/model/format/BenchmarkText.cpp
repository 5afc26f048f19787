#include "TarnwickKit/model/format/BenchmarkText.h"

#include "OndelCore/benchmark/BenchmarkError.h"
#include "TarnwickKit/model/format/Format.h"

#include <cstdlib>
#include <system_error>

namespace TarnwickKit::model {

using namespace Qt::StringLiterals;
using OndelCore::benchmark::BenchmarkError;
using OndelCore::benchmark::BenchmarkResult;
using OndelCore::benchmark::BenchmarkTest;

namespace {

struct CauseInWords {
    QString operator()(const BenchmarkError::InsufficientSpace& cause) const {
        return u"Not enough space: needs %1, only %2 free."_s.arg(Format::bytes(cause.needed),
                                                                  Format::bytes(cause.available));
    }
    QString operator()(const BenchmarkError::Io& cause) const {
        return u"I/O error: "_s + QString::fromStdString(cause.text);
    }
    QString operator()(const BenchmarkError::NotWritable&) const {
        return u"Couldn’t write there. The volume may be read-only, or the folder may not allow it."_s;
    }
    QString operator()(const BenchmarkError::FileTooSmallForRandom&) const {
        return u"The test file is too small for the random block size."_s;
    }
};

} // namespace

QString name(BenchmarkTest test) { return QString::fromLatin1(rawValue(test)); }

QString title(BenchmarkTest test, std::int64_t randomBlock) {
    const bool isRandom = test == BenchmarkTest::randomRead || test == BenchmarkTest::randomWrite;
    return isRandom ? u"%1 (%2)"_s.arg(shortTitle(test), Format::block(randomBlock)) : shortTitle(test);
}

QString shortTitle(BenchmarkTest test) {
    switch (test) {
    case BenchmarkTest::sequentialWrite:
        return u"Sequential write"_s;
    case BenchmarkTest::sequentialRead:
        return u"Sequential read"_s;
    case BenchmarkTest::randomRead:
        return u"Random read"_s;
    case BenchmarkTest::randomWrite:
        return u"Random write"_s;
    case BenchmarkTest::fileOps:
        return u"File operations"_s;
    }
    std::abort();
}

QString rateUnit(BenchmarkTest test) {
    switch (test) {
    case BenchmarkTest::sequentialWrite:
    case BenchmarkTest::sequentialRead:
        return u"MB/s"_s;
    case BenchmarkTest::randomRead:
    case BenchmarkTest::randomWrite:
        return u"IOPS"_s;
    case BenchmarkTest::fileOps:
        return u"files/s"_s;
    }
    std::abort();
}

QString rateFigure(BenchmarkTest test, double rate) {
    const bool isOfBytes = test == BenchmarkTest::sequentialWrite || test == BenchmarkTest::sequentialRead;
    return isOfBytes ? Format::mbValue(rate) : Format::grouped(rate);
}

QStringList latencyFigures(const OndelCore::benchmark::Latency& latency) {
    return {u"p99 "_s + Format::latency(latency.p99), u"worst "_s + Format::latency(latency.worst)};
}

std::optional<QString> headline(const BenchmarkResult& result, BenchmarkTest test) {
    const auto show = [](const auto& part, auto&& figure) {
        return part ? std::optional<QString>(figure(*part)) : std::nullopt;
    };
    const auto sustained = [](const auto& part) { return Format::mbValue(part.sustainedBytesPerSecond()); };
    const auto iops = [](const auto& part) { return Format::compact(part.iops()); };
    switch (test) {
    case BenchmarkTest::sequentialWrite:
        return show(result.sequentialWrite, sustained);
    case BenchmarkTest::sequentialRead:
        return show(result.sequentialRead, sustained);
    case BenchmarkTest::randomRead:
        return show(result.randomRead, iops);
    case BenchmarkTest::randomWrite:
        return show(result.randomWrite, iops);
    case BenchmarkTest::fileOps:
        return show(result.fileOps,
                    [](const auto& part) { return Format::compact(part.create.opsPerSecond()); });
    }
    std::abort();
}

QString describe(const std::exception& error) {
    if (const auto* known = dynamic_cast<const BenchmarkError*>(&error))
        return std::visit(CauseInWords(), known->cause());
    if (const auto* system = dynamic_cast<const std::system_error*>(&error))
        return QString::fromStdString(system->code().message());
    return QString::fromUtf8(error.what());
}

} // namespace TarnwickKit::model
