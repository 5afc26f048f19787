#include "TarnwickKit/model/format/BenchmarkText.h"

#include "OndelCore/benchmark/BenchmarkError.h"
#include "TarnwickKit/model/format/Format.h"

#include <cerrno>
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

/// The number of the system's error behind a failed run; 0 where there is none.
int systemError(const std::exception& error) {
    if (const auto* known = dynamic_cast<const BenchmarkError*>(&error)) {
        const auto* io = std::get_if<BenchmarkError::Io>(&known->cause());
        return io ? io->error : 0;
    }
    const auto* system = dynamic_cast<const std::system_error*>(&error);
    const bool isOfSystem = system && (system->code().category() == std::generic_category() ||
                                       system->code().category() == std::system_category());
    return isOfSystem ? system->code().value() : 0;
}

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

QString explain(const std::exception& error) {
    switch (systemError(error)) {
    case ENOENT:
    case ENOTDIR:
    case ESTALE:
        return u"The folder was removed or its volume unplugged during the run."_s;
    case ENODEV:
    case ENXIO:
    case ENOTCONN:
    case EHOSTDOWN:
    case ETIMEDOUT:
        return u"The volume was unplugged, or its server is gone."_s;
    case EIO:
        return u"The drive reported an error, or was unplugged during the run."_s;
    case EROFS:
        return u"The volume can only be read: systems switch to that when they find an error on it."_s;
    case ENOSPC:
    case EDQUOT:
        return u"The volume became full during the run, or your share of it is used up."_s;
    case EFBIG:
        return u"The file system, or a limit of this session, does not allow files of this size."_s;
    case EACCES:
    case EPERM:
        return u"The permissions of the folder changed during the run, or the system forbids this there."_s;
    case ENOMEM:
        return u"There is not enough memory for blocks of this size."_s;
    case EMFILE:
    case ENFILE:
        return u"Too many files are open at the moment; close some programs and try again."_s;
    default:
        return {};
    }
}

} // namespace TarnwickKit::model
