#pragma once

#include <QImage>

class QQuickItem;

namespace TarnwickKit::views {

/// Draws `view`, which is in no window, as it would look on a screen of `scale` device pixels per logical
/// one, on a transparent ground. It works with or without a window, on any screen or none, in the software
/// renderer and in OpenGL, whichever the process draws with.
///
/// Threads: main. Needs a QGuiApplication. Fails: a null image, also for a view without a size or of more
/// than 32767 device pixels to a side.
QImage viewPicture(QQuickItem& view, double scale);

} // namespace TarnwickKit::views
