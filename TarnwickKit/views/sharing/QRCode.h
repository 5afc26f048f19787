#pragma once

#include <QImage>
#include <QString>

#include <optional>

namespace TarnwickKit::views::QRCode {

/// The side of one module. Units: pixels.
inline constexpr int pixelsPerModule = 12;

/// The white modules around the code's own ones. With the padding of the tile that a card puts the code on
/// they make the four that readers may count on (ISO/IEC 18004).
inline constexpr int quietModules = 1;

/// `text` as a QR code, black on white, of correction level M.
/// Threads: any. Fails: absent for more text than a code holds (2331 bytes).
std::optional<QImage> image(const QString& text);

} // namespace TarnwickKit::views::QRCode
