#pragma once

#include "OndelControls/ViewEngine.h"

#include <QImage>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickRenderControl>
#include <QQuickRenderTarget>
#include <QQuickWindow>

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <stdexcept>

namespace test {

/// The root mean square difference of two premultiplied pictures over all channels, 0 to 255.
inline double distance(const QImage& a, const QImage& b) {
    EXPECT_EQ(a.size(), b.size());
    double sum = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int i = 0; i < a.width() * 4; ++i) {
            const double difference = a.constScanLine(y)[i] - b.constScanLine(y)[i];
            sum += difference * difference;
        }
    return std::sqrt(sum / (4.0 * a.width() * a.height()));
}

/// The item and all visible ones in it, in reading order.
inline QList<const QQuickItem*> itemsOf(const QQuickItem& item) {
    QList<const QQuickItem*> all{&item};
    const auto children = item.childItems();
    for (const QQuickItem* child : children)
        if (child->isVisible())
            all << itemsOf(*child);
    return all;
}

/// What is written in it.
inline QStringList texts(const QQuickItem& card) {
    QStringList all;
    for (const QQuickItem* item : itemsOf(card))
        if (item->inherits("QQuickText"))
            all << item->property("text").toString();
    return all;
}

/// Draws a piece of QML off screen, as often as asked.
class Stage {
public:
    explicit Stage(const QByteArray& qml, const QVariantMap& properties = {}) {
        OndelControls::prepareEngine(m_engine);
        QQmlComponent component(&m_engine);
        component.setData("import QtQuick\nimport OndelControls\nimport TarnwickKit.views\n" + qml, QUrl());
        m_root.reset(qobject_cast<QQuickItem*>(component.createWithInitialProperties(properties)));
        if (!m_root)
            throw std::runtime_error(component.errorString().toStdString());
        m_window.setColor(Qt::transparent);
        m_root->setParentItem(m_window.contentItem());
    }

    QQuickItem& root() { return *m_root; }

    QImage picture(double scale = 1) {
        const QSize pixels = (m_root->size() * scale).toSize();
        if (m_picture.size() != pixels || m_picture.devicePixelRatio() != scale) {
            m_picture = QImage(pixels, QImage::Format_ARGB32_Premultiplied);
            m_picture.fill(Qt::transparent);
            m_picture.setDevicePixelRatio(scale);
            QQuickRenderTarget target = QQuickRenderTarget::fromPaintDevice(&m_picture);
            target.setDevicePixelRatio(scale);
            m_window.setRenderTarget(target);
            m_window.setGeometry(QRect(QPoint(), m_root->size().toSize()));
            m_window.contentItem()->setSize(m_root->size());
        }
        m_control.polishItems();
        m_control.sync();
        m_control.render();
        QImage image = m_picture.copy(); // the next frame repaints only what has changed in it
        image.setDevicePixelRatio(1);
        return image;
    }

private:
    QImage m_picture;
    QQmlEngine m_engine;
    QQuickRenderControl m_control;
    QQuickWindow m_window{&m_control};
    std::unique_ptr<QQuickItem> m_root;
};

} // namespace test
