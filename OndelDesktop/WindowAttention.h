#pragma once

#include <string>

class QWindow;

namespace OndelDesktop {

/// Marks the window as one that wants to be looked at, where the desktop did not let it come to the front.
/// `applicationId` names the desktop entry. Threads: the main one; does not wait. Fails: silently.
void askForAttention(QWindow* window, const std::string& applicationId);

} // namespace OndelDesktop
