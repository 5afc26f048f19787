#include "OndelControls/ViewMath.h"

#include <QKeySequence>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace OndelControls {

double ViewMath::roomBeside(double width, const QList<double>& others, double spacing) {
    return std::accumulate(others.begin(), others.end(), width,
                           [spacing](double left, double other) { return left - other - spacing; });
}

double ViewMath::spacingInLine(double width, double taken, int count, double usual, double least) {
    if (count < 2)
        return usual;
    const double room = std::floor((width - taken) / (count - 1));
    return room < least ? usual : std::min(usual, room);
}

int ViewMath::lastIndexOf(const QList<double>& values, double value) {
    return static_cast<int>(values.lastIndexOf(value));
}

QString ViewMath::keyName(const QString& shortcut) {
    return QKeySequence(shortcut, QKeySequence::PortableText).toString(QKeySequence::NativeText);
}

} // namespace OndelControls
