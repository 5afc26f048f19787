#pragma once

#include "TarnwickKit/views/style/Palette.h"

#include <QString>
#include <QVariantMap>

#include <memory>

class QQuickItem;

namespace TarnwickKit::views {

/// A view of this module by its name ("ReportCard") and properties, in no window, for a picture.
/// Threads: main. Fails: null, with the engine's words as a critical message, where a part of the toolkit is
/// not installed.
std::unique_ptr<QQuickItem> newCard(const QString& name, const QVariantMap& properties,
                                    const Palette& palette);

/// The product's page as people type it, without a scheme.
QString productLink();

} // namespace TarnwickKit::views
