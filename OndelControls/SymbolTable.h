#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QStringView>

namespace OndelControls {

bool isSymbol(QStringView name);

/// The side of the square that a symbol takes beside text of `fontSize`: even, so that it is centred in an
/// even control without falling between pixels. Units: logical pixels.
int symbolBox(double fontSize);

/// The symbol filled with `color`, `pixels` wide and high; what is heavier than a regular weight has its
/// strokes widened. Images are kept and given again.
///
/// Fails: a name that no symbol has is a programming fault; release builds give a null image.
QImage symbolImage(const QString& name, int pixels, const QColor& color, int weight = QFont::Normal);

} // namespace OndelControls
