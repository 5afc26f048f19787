#include "TarnwickKit/views/style/TarnwickIcon.h"

#include <QFile>
#include <QGuiApplication>
#include <QIcon>
#include <QPainter>
#include <QSvgRenderer>

namespace TarnwickKit::views {

namespace {

const auto iconFile = QStringLiteral(":/tarnwick/TarnwickIcon.svg");

} // namespace

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
