#include "TarnwickKit/views/sharing/CardImages.h"

#include "TarnwickKit/views/sharing/QRCode.h"

#include <QFile>
#include <QGuiApplication>
#include <QIcon>
#include <QPainter>
#include <QSvgRenderer>

namespace TarnwickKit::views {

namespace {

const auto iconFile = QStringLiteral(":/tarnwick/TarnwickIcon.svg");

} // namespace

void QRCodeItem::setText(const QString& text) {
    if (!take(m_text, text))
        return;
    m_code = QRCode::image(text).value_or(QImage());
    Q_EMIT textChanged();
}

OndelControls::ImageItem::Picture QRCodeItem::paint(double scale) {
    return {m_code.scaled((size() * scale).toSize(), Qt::IgnoreAspectRatio, Qt::FastTransformation), {}};
}

OndelControls::ImageItem::Picture TarnwickIcon::paint(double scale) {
    const QSize pixels = (size() * scale).toSize();
    if (!QFile::exists(iconFile))
        return {QGuiApplication::windowIcon().pixmap(pixels, 1).toImage(), {}};
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer(iconFile).render(&painter);
    return {image, {}};
}

} // namespace TarnwickKit::views
