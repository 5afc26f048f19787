#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QUrl>

namespace TarnwickKit::views {

/// The page about what figures and remarks mean, which is installed beside the program.
class FiguresPage : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// False if this installation lacks it, as that of a host application may.
    Q_PROPERTY(bool isInstalled READ isInstalled CONSTANT)

public:
    explicit FiguresPage(QObject* parent = nullptr);

    bool isInstalled() const { return !m_address.isEmpty(); }
    /// Opens the desktop's program for it and returns at once.
    Q_INVOKABLE void open() const;

private:
    const QUrl m_address;
};

} // namespace TarnwickKit::views
