#pragma once

#include "OndelCore/benchmark/BenchmarkProgress.h"

#include <QObject>

#include <functional>
#include <memory>
#include <vector>

namespace TarnwickKit::model {

/// Carries a run's progress events from the worker to the receiver's thread, in order and without a limit. No
/// event is lost until it is cancelled.
///
/// Sending only appends under a lock, and at most one wake-up is pending. A slow interface gets longer
/// batches and never slows the measurement.
class ProgressStream {
public:
    using Batch = std::vector<OndelCore::benchmark::BenchmarkProgress>;

    /// `take` receives each batch from the event loop of the thread that makes this object.
    explicit ProgressStream(std::function<void(const Batch&)> take);
    /// Cancels.
    ~ProgressStream();
    ProgressStream(const ProgressStream&) = delete;
    ProgressStream& operator=(const ProgressStream&) = delete;

    /// The sending end. It may be called after the stream is destroyed and then does nothing.
    /// Threads: any.
    std::function<void(const OndelCore::benchmark::BenchmarkProgress&)> sender() const;

    /// Drops the queued events and all that are sent later. Threads: the receiver's.
    void cancel();

private:
    struct Queue;

    std::shared_ptr<Queue> m_queue;
    std::unique_ptr<QObject> m_receiver;
};

} // namespace TarnwickKit::model
