#include "support/LoopMount.h"

#include <QProcess>

#include <sys/mount.h>

#include <fstream>

namespace test {

namespace {

/// What the command complained of; empty when it succeeded.
std::string complaintOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    // Keeps Qt from vfork(2): in its child, which shares the memory, the thread sanitizer loses track.
    process.setChildProcessModifier([] {});
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    const bool isDone = process.waitForStarted() && process.waitForFinished(-1);
    if (isDone && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
        return {};
    const QString said = isDone ? QString::fromUtf8(process.readAll().trimmed()) : process.errorString();
    return (program + ": " + said).toStdString();
}

} // namespace

LoopMount::LoopMount(const std::string& type, std::int64_t bytes, const std::string& mountOptions,
                     const QStringList& formatOptions, const std::filesystem::path& holder)
    : m_folder(holder)
    , m_mountPoint(m_folder.path() / "mount") {
    std::filesystem::create_directory(m_mountPoint);
    const QString fileSystem = QString::fromStdString(type);
    const QString mountPoint = QString::fromStdString(m_mountPoint.string());
    QStringList options = QString::fromStdString(mountOptions).split(',', Qt::SkipEmptyParts);
    QString source = "tmpfs";
    if (type == "tmpfs") {
        options << "size=" + QString::number(bytes);
    } else {
        std::ofstream(image()).close();
        std::filesystem::resize_file(image(), static_cast<std::uintmax_t>(bytes));
        source = QString::fromStdString(image().string());
        options << "loop";
        m_problem = complaintOf("mkfs." + fileSystem, formatOptions + QStringList{source});
    }
    // A kernel may know these too; what is meant are the programs, which Debian's users meet.
    const QString driver = type == "exfat" ? "exfat-fuse" : type == "ntfs" ? "ntfs-3g" : fileSystem;
    if (m_problem.empty())
        m_problem = complaintOf("mount", {"-t", driver, "-o", options.join(','), source, mountPoint});
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
