#include "TarnwickHost/ProgressBar.h"

#include "TarnwickHost/ProgressLine.h"

#include <QByteArray>

#include <poll.h>
#include <unistd.h>

#include <set>

using namespace OndelCore::benchmark;

namespace TarnwickHost {

namespace {

void replaceLine(const QString& line) {
    pollfd terminal{.fd = STDERR_FILENO, .events = POLLOUT, .revents = 0};
    if (poll(&terminal, 1, 0) != 1 || !(terminal.revents & POLLOUT))
        return;
    const QByteArray text = "\r" + line.toUtf8() + "\x1b[K";
    [[maybe_unused]] const ssize_t ignored =
        write(STDERR_FILENO, text.constData(), static_cast<std::size_t>(text.size()));
}

/// The engine is silent while it makes the file that a sequential write would have left to the other tests.
bool preparesFile(const BenchmarkPlan& plan) {
    return !plan.tests.contains(BenchmarkTest::sequentialWrite) &&
           plan.tests != std::set{BenchmarkTest::fileOps} && !plan.tests.empty();
}

} // namespace

bool ProgressBar::isPossible() { return isatty(STDERR_FILENO) && qgetenv("TERM") != "dumb"; }

ProgressBar::ProgressBar(BenchmarkPlan plan)
    : m_plan(std::move(plan)) {}

ProgressBar::~ProgressBar() { replaceLine({}); }

void ProgressBar::note(const BenchmarkProgress& progress) {
    const std::lock_guard guard(m_lock);
    m_latest = progress;
}

void ProgressBar::draw(bool stopping) {
    const LineStyle style = lineStyle(STDERR_FILENO);
    const auto shown = [&](const QString& text) { replaceLine(text.left(style.columns)); };
    if (stopping)
        return shown("Stopping, removing the test files");

    std::unique_lock guard(m_lock);
    const auto latest = m_latest;
    guard.unlock();
    if (latest)
        return replaceLine(progressLine(*latest, m_plan, style));
    const auto waited = std::chrono::floor<std::chrono::seconds>(std::chrono::steady_clock::now() - m_start);
    shown((preparesFile(m_plan) ? "Preparing the test file, " : "Starting, ") +
          QString::number(waited.count()) + " s");
}

} // namespace TarnwickHost
