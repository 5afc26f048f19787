#include "OndelCore/benchmark/BenchmarkError.h"

#include <array>
#include <string_view>

namespace OndelCore::benchmark {

namespace {

struct Wording {
    std::string operator()(const BenchmarkError::InsufficientSpace& space) const {
        return "insufficient space: " + std::to_string(space.needed) + " bytes needed, " +
               std::to_string(space.available) + " available";
    }
    std::string operator()(const BenchmarkError::Io& io) const { return io.text; }
    std::string operator()(const BenchmarkError::NotWritable&) const { return "not writable"; }
    std::string operator()(const BenchmarkError::FileTooSmallForRandom&) const {
        return "file too small for a random block";
    }
};

constexpr std::array<std::string_view, std::variant_size_v<BenchmarkError::Cause>> causeNames{
    "insufficientSpace", "io", "notWritable", "fileTooSmallForRandom"};

} // namespace

BenchmarkError::BenchmarkError(Cause cause)
    : m_cause(std::move(cause))
    , m_what(std::visit(Wording{}, m_cause)) {}

ErrorName BenchmarkError::errorName() const noexcept {
    return {"BenchmarkError", causeNames[m_cause.index()], "OndelCore.BenchmarkError",
            static_cast<int>(m_cause.index())};
}

} // namespace OndelCore::benchmark
