#pragma once

#include "OndelDesktop/OpenRequests.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusError>
#include <QDBusPendingCall>
#include <QObject>
#include <QVariantMap>

#include <optional>
#include <vector>

namespace OndelDesktop {

/// The application on the session bus, as the Desktop Entry standard describes it under "D-Bus
/// Activation".
class ApplicationBusAdaptor final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    ApplicationBusAdaptor(const QDBusConnection& bus, const QString& name);

    /// Whether this process owns the name. Fails: true when the bus does not answer.
    bool ownsName();
    /// Requests the name again, after its owner has gone.
    void askForName();
    /// Fails: the error of the last reply, also when nobody owns the name.
    QDBusError send(const OpenRequest& request, std::chrono::milliseconds patience);
    /// Fails: absent.
    std::optional<std::uint32_t> owner();
    void deliverTo(OpenRequests::Take take);
    void close();

    Q_SCRIPTABLE Q_SLOT void Activate(const QVariantMap& platformData);
    Q_SCRIPTABLE Q_SLOT void Open(const QStringList& uris, const QVariantMap& platformData);
    Q_SCRIPTABLE Q_SLOT void ActivateAction(const QString& name, const QVariantList& parameters,
                                            const QVariantMap& platformData);

private:
    void accept(OpenRequest request, const QVariantMap& platformData);

    std::vector<QDBusMessage> messagesFor(const OpenRequest& request) const;

    QDBusConnection m_bus;
    QString m_name;
    QString m_path;
    bool m_isClosed = false;
    std::optional<QDBusPendingCall> m_nameAnswer;
    OpenRequests::Take m_take;
    std::vector<OpenRequest> m_early;
};

} // namespace OndelDesktop
