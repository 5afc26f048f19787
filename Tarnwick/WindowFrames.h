#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Who draws the title bars and borders of the windows. Threads: main.
class WindowFrames : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// Whether the program does.
    Q_PROPERTY(bool areOurs MEMBER m_areOurs CONSTANT)
public:
    WindowFrames();

private:
    bool m_areOurs;
};
