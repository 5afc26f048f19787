#pragma once

#include <QImage>

class QQuickItem;

namespace TarnwickKit::views {

/// Draws `view`, which is not in a window, at `scale` device pixels per logical one on a transparent
/// background. Needs no screen. Uses the renderer of the process, software or OpenGL.
///
/// Threads: main. Needs a QGuiApplication. Fails: a null image, also for a view without a size or of more
/// than 32767 device pixels to a side.
QImage viewPicture(QQuickItem& view, double scale);

} // namespace TarnwickKit::views
