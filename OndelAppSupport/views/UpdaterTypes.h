#pragma once

#include "OndelAppSupport/UpdaterModel.h"

#include <QObject>
#include <QQmlEngine>

/// Registers the updater's types with QML.
namespace OndelAppSupport::views {

struct UpdaterControllerType {
    Q_GADGET
    QML_FOREIGN(OndelAppSupport::UpdaterController)
    QML_NAMED_ELEMENT(UpdaterController)
    QML_UNCREATABLE("Use UpdaterModel.controller.")
};

struct UpdaterModelType {
    Q_GADGET
    QML_FOREIGN(OndelAppSupport::UpdaterModel)
    QML_NAMED_ELEMENT(UpdaterModel)
    QML_UNCREATABLE("The application owns the only one.")
};

} // namespace OndelAppSupport::views
