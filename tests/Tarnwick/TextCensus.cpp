/// A plugin that the tests load into the program: it writes down every text that its windows show. Where a
/// file "request" appears in the folder ONDEL_TEXT_CENSUS, it is replaced by a file "answer" of one JSON
/// array: window, text, ink with its opacity, whether it is cut, or wider than what it lies in, place in
/// device pixels of the window, font size and weight.

#include <QColor>
#include <QDir>
#include <QFile>
#include <QFont>
#include <QGenericPlugin>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTimer>

namespace {

/// The part of the item that its window and clipping items let through.
QRectF shownPart(const QQuickItem& item, QRectF part) {
    part = item.mapRectToScene(part);
    for (const QQuickItem* above = item.parentItem(); above; above = above->parentItem())
        if (above->clip())
            part &= above->mapRectToScene(QRectF(QPointF(), above->size()));
    return part & QRectF(QPointF(), QSizeF(item.window()->size()));
}

/// Where the glyphs are: without what an item is larger than its text.
QRectF glyphs(const QQuickItem& text) {
    const auto number = [&text](const char* name) { return text.property(name).toDouble(); };
    const QSizeF size(number("contentWidth"), number("contentHeight"));
    double x = number("leftPadding");
    if (const int side = text.property("effectiveHorizontalAlignment").toInt(); side & Qt::AlignRight)
        x = text.width() - number("rightPadding") - size.width();
    else if (side & Qt::AlignHCenter)
        x = (text.width() - size.width()) / 2;
    return {QPointF(x, number("topPadding")), size};
}

/// What lies over the window hides the texts beneath it: menus, tips, sheets and what dims the window.
void removeBeneath(const QRectF& cover, const QJsonValue& window, QJsonArray& texts) {
    QJsonArray left;
    for (const QJsonValue& text : std::as_const(texts)) {
        const QJsonArray place = text["place"].toArray();
        const QPointF middle(place[0].toDouble() + place[2].toDouble() / 2,
                             place[1].toDouble() + place[3].toDouble() / 2);
        if (text["window"] != window || !cover.contains(middle))
            left.append(text);
    }
    texts = left;
}

void addTexts(const QQuickItem& item, double opacity, QJsonArray& texts) {
    opacity *= item.opacity();
    if (!item.isVisible() || opacity == 0)
        return;
    const QString text = item.property("text").toString();
    const bool isText =
        item.inherits("QQuickText") || item.inherits("QQuickTextInput") || item.inherits("QQuickTextEdit");
    if (isText && !text.isEmpty()) {
        const auto font = item.property("font").value<QFont>();
        const auto ink = item.property("color").value<QColor>();
        const double scale = item.window()->effectiveDevicePixelRatio();
        const QRectF whole = glyphs(item);
        const QRectF part = shownPart(item, whole);
        const QQuickItem& parent = *item.parentItem();
        const QRectF within = item.mapRectToItem(&parent, whole);
        const bool isNarrowed = part.height() > 0 && part.width() < whole.width() - 1;
        const bool protrudes =
            parent.width() > 0 && (within.left() < -2 || within.right() > parent.width() + 2);
        texts.append(QJsonObject{{"window", item.window()->title()},
                                 {"text", text},
                                 {"ink", QJsonArray{ink.red(), ink.green(), ink.blue()}},
                                 {"opacity", ink.alphaF() * opacity},
                                 {"enabled", item.isEnabled()},
                                 {"cut", item.property("truncated").toBool() || isNarrowed || protrudes},
                                 {"place", QJsonArray{part.x() * scale, part.y() * scale,
                                                      part.width() * scale, part.height() * scale}},
                                 {"size", font.pixelSize()},
                                 {"weight", font.weight()}});
    }
    const auto children = item.childItems();
    for (const QQuickItem* child : children)
        if (!child->inherits("QQuickOverlay"))
            addTexts(*child, opacity, texts);
}

void addTexts(const QQuickWindow& window, QJsonArray& texts) {
    addTexts(*window.contentItem(), 1, texts);
    const double scale = window.effectiveDevicePixelRatio();
    const auto layers = window.contentItem()->childItems();
    for (const QQuickItem* overlay : layers)
        if (overlay->inherits("QQuickOverlay")) {
            const auto covers = overlay->childItems();
            for (const QQuickItem* cover : covers) {
                const QRectF place = cover->mapRectToScene(QRectF(QPointF(), cover->size()));
                if (cover->isVisible())
                    removeBeneath({place.topLeft() * scale, place.size() * scale}, window.title(), texts);
                addTexts(*cover, 1, texts);
            }
        }
}

QByteArray census() {
    QJsonArray texts;
    const auto windows = QGuiApplication::allWindows();
    for (const QWindow* window : windows)
        if (const auto* shown = qobject_cast<const QQuickWindow*>(window); shown && shown->isVisible())
            addTexts(*shown, texts);
    return QJsonDocument(texts).toJson(QJsonDocument::Compact);
}

class Answerer final : public QObject {
public:
    Answerer() {
        m_timer.callOnTimeout(this, &Answerer::answer);
        m_timer.start(20);
    }

private:
    void answer() {
        if (!QFile::remove(m_folder.filePath("request")))
            return;
        QFile answer(m_folder.filePath("answer.new"));
        if (answer.open(QIODevice::WriteOnly))
            answer.write(census());
        answer.close();
        QFile::rename(answer.fileName(), m_folder.filePath("answer"));
    }

    QDir m_folder{qEnvironmentVariable("ONDEL_TEXT_CENSUS")};
    QTimer m_timer;
};

class TextCensus final : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "TextCensus.json")
public:
    QObject* create(const QString&, const QString&) override { return new Answerer; }
};

} // namespace

#include "TextCensus.moc"
