#pragma once

#include "OndelCore/platform/DesktopNotice.h"
#include "OndelCore/platform/StayAwake.h"
#include "TarnwickKit/model/AnalyzerModel.h"

#include <QObject>

#include <functional>
#include <optional>
#include <string>

/// What the desktop has to know of runs: the machine stays awake while one goes on, and people who look at
/// another window are told how it ended. Threads: main.
class RunAttendant : public QObject {
    Q_OBJECT
public:
    /// `comeToFront` is called when somebody presses the notice. Owner: the model outlives this.
    RunAttendant(TarnwickKit::model::AnalyzerModel& model,
                 std::function<void(const std::string& activationToken)> comeToFront);

private:
    void phaseChanged();
    void tellOfEnd();

    TarnwickKit::model::AnalyzerModel& m_model;
    OndelCore::platform::DesktopNotice m_notice;
    std::optional<OndelCore::platform::StayAwake> m_awake;
};
