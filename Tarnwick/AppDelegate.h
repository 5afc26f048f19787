#pragma once

#include "TarnwickKit/model/AnalyzerModel.h"
#include "TarnwickKit/views/Dialogs.h"

#include <QFutureWatcher>
#include <QObject>
#include <QWindow>
#include <QtQml/qqmlregistration.h>

#include <filesystem>

/// The application's life: owns the one model, hands it to the window, and holds the process back from ending
/// while a benchmark still has files on somebody's disk. Threads: main.
class AppDelegate : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("There is one for the life of the process.")
    Q_PROPERTY(TarnwickKit::model::AnalyzerModel* model READ model CONSTANT)
public:
    AppDelegate();

    TarnwickKit::model::AnalyzerModel* model() { return &m_model; }

    /// The one road on which the process ends: the window's close button, Quit, SIGTERM, SIGINT, SIGHUP and
    /// the end of the session all come here. Nobody is asked. With a run active it is cancelled and waited
    /// for, the window stays alive meanwhile, and further requests change nothing.
    Q_INVOKABLE void terminate();

    /// The window over which dialogs open. Owner: the caller.
    Q_INVOKABLE void setWindow(QWindow* window) { m_dialogs.setWindow(window); }

    /// Makes the folder the target. Fails: false, and nothing changes, when it is no folder.
    bool select(const std::filesystem::path& folder);

private:
    TarnwickKit::views::Dialogs m_dialogs;
    TarnwickKit::model::AnalyzerModel m_model;
    QFutureWatcher<void> m_end;
    bool m_terminating = false;
};
