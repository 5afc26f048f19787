// How long the window waits when a folder is chosen and when the menu of volumes opens.

#include "OndelCore/platform/volumes/Mounts.h"
#include "OndelCore/volumes/MountedVolumes.h"
#include "OndelCore/volumes/VolumeCapabilities.h"
#include "OndelCore/volumes/VolumeInfo.h"
#include "OndelCore/volumes/VolumeQuestions.h"
#include "TarnwickKit/model/session/DriveInfo.h"

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

using namespace OndelCore;
using namespace OndelCore::volumes;

namespace {

void factsOfTheRootVolume(benchmark::State& state) {
    for (auto _ : state) {
        const auto info = VolumeInfo::load(Location::local("/"));
        benchmark::DoNotOptimize(VolumeCapabilities::probe(Location::local("/")));
        benchmark::DoNotOptimize(TarnwickKit::model::DriveInfo::identity(info->volumeURL.value_or("/")));
    }
}
BENCHMARK(factsOfTheRootVolume)->Unit(benchmark::kMillisecond);

void realMountedVolumes(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(mountedVolumes());
}
BENCHMARK(realMountedVolumes)->Unit(benchmark::kMillisecond);

/// A mount table in a file of its own. Owner: removes it.
class MountTable {
public:
    MountTable() {
        char name[] = "/tmp/ondel-bench-XXXXXX";
        const int descriptor = mkstemp(name);
        if (descriptor < 0)
            std::abort();
        close(descriptor);
        m_path = name;
        m_file.open(m_path);
        add("1 0 254:0 / / rw - ext4 /dev/vda rw");
    }
    ~MountTable() {
        std::error_code ignored;
        std::filesystem::remove(m_path, ignored);
    }
    MountTable(const MountTable&) = delete;
    MountTable& operator=(const MountTable&) = delete;

    void add(const std::string& line) { m_file << line << '\n'; }
    platform::SystemSources sources() {
        m_file.flush();
        platform::SystemSources sources;
        sources.mountTable = platform::MountTable(m_path);
        return sources;
    }

private:
    std::filesystem::path m_path;
    std::ofstream m_file;
};

std::string line(int id, const std::string& device, const std::string& point, const std::string& end) {
    return std::to_string(id) + " 1 " + device + " / " + point + " rw,relatime shared:1 - " + end;
}

/// A host with 1250 containers: four mounts each, none of which a person wants to see.
void containerHost(benchmark::State& state) {
    MountTable table;
    for (int id = 2; id < 5000; id += 4) {
        const std::string name = std::to_string(id);
        table.add(line(id, "0:" + name, "/var/lib/docker/overlay2/" + name + "/merged",
                       "overlay overlay rw,lowerdir=/var/lib/docker/overlay2/l/" + name +
                           ",upperdir=/u,workdir=/w"));
        table.add(
            line(id + 1, "0:" + name, "/var/lib/kubelet/pods/" + name + "/volumes/token", "tmpfs tmpfs rw"));
        table.add(line(id + 2, "0:4", "/run/docker/netns/" + name, "nsfs nsfs rw"));
        table.add(line(id + 3, "254:0", "/srv/bound/" + name, "ext4 /dev/vda rw"));
    }
    const auto sources = table.sources();
    for (auto _ : state)
        benchmark::DoNotOptimize(mountedVolumesIn(sources));
}
BENCHMARK(containerHost)->Unit(benchmark::kMillisecond);

/// The worst that can be: 5000 file systems on 5000 devices, each a volume to show.
void everyMountAVolume(benchmark::State& state) {
    MountTable table;
    for (int id = 2; id <= 5000; ++id)
        table.add(line(id, "8:" + std::to_string(id), "/mnt/none/" + std::to_string(id), "ext4 /dev/sdx rw"));
    const auto sources = table.sources();
    for (auto _ : state)
        benchmark::DoNotOptimize(mountedVolumesIn(sources));
}
BENCHMARK(everyMountAVolume)->Unit(benchmark::kMillisecond);

/// All of them mounted over one another at one place, of which the topmost is a volume.
void deepStack(benchmark::State& state) {
    MountTable table;
    for (int id = 2; id <= 5000; ++id)
        table.add(std::to_string(id) + ' ' + std::to_string(id - 1) + " 8:" + std::to_string(id) +
                  " / /mnt/none rw - ext4 /dev/sdx rw");
    const auto sources = table.sources();
    for (auto _ : state)
        benchmark::DoNotOptimize(mountedVolumesIn(sources));
}
BENCHMARK(deepStack)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
