#include "OndelCore/platform/Mounts.h"

#include <fcntl.h>
#include <libmount/libmount.h>
#include <sys/stat.h>

#include <memory>

namespace OndelCore::platform {

namespace {

struct Unref {
    void operator()(libmnt_table* table) const { mnt_unref_table(table); }
    void operator()(libmnt_iter* iterator) const { mnt_free_iter(iterator); }
};
using Table = std::unique_ptr<libmnt_table, Unref>;
using Iterator = std::unique_ptr<libmnt_iter, Unref>;

std::string textOrEmpty(const char* text) { return text ? text : ""; }

Mount decode(libmnt_fs* fs) {
    return Mount{.id = static_cast<std::uint64_t>(mnt_fs_get_id(fs)),
                 .device = mnt_fs_get_devno(fs),
                 .root = textOrEmpty(mnt_fs_get_root(fs)),
                 .mountPoint = textOrEmpty(mnt_fs_get_target(fs)),
                 .type = textOrEmpty(mnt_fs_get_fstype(fs)),
                 .source = textOrEmpty(mnt_fs_get_source(fs)),
                 .options = textOrEmpty(mnt_fs_get_vfs_options(fs)),
                 .superOptions = textOrEmpty(mnt_fs_get_fs_options(fs))};
}

} // namespace

std::vector<Mount> mounts() {
    std::vector<Mount> found;
    const Table table(mnt_new_table_from_file("/proc/self/mountinfo"));
    const Iterator iterator(mnt_new_iter(MNT_ITER_FORWARD));
    if (!table || !iterator)
        return found;
    libmnt_fs* fs = nullptr;
    while (mnt_table_next_fs(table.get(), iterator.get(), &fs) == 0)
        found.push_back(decode(fs));
    return found;
}

std::optional<Mount> mountOfPath(const std::filesystem::path& path) {
    struct statx facts {};
    if (statx(AT_FDCWD, path.c_str(), 0, STATX_MNT_ID, &facts) != 0 || !(facts.stx_mask & STATX_MNT_ID))
        return std::nullopt;
    for (Mount& mount : mounts())
        if (mount.id == facts.stx_mnt_id)
            return std::move(mount);
    return std::nullopt;
}

} // namespace OndelCore::platform
