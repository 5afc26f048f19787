#pragma once

#include "OndelCore/Export.h"
#include "OndelCore/Hashing.h"
#include "OndelCore/benchmark/BenchmarkTest.h"

#include <cstdint>
#include <limits>
#include <set>
#include <string_view>
#include <variant>
#include <vector>

namespace OndelCore::benchmark {

/// How large the data file becomes. Units: bytes.
class ONDEL_PUBLIC BenchmarkSize {
public:
    /// The data file is to hold exactly `bytes`.
    struct Fixed {
        std::int64_t bytes = 0;
        bool operator==(const Fixed&) const = default;
        std::size_t hash() const { return hashFields(bytes); }
    };
    /// The data file grows until the volume has only `leaveFree` bytes left.
    struct FillDisk {
        std::int64_t leaveFree = 0;
        bool operator==(const FillDisk&) const = default;
        std::size_t hash() const { return hashFields(leaveFree); }
    };
    struct Preset;

    static constexpr std::int64_t defaultLeaveFree = 1073741824;

    static constexpr BenchmarkSize fixed(std::int64_t bytes) { return BenchmarkSize(Fixed{bytes}); }
    static constexpr BenchmarkSize fillDisk(std::int64_t leaveFree) {
        return BenchmarkSize(FillDisk{leaveFree});
    }

    /// The sizes offered to people, with their labels.
    static const std::vector<Preset>& presets();

    /// Null when the size is of the other kind.
    constexpr const Fixed* asFixed() const { return std::get_if<Fixed>(&m_value); }
    constexpr const FillDisk* asFillDisk() const { return std::get_if<FillDisk>(&m_value); }

    bool operator==(const BenchmarkSize&) const = default;
    std::size_t hash() const { return hashFields(m_value); }

private:
    constexpr explicit BenchmarkSize(std::variant<Fixed, FillDisk> value)
        : m_value(value) {}
    std::variant<Fixed, FillDisk> m_value;
};

/// A size as it is offered.
struct BenchmarkSize::Preset {
    std::string_view label;
    BenchmarkSize size;
};

/// What a run is asked to do. Any block sizes are accepted: they become whole pages by `alignedBlock`.
struct ONDEL_PUBLIC BenchmarkPlan {
    /// Every transfer is a multiple of this. Units: bytes.
    static constexpr std::int64_t page = 4096;

    /// Which tests to run; they run in their order of declaration. None is valid and gives an empty result.
    std::set<BenchmarkTest> tests{allBenchmarkTests.begin(), allBenchmarkTests.end()};
    BenchmarkSize size = BenchmarkSize::fixed(5368709120);
    /// Bytes per call of the sequential write, and of the preparation that stands in for it.
    std::int64_t writeBlockSize = 1048576;
    /// Bytes per call of the sequential read.
    std::int64_t readBlockSize = 1048576;
    /// Bytes per random operation.
    std::int64_t randomBlockSize = 4096;
    /// Operations in each random test. Negative: a programming fault.
    std::int64_t randomOpCount = 10000;
    /// Files in the file-operations test. Negative: a programming fault.
    std::int64_t fileOpCount = 1000;
    /// Ask the system to keep the data file out of its cache. A refusal is not an error.
    bool bypassCache = true;
    /// Least distance of two throughput samples. Units: seconds.
    double sampleInterval = 0.1;

    /// The plan with every field at its default.
    static const BenchmarkPlan& defaultPlan();

    /// `size` rounded up to whole pages, at least one: 0 and -5 give 4096, 5000 gives 8192. What the largest
    /// number of bytes cannot be rounded up to is rounded down.
    static constexpr std::int64_t alignedBlock(std::int64_t size) {
        constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max() / page * page;
        if (size <= page)
            return page;
        return size > largest ? largest : (size - 1) / page * page + page;
    }

    bool operator==(const BenchmarkPlan&) const = default;
    std::size_t hash() const {
        return hashFields(tests, size, writeBlockSize, readBlockSize, randomBlockSize, randomOpCount,
                          fileOpCount, bypassCache, sampleInterval);
    }
};

} // namespace OndelCore::benchmark
