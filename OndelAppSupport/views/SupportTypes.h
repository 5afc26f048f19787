#pragma once

#include "OndelAppSupport/AppIdentity.h"
#include "OndelAppSupport/SupportNudges.h"
#include "OndelAppSupport/report/ReportForm.h"

#include <QObject>
#include <QQmlEngine>

/// The support library's types under the names by which QML speaks of them. The library itself knows nothing
/// of QML.
namespace OndelAppSupport::views {

struct AppIdentityType {
    Q_GADGET
    QML_FOREIGN(OndelAppSupport::AppIdentity)
    QML_VALUE_TYPE(appIdentity)
};

struct ReportFormType {
    Q_GADGET
    QML_FOREIGN(OndelAppSupport::ReportForm)
    QML_NAMED_ELEMENT(ReportForm)
};

struct SupportNudgesType {
    Q_GADGET
    QML_FOREIGN(OndelAppSupport::SupportNudges)
    QML_NAMED_ELEMENT(SupportNudges)
    QML_UNCREATABLE("The shared one is AppSupport.nudges.")
};

} // namespace OndelAppSupport::views
