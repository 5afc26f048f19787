#pragma once

#include "OndelControls/ImageItem.h"

namespace TarnwickKit::views {

/// The product's icon; in a program without it, the program's own.
class TarnwickIcon : public OndelControls::ImageItem {
    Q_OBJECT
    QML_ELEMENT

public:
    using ImageItem::ImageItem;

protected:
    Picture paint(double scale) override;
};

} // namespace TarnwickKit::views
