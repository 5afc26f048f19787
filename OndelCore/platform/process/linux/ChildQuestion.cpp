#include "OndelCore/platform/process/ChildQuestion.h"

#include "OndelCore/platform/process/DetachedThread.h"
#include "OndelCore/platform/storage/FileDescriptor.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <mutex>
#include <set>

namespace OndelCore::platform {

namespace {

using Clock = std::chrono::steady_clock;
using Bytes = std::vector<std::byte>;

constexpr std::size_t mostChildren = 16;

/// The paths with a child, including abandoned children that hang.
class AskedPaths {
public:
    bool take(const std::filesystem::path& path) {
        const std::lock_guard lock(m_mutex);
        return m_paths.insert(path).second;
    }
    void giveBack(const std::filesystem::path& path) {
        const std::lock_guard lock(m_mutex);
        m_paths.erase(path);
    }
    /// Never destroyed: a thread that reaps a child may outlive static objects.
    static AskedPaths& everywhere() {
        static auto& paths = *new AskedPaths;
        return paths;
    }

private:
    std::mutex m_mutex;
    std::set<std::filesystem::path> m_paths;
};

/// Reaps the child on a thread of its own. waitpid(2) does not prevent the thread from being killed.
void reapLater(pid_t process, const std::filesystem::path& path) {
    runDetached([process, path] {
        while (waitpid(process, nullptr, 0) < 0 && errno == EINTR) {
        }
        AskedPaths::everywhere().giveBack(path);
    });
}

/// A child that asks about one path. Owner: the destructor abandons a child without an answer, and releases
/// the path.
class Child {
public:
    Child(std::size_t index, std::filesystem::path path, pid_t process, FileDescriptor pipe, bool isKilled)
        : m_index(index)
        , m_path(std::move(path))
        , m_process(process)
        , m_pipe(std::move(pipe))
        , m_isKilled(isKilled) {}
    Child(Child&&) = default;
    Child& operator=(Child&& other) noexcept {
        std::swap(m_index, other.m_index);
        std::swap(m_path, other.m_path);
        std::swap(m_process, other.m_process);
        std::swap(m_pipe, other.m_pipe);
        std::swap(m_isKilled, other.m_isKilled);
        std::swap(m_hasEnded, other.m_hasEnded);
        return *this;
    }
    ~Child() {
        if (m_path.empty())
            return;
        if (m_isKilled)
            kill(m_process, SIGKILL);
        if (waitpid(m_process, nullptr, m_hasEnded ? 0 : WNOHANG) == 0)
            reapLater(m_process, m_path);
        else
            AskedPaths::everywhere().giveBack(m_path);
    }

    std::size_t index() const { return m_index; }
    int pipe() const { return m_pipe.get(); }

    /// The answer; absent if the child ended without one. Call when the pipe is readable.
    std::optional<Bytes> take(std::size_t length) {
        m_hasEnded = true;
        Bytes bytes(length);
        std::size_t filled = 0;
        while (filled < length) {
            const ssize_t count = read(m_pipe.get(), &bytes[filled], length - filled);
            if (count < 0 && errno == EINTR)
                continue;
            if (count <= 0)
                return std::nullopt;
            filled += static_cast<std::size_t>(count);
        }
        return bytes;
    }

private:
    std::size_t m_index;
    std::filesystem::path m_path; ///< empty when moved from
    pid_t m_process;
    FileDescriptor m_pipe;
    bool m_isKilled;
    bool m_hasEnded = false; ///< or is about to, since it answers last
};

/// The body of the child. `answer`: the child's copy of the buffer.
[[noreturn]] void answerAndEnd(const char* path, int pipe, pid_t parent, bool isKilled,
                               const ChildAnswer& answer, std::span<std::byte> bytes) {
    prctl(PR_SET_NAME, "ondel-question");
    for (const int request : {SIGTERM, SIGINT, SIGHUP, SIGQUIT}) // the handlers write to the parent's pipe
        std::signal(request, isKilled ? SIG_DFL : SIG_IGN);
    if (isKilled) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (getppid() != parent)
            _exit(1);
    }
    // A child that hangs must not keep the parent's locks and connections open.
    dup2(pipe, STDIN_FILENO);
    close_range(STDIN_FILENO + 1, ~0U, 0);
    [[maybe_unused]] const int ignored = chdir("/"); // does not keep a file system busy
    if (!answer(path, bytes))
        _exit(1);
    for (std::size_t told = 0; told < bytes.size();) {
        const ssize_t count = write(STDIN_FILENO, &bytes[told], bytes.size() - told);
        if (count <= 0)
            _exit(1);
        told += static_cast<std::size_t>(count);
    }
    _exit(0);
}

/// Fails: absent if no process or descriptor is left.
std::optional<Child> ask(std::size_t index, const std::filesystem::path& path, const ChildAnswer& answer,
                         std::span<std::byte> bytes, bool isKilled) {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        return std::nullopt;
    FileDescriptor reading(ends[0]);
    const FileDescriptor writing(ends[1]);
    std::error_code failed;
    const std::filesystem::path absolute =
        std::filesystem::absolute(path, failed); // the child changes its working folder
    const char* const name = failed || path.empty() ? path.c_str() : absolute.c_str();
    const pid_t parent = getpid();
    const pid_t process = _Fork(); // without the fork handlers of libraries
    if (process == 0)
        answerAndEnd(name, writing.get(), parent, isKilled, answer, bytes);
    if (process < 0)
        return std::nullopt;
    return Child(index, path, process, std::move(reading), isKilled);
}

/// One round of questions.
class Round {
public:
    Round(const std::vector<std::filesystem::path>& paths, std::size_t answerBytes, const ChildAnswer& answer,
          const Waiting& waiting)
        : m_paths(paths)
        , m_answer(answer)
        , m_waiting(waiting)
        , m_buffer(answerBytes)
        , m_answers(paths.size()) {
        for (std::size_t index = paths.size(); index > 0; --index)
            m_left.push_back(index - 1);
    }

    std::vector<std::optional<Bytes>> run() {
        const auto deadline = Clock::now() + m_waiting.patience;
        for (;;) {
            startSome();
            const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
            if ((m_left.empty() && m_children.empty()) || left.count() <= 0)
                break;
            if (m_waiting.isCancelled && m_waiting.isCancelled())
                break;
            takeSome(std::min(left, slice()));
        }
        m_children.clear();
        return std::move(m_answers);
    }

private:
    /// How long to wait for answers before the next check.
    std::chrono::milliseconds slice() const {
        constexpr std::chrono::milliseconds untilFree(5);
        constexpr std::chrono::milliseconds untilCancelled(100);
        if (!m_left.empty() && m_children.size() < mostChildren)
            return untilFree;
        return m_waiting.isCancelled ? untilCancelled : std::chrono::hours(1);
    }

    void startSome() {
        std::vector<std::size_t> busy;
        while (!m_left.empty() && m_children.size() < mostChildren) {
            const std::size_t index = m_left.back();
            m_left.pop_back();
            if (!AskedPaths::everywhere().take(m_paths[index]))
                busy.push_back(index);
            else if (auto child = ask(index, m_paths[index], m_answer, m_buffer, !m_waiting.finishesAlone))
                m_children.push_back(std::move(*child));
            else
                AskedPaths::everywhere().giveBack(m_paths[index]);
        }
        m_left.insert(m_left.end(), busy.rbegin(), busy.rend());
    }

    void takeSome(std::chrono::milliseconds patience) {
        std::vector<pollfd> pipes;
        for (const Child& child : m_children)
            pipes.push_back({.fd = child.pipe(), .events = POLLIN, .revents = 0});
        if (poll(pipes.data(), pipes.size(), static_cast<int>(patience.count())) <= 0)
            return;
        for (std::size_t index = pipes.size(); index > 0; --index) {
            if (pipes[index - 1].revents == 0)
                continue;
            const auto child = m_children.begin() + static_cast<std::ptrdiff_t>(index - 1);
            m_answers[child->index()] = child->take(m_buffer.size());
            m_children.erase(child);
        }
    }

    const std::vector<std::filesystem::path>& m_paths;
    const ChildAnswer& m_answer;
    const Waiting& m_waiting;
    Bytes m_buffer; ///< all zeros; each child fills its own copy
    std::vector<std::optional<Bytes>> m_answers;
    std::vector<std::size_t> m_left; ///< indices of paths without a child yet, the next one last
    std::vector<Child> m_children;
};

} // namespace

std::vector<std::optional<Bytes>> askChildren(const std::vector<std::filesystem::path>& paths,
                                              std::size_t answerBytes, const ChildAnswer& answer,
                                              const Waiting& waiting) {
    return Round(paths, answerBytes, answer, waiting).run();
}

} // namespace OndelCore::platform
