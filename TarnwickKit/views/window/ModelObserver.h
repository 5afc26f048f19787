#pragma once

#include "TarnwickKit/model/session/AnalyzerModel.h"

#include <QPointer>

namespace TarnwickKit::views {

/// The model that a view object observes.
using ModelObserver = QPointer<model::AnalyzerModel>;

/// Disconnects `follower` from its model and makes `followed` point to `next`; the caller connects the
/// signals. False without any effect when the model is the same.
inline bool turnTo(ModelObserver& followed, model::AnalyzerModel* next, const QObject* follower) {
    if (next == followed)
        return false;
    if (followed)
        followed->disconnect(follower);
    followed = next;
    return true;
}

} // namespace TarnwickKit::views
