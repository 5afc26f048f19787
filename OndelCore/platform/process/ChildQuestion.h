#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <type_traits>
#include <vector>

namespace OndelCore::platform {

/// How long people wait for a volume that may never answer, because its server is gone or its FUSE program
/// hangs. Healthy volumes answer in a few milliseconds.
constexpr std::chrono::milliseconds volumePatience{500};

/// How long a question waits for its answer.
struct Waiting {
    std::chrono::milliseconds patience{};
    std::function<bool()> isCancelled{}; ///< asked ten times a second while there is no answer
    bool finishesAlone = false;          ///< an abandoned child is not killed, because it has files to remove
};

/// Writes the answer into the buffer, which holds zeros. Fails: false, there is no answer. It runs after a
/// fork, where the other threads are gone and their locks stay held. So it may call only what
/// signal-safety(7) lists and plain system calls, and must not allocate.
using ChildAnswer = std::function<bool(const char* path, std::span<std::byte> answer)>;

/// Asks about each path in a child process. A thread inside a request that a FUSE program has accepted and
/// does not answer cannot be killed, and its process cannot end before it. Answers are in the order of
/// `paths`, absent where none came in time. A path has one child at most: while it hangs, further questions
/// about the path wait for it. Threads: any; blocks in poll(2) only, so that the process can end at any time.
/// Owner: a child keeps no descriptor of this process open and is killed with the asking thread. One that
/// cannot be killed is reaped when its file system answers.
std::vector<std::optional<std::vector<std::byte>>>
askChildren(const std::vector<std::filesystem::path>& paths, std::size_t answerBytes,
            const ChildAnswer& answer, const Waiting& waiting);

/// The same for an answer of a trivially copyable type.
template <typename Answer>
    requires std::is_trivially_copyable_v<Answer>
std::vector<std::optional<Answer>> askChildrenFor(const std::vector<std::filesystem::path>& paths,
                                                  const std::function<bool(const char*, Answer&)>& answer,
                                                  const Waiting& waiting) {
    const ChildAnswer raw = [&answer](const char* path, std::span<std::byte> bytes) {
        return answer(path, *std::construct_at(reinterpret_cast<Answer*>(bytes.data())));
    };
    std::vector<std::optional<Answer>> answers;
    for (const auto& bytes : askChildren(paths, sizeof(Answer), raw, waiting))
        answers.push_back(bytes ? std::optional(*reinterpret_cast<const Answer*>(bytes->data()))
                                : std::nullopt);
    return answers;
}

} // namespace OndelCore::platform
