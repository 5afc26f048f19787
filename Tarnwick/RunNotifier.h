#pragma once

#include "OndelDesktop/DesktopNotice.h"
#include "OndelDesktop/StayAwake.h"
#include "TarnwickKit/model/session/AnalyzerModel.h"

#include <QObject>

#include <functional>
#include <optional>
#include <string>

/// Keeps the machine awake during a run, and shows its result as a notification while no window has the
/// focus. Threads: main.
class RunNotifier : public QObject {
    Q_OBJECT
public:
    /// `comeToFront` is called when the user presses the notice. Owner: the model outlives this.
    RunNotifier(TarnwickKit::model::AnalyzerModel& model,
                std::function<void(const std::string& activationToken)> comeToFront);

private:
    void phaseChanged();
    void showResult();

    TarnwickKit::model::AnalyzerModel& m_model;
    OndelDesktop::DesktopNotice m_notice;
    std::optional<OndelDesktop::StayAwake> m_awake;
};
