#pragma once

#include <QApplication>

#include <memory>

/// Destroys the application object, except on Wayland, where the destructor of Qt 6.4 sometimes deadlocks
/// with one of its own threads.
struct EndOfToolkit {
    void operator()(QApplication* application) const;
};
using Toolkit = std::unique_ptr<QApplication, EndOfToolkit>;

/// Creates the application object and chooses the renderer. Owner: `argc` and `argv` outlive it, and the
/// process ends after it. Fails: without a display, ends the process with one sentence.
Toolkit startToolkit(int& argc, char** argv);

/// The icon from the desktop's theme, else the built-in one.
QIcon applicationIcon();
