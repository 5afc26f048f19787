#include "OndelCore/platform/drives/linux/CircumstanceSources.h"
#include "OndelCore/platform/drives/linux/DiskFacts.h"
#include "OndelCore/platform/drives/linux/DriveLinks.h"
#include "OndelCore/platform/drives/linux/DriveSensors.h"
#include "OndelCore/platform/drives/linux/FileSystemState.h"
#include "OndelCore/platform/drives/linux/MachineState.h"
#include "OndelCore/platform/process/DetachedThread.h"
#include "OndelCore/platform/process/SystemCalls.h"

#include <sched.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <condition_variable>
#include <limits>
#include <mutex>

namespace OndelCore::platform {

namespace {

using Clock = std::chrono::steady_clock;

constexpr double noDegrees = std::numeric_limits<double>::quiet_NaN();

/// For this thread, as far as the kernel allows: whatever else wants the processor goes first.
void takeLowestPriority() {
    constexpr int lowest = 19;
    const sched_param none{};
    enterBackground("circumstances");
    setpriority(PRIO_PROCESS, static_cast<id_t>(gettid()), lowest);
    sched_setscheduler(0, SCHED_IDLE, &none); // 0: the calling thread
}

/// Looks at what changes. Threads: one at a time.
class Looks {
public:
    Looks(const std::vector<BlockDevice>& disks, const CircumstanceSources& sources)
        : m_proc(sources.proc)
        , m_sensors(disks, sources.drives)
        , m_began(Clock::now()) {
        for (const BlockDevice& disk : disks)
            if (const auto link = linkOfDisk(disk); link && link->now < link->best)
                m_links.push_back({disk, *link});
    }

    std::optional<double> celsius() { return m_sensors.hottest(Clock::now()); }
    DriveSensors::Limits limits() const { return m_sensors.limits(); }

    /// The share of waiting since the last call of this.
    CircumstanceSample sample(std::optional<double> celsius) {
        const auto now = Clock::now();
        const auto waited = ioWaitMicroseconds(m_proc);
        CircumstanceSample sample{.elapsed = std::chrono::duration<double>(now - m_began).count(),
                                  .celsius = celsius};
        const double passed = std::chrono::duration<double, std::micro>(now - m_lastTime).count();
        if (waited && m_lastWaited && *waited >= *m_lastWaited && passed > 0)
            sample.ioPressure = std::min(1.0, static_cast<double>(*waited - *m_lastWaited) / passed);
        m_lastTime = now;
        m_lastWaited = waited;
        return sample;
    }

    /// The slowest of the slow links. A link that saves power while nothing moves shows its rate only under
    /// load, so the best look at each counts.
    std::optional<DriveLink> slowLink() {
        std::optional<DriveLink> slowest;
        for (auto& [disk, link] : m_links) {
            if (const auto again = linkOfDisk(disk))
                link.now = std::max(link.now, again->now);
            if (link.now < link.best && (!slowest || link.now < slowest->now))
                slowest = link;
        }
        return slowest;
    }

private:
    struct DiskLink {
        BlockDevice disk;
        DriveLink link;
    };
    std::filesystem::path m_proc;
    DriveSensors m_sensors;
    Clock::time_point m_began;
    Clock::time_point m_lastTime{};
    std::optional<std::int64_t> m_lastWaited;
    std::vector<DiskLink> m_links;
};

/// What the looking thread and the watch share. The thread may outlive the watch: a sensor whose drive hangs
/// holds it, and a thread of the lowest priority is in no hurry to end.
struct Shared {
    Shared(const std::vector<BlockDevice>& disks, const CircumstanceSources& sources)
        : looks(disks, sources)
        , interval(sources.interval)
        , mostSamples(sources.mostSamples) {}

    Looks looks; ///< of the thread, once there is one
    std::chrono::milliseconds interval;
    std::size_t mostSamples;
    std::atomic<double> celsius = noDegrees;
    static_assert(std::atomic<double>::is_always_lock_free);

    std::mutex lock;
    std::condition_variable ending;
    bool hasEnded = false;
    Circumstances found; ///< what the thread has filled in

    void lookOnce(bool isFirst, bool isKept) {
        const auto degrees = looks.celsius();
        celsius = degrees.value_or(noDegrees);
        const auto link = looks.slowLink();
        const auto limits = isFirst ? looks.limits() : DriveSensors::Limits();
        const auto sample = isKept ? std::optional(looks.sample(degrees)) : std::nullopt;
        const std::scoped_lock guard(lock);
        found.link = link;
        if (isFirst) {
            found.maxCelsius = limits.max;
            found.criticalCelsius = limits.critical;
        }
        if (sample)
            found.samples.push_back(*sample);
    }

    /// Returns how many times further apart samples must be from now on: 1 or 2.
    int dropSomeIfFull() {
        const std::scoped_lock guard(lock);
        if (found.samples.size() < mostSamples)
            return 1;
        std::size_t index = 0;
        std::erase_if(found.samples, [&](const CircumstanceSample&) { return index++ % 2 == 1; });
        return 2;
    }

    void lookUntilEnd() {
        takeLowestPriority();
        auto due = Clock::now();
        std::int64_t stride = 1;
        for (std::int64_t look = 0; !waitsUntil(due); ++look) {
            lookOnce(look == 0, look % stride == 0);
            stride *= dropSomeIfFull();
            due = std::max(due + interval,
                           Clock::now()); // after a long suspension not one look for each second
        }
    }

    /// Returns whether the end has come.
    bool waitsUntil(Clock::time_point due) {
        std::unique_lock guard(lock);
        return ending.wait_until(guard, due, [this] { return hasEnded; });
    }

    Circumstances end() {
        const std::scoped_lock guard(lock);
        hasEnded = true;
        ending.notify_all();
        return found;
    }
};

class Watch : public CircumstanceWatch {
public:
    Watch(Circumstances start, const std::vector<BlockDevice>& disks, const CircumstanceSources& sources)
        : m_start(std::move(start))
        , m_shared(std::make_shared<Shared>(disks, sources)) {
        if (!runDetached([shared = m_shared] { shared->lookUntilEnd(); }))
            m_shared->lookOnce(true, true);
    }
    ~Watch() override { m_shared->end(); }

    std::optional<double> celsius() const override {
        const double degrees = m_shared->celsius.load(std::memory_order_relaxed);
        return std::isnan(degrees) ? std::nullopt : std::optional(degrees);
    }

    Circumstances finish() override {
        Circumstances found = m_shared->end();
        m_start.link = found.link;
        m_start.maxCelsius = found.maxCelsius;
        m_start.criticalCelsius = found.criticalCelsius;
        m_start.samples = std::move(found.samples);
        return std::move(m_start);
    }

private:
    Circumstances m_start;
    std::shared_ptr<Shared> m_shared;
};

} // namespace

std::unique_ptr<CircumstanceWatch> watchCircumstancesIn(const CircumstanceSources& sources, int folder) {
    const SystemSources& system = sources.drives.system;
    Circumstances start;
    start.kernel = kernelRelease(sources.proc);
    start.memoryBytes = memoryOfKernel(sources.proc);
    start.isOnBattery = isOnBattery(system.sysfs);
    start.hasPowerSaveGovernor = hasPowerSaveGovernor(system.sysfs);
    const auto mount = mountOfDescriptor(folder, system.mountTable.mounts());
    const BlockStack stack = mount ? blockStack(*mount, system) : blockStackOfDescriptor(folder, system);
    addDiskFacts(start, stack);
    if (mount)
        addFileSystemState(start, *mount, folder, system, sources.proc);
    addSizes(start, folder);
    return std::make_unique<Watch>(std::move(start), stack.wholeDisks, sources);
}

std::unique_ptr<CircumstanceWatch> watchCircumstances(int folder) { return watchCircumstancesIn({}, folder); }

} // namespace OndelCore::platform
