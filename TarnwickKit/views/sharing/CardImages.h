#pragma once

#include "OndelControls/ImageItem.h"

#include <QString>

namespace TarnwickKit::views {

/// A QR code with edges as sharp as the pixels; its modules are stretched to the item's size.
class QRCodeItem : public OndelControls::ImageItem {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    /// A code could be made of the text.
    Q_PROPERTY(bool valid READ isValid NOTIFY textChanged)

public:
    using ImageItem::ImageItem;

    const QString& text() const { return m_text; }
    void setText(const QString& text);
    bool isValid() const { return !m_code.isNull(); }
    Q_SIGNAL void textChanged();

protected:
    Picture paint(double scale) override;

private:
    QString m_text;
    QImage m_code;
};

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
