#include "OndelCore/benchmark/SpeedScale.h"

#include <algorithm>
#include <cmath>

namespace OndelCore::benchmark {

SpeedScale::SpeedScale(std::vector<Reference> references)
    : m_references(std::move(references)) {
    std::ranges::stable_sort(m_references, {}, &Reference::bytesPerSecond);
}

const SpeedScale& SpeedScale::standard() {
    static const SpeedScale scale({
        {"Floppy", 60e3},
        {"CD-ROM", 7.8e6},
        {"USB 2.0", 60e6},
        {"Hard drive", 160e6},
        {"SATA III", 550e6},
        {"USB 3.2 / 10 GbE", 1.2e9},
        {"Thunderbolt 3", 2.8e9},
        {"PCIe 3.0", 3.5e9},
        {"PCIe 4.0", 7e9},
        {"PCIe 5.0", 14e9},
    });
    return scale;
}

double SpeedScale::minSpeed() const { return m_references.empty() ? 1 : m_references.front().bytesPerSecond; }

double SpeedScale::maxSpeed() const { return m_references.empty() ? 1 : m_references.back().bytesPerSecond; }

double SpeedScale::position(double bytesPerSecond) const {
    const double slowest = minSpeed();
    const double fastest = maxSpeed();
    if (m_references.size() < 2 || !(slowest > 0) || !(fastest > slowest))
        return 0;
    const double speed = std::clamp(bytesPerSecond, slowest, fastest);
    return (std::log10(speed) - std::log10(slowest)) / (std::log10(fastest) - std::log10(slowest));
}

double SpeedScale::position(const Reference& reference) const { return position(reference.bytesPerSecond); }

std::optional<std::string> SpeedScale::verdict(double bytesPerSecond) const {
    if (m_references.empty() || std::isnan(bytesPerSecond))
        return std::nullopt;
    const auto above = std::ranges::upper_bound(m_references, bytesPerSecond, {}, &Reference::bytesPerSecond);
    if (above == m_references.begin())
        return "Slower than " + above->label;
    const std::string faster = "Faster than " + std::prev(above)->label;
    return above == m_references.end() ? faster : faster + ", slower than " + above->label;
}

} // namespace OndelCore::benchmark
