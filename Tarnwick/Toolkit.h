#pragma once

#include <QApplication>

#include <memory>

/// Destroys the application object, but not on Wayland: there Qt 6.4 now and then waits for ever for a thread
/// of its own.
struct EndOfToolkit {
    void operator()(QApplication* application) const;
};
using Toolkit = std::unique_ptr<QApplication, EndOfToolkit>;

/// The application object, on the display that there is, with the renderer that suits the machine.
/// Owner: `argc` and `argv` outlive it, and the process ends after it. Fails: ends the process with one
/// sentence when there is no display.
Toolkit startToolkit(int& argc, char** argv);

/// The icon of the desktop's theme, else the program's own copy.
QIcon applicationIcon();
