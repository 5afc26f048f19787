#include "OndelCore/c/ondel.h"

#include "OndelCore/benchmark/BenchmarkEngine.h"
#include "OndelCore/benchmark/BenchmarkError.h"
#include "OndelCore/benchmark/evidence/Remark.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <exception>
#include <stop_token>
#include <string_view>

using namespace OndelCore::benchmark;

struct OndelStop {
    std::stop_source source;
};

namespace {

/// The first release's structs, up to where that one's last field ends. Smaller ones are nobody's.
constexpr std::size_t firstPlan = offsetof(OndelPlan, sample_seconds) + sizeof(double);
constexpr std::size_t firstResult = offsetof(OndelResult, message) + sizeof(OndelResult::message);

/// Hands a struct out in the caller's size: what is beyond it is not written, and stays as it is in a larger
/// one.
template <typename Struct>
void store(Struct value, Struct* caller, std::size_t callerSize) {
    value.struct_size = callerSize;
    std::memcpy(caller, &value, std::min(callerSize, sizeof value));
}

constexpr std::uint32_t bitOf(BenchmarkTest test) { return 1U << static_cast<unsigned>(test); }
static_assert(bitOf(BenchmarkTest::fileOps) == ONDEL_FILE_OPS);

OndelPlan defaultPlan() {
    const BenchmarkPlan& plan = BenchmarkPlan::defaultPlan();
    return {.struct_size = sizeof(OndelPlan),
            .tests = ONDEL_ALL_TESTS,
            .bypass_cache = plan.bypassCache,
            .file_bytes = plan.size.asFixed()->bytes,
            .leave_free = BenchmarkSize::defaultLeaveFree,
            .write_block_bytes = plan.writeBlockSize,
            .read_block_bytes = plan.readBlockSize,
            .random_block_bytes = plan.randomBlockSize,
            .random_ops = plan.randomOpCount,
            .file_ops = plan.fileOpCount,
            .sample_seconds = plan.sampleInterval};
}

/// What the engine would stop the process for, and what it has no meaning for.
bool isValid(const OndelPlan& plan) {
    return plan.random_ops >= 0 && plan.file_ops >= 0 && plan.file_bytes >= -1 && plan.leave_free >= 0 &&
           plan.sample_seconds >= 0 && plan.tests <= ONDEL_ALL_TESTS;
}

BenchmarkPlan planFrom(const OndelPlan& from) {
    BenchmarkPlan plan;
    std::erase_if(plan.tests, [&from](BenchmarkTest test) { return (from.tests & bitOf(test)) == 0; });
    plan.size = from.file_bytes < 0 ? BenchmarkSize::fillDisk(from.leave_free)
                                    : BenchmarkSize::fixed(from.file_bytes);
    plan.writeBlockSize = from.write_block_bytes;
    plan.readBlockSize = from.read_block_bytes;
    plan.randomBlockSize = from.random_block_bytes;
    plan.randomOpCount = from.random_ops;
    plan.fileOpCount = from.file_ops;
    plan.bypassCache = from.bypass_cache != 0;
    plan.sampleInterval = from.sample_seconds;
    return plan;
}

void takeFigures(const BenchmarkResult& from, OndelResult& into) {
    if (const auto& write = from.sequentialWrite) {
        into.tests |= ONDEL_SEQUENTIAL_WRITE;
        into.write_bytes_per_second = write->bytesPerSecond();
        into.write_sustained_bytes_per_second = write->sustainedBytesPerSecond();
        into.write_peak_bytes_per_second = write->peakBytesPerSecond();
    }
    if (const auto& read = from.sequentialRead) {
        into.tests |= ONDEL_SEQUENTIAL_READ;
        into.read_bytes_per_second = read->bytesPerSecond();
        into.read_sustained_bytes_per_second = read->sustainedBytesPerSecond();
        into.read_peak_bytes_per_second = read->peakBytesPerSecond();
    }
    if (const auto& read = from.randomRead) {
        into.tests |= ONDEL_RANDOM_READ;
        into.random_read_iops = read->iops();
        into.random_read_p99_seconds = read->latency.value_or(Latency{}).p99;
    }
    if (const auto& write = from.randomWrite) {
        into.tests |= ONDEL_RANDOM_WRITE;
        into.random_write_iops = write->iops();
        into.random_write_p99_seconds = write->latency.value_or(Latency{}).p99;
    }
    if (const auto& files = from.fileOps) {
        into.tests |= ONDEL_FILE_OPS;
        into.files_created_per_second = files->create.opsPerSecond();
        into.files_looked_up_per_second = files->stat.opsPerSecond();
        into.files_renamed_per_second = files->rename.opsPerSecond();
        into.files_deleted_per_second = files->remove.opsPerSecond();
    }
}

void takeRemarks(const std::vector<Remark>& from, OndelResult& into) {
    for (const Remark& remark : from) {
        if (into.remark_count == ONDEL_MOST_REMARKS)
            return;
        into.remarks[into.remark_count++] = {.code = rawValue(remark.code).data(), // a literal
                                             .test = remark.test ? bitOf(*remark.test) : 0,
                                             .weight = static_cast<std::int32_t>(remark.weight)};
    }
}

void say(std::string_view message, OndelResult& result) {
    const std::size_t length = std::min(message.size(), sizeof result.message - 1);
    message.copy(result.message, length);
    result.message[length] = '\0';
}

OndelStatus statusOf(const BenchmarkError& error) {
    struct Statuses {
        OndelStatus operator()(const BenchmarkError::InsufficientSpace&) const { return ONDEL_NO_SPACE; }
        OndelStatus operator()(const BenchmarkError::Io&) const { return ONDEL_IO_ERROR; }
        OndelStatus operator()(const BenchmarkError::NotWritable&) const { return ONDEL_NOT_WRITABLE; }
        OndelStatus operator()(const BenchmarkError::FileTooSmallForRandom&) const {
            return ONDEL_FILE_TOO_SMALL;
        }
    };
    return std::visit(Statuses{}, error.cause());
}

ProgressListener listenerOf(OndelProgressFunction function, void* context) {
    if (!function)
        return {};
    return [function, context](const BenchmarkProgress& now) {
        const OndelProgress progress{.struct_size = sizeof progress,
                                     .test = bitOf(now.test),
                                     .completed = now.completedBytes,
                                     .total = now.totalBytes,
                                     .bytes_per_second = now.instantBytesPerSecond,
                                     .elapsed_seconds = now.elapsed};
        function(&progress, context);
    };
}

OndelStatus measure(const OndelPlan& plan, const char* folder, const ProgressListener& progress,
                    std::stop_token stop, OndelResult& result) {
    try {
        const BenchmarkPlan asked = planFrom(plan);
        const BenchmarkResult found = BenchmarkEngine().measure(asked, folder, progress, std::move(stop));
        takeFigures(found, result);
        takeRemarks(remarksOn(asked, found), result);
        return ONDEL_OK;
    } catch (const BenchmarkError& error) {
        say(error.what(), result);
        return statusOf(error);
    } catch (const Cancelled& error) {
        say(error.what(), result);
        return ONDEL_CANCELLED;
    } catch (const std::exception& error) {
        say(error.what(), result);
        return ONDEL_FAILED;
    }
}

} // namespace

void ondel_plan_init(OndelPlan* plan, std::size_t structSize) {
    if (plan && structSize >= firstPlan)
        store(defaultPlan(), plan, structSize);
}

void ondel_result_init(OndelResult* result, std::size_t structSize) {
    if (result && structSize >= firstResult)
        store(OndelResult{}, result, structSize);
}

OndelStop* ondel_stop_new() {
    try {
        return new OndelStop;
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void ondel_stop_free(OndelStop* stop) { delete stop; }

void ondel_cancel(OndelStop* stop) {
    if (stop)
        stop->source.request_stop();
}

OndelStatus ondel_run(const OndelPlan* plan, const char* folder, OndelProgressFunction progress,
                      void* context, OndelStop* stop, OndelResult* result) {
    if (!plan || !folder || !result || plan->struct_size < firstPlan || result->struct_size < firstResult)
        return ONDEL_BAD_ARGUMENT;
    OndelPlan known = defaultPlan();
    std::memcpy(&known, plan, std::min(plan->struct_size, sizeof known));
    OndelResult found{};
    OndelStatus status = ONDEL_BAD_ARGUMENT;
    if (isValid(known))
        status = measure(known, folder, listenerOf(progress, context),
                         stop ? stop->source.get_token() : std::stop_token(), found);
    else
        say("the plan has a negative count or an unknown test", found);
    store(found, result, result->struct_size);
    return status;
}

const char* ondel_version() { return ONDEL_VERSION; }
