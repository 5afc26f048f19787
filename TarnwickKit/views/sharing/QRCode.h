#pragma once

#include "OndelControls/ImageItem.h"

#include <QImage>
#include <QString>

#include <optional>

namespace TarnwickKit::views {

namespace QRCode {

/// The side of one module. Units: pixels.
inline constexpr int pixelsPerModule = 12;

/// The white modules around the code. Together with the padding of the card's tile they make the four that
/// the standard asks for (ISO/IEC 18004).
inline constexpr int quietModules = 1;

/// `text` as a QR code, black on white, with error correction level M.
/// Threads: any. Fails: absent when the text is longer than a code can hold (2331 bytes).
std::optional<QImage> image(const QString& text);

} // namespace QRCode

/// Shows a QR code with sharp edges at any scale; its modules are stretched to the item's size.
class QRCodeItem : public OndelControls::ImageItem {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    /// The text fits into a code.
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

} // namespace TarnwickKit::views
