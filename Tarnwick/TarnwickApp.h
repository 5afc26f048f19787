#pragma once

#include "OndelDesktop/OpenRequests.h"
#include "Tarnwick/AppDelegate.h"

#include <QQmlApplicationEngine>
#include <QQmlComponent>

#include <optional>

class QQuickWindow;

/// Starts the application: the order of its parts. Threads: main.
class TarnwickApp {
public:
    /// The whole life of the process. Returns its status.
    static int run(int argc, char** argv);

    /// Owner: `requests` outlives this.
    explicit TarnwickApp(OndelDesktop::OpenRequests& requests);
    ~TarnwickApp();
    TarnwickApp(const TarnwickApp&) = delete;
    TarnwickApp& operator=(const TarnwickApp&) = delete;

    /// Loads the window. Fails: false, after Qt has printed the reason.
    bool declareScenes();

    /// Called when launching has finished. Handles the request of this start and then those of others.
    void finishLaunching(const OndelDesktop::OpenRequest& start);

private:
    void finishWindow(QQuickWindow* window);
    static std::optional<int> handOver(OndelDesktop::OpenRequests& requests,
                                       const OndelDesktop::OpenRequest& start);

    OndelDesktop::OpenRequests& m_requests;
    std::optional<AppDelegate> m_delegate; ///< outlives the engine's objects
    QQmlApplicationEngine m_engine;
    QQmlComponent m_window; ///< compiled on the engine's thread while fonts and delegate are made
};
