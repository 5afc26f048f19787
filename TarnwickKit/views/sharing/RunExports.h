#pragma once

#include "TarnwickKit/views/runs/ComparedRuns.h"

#include <QByteArray>
#include <QObject>
#include <QQmlEngine>
#include <QString>

#include <memory>
#include <string_view>

class QQuickItem;

namespace TarnwickKit::views {

class Dialogs;

/// Takes runs out of the program as text or as files. The result of an action is a sentence for people.
/// Threads: main.
class RunExports : public QObject {
    Q_OBJECT
    QML_ELEMENT

public:
    explicit RunExports(QObject* parent = nullptr);
    ~RunExports() override;

    /// What one pastes into a forum: figures, drive, file system, kernel, settings and remarks.
    Q_INVOKABLE void copyText(const TarnwickKit::views::ComparedRuns& runs);
    Q_INVOKABLE void copyMarkdown(const TarnwickKit::views::ComparedRuns& runs);
    /// Each asks for the file in a dialog over the item's window. Needs a QApplication. Of one run a run file
    /// is saved, of several a list of them.
    Q_INVOKABLE void saveRuns(const TarnwickKit::views::ComparedRuns& runs, QQuickItem* item);
    Q_INVOKABLE void saveCsv(const TarnwickKit::views::ComparedRuns& runs, QQuickItem* item);
    Q_SIGNAL void told(const QString& sentence);

private:
    void copy(const QString& text, const QString& outcome);
    void save(const ComparedRuns& runs, std::string_view ending, const QString& kind,
              const QByteArray& content, QQuickItem* item);

    std::unique_ptr<Dialogs> m_dialogs; ///< created by the first dialog
};

} // namespace TarnwickKit::views
