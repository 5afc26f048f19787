#pragma once

#include <QFileDialog>
#include <QObject>
#include <QPointer>
#include <QQuickWindow>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

namespace TarnwickKit::views {

/// The desktop's dialog for choosing the folder to test.
/// Threads: main. Needs a QApplication.
class FolderChooser : public QObject {
    Q_OBJECT
    QML_ELEMENT
public:
    using QObject::QObject;
    ~FolderChooser() override;

    /// Shows the dialog over `window` and returns at once. It starts at `folder`, but at the home folder in
    /// place of
    /// "/"; with an empty `folder` where the desktop thinks best. A dialog already open comes to the front.
    Q_INVOKABLE void open(QQuickWindow* window, const QString& folder);

    /// A folder was chosen. Nothing is said of a dialog that was dismissed.
    Q_SIGNAL void chosen(const QUrl& folder);

private:
    QPointer<QFileDialog> m_dialog;
};

} // namespace TarnwickKit::views
