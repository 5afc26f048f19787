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

/// An image made to be shared, and what people do with it. Making it takes the window a fraction of the whole
/// time; what else is asked for meanwhile is ignored. What has happened is told in a sentence for people.
///
/// Threads: main. Fails: no image, no word.
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
    /// The image lies in its file and can be handed on.
    Q_SIGNAL void ready();

    Q_INVOKABLE void copy();
    /// Asks over the item's window where to. Needs a QApplication.
    Q_INVOKABLE void saveAs(QQuickItem* item);
    Q_INVOKABLE void showInFolder();
    Q_INVOKABLE void sendByEmail();
    Q_SIGNAL void told(const QString& sentence);

private:
    bool isBusy() const { return m_making.isRunning(); }
    void await(const QFuture<ImageFile>& image);
    void save(const std::filesystem::path& target);

    QFuture<ImageFile> m_making;
    std::filesystem::path m_file;
    std::unique_ptr<Dialogs> m_dialogs; ///< from the first question on
};

} // namespace TarnwickKit::views
