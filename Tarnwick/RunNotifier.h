#pragma once

#include "OndelDesktop/DesktopNotice.h"
#include "OndelDesktop/StayAwake.h"
#include "TarnwickKit/model/session/AnalyzerModel.h"

#include <QObject>

#include <functional>
#include <optional>
#include <string>

/// What the desktop has to know of runs: the machine stays awake while one goes on, and people who look at
/// another window are told how it ended. Threads: main.
class RunNotifier : public QObject {
    Q_OBJECT
public:
    /// `comeToFront` is called when somebody presses the notice. Owner: the model outlives this.
    RunNotifier(TarnwickKit::model::AnalyzerModel& model,
                std::function<void(const std::string& activationToken)> comeToFront);

private:
    void phaseChanged();
    void tellOfEnd();

    TarnwickKit::model::AnalyzerModel& m_model;
    OndelDesktop::DesktopNotice m_notice;
    std::optional<OndelDesktop::StayAwake> m_awake;
};
