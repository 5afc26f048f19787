#pragma once

#include "OndelControls/ImageItem.h"

#include <QColor>
#include <QFont>
#include <QString>

namespace OndelControls {

/// A symbol by its name ("play.fill"), in one colour, sharp at every scale of the screen. It takes the room
/// that symbolBox tells and is drawn in the middle of whatever room it gets. An empty name shows nothing.
///
/// Fails: an unknown name stops a debug build and shows nothing in a release build.
class Symbol : public OndelControls::ImageItem {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QString name MEMBER m_name WRITE setName NOTIFY changed)
    /// Units: logical pixels of the text that the symbol would stand in.
    Q_PROPERTY(double size MEMBER m_size WRITE setSize NOTIFY changed)
    Q_PROPERTY(QColor color MEMBER m_color WRITE setColor NOTIFY changed)
    /// As QML's Font type tells weights.
    Q_PROPERTY(int weight MEMBER m_weight WRITE setWeight NOTIFY changed)

public:
    explicit Symbol(QQuickItem* parent = nullptr);

    void setName(const QString& name);
    void setSize(double size);
    void setColor(const QColor& color);
    void setWeight(int weight);
    Q_SIGNAL void changed();

protected:
    Picture paint(double scale) override;

private:
    QString m_name;
    double m_size = 13;
    QColor m_color = Qt::black;
    int m_weight = QFont::Normal;
};

} // namespace OndelControls
