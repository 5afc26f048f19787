#include "support/LoopMount.h"

#include "support/Program.h"

#include <sys/mount.h>

#include <fstream>
#include <vector>

namespace test {

namespace {

/// What the command complained of; empty when it succeeded.
std::string complaintOf(const std::vector<std::string>& command) {
    Program program(command);
    std::string complaint = command.front() + ":";
    for (std::string line = program.line(); !line.empty(); line = program.line())
        complaint += ' ' + line;
    return program.succeeds() ? "" : complaint;
}

} // namespace

LoopMount::LoopMount(const std::string& type, std::int64_t bytes, const std::string& mountOptions,
                     const std::vector<std::string>& formatOptions, const std::filesystem::path& holder)
    : m_folder(holder)
    , m_mountPoint(m_folder.path() / "mount") {
    std::filesystem::create_directory(m_mountPoint);
    std::string options = mountOptions.empty() ? "" : mountOptions + ",";
    std::string source = "tmpfs";
    if (type == "tmpfs") {
        options += "size=" + std::to_string(bytes);
    } else {
        std::ofstream(image()).close();
        std::filesystem::resize_file(image(), static_cast<std::uintmax_t>(bytes));
        source = image().string();
        options += "loop";
        std::vector<std::string> format{"mkfs." + type};
        format.insert(format.end(), formatOptions.begin(), formatOptions.end());
        format.push_back(source);
        m_problem = complaintOf(format);
    }
    // A kernel may know these too; what is meant are the programs, which Debian's users meet.
    const std::string driver = type == "exfat" ? "exfat-fuse" : type == "ntfs" ? "ntfs-3g" : type;
    if (m_problem.empty())
        m_problem = complaintOf({"mount", "-t", driver, "-o", options, source, m_mountPoint.string()});
}

LoopMount::~LoopMount() {
    // A lazy unmount lets the loop device go with the last user, so that a failing test keeps none.
    if (m_problem.empty())
        umount2(m_mountPoint.c_str(), MNT_DETACH);
}

bool LoopMount::remountReadOnly() {
    return mount(nullptr, m_mountPoint.c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr) == 0;
}

bool LoopMount::unmount() {
    if (!m_problem.empty() || umount2(m_mountPoint.c_str(), 0) != 0)
        return false;
    m_problem = "unmounted";
    return true;
}

} // namespace test
