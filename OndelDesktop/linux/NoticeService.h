#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QString>

#include <functional>
#include <string>

namespace OndelDesktop {

/// The desktop's notices: its own service, which tells when one is pressed, else the portal, which then asks
/// the application to come to the front as others do.
class NoticeService final : public QObject {
    Q_OBJECT

public:
    NoticeService(QString applicationId, QString applicationName,
                  std::function<void(const std::string& activationToken)> chosen);

    void show(const QString& title, const QString& text);
    void withdraw();

private:
    Q_SLOT void actionInvoked(uint id, const QString& action);
    Q_SLOT void activationToken(uint id, const QString& token);

    void listen();
    QDBusMessage notify(const QString& title, const QString& text) const;
    void addToPortal(const QString& title, const QString& text);

    QString m_applicationId;
    QString m_applicationName;
    std::function<void(const std::string& activationToken)> m_chosen;
    QDBusConnection m_bus;
    bool m_isListening = false;
    bool m_isWanted = false; ///< the answer to the last question may be under way
    bool m_isInPortal = false;
    uint m_id = 0; ///< the service's; 0: none is up
    QString m_token;
};

} // namespace OndelDesktop
