#include "TarnwickKit/model/format/BenchmarkText.h"

#include "OndelCore/benchmark/BenchmarkError.h"
#include "TarnwickKit/model/format/Format.h"

#include <QCoreApplication>

#include <cerrno>
#include <cstdlib>
#include <system_error>

namespace TarnwickKit::model {

using namespace Qt::StringLiterals;
using OndelCore::benchmark::BenchmarkError;
using OndelCore::benchmark::BenchmarkResult;
using OndelCore::benchmark::BenchmarkTest;

namespace {

struct BenchmarkText {
    Q_DECLARE_TR_FUNCTIONS(BenchmarkText)
};

struct CauseInWords {
    QString operator()(const BenchmarkError::InsufficientSpace& cause) const {
        return BenchmarkText::tr("Not enough space: needs %1, only %2 free.")
            .arg(Format::bytes(cause.needed), Format::bytes(cause.available));
    }
    QString operator()(const BenchmarkError::Io& cause) const {
        return BenchmarkText::tr("I/O error: %1").arg(QString::fromStdString(cause.text));
    }
    QString operator()(const BenchmarkError::NotWritable&) const {
        return BenchmarkText::tr(
            "Couldn’t write there. The volume may be read-only, or the folder may not allow it.");
    }
    QString operator()(const BenchmarkError::FileTooSmallForRandom&) const {
        return BenchmarkText::tr("The test file is too small for the random block size.");
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
        return BenchmarkText::tr("Sequential write");
    case BenchmarkTest::sequentialRead:
        return BenchmarkText::tr("Sequential read");
    case BenchmarkTest::randomRead:
        return BenchmarkText::tr("Random read");
    case BenchmarkTest::randomWrite:
        return BenchmarkText::tr("Random write");
    case BenchmarkTest::fileOps:
        return BenchmarkText::tr("File operations");
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
        //: A unit, like MB/s
        return BenchmarkText::tr("files/s");
    }
    std::abort();
}

QString rateFigure(BenchmarkTest test, double rate) {
    const bool isOfBytes = test == BenchmarkTest::sequentialWrite || test == BenchmarkTest::sequentialRead;
    return isOfBytes ? Format::mbValue(rate) : Format::grouped(rate);
}

QStringList latencyFigures(const OndelCore::benchmark::Latency& latency) {
    //: The time within which 99 % of all operations were done
    const QString p99 = BenchmarkText::tr("p99 %1");
    //: The longest time that an operation took
    const QString worst = BenchmarkText::tr("worst %1");
    return {p99.arg(Format::latency(latency.p99)), worst.arg(Format::latency(latency.worst))};
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
        return BenchmarkText::tr("The folder was removed or its volume unplugged during the run.");
    case ENODEV:
    case ENXIO:
    case ENOTCONN:
    case EHOSTDOWN:
    case ETIMEDOUT:
        return BenchmarkText::tr("The volume was unplugged, or its server is gone.");
    case EIO:
        return BenchmarkText::tr("The drive reported an error, or was unplugged during the run.");
    case EROFS:
        return BenchmarkText::tr(
            "The volume can only be read: systems switch to that when they find an error on it.");
    case ENOSPC:
    case EDQUOT:
        return BenchmarkText::tr("The volume became full during the run, or your share of it is used up.");
    case EFBIG:
        return BenchmarkText::tr(
            "The file system, or a limit of this session, does not allow files of this size.");
    case EACCES:
    case EPERM:
        return BenchmarkText::tr(
            "The permissions of the folder changed during the run, or the system forbids this there.");
    case ENOMEM:
        return BenchmarkText::tr("There is not enough memory for blocks of this size.");
    case EMFILE:
    case ENFILE:
        return BenchmarkText::tr("Too many files are open at the moment; close some programs and try again.");
    default:
        return {};
    }
}

} // namespace TarnwickKit::model
