#include "TarnwickKit/views/sharing/CardView.h"

#include "OndelControls/ViewEngine.h"
#include "TarnwickKit/model/language/Language.h"
#include "TarnwickKit/views/style/PaletteKey.h"

#include <QCoreApplication>
#include <QPointer>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

namespace TarnwickKit::views {

namespace {

/// One engine for all cards of the process: most of the first card's time is spent on loading types.
QQmlEngine& engine() {
    static QPointer<QQmlEngine> shared;
    if (!shared) {
        shared = new QQmlEngine(QCoreApplication::instance());
        OndelControls::prepareEngine(*shared);
    }
    return *shared;
}

} // namespace

std::unique_ptr<QQuickItem> newCard(const QString& name, QVariantMap properties, const Palette& palette) {
    QQmlComponent component(&engine(),
                            QUrl(QStringLiteral("qrc:/qt/qml/TarnwickKit/views/%1.qml").arg(name)));
    // Text from distance fields differs between processes and may have coloured fringes; native text does
    // not.
    const auto windowText = QQuickWindow::textRenderType();
    QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);
    std::unique_ptr<QObject> view(component.beginCreate(engine().rootContext()));
    if (view) {
        const auto mirrored = QStringLiteral("isMirrored"); // of whole pictures
        if (view->metaObject()->indexOfProperty(qPrintable(mirrored)) >= 0)
            properties.insert(mirrored, model::Language::isRightToLeft());
        component.setInitialProperties(view.get(), properties);
        PaletteKey::install(view.get(), palette);
        component.completeCreate();
    }
    QQuickWindow::setTextRenderType(windowText);
    if (component.isError()) {
        qCritical("%s", qPrintable(component.errorString()));
        return nullptr;
    }
    return std::unique_ptr<QQuickItem>(qobject_cast<QQuickItem*>(view.release()));
}

QString productLink() { return QStringLiteral(ONDEL_PRODUCT_LINK); }

} // namespace TarnwickKit::views
