#include "Tarnwick/AppDelegate.h"

#include "OndelCore/platform/TerminationRequest.h"

#include <QCoreApplication>
#include <QSocketNotifier>

namespace fs = std::filesystem;

AppDelegate::AppDelegate() {
    m_model.setDialogs(&m_dialogs);
    // The reply follows the wait whatever the run's outcome was.
    connect(&m_end, &QFutureWatcher<void>::finished, this, [] { QCoreApplication::exit(0); });

    auto* notifier =
        new QSocketNotifier(OndelCore::platform::terminationRequestDescriptor(), QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this, notifier] {
        notifier->setEnabled(false);
        terminate();
    });
}

void AppDelegate::terminate() {
    if (std::exchange(m_terminating, true))
        return;
    if (m_model.isRunning())
        m_end.setFuture(m_model.cancelAndWait());
    else
        QCoreApplication::exit(0);
}

bool AppDelegate::select(const fs::path& folder) {
    std::error_code error;
    const fs::path absolute = fs::canonical(folder, error);
    if (error || !fs::is_directory(absolute, error))
        return false;
    m_model.select(absolute);
    return true;
}
