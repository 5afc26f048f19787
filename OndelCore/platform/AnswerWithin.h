#pragma once

#include "OndelCore/platform/DetachedThread.h"

#include <chrono>
#include <future>
#include <optional>
#include <type_traits>
#include <utility>

namespace OndelCore::platform {

/// How long people are made to wait for a volume that may never answer: the server is gone, the FUSE program
/// hangs. Volumes that are well answer in a hundredth of it.
constexpr std::chrono::milliseconds volumePatience{500};

/// What `question` answers, put on a thread of its own and waited for no longer than `patience`.
/// Threads: any. Owner: a question that hangs keeps its thread and what it captured; nothing waits for it,
/// the end of the process included. Fails: absent when the time is up or there is no thread to ask on; throws
/// what the question throws.
template <typename Question>
std::optional<std::invoke_result_t<Question>> answerWithin(std::chrono::milliseconds patience,
                                                           Question question) {
    std::packaged_task<std::invoke_result_t<Question>()> task(std::move(question));
    auto answer = task.get_future();
    if (!runDetached(std::move(task)) || answer.wait_for(patience) != std::future_status::ready)
        return std::nullopt;
    return answer.get();
}

} // namespace OndelCore::platform
