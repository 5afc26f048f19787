#pragma once

#include "TarnwickKit/views/style/Palette.h"

#include <QString>
#include <QVariantMap>

#include <memory>

class QQuickItem;

namespace TarnwickKit::views {

/// Creates a view of this module by its name ("ReportCard") and properties, without a window, to make a
/// picture of. Threads: main. Fails: null when a part of Qt is not installed; the engine's message is logged
/// as critical.
std::unique_ptr<QQuickItem> newCard(const QString& name, QVariantMap properties, const Palette& palette);

/// The address of the product's page, without a scheme.
QString productLink();

} // namespace TarnwickKit::views
