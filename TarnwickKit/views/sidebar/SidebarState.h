#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QSettings>

namespace TarnwickKit::views {

/// Which of the sidebar's sections are open. Stored in the user's settings.
class SidebarState : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(
        bool capabilitiesExpanded READ capabilitiesExpanded WRITE setCapabilitiesExpanded NOTIFY changed)
    Q_PROPERTY(bool healthExpanded READ healthExpanded WRITE setHealthExpanded NOTIFY changed)
public:
    using QObject::QObject;

    bool capabilitiesExpanded() const { return flag(capabilitiesKey, true); }
    void setCapabilitiesExpanded(bool expanded) { keep(capabilitiesKey, expanded); }
    bool healthExpanded() const { return flag(healthKey, false); }
    void setHealthExpanded(bool expanded) { keep(healthKey, expanded); }
    Q_SIGNAL void changed();

private:
    static constexpr const char* capabilitiesKey = "TarnwickCapabilitiesExpanded";
    static constexpr const char* healthKey = "TarnwickHealthExpanded";

    bool flag(const char* key, bool byDefault) const {
        return m_settings.value(QLatin1String(key), byDefault).toBool();
    }
    void keep(const char* key, bool value) {
        m_settings.setValue(QLatin1String(key), value);
        Q_EMIT changed();
    }

    QSettings m_settings;
};

} // namespace TarnwickKit::views
