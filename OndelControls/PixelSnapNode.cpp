#include "OndelControls/PixelSnapNode.h"

#include <QMatrix4x4>

#include <cmath>

namespace OndelControls {

void PixelSnapNode::setPlace(QPointF place, double scale) {
    m_place = place;
    m_scale = scale;
    preprocess();
}

void PixelSnapNode::preprocess() {
    QMatrix4x4 above;
    for (QSGNode* node = parent(); node; node = node->parent())
        if (node->type() == TransformNodeType)
            above = static_cast<QSGTransformNode*>(node)->matrix() * above;

    QPointF place = m_place;
    if (above.flags() <= QMatrix4x4::Translation) {
        const QPointF origin = above.map(QPointF());
        // A little less than half: where the parts of a sum are halves of a pixel, its rounding must not
        // depend on the order in which they were added.
        const auto snapped = [this](double at) { return std::floor(at * m_scale + 0.499) / m_scale; };
        place = QPointF(snapped(origin.x() + place.x()), snapped(origin.y() + place.y())) - origin;
    }
    QMatrix4x4 matrix;
    matrix.translate(static_cast<float>(place.x()), static_cast<float>(place.y()));
    if (matrix != this->matrix())
        setMatrix(matrix);
}

} // namespace OndelControls
