#include "OndelAppSupport/UpdaterModel.h"

namespace OndelAppSupport {

namespace {

bool hasFeedAndKey(const InformationDictionary& build) {
    return !build.string(QStringLiteral("SUPublicEDKey")).value_or(QString()).isEmpty() &&
           !build.string(QStringLiteral("SUFeedURL")).value_or(QString()).isEmpty();
}

} // namespace

UpdaterModel::UpdaterModel(UpdaterEnvironment environment, QObject* parent)
    : QObject(parent)
    , m_isConfigured(hasFeedAndKey(environment.build))
    , m_controller(std::move(environment)) {
    connect(&m_controller, &UpdaterController::automaticallyChecksForUpdatesChanged, this,
            &UpdaterModel::automaticallyChecksForUpdatesChanged);
    if (!m_isConfigured)
        return;
    m_controller.start();
    m_canCheckForUpdates = m_controller.canCheckForUpdates();
    connect(&m_controller, &UpdaterController::stateChanged, this, [this] {
        if (std::exchange(m_canCheckForUpdates, m_controller.canCheckForUpdates()) != m_canCheckForUpdates)
            Q_EMIT canCheckForUpdatesChanged();
    });
}

} // namespace OndelAppSupport
