#include "OndelCore/platform/TotalSizes.h"

#include "OndelCore/platform/VolumeResources.h"

#include <algorithm>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <set>
#include <system_error>
#include <thread>

namespace OndelCore::platform {

namespace {

constexpr std::size_t mostThreads = 16;

/// The mount points that some thread of this process waits for.
struct Waiting {
    std::mutex mutex;
    std::set<std::filesystem::path> mountPoints;

    bool enter(const std::filesystem::path& path) {
        const std::lock_guard lock(mutex);
        return mountPoints.insert(path).second;
    }
    void leave(const std::filesystem::path& path) {
        const std::lock_guard lock(mutex);
        mountPoints.erase(path);
    }
    /// Never destroyed: a hanging thread may outlive the statics.
    static Waiting& everywhere() {
        static Waiting* const waiting = new Waiting;
        return *waiting;
    }
};

/// One round of questions, shared by those who wait for the answers and those who fetch them.
struct Round {
    std::vector<SizeQuestion> questions;
    SizeAnswer answer;
    std::mutex mutex;
    std::condition_variable changed;
    std::size_t next = 0;
    std::size_t pending = 0;
    std::vector<std::optional<std::int64_t>> answers;

    void work() {
        std::unique_lock lock(mutex);
        while (true) {
            while (next < questions.size() && !questions[next].mayBlock)
                ++next;
            if (next == questions.size())
                return;
            const std::size_t index = next++;
            lock.unlock();
            const auto& path = questions[index].mountPoint;
            std::optional<std::int64_t> size;
            if (Waiting::everywhere().enter(path)) {
                size = answer(path);
                Waiting::everywhere().leave(path);
            }
            lock.lock();
            answers[index] = size;
            --pending;
            changed.notify_all();
        }
    }
};

void startThreads(const std::shared_ptr<Round>& round) {
    for (std::size_t count = std::min(round->pending, mostThreads); count > 0; --count) {
        try {
            std::thread([round] { round->work(); }).detach();
        } catch (const std::system_error&) {
            return; // the threads that did start take all questions
        }
    }
}

} // namespace

std::optional<std::int64_t> totalSize(const std::filesystem::path& path) {
    VolumeResources resources;
    addSizes(resources, path);
    return resources.total;
}

std::vector<std::optional<std::int64_t>> totalSizes(const std::vector<SizeQuestion>& questions,
                                                    std::chrono::milliseconds patience,
                                                    const SizeAnswer& answer) {
    const auto deadline = std::chrono::steady_clock::now() + patience;
    const auto round = std::make_shared<Round>();
    round->questions = questions;
    round->answer = answer;
    round->answers.resize(questions.size());
    round->pending = static_cast<std::size_t>(std::count_if(
        questions.begin(), questions.end(), [](const SizeQuestion& question) { return question.mayBlock; }));
    startThreads(round);
    std::vector<std::optional<std::int64_t>> answers(questions.size());
    for (std::size_t index = 0; index < questions.size(); ++index)
        if (!questions[index].mayBlock)
            answers[index] = answer(questions[index].mountPoint);
    std::unique_lock lock(round->mutex);
    round->changed.wait_until(lock, deadline, [&] { return round->pending == 0; });
    for (std::size_t index = 0; index < questions.size(); ++index)
        if (questions[index].mayBlock)
            answers[index] = round->answers[index];
    return answers;
}

} // namespace OndelCore::platform
