#pragma once

#include "OndelDesktop/OpenRequests.h"
#include "Tarnwick/AppDelegate.h"

#include <QQmlApplicationEngine>

#include <optional>

/// The application as it is started: the order of what it is made of. Threads: main.
class TarnwickApp {
public:
    /// The whole life of the process. Returns its status.
    static int run(int argc, char** argv);

    /// Owner: `requests` outlives this.
    explicit TarnwickApp(OndelDesktop::OpenRequests& requests);
    ~TarnwickApp();
    TarnwickApp(const TarnwickApp&) = delete;
    TarnwickApp& operator=(const TarnwickApp&) = delete;

    /// Loads the window. Fails: false, after the toolkit has said why.
    bool declareScenes();

    /// Launching has finished: from here on requests are taken, first that of this start.
    void finishLaunching(const OndelDesktop::OpenRequest& start);

private:
    /// Identity and fonts, which the delegate and the views are made with.
    static void prepare();
    static std::optional<int> handOver(OndelDesktop::OpenRequests& requests,
                                       const OndelDesktop::OpenRequest& start);

    OndelDesktop::OpenRequests& m_requests;
    AppDelegate m_delegate;
    QQmlApplicationEngine m_engine;
};
