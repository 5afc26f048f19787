#pragma once

#include "OndelCore/platform/drives/BlockDevices.h"
#include "OndelCore/platform/drives/SmartBlocks.h"

#include <chrono>
#include <memory>
#include <optional>
#include <vector>

namespace OndelCore::platform {

/// The temperature sensors of a volume's disks: those that the kernel shows (hwmon), else what a system
/// service says. A reading is a command to the drive, so a disk that the kernel has suspended is left alone.
/// Threads: one at a time. Units: degrees Celsius; a reading outside of -20 to 150 is none.
class DriveSensors {
public:
    using Clock = std::chrono::steady_clock;

    DriveSensors(const std::vector<BlockDevice>& wholeDisks, SmartSources sources);
    ~DriveSensors();
    DriveSensors(const DriveSensors&) = delete;
    DriveSensors& operator=(const DriveSensors&) = delete;

    /// The hottest drive's. Slow sensors are read less often than this is called and keep their value until
    /// then; a service is asked on another thread, and answers a later call.
    std::optional<double> hottest(Clock::time_point now);

    struct Limits {
        std::optional<double> max{};      ///< where a drive begins to slow down
        std::optional<double> critical{}; ///< where it may stop
    };
    /// The highest of the drives' limits. Fails: absent unless each drive that has a sensor has a limit.
    Limits limits() const;

private:
    struct Sensor;
    struct Service;

    std::vector<Sensor> m_sensors;
    std::shared_ptr<Service> m_service;
    SmartSources m_sources;
};

} // namespace OndelCore::platform
