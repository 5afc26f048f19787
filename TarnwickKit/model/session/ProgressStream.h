#pragma once

#include "OndelCore/benchmark/BenchmarkProgress.h"

#include <QObject>

#include <functional>
#include <memory>
#include <vector>

namespace TarnwickKit::model {

/// Carries a run's progress events from the worker to the receiver's thread: unbounded, in order, nothing
/// lost until it is cancelled.
///
/// Sending only appends under a lock, and at most one wake-up is under way at a time; a slow interface thus
/// finds a longer batch, and never slows the measurement.
class ProgressStream {
public:
    using Batch = std::vector<OndelCore::benchmark::BenchmarkProgress>;

    /// `take` gets each batch on the thread that makes this object, from its event loop.
    explicit ProgressStream(std::function<void(const Batch&)> take);
    /// Cancels.
    ~ProgressStream();
    ProgressStream(const ProgressStream&) = delete;
    ProgressStream& operator=(const ProgressStream&) = delete;

    /// The sending end. It may be kept and called after the stream is gone, which then does nothing.
    /// Threads: any.
    std::function<void(const OndelCore::benchmark::BenchmarkProgress&)> sender() const;

    /// Drops what is queued and everything sent from now on. Threads: the receiver's.
    void cancel();

private:
    struct Queue;

    std::shared_ptr<Queue> m_queue;
    std::unique_ptr<QObject> m_receiver;
};

} // namespace TarnwickKit::model
