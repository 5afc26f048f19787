#pragma once

#include "TarnwickKit/model/session/AnalyzerModel.h"

#include <QPointer>

namespace TarnwickKit::views {

/// The model whose signals an object of the views listens to.
using ModelObserver = QPointer<model::AnalyzerModel>;

/// Makes `follower` let go of the model that it followed and hold another, whose signals are then to be
/// connected. False, and nothing is done, when it is the same.
inline bool turnTo(ModelObserver& followed, model::AnalyzerModel* next, const QObject* follower) {
    if (next == followed)
        return false;
    if (followed)
        followed->disconnect(follower);
    followed = next;
    return true;
}

} // namespace TarnwickKit::views
