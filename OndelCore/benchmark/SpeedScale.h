#pragma once

#include "OndelCore/Export.h"
#include "OndelCore/Hashing.h"

#include <optional>
#include <string>
#include <vector>

namespace OndelCore::benchmark {

/// Places a measured rate among familiar speeds, on a logarithmic scale. Units: bytes per second throughout.
class ONDEL_PUBLIC SpeedScale {
public:
    /// A familiar speed.
    struct Reference {
        std::string label;
        double bytesPerSecond = 0;

        bool operator==(const Reference&) const = default;
        std::size_t hash() const { return hashFields(label, bytesPerSecond); }
    };

    /// Sorted by speed; equal speeds keep their order.
    explicit SpeedScale(std::vector<Reference> references);

    /// From a floppy disk to PCIe 5.0.
    static const SpeedScale& standard();

    const std::vector<Reference>& references() const { return m_references; }

    /// The slowest and the fastest reference; 1 when there is none.
    double minSpeed() const;
    double maxSpeed() const;

    /// From 0 at the slowest reference to 1 at the fastest, by the logarithm; beyond them the nearer end. 0
    /// on a scale that spans nothing.
    double position(double bytesPerSecond) const;
    double position(const Reference& reference) const;

    /// "Faster than SATA III, slower than USB 3.2 / 10 GbE". A speed that equals a reference counts as faster
    /// than it. Absent without references and for what is no number.
    std::optional<std::string> verdict(double bytesPerSecond) const;

    bool operator==(const SpeedScale&) const = default;
    std::size_t hash() const { return hashFields(m_references); }

private:
    std::vector<Reference> m_references;
};

} // namespace OndelCore::benchmark
