#include "OndelCore/platform/TotalSizes.h"

#include "OndelCore/platform/FileDescriptor.h"
#include "OndelCore/platform/VolumeResources.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <map>
#include <mutex>

namespace OndelCore::platform {

namespace {

using Clock = std::chrono::steady_clock;
using Size = std::optional<std::int64_t>;

constexpr std::size_t mostProcesses = 16;

/// A process that asks one question. Not a thread: one that hangs inside of a FUSE request cannot be killed,
/// and this process could not end before it.
struct Asker {
    pid_t process = -1;
    FileDescriptor answer; ///< its pipe; closed without a size where there is none to tell
};

[[noreturn]] void answerAndEnd(int pipe, const std::filesystem::path& mountPoint, const SizeAnswer& answer) {
    // Whatever else is open here, a lock or a display, must not stay so for as long as this process hangs.
    dup2(pipe, STDIN_FILENO);
    close_range(STDIN_FILENO + 1, ~0U, 0);
    [[maybe_unused]] ssize_t ignored = 0;
    if (const Size size = answer(mountPoint))
        ignored = write(STDIN_FILENO, &*size, sizeof *size);
    _exit(0);
}

std::optional<Asker> ask(const std::filesystem::path& mountPoint, const SizeAnswer& answer) {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        return std::nullopt;
    FileDescriptor reading(ends[0]);
    const FileDescriptor writing(ends[1]);
    const pid_t process = fork();
    if (process == 0)
        answerAndEnd(writing.get(), mountPoint, answer);
    if (process < 0)
        return std::nullopt;
    return Asker{process, std::move(reading)};
}

/// The size that an asker tells. Call when its pipe has something to say.
Size take(const Asker& asker) {
    std::int64_t size = 0;
    const bool isTold = read(asker.answer.get(), &size, sizeof size) == sizeof size;
    waitpid(asker.process, nullptr, 0);
    return isTold ? Size(size) : std::nullopt;
}

bool hasEnded(const Asker& asker) {
    pollfd pipe{.fd = asker.answer.get(), .events = POLLIN, .revents = 0};
    return poll(&pipe, 1, 0) > 0;
}

/// The askers that no round waits for any more, by what they ask.
class Hanging {
public:
    void add(const std::filesystem::path& mountPoint, Asker asker) {
        const std::lock_guard lock(m_mutex);
        m_askers.emplace(mountPoint, std::move(asker));
    }
    bool holds(const std::filesystem::path& mountPoint) {
        const std::lock_guard lock(m_mutex);
        const auto found = m_askers.find(mountPoint);
        if (found == m_askers.end() || !hasEnded(found->second))
            return found != m_askers.end();
        take(found->second);
        m_askers.erase(found);
        return false;
    }
    static Hanging& everywhere() {
        static Hanging hanging;
        return hanging;
    }

private:
    std::mutex m_mutex;
    std::map<std::filesystem::path, Asker> m_askers;
};

/// Waits for some of the askers, keyed by the index of their question, and takes what they tell.
/// Fails: false when the time is up.
bool takeSome(std::map<std::size_t, Asker>& askers, std::vector<Size>& answers, Clock::time_point deadline) {
    std::vector<pollfd> pipes;
    pipes.reserve(askers.size());
    for (const auto& [index, asker] : askers)
        pipes.push_back({.fd = asker.answer.get(), .events = POLLIN, .revents = 0});
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now()).count();
    const int told = poll(pipes.data(), pipes.size(), static_cast<int>(std::max<std::int64_t>(left, 0)));
    if (told <= 0)
        return told < 0 && errno == EINTR;
    for (auto asker = askers.begin(); asker != askers.end();) {
        const bool isTold = hasEnded(asker->second);
        if (isTold)
            answers[asker->first] = take(asker->second);
        asker = isTold ? askers.erase(asker) : std::next(asker);
    }
    return true;
}

} // namespace

Size totalSize(const std::filesystem::path& path) {
    VolumeResources resources;
    addSizes(resources, path);
    return resources.total;
}

std::vector<Size> totalSizes(const std::vector<SizeQuestion>& questions, std::chrono::milliseconds patience,
                             const SizeAnswer& answer) {
    const auto deadline = Clock::now() + patience;
    std::vector<Size> answers(questions.size());
    std::map<std::size_t, Asker> askers;
    bool isInTime = true;
    for (std::size_t index = 0; index < questions.size(); ++index) {
        const SizeQuestion& question = questions[index];
        if (!question.mayBlock) {
            answers[index] = answer(question.mountPoint);
        } else if (isInTime && !Hanging::everywhere().holds(question.mountPoint)) {
            while (isInTime && askers.size() == mostProcesses)
                isInTime = takeSome(askers, answers, deadline);
            if (auto asker = ask(question.mountPoint, answer))
                askers.emplace(index, std::move(*asker));
        }
    }
    while (isInTime && !askers.empty())
        isInTime = takeSome(askers, answers, deadline);
    for (auto& [index, asker] : askers)
        Hanging::everywhere().add(questions[index].mountPoint, std::move(asker));
    return answers;
}

} // namespace OndelCore::platform
