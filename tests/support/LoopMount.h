#pragma once

#include "support/TemporaryFolder.h"

#include <string>
#include <vector>

namespace test {

/// A small file system of one test's own: "tmpfs", or what mkfs.`type` makes on a loop device over a sparse
/// image. Needs root and loop devices; where they are missing, `problem` says so and the test skips.
///
/// Units: bytes; XFS takes no less than 300 MiB, Btrfs no less than 110 MiB.
/// Owner: the object unmounts, detaches and removes everything when it goes.
class LoopMount {
public:
    /// `holder`: the folder for the image; the test program's own temporary folder when empty.
    LoopMount(const std::string& type, std::int64_t bytes, const std::string& mountOptions = {},
              const std::vector<std::string>& formatOptions = {"-q"},
              const std::filesystem::path& holder = {});
    ~LoopMount();
    LoopMount(const LoopMount&) = delete;
    LoopMount& operator=(const LoopMount&) = delete;

    const std::filesystem::path& path() const { return m_mountPoint; }

    /// The file that holds it; none for "tmpfs".
    std::filesystem::path image() const { return m_folder.path() / "image"; }

    /// Why there is no file system; empty when there is one.
    const std::string& problem() const { return m_problem; }

    /// From now on every write there fails. Fails: false, while a file is open for writing.
    bool remountReadOnly();

    /// Fails: false, while any file or folder there is in use.
    bool unmount();

private:
    TemporaryFolder m_folder;
    std::filesystem::path m_mountPoint;
    std::string m_problem;
};

} // namespace test
