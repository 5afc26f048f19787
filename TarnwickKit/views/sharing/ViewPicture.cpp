#include "TarnwickKit/views/sharing/ViewPicture.h"

#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>
#include <QOpenGLFunctions>
#include <QQuickGraphicsDevice>
#include <QQuickItem>
#include <QQuickRenderControl>
#include <QQuickRenderTarget>
#include <QQuickWindow>
#include <QSGRendererInterface>

#include <algorithm>

namespace TarnwickKit::views {

namespace {

constexpr int longestSide = 32767; // QPainter's limit

/// An off-screen window around one view, single use: the two renderers differ in when the window gets its
/// device.
class Offscreen {
public:
    Offscreen(QQuickItem& view, double scale)
        : m_view(view)
        , m_scale(scale) {
        m_window.setColor(Qt::transparent);
        view.setParentItem(m_window.contentItem());
    }
    ~Offscreen() { m_view.setParentItem(nullptr); }
    Offscreen(const Offscreen&) = delete;
    Offscreen& operator=(const Offscreen&) = delete;

    QImage picture() {
        // Not QQuickWindow::graphicsApi(), which does not report the software renderer.
        switch (m_window.rendererInterface()->graphicsApi()) {
        case QSGRendererInterface::Software:
            return software();
        case QSGRendererInterface::OpenGL:
            return openGL();
        default:
            return {};
        }
    }

private:
    /// Lays out the view and gives the window its size. Answers the size in device pixels; empty when it is
    /// too large to draw.
    QSize layOut() {
        m_control.polishItems();
        const QSizeF size = m_view.size();
        m_window.setGeometry(QRect(QPoint(), size.toSize()));
        m_window.contentItem()->setSize(size);
        const QSize pixels = (size * m_scale).toSize();
        return std::max(pixels.width(), pixels.height()) <= longestSide ? pixels : QSize();
    }

    void drawOn(QQuickRenderTarget target) {
        target.setDevicePixelRatio(m_scale);
        m_window.setRenderTarget(target);
        m_control.polishItems();
    }

    QImage software() {
        QImage image(layOut(), QImage::Format_ARGB32_Premultiplied);
        if (image.isNull())
            return {};
        image.fill(Qt::transparent);
        image.setDevicePixelRatio(m_scale);
        drawOn(QQuickRenderTarget::fromPaintDevice(&image));
        m_control.sync();
        m_control.render();
        image.setDevicePixelRatio(1);
        return image;
    }

    QImage openGL() {
        m_surface.create();
        if (!m_context.create() || !m_context.makeCurrent(&m_surface))
            return {};
        m_window.setGraphicsDevice(QQuickGraphicsDevice::fromOpenGLContext(&m_context));
        if (!m_control.initialize())
            return {};
        QImage image = renderedTexture();
        m_view.setParentItem(nullptr); // frees its textures while their context is current
        m_control.invalidate();
        return image;
    }

    QImage renderedTexture() {
        const QSize pixels = layOut();
        if (pixels.isEmpty())
            return {};
        QOpenGLFramebufferObject buffer(pixels, QOpenGLFramebufferObject::CombinedDepthStencil);
        drawOn(QQuickRenderTarget::fromOpenGLTexture(buffer.texture(), pixels));
        m_control.beginFrame();
        m_control.sync();
        m_control.render();
        m_control.endFrame();
        m_context.functions()->glFinish();
        return buffer.toImage();
    }

    QQuickItem& m_view;
    double m_scale;
    // Destruction order: the control's device needs the context.
    QOffscreenSurface m_surface;
    QOpenGLContext m_context;
    QQuickRenderControl m_control;
    QQuickWindow m_window{&m_control};
};

} // namespace

QImage viewPicture(QQuickItem& view, double scale) { return Offscreen(view, scale).picture(); }

} // namespace TarnwickKit::views
