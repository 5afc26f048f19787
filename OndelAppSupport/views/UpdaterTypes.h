#pragma once

#include "OndelAppSupport/UpdaterModel.h"

#include <QObject>
#include <QQmlEngine>

/// The updater's types under the names by which QML speaks of them.
namespace OndelAppSupport::views {

struct UpdaterControllerType {
    Q_GADGET
    QML_FOREIGN(OndelAppSupport::UpdaterController)
    QML_NAMED_ELEMENT(UpdaterController)
    QML_UNCREATABLE("It is UpdaterModel.controller.")
};

struct UpdaterModelType {
    Q_GADGET
    QML_FOREIGN(OndelAppSupport::UpdaterModel)
    QML_NAMED_ELEMENT(UpdaterModel)
    QML_UNCREATABLE("The application owns the one model and hands it to its views.")
};

} // namespace OndelAppSupport::views
