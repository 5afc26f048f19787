#pragma once

#include "OndelAppSupport/AppIdentity.h"
#include "OndelAppSupport/SupportNudges.h"
#include "OndelAppSupport/report/ReportForm.h"

#include <QObject>
#include <QQmlEngine>

/// Registers the support library's types with QML. The library itself does not depend on QML.
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
    QML_UNCREATABLE("Use AppSupport.nudges.")
};

} // namespace OndelAppSupport::views
