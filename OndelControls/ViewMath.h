#pragma once

#include <QList>
#include <QObject>
#include <QQmlEngine>
#include <QString>

namespace OndelControls {

/// Functions of views, kept out of them to be tested. Units: logical pixels.
class ViewMath : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    explicit ViewMath(QObject* parent = nullptr)
        : QObject(parent) {}

    /// What a row of `width` leaves for one item beside `others`, with `spacing` between all of them.
    Q_INVOKABLE static double roomBeside(double width, const QList<double>& others, double spacing);

    /// The spacing of `count` items that take `taken` together: `usual`, or less down to `least` where that
    /// keeps them in one line of `width`. Where it does not they wrap, `usual` apart.
    Q_INVOKABLE static double spacingInLine(double width, double taken, int count, double usual,
                                            double least);

    /// Where `value` stands last in `values`; -1 where it does not.
    Q_INVOKABLE static int lastIndexOf(const QList<double>& values, double value);

    /// A shortcut ("Ctrl+Return") as keyboards of the user's language name its keys.
    Q_INVOKABLE static QString keyName(const QString& shortcut);
};

} // namespace OndelControls
