#pragma once

#include <QApplication>

#include <memory>

/// The application object, on the display that there is, with the renderer that suits the machine.
/// Owner: `argc` and `argv` outlive it. Fails: ends the process with one sentence when there is no display.
std::unique_ptr<QApplication> startToolkit(int& argc, char** argv);

/// The icon of the desktop's theme, else the program's own copy.
QIcon applicationIcon();
