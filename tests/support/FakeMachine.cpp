#include "support/FakeMachine.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <fstream>
#include <stdexcept>

namespace fs = std::filesystem;

namespace test {

namespace {

void writeFile(const fs::path& file, const std::string& text) {
    fs::create_directories(file.parent_path());
    std::ofstream(file) << text << '\n';
}

std::string numberText(dev_t number) {
    return std::to_string(major(number)) + ':' + std::to_string(minor(number));
}

} // namespace

FakeMachine::FakeMachine() {
    for (const char* folder : {"sys/dev/block", "sys/class/block"})
        fs::create_directories(m_folder.path() / folder);
    setMountTable("");
}

fs::path FakeMachine::addBlockDevice(const std::string& place, dev_t number, const Attributes& attributes) {
    const fs::path folder = m_folder.path() / "sys/devices" / place;
    writeFile(folder / "dev", numberText(number));
    setAttributes(place, attributes);
    fs::create_symlink(folder, m_folder.path() / "sys/dev/block" / numberText(number));
    fs::create_symlink(folder, m_folder.path() / "sys/class/block" / folder.filename());
    return folder;
}

void FakeMachine::setAttributes(const std::string& place, const Attributes& attributes) {
    for (const auto& [name, value] : attributes)
        writeFile(m_folder.path() / "sys/devices" / place / name, value);
}

void FakeMachine::stack(const std::string& upper, const std::string& lower) {
    const fs::path devices = m_folder.path() / "sys/devices";
    const fs::path slaves = devices / upper / "slaves";
    fs::create_directories(slaves);
    fs::create_symlink(devices / lower, slaves / fs::path(lower).filename());
}

void FakeMachine::joinBtrfs(const std::string& identifier, const std::vector<std::string>& devices) {
    const fs::path links = m_folder.path() / "sys/fs/btrfs" / identifier / "devices";
    fs::create_directories(links);
    for (const std::string& place : devices)
        fs::create_symlink(m_folder.path() / "sys/devices" / place, links / fs::path(place).filename());
}

void FakeMachine::setDatabase(dev_t number, OndelCore::platform::DeviceProperties properties) {
    m_database[number] = std::move(properties);
}

void FakeMachine::pretendMounted(const fs::path& path, const Row& row) {
    struct statx facts{};
    if (statx(AT_FDCWD, path.c_str(), 0, STATX_MNT_ID, &facts) != 0)
        throw std::runtime_error("no mount identifier for " + path.string());
    setMountTable(std::to_string(facts.stx_mnt_id) + " 1 " + numberText(row.device) + " / " + path.string() +
                  ' ' + row.options + " - " + row.type + ' ' + row.source + ' ' + row.superOptions + '\n');
}

void FakeMachine::setMountTable(const std::string& text) {
    std::ofstream(m_folder.path() / "mountinfo") << text;
}

OndelCore::platform::SystemSources FakeMachine::sources() const {
    return {.mountTable = OndelCore::platform::MountTable(m_folder.path() / "mountinfo"),
            .sysfs = m_folder.path() / "sys",
            .database =
                [database = m_database](dev_t number) {
                    const auto found = database.find(number);
                    return found == database.end() ? OndelCore::platform::DeviceProperties() : found->second;
                },
            .superblock = [](dev_t) { return OndelCore::platform::DeviceProperties(); }};
}

} // namespace test
