#include "TarnwickKit/views/sharing/QRCode.h"

#include <qrcodegen/qrcodegen.hpp>

#include <vector>

namespace TarnwickKit::views {

namespace {

QImage drawCode(const qrcodegen::QrCode& code) {
    const int modules = code.getSize() + 2 * QRCode::quietModules;
    QImage image(modules, modules, QImage::Format_Grayscale8);
    image.fill(Qt::white);
    for (int y = 0; y < code.getSize(); ++y)
        for (int x = 0; x < code.getSize(); ++x)
            if (code.getModule(x, y))
                image.scanLine(y + QRCode::quietModules)[x + QRCode::quietModules] = 0;
    return image.scaled(image.size() * QRCode::pixelsPerModule);
}

} // namespace

std::optional<QImage> QRCode::image(const QString& text) {
    using qrcodegen::QrCode;
    const QByteArray bytes = text.toUtf8();
    try {
        const std::vector segments{
            qrcodegen::QrSegment::makeBytes(std::vector<std::uint8_t>(bytes.begin(), bytes.end()))};
        constexpr int anyMask = -1;
        return drawCode(QrCode::encodeSegments(segments, QrCode::Ecc::MEDIUM, QrCode::MIN_VERSION,
                                               QrCode::MAX_VERSION, anyMask, false));
    } catch (const qrcodegen::data_too_long&) {
        return std::nullopt;
    }
}

void QRCodeItem::setText(const QString& text) {
    if (!take(m_text, text))
        return;
    m_code = QRCode::image(text).value_or(QImage());
    Q_EMIT textChanged();
}

OndelControls::ImageItem::Picture QRCodeItem::paint(double scale) {
    return {m_code.scaled((size() * scale).toSize(), Qt::IgnoreAspectRatio, Qt::FastTransformation), {}};
}

} // namespace TarnwickKit::views
