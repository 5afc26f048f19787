#include "Tarnwick/RunNotifier.h"

#include "Tarnwick/Product.h"
#include "TarnwickKit/model/capacity/CapacitySession.h"
#include "TarnwickKit/model/capacity/CapacityText.h"
#include "TarnwickKit/model/format/Format.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QStringList>
#include <QWindow>

#include <chrono>
#include <utility>

using TarnwickKit::model::AnalyzerModel;
using TarnwickKit::model::CapacityRecord;
using TarnwickKit::model::CapacitySession;
using TarnwickKit::model::RunRecord;

namespace Format = TarnwickKit::model::Format;

namespace {

struct RunNotifierText {
    Q_DECLARE_TR_FUNCTIONS(RunNotifierText)
};

QString reasonToStayAwake(bool isCheck) {
    return isCheck ? RunNotifierText::tr("A capacity check is running")
                   : RunNotifierText::tr("A benchmark is running");
}

/// "Backup · write 1.24 GB/s · read 3.08 GB/s"
QString summaryOf(const RunRecord& run) {
    QStringList facts{run.title()};
    if (run.writeBps) {
        //: %1 is the rate of the sequential write test, as 540 MB/s
        facts.append(RunNotifierText::tr("write %1").arg(Format::rate(*run.writeBps)));
    }
    if (run.readBps) {
        //: %1 is the rate of the sequential read test, as 540 MB/s
        facts.append(RunNotifierText::tr("read %1").arg(Format::rate(*run.readBps)));
    }
    return facts.join(QStringLiteral(" · "));
}

// The titles of notices.
QString benchmarkFailed() { return RunNotifierText::tr("Benchmark failed"); }
QString benchmarkComplete() { return RunNotifierText::tr("Benchmark complete"); }
QString checkFailed() { return RunNotifierText::tr("Capacity check failed"); }
QString checkComplete() { return RunNotifierText::tr("Capacity check complete"); }

} // namespace

RunNotifier::RunNotifier(AnalyzerModel& model, std::function<void(const std::string&)> comeToFront)
    : m_model(model)
    , m_notice(product::id, product::name, std::move(comeToFront))
    , m_launcher(product::id) {
    m_clock.setInterval(std::chrono::seconds(1));
    connect(&m_clock, &QTimer::timeout, this, &RunNotifier::updatePercent);
    // The phase has changed by then, and a check's record is there.
    connect(&model, &AnalyzerModel::busyChanged, this, &RunNotifier::busyChanged);
    connect(&model.capacity(), &CapacitySession::recorded, this, [this](const CapacityRecord& check) {
        if (!check.wasStopped)
            m_finding = check;
    });
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, [this](const QWindow* window) {
        if (window)
            m_notice.withdraw();
    });
}

void RunNotifier::busyChanged() {
    if (m_model.isBusy()) {
        m_notice.withdraw();
        m_isCheck = m_model.isChecking();
        m_finding.reset();
        m_awake.emplace(product::name, reasonToStayAwake(m_isCheck).toStdString());
        m_clock.start();
        updatePercent();
    } else if (m_awake) {
        m_awake.reset();
        m_clock.stop();
        updatePercent();
        if (!QGuiApplication::focusWindow())
            m_isCheck ? showFinding() : showResult();
    }
}

std::optional<double> RunNotifier::fraction() const {
    if (m_model.isChecking())
        return m_model.capacity().course().fraction();
    return m_model.isRunning() ? m_model.liveProgress().fraction() : std::nullopt;
}

void RunNotifier::updatePercent() {
    const auto fraction = this->fraction();
    const auto percent = fraction ? std::optional(static_cast<int>(100 * *fraction)) : std::nullopt;
    if (percent == std::exchange(m_percent, percent))
        return;
    m_launcher.show(percent);
    Q_EMIT percentChanged();
}

/// A run or a check that the user has stopped needs no notice.
void RunNotifier::showResult() {
    if (m_model.phase() == AnalyzerModel::Phase::Failed)
        m_notice.show(benchmarkFailed().toStdString(), m_model.failureMessage().toStdString());
    if (m_model.phase() == AnalyzerModel::Phase::Done && m_model.currentRun())
        m_notice.show(benchmarkComplete().toStdString(), summaryOf(*m_model.currentRun()).toStdString());
}

void RunNotifier::showFinding() {
    if (m_finding)
        m_notice.show(checkComplete().toStdString(), capacitySentence(*m_finding).toStdString());
    else if (const QString& failure = m_model.capacity().failure().message; !failure.isEmpty())
        m_notice.show(checkFailed().toStdString(), failure.toStdString());
}
