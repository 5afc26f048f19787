#pragma once

#include "OndelDesktop/DesktopNotice.h"
#include "OndelDesktop/LauncherProgress.h"
#include "OndelDesktop/StayAwake.h"
#include "TarnwickKit/model/capacity/CapacityRecord.h"
#include "TarnwickKit/model/session/AnalyzerModel.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <optional>
#include <string>

/// Keeps the machine awake during a run or a capacity check, tells how far it is, and shows its result as a
/// notification while no window has the focus. Threads: main.
class RunNotifier : public QObject {
    Q_OBJECT
public:
    /// `comeToFront` is called when the user presses the notice. Owner: the model outlives this.
    RunNotifier(TarnwickKit::model::AnalyzerModel& model,
                std::function<void(const std::string& activationToken)> comeToFront);

    /// How much of the run or the check is done, as its icon on the desktop shows it; it changes once per
    /// second at most. Absent outside of them, and while that is not known. Units: percent.
    std::optional<int> percent() const { return m_percent; }
    Q_SIGNAL void percentChanged();

private:
    void busyChanged();
    std::optional<double> fraction() const;
    void updatePercent();
    void showResult();
    void showFinding();

    TarnwickKit::model::AnalyzerModel& m_model;
    OndelDesktop::DesktopNotice m_notice;
    std::optional<OndelDesktop::StayAwake> m_awake;
    OndelDesktop::LauncherProgress m_launcher;
    QTimer m_clock;
    std::optional<int> m_percent;
    bool m_isCheck = false; ///< what runs, or ran last, is a capacity check
    std::optional<TarnwickKit::model::CapacityRecord> m_finding; ///< of a check that has come to its end
};
