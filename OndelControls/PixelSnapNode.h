#pragma once

#include <QPointF>
#include <QSGTransformNode>

namespace OndelControls {

/// Puts what hangs below it onto whole device pixels wherever its item comes to lie, also when only an
/// ancestor moves: at a scale such as 1.5 a picture of the screen's own pixels would else be smeared over
/// their borders. Under a scaled or turned ancestor there is nothing to put it onto.
///
/// Threads: the renderer's.
class PixelSnapNode : public QSGTransformNode {
public:
    PixelSnapNode() { setFlag(UsePreprocess); }

    /// Units: `place` in logical pixels of the item, `scale` device pixels per logical one.
    void setPlace(QPointF place, double scale);

    void preprocess() override;

private:
    QPointF m_place;
    double m_scale = 1;
};

} // namespace OndelControls
