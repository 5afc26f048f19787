#include "OndelCore/platform/volumes/VisibleMounts.h"

#include "OndelCore/platform/volumes/FileSystemFacts.h"

#include <sys/sysmacros.h>

#include <algorithm>
#include <array>
#include <map>
#include <string>
#include <string_view>
#include <system_error>
#include <unordered_map>
#include <unordered_set>

namespace fs = std::filesystem;

namespace OndelCore::platform {

namespace {

// Internal mount points of the system, its packages and its containers.
constexpr std::array<std::string_view, 14> systemPlaces = {
    "/proc",
    "/sys",
    "/dev",
    "/run",
    "/snap",
    "/boot/efi",
    "/efi",
    "/var/snap",
    "/var/lib/snapd",
    "/var/lib/docker",
    "/var/lib/containers",
    "/var/lib/kubelet",
    "/var/lib/flatpak",
    "/var/lib/containerd",
};
constexpr std::array<std::string_view, 1> peoplesPlaces = {"/run/media"};

// Places where containers mount files and folders of the host for internal use.
constexpr std::array<std::string_view, 6> programPlaces = {"/etc", "/usr", "/bin", "/lib", "/lib64", "/sbin"};

// Flatpak mounts its description of the sandbox here (flatpak-metadata(5)).
constexpr std::string_view sandboxDescription = "/.flatpak-info";

// The program, and its own folders below the home folder.
constexpr std::array<std::string_view, 6> sandboxPlaces = {"/app",      "/var/cache", "/var/config",
                                                           "/var/data", "/var/lib",   "/var/tmp"};

// The host's root folder is not in a sandbox, but each folder in it is, as a mount. These belong to the
// system and lead to volumes; the people's folders stand for the file system.
constexpr std::array<std::string_view, 5> hostFolders = {"/lost+found", "/media", "/mnt", "/opt", "/srv"};
constexpr std::array<std::string_view, 3> homePlaces = {"/home", "/root", "/var/home"};

// FUSE programs of the desktop and the system without storage.
constexpr std::array<std::string_view, 6> serviceTypes = {
    "fuse.gvfsd-fuse", "fuse.portal", "fuse.lxcfs", "fuse.snapfuse", "fuse.veracrypt", "fuse.squashfuse"};

// File systems of read-only images.
constexpr std::array<std::string_view, 4> imageTypes = {"squashfs", "erofs", "cramfs", "romfs"};

template <typename Names>
bool contains(const Names& names, std::string_view name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

bool isBelow(std::string_view path, std::string_view place) {
    return path.starts_with(place) && (path.size() == place.size() || path[place.size()] == '/');
}

template <typename Places>
bool isBelowAny(std::string_view path, const Places& places) {
    return std::any_of(places.begin(), places.end(),
                       [&](std::string_view place) { return isBelow(path, place); });
}

/// Determines which mounts are accessible at their mount points, that is, not covered by others.
class Reachability {
public:
    explicit Reachability(const std::vector<Mount>& mounts) {
        std::unordered_set<std::uint64_t> covered;
        for (const Mount& mount : mounts)
            m_byId.emplace(mount.id, &mount);
        for (const Mount& mount : mounts)
            if (const Mount* const parent = parentOf(mount); parent && parent->mountPoint == mount.mountPoint)
                covered.insert(parent->id);
        for (const Mount& mount : mounts)
            if (!covered.contains(mount.id))
                m_top[mount.mountPoint.native()] = &mount;
    }

    bool isReachable(const Mount& mount) {
        std::vector<const Mount*> chain;
        bool result = true;
        for (const Mount* next = &mount; next; next = mountBelow(*next)) {
            if (const auto known = m_known.find(next); known != m_known.end()) {
                result = known->second;
                break;
            }
            chain.push_back(next);
            m_known.emplace(next, false); // ends cycles of damaged parent ids
            if (!isTop(*next) || !isOnTopOfBelow(*next)) {
                result = false;
                break;
            }
        }
        for (const Mount* const one : chain)
            m_known[one] = result;
        return result;
    }

private:
    /// Null for the root mount: its parent is itself or outside the namespace.
    const Mount* parentOf(const Mount& mount) const {
        const auto found = m_byId.find(mount.parentId);
        return found == m_byId.end() || mount.parentId == mount.id ? nullptr : found->second;
    }
    bool isTop(const Mount& mount) const {
        const auto top = m_top.find(mount.mountPoint.native());
        return top != m_top.end() && top->second == &mount;
    }
    /// The mount that holds this mount point in a path look-up.
    const Mount* mountBelow(const Mount& mount) const {
        std::string_view path = mount.mountPoint.native();
        while (path.size() > 1) {
            path = path.substr(0, std::max<std::size_t>(path.find_last_of('/'), 1));
            if (path.find_last_of('/') == std::string_view::npos)
                return nullptr;
            if (const auto top = m_top.find(std::string(path)); top != m_top.end())
                return top->second;
        }
        return nullptr;
    }
    bool isOnTopOfBelow(const Mount& mount) const {
        const Mount* const below = mountBelow(mount);
        const Mount* parent = parentOf(mount);
        for (std::size_t steps = 0; parent && parent->mountPoint == mount.mountPoint; ++steps) {
            if (steps > m_byId.size())
                return false;
            parent = parentOf(*parent);
        }
        return !below || !parent || parent == below;
    }

    std::unordered_map<std::uint64_t, const Mount*> m_byId;
    std::unordered_map<std::string, const Mount*> m_top;
    std::unordered_map<const Mount*, bool> m_known;
};

bool isHiddenPlace(std::string_view mountPoint) {
    if (isBelowAny(mountPoint, systemPlaces) && !isBelowAny(mountPoint, peoplesPlaces))
        return true;
    return mountPoint.find("/.") != std::string_view::npos;
}

bool isStorage(const Mount& mount, const std::string& type) {
    if (contains(serviceTypes, mount.type) || mount.type.ends_with(".AppImage") || contains(imageTypes, type))
        return false;
    if (const FileSystemFacts* const facts = fileSystemFacts(type))
        return facts->reach == FileSystemReach::device || facts->reach == FileSystemReach::network;
    if (type == "fuse" || type.starts_with("fuse."))
        return true;
    return mount.source != "/dev/fuse" && (mount.source.starts_with("/dev/") || major(mount.device) != 0);
}

/// Whether the mount exists in the sandbox alone.
bool isOfSandbox(const Mount& mount) {
    const std::string& place = mount.mountPoint.native();
    const bool isHostFolder = contains(hostFolders, place) && mount.root.native().ends_with(place);
    return (place == "/" && mount.type == "tmpfs") || isBelowAny(place, sandboxPlaces) || isHostFolder;
}

bool isVolume(const Mount& mount, const std::function<bool(const fs::path&)>& isFolder) {
    const std::string& place = mount.mountPoint.native();
    if (place == "/")
        return true;
    if (!place.starts_with('/'))
        return false;
    const std::string type = fileSystemTypeName(mount.type, mount.source);
    if (!isStorage(mount, type) || isHiddenPlace(place) || (type == "vfat" && place == "/boot"))
        return false;
    const bool isForPrograms = isBelowAny(place, programPlaces);
    if (isNetworkFileSystem(type))
        return !isForPrograms;
    return mount.root == "/" || (!isForPrograms && isFolder(mount.mountPoint));
}

/// Mounts with the same identity are one volume: the same superblock, or the same ZFS pool. Shares of one
/// server may have one superblock, but are separate volumes.
std::string identity(const Mount& mount) {
    if (mount.type == "zfs")
        return "pool " + mount.source.substr(0, mount.source.find('/'));
    const std::string number = std::to_string(mount.device);
    return isNetworkFileSystem(fileSystemTypeName(mount.type, mount.source)) ? number + ' ' + mount.source
                                                                             : number;
}

/// A sandbox shows a file system only in parts.
bool isNearer(const Mount& one, const Mount& other, bool isInSandbox) {
    const std::string& place = one.mountPoint.native();
    const std::string& otherPlace = other.mountPoint.native();
    const bool isOfPeople = isInSandbox && isBelowAny(place, homePlaces);
    const bool isOtherOfPeople = isInSandbox && isBelowAny(otherPlace, homePlaces);
    return isOfPeople == isOtherOfPeople ? place.size() < otherPlace.size() : isOfPeople;
}

} // namespace

std::vector<Mount> visibleMounts(std::vector<Mount> mounts,
                                 const std::function<bool(const fs::path&)>& isFolder) {
    Reachability reachability(mounts);
    const bool isInSandbox =
        std::ranges::any_of(mounts, [](const Mount& one) { return one.mountPoint == sandboxDescription; });
    std::map<std::string, const Mount*> nearest;
    for (const Mount& mount : mounts) {
        if (!reachability.isReachable(mount) || (isInSandbox && isOfSandbox(mount)) ||
            !isVolume(mount, isFolder))
            continue;
        const Mount*& best = nearest[identity(mount)];
        if (!best || isNearer(mount, *best, isInSandbox))
            best = &mount;
    }
    std::unordered_set<const Mount*> chosen;
    for (const auto& [volume, mount] : nearest)
        chosen.insert(mount);
    std::vector<Mount> visible;
    for (Mount& mount : mounts)
        if (chosen.contains(&mount))
            visible.push_back(std::move(mount));
    return visible;
}

std::vector<Mount> visibleMounts(std::vector<Mount> mounts) {
    return visibleMounts(std::move(mounts), [](const fs::path& path) {
        std::error_code failed;
        return fs::is_directory(path, failed);
    });
}

} // namespace OndelCore::platform
