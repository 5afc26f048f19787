#include "OndelCore/platform/volumes/Mounts.h"

#include "OndelCore/platform/volumes/PathFacts.h"

#include <fcntl.h>
#include <libmount/libmount.h>
#include <sys/stat.h>

#include <algorithm>
#include <memory>
#include <mutex>

namespace OndelCore::platform {

namespace {

struct MountUnref {
    void operator()(libmnt_table* table) const { mnt_unref_table(table); }
    void operator()(libmnt_iter* iterator) const { mnt_free_iter(iterator); }
};
using Table = std::unique_ptr<libmnt_table, MountUnref>;
using Iterator = std::unique_ptr<libmnt_iter, MountUnref>;

int skipMalformedLine(libmnt_table*, const char*, int) { return 1; }

std::string textOrEmpty(const char* text) { return text ? text : ""; }

Mount decode(libmnt_fs* fs) {
    return Mount{.id = static_cast<std::uint64_t>(mnt_fs_get_id(fs)),
                 .parentId = static_cast<std::uint64_t>(mnt_fs_get_parent_id(fs)),
                 .device = mnt_fs_get_devno(fs),
                 .root = textOrEmpty(mnt_fs_get_root(fs)),
                 .mountPoint = textOrEmpty(mnt_fs_get_target(fs)),
                 .type = textOrEmpty(mnt_fs_get_fstype(fs)),
                 .source = textOrEmpty(mnt_fs_get_source(fs)),
                 .options = textOrEmpty(mnt_fs_get_vfs_options(fs)),
                 .superOptions = textOrEmpty(mnt_fs_get_fs_options(fs))};
}

/// The first item of a comma-separated list that `matches`.
template <typename Predicate>
std::optional<std::string_view> findOption(std::string_view options, Predicate matches) {
    while (!options.empty()) {
        const auto end = options.find(',');
        const auto item = options.substr(0, end);
        if (matches(item))
            return item;
        options.remove_prefix(end == std::string_view::npos ? options.size() : end + 1);
    }
    return std::nullopt;
}

} // namespace

std::vector<Mount> mounts(const std::filesystem::path& table) {
    std::vector<Mount> found;
    const Table parsed(mnt_new_table());
    const Iterator iterator(mnt_new_iter(MNT_ITER_FORWARD));
    if (!parsed || !iterator)
        return found;
    mnt_table_set_parser_errcb(parsed.get(), skipMalformedLine);
    if (mnt_table_parse_file(parsed.get(), table.c_str()) != 0)
        return found;
    libmnt_fs* fs = nullptr;
    while (mnt_table_next_fs(parsed.get(), iterator.get(), &fs) == 0)
        found.push_back(decode(fs));
    return found;
}

struct MountTable::Reading {
    explicit Reading(std::filesystem::path path)
        : file(std::move(path)) {}

    std::filesystem::path file;
    std::once_flag isRead{};
    std::vector<Mount> mounts{};
};

MountTable::MountTable(std::filesystem::path file)
    : m_reading(std::make_shared<Reading>(std::move(file))) {}

const std::vector<Mount>& MountTable::mounts() const {
    std::call_once(m_reading->isRead, [this] { m_reading->mounts = platform::mounts(m_reading->file); });
    return m_reading->mounts;
}

std::optional<Mount> mountOfPath(const std::filesystem::path& path) { return mountOfPathIn(mounts(), path); }

std::optional<Mount> mountOfPathIn(const std::vector<Mount>& mounts, const std::filesystem::path& path,
                                   std::chrono::milliseconds patience) {
    const auto facts = pathFacts(path, PathQuestion::place, mounts, {.patience = patience});
    return facts ? mountOf(*facts, mounts) : std::nullopt;
}

std::optional<Mount> mountOfDescriptor(int descriptor, const std::vector<Mount>& mounts) {
    struct statx facts{};
    if (statx(descriptor, "", AT_EMPTY_PATH | AT_STATX_DONT_SYNC, STATX_MNT_ID, &facts) != 0 ||
        !(facts.stx_mask & STATX_MNT_ID))
        return std::nullopt;
    const auto found = std::ranges::find(mounts, facts.stx_mnt_id, &Mount::id);
    return found == mounts.end() ? std::nullopt : std::optional(*found);
}

std::optional<Mount> mountAbove(const std::vector<Mount>& mounts, const std::filesystem::path& resolved) {
    const Mount* nearest = nullptr;
    for (const Mount& mount : mounts) {
        const auto ends = std::ranges::mismatch(mount.mountPoint, resolved);
        const bool isAbove = ends.in1 == mount.mountPoint.end() && mount.mountPoint.is_absolute();
        const auto length = [](const Mount& one) { return one.mountPoint.native().size(); };
        if (isAbove && (!nearest || length(mount) >= length(*nearest)))
            nearest = &mount;
    }
    return nearest ? std::optional(*nearest) : std::nullopt;
}

bool hasMountOption(std::string_view options, std::string_view option) {
    return findOption(options, [&](std::string_view item) { return item == option; }).has_value();
}

std::optional<std::string> mountOptionValue(std::string_view options, std::string_view name) {
    const auto item = findOption(options, [&](std::string_view candidate) {
        return candidate.size() > name.size() && candidate.starts_with(name) && candidate[name.size()] == '=';
    });
    if (!item)
        return std::nullopt;
    return std::string(item->substr(name.size() + 1));
}

} // namespace OndelCore::platform
