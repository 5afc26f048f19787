#include "OndelCore/platform/volumes/Mounts.h"

#include "OndelCore/platform/volumes/PathFacts.h"

#include <libmount/libmount.h>

#include <algorithm>
#include <memory>

namespace OndelCore::platform {

namespace {

struct Unref {
    void operator()(libmnt_table* table) const { mnt_unref_table(table); }
    void operator()(libmnt_iter* iterator) const { mnt_free_iter(iterator); }
};
using Table = std::unique_ptr<libmnt_table, Unref>;
using Iterator = std::unique_ptr<libmnt_iter, Unref>;

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

std::optional<Mount> mountOfPath(const std::filesystem::path& path) {
    return mountOfPathIn(systemMountTable, path);
}

std::optional<Mount> mountOfPathIn(const std::filesystem::path& table, const std::filesystem::path& path,
                                   std::chrono::milliseconds patience) {
    const auto all = mounts(table);
    const auto facts = pathFacts(path, PathQuestion::place, all, {.patience = patience});
    return facts ? mountOf(*facts, all) : std::nullopt;
}

std::optional<Mount> mountAbove(const std::filesystem::path& table, const std::filesystem::path& resolved) {
    std::optional<Mount> nearest;
    for (Mount& mount : mounts(table)) {
        const auto ends = std::ranges::mismatch(mount.mountPoint, resolved);
        const bool isAbove = ends.in1 == mount.mountPoint.end() && mount.mountPoint.is_absolute();
        const auto length = [](const Mount& one) { return one.mountPoint.native().size(); };
        if (isAbove && (!nearest || length(mount) >= length(*nearest)))
            nearest = std::move(mount);
    }
    return nearest;
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
