#pragma once

#include "OndelDesktop/ColorScheme.h"

#include <QDBusVariant>
#include <QObject>
#include <QString>

#include <functional>

namespace OndelDesktop {

/// The listening end of the desktop portal's settings.
class ColorSchemePortal final : public QObject {
    Q_OBJECT

public:
    explicit ColorSchemePortal(std::function<void(ColorScheme)> changed);

private:
    Q_SLOT void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);
    void ask();

    std::function<void(ColorScheme)> m_changed;
};

} // namespace OndelDesktop
