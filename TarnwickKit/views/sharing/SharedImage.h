#pragma once

#include "TarnwickKit/views/runs/ComparedRuns.h"
#include "TarnwickKit/views/sharing/ReportImage.h"
#include "TarnwickKit/views/style/Palette.h"

#include <QFuture>
#include <QObject>
#include <QQmlEngine>

#include <filesystem>
#include <memory>

class QQuickItem;

namespace TarnwickKit::views {

class Dialogs;

/// An image made for sharing, and the actions on it. Only the drawing blocks the window; a request for
/// another image is ignored meanwhile. The result of an action is a sentence for people.
///
/// Threads: main. Fails: without an image `ready` is not emitted.
class SharedImage : public QObject {
    Q_OBJECT
    QML_ELEMENT

public:
    explicit SharedImage(QObject* parent = nullptr);
    ~SharedImage() override;

    Q_INVOKABLE void makeReport(const TarnwickKit::model::RunRecord& run,
                                const TarnwickKit::views::Palette* palette);
    Q_INVOKABLE void makeComparison(const TarnwickKit::views::ComparedRuns& runs,
                                    const TarnwickKit::views::Palette* palette);
    /// The image is written to its file; the actions below may be called.
    Q_SIGNAL void ready();

    Q_INVOKABLE void copy();
    /// Asks for the file in a dialog over the item's window. Needs a QApplication.
    Q_INVOKABLE void saveAs(QQuickItem* item);
    Q_INVOKABLE void showInFolder();
    Q_INVOKABLE void sendByEmail();
    Q_SIGNAL void told(const QString& sentence);

private:
    bool isBusy() const { return m_making.isRunning(); }
    void await(const SharedPngLater& image);
    void save(const std::filesystem::path& target);

    SharedPngLater m_making;
    SharedPng m_image;
    std::unique_ptr<Dialogs> m_dialogs; ///< created by the first dialog
};

} // namespace TarnwickKit::views
