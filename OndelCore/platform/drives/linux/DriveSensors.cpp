#include "OndelCore/platform/drives/linux/DriveSensors.h"

#include "OndelCore/platform/drives/linux/DriveBus.h"
#include "OndelCore/platform/drives/linux/DriveReaders.h"
#include "OndelCore/platform/process/DetachedThread.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <limits>
#include <utility>

namespace fs = std::filesystem;

namespace OndelCore::platform {

namespace {

using namespace std::chrono_literals;

// A SATA disk finishes what it has queued before it tells its temperature; an NVMe drive does not.
constexpr std::chrono::seconds sataInterval = 5s;
constexpr std::chrono::seconds serviceInterval = 10s;
constexpr std::chrono::milliseconds serviceLimit = 2s;

constexpr double coldest = -20;
constexpr double hottestOfAll = 150;
constexpr double lowestLimit = 30;

/// An attribute in thousandths of a degree.
std::optional<double> degreesIn(const fs::path& file, double least) {
    const auto thousandths = readNumber(file);
    if (!thousandths)
        return std::nullopt;
    const double degrees = static_cast<double>(*thousandths) / 1000;
    return degrees >= least && degrees <= hottestOfAll ? std::optional(degrees) : std::nullopt;
}

/// The sensor of a drive in one of these folders, or in "hwmon" below them.
std::optional<fs::path> sensorIn(const std::vector<fs::path>& folders) {
    for (const fs::path& folder : folders)
        for (const fs::path& place : {folder, folder / "hwmon"}) {
            std::error_code failed;
            for (fs::directory_iterator entry(place, failed), end; !failed && entry != end;
                 entry.increment(failed)) {
                if (!entry->path().filename().native().starts_with("hwmon"))
                    continue;
                const auto name = readAttribute(entry->path() / "name");
                if (name == "nvme" || name == "drivetemp")
                    return entry->path();
            }
        }
    return std::nullopt;
}

std::optional<fs::path> sensorOf(const BlockDevice& disk) {
    std::vector<fs::path> folders = nvmeControllers(disk);
    folders.push_back(disk.folder / "device");
    for (const fs::path& controller : nvmeControllers(disk))
        folders.push_back(controller / "device"); // kernels before 5.16 have it at the PCI device
    return sensorIn(folders);
}

/// Whether the service may know the disk. It is started by a question, so it is not asked for nothing.
bool mayBeKnownToService(const BlockDevice& disk) {
    const auto bus = busOfDisk(disk).name;
    return (bus == "NVMe" || bus == "SATA") && !isOfVirtualMachine(disk);
}

void raise(std::optional<double>& most, const std::optional<double>& value) {
    if (value)
        most = std::max(most.value_or(*value), *value);
}

} // namespace

struct DriveSensors::Sensor {
    BlockDevice disk;
    fs::path folder; ///< of the kernel
    std::chrono::seconds interval;
    Clock::time_point next{};
    std::optional<double> last{};
};

/// What the service says of the disks without a sensor. Shared with the thread that asks.
struct DriveSensors::Service {
    static constexpr double nothing = std::numeric_limits<double>::quiet_NaN();

    std::vector<BlockDevice> disks;
    Clock::time_point next{};
    std::atomic<double> last = nothing;
    std::atomic<bool> isBusy = false;
    std::atomic<bool> isUseless = false; ///< it did not know one of them: it is not asked again

    void ask(const SmartSources& sources) {
        std::optional<double> most;
        for (const BlockDevice& disk : disks)
            raise(most, isSuspended(disk) ? std::nullopt : celsiusFromUDisks(disk, sources));
        const bool isSane = most && *most >= coldest && *most <= hottestOfAll;
        last = isSane ? *most : nothing;
        isUseless = !most;
        isBusy = false;
    }

    static void askElsewhere(const std::shared_ptr<Service>& service, const SmartSources& sources) {
        service->isBusy = true;
        if (!runDetached([service, sources] { service->ask(sources); }))
            service->isUseless = true;
    }
};

DriveSensors::DriveSensors(const std::vector<BlockDevice>& wholeDisks, SmartSources sources)
    : m_service(std::make_shared<Service>())
    , m_sources(std::move(sources)) {
    m_sources.serviceLimit = std::min(m_sources.serviceLimit, serviceLimit);
    for (const BlockDevice& disk : wholeDisks)
        if (auto folder = sensorOf(disk))
            m_sensors.push_back({.disk = disk,
                                 .folder = std::move(*folder),
                                 .interval = nvmeControllers(disk).empty() ? sataInterval : 0s});
        else if (mayBeKnownToService(disk))
            m_service->disks.push_back(disk);
}

DriveSensors::~DriveSensors() = default;

std::optional<double> DriveSensors::hottest(Clock::time_point now) {
    std::optional<double> most;
    for (Sensor& sensor : m_sensors) {
        if (now >= sensor.next) {
            sensor.next = now + sensor.interval;
            sensor.last =
                isSuspended(sensor.disk) ? std::nullopt : degreesIn(sensor.folder / "temp1_input", coldest);
        }
        raise(most, sensor.last);
    }
    if (m_service->disks.empty() || m_service->isUseless)
        return most;
    if (now >= m_service->next && !m_service->isBusy) {
        m_service->next = now + serviceInterval;
        Service::askElsewhere(m_service, m_sources);
    }
    if (const double last = m_service->last; !std::isnan(last))
        raise(most, last);
    return most;
}

DriveSensors::Limits DriveSensors::limits() const {
    const auto highest = [this](const char* name) {
        std::optional<double> most;
        for (const Sensor& sensor : m_sensors) {
            const auto limit = degreesIn(sensor.folder / name, lowestLimit);
            if (!limit)
                return std::optional<double>();
            raise(most, limit);
        }
        return m_service->disks.empty() || m_service->isUseless ? most : std::nullopt;
    };
    return {.max = highest("temp1_max"), .critical = highest("temp1_crit")};
}

} // namespace OndelCore::platform
