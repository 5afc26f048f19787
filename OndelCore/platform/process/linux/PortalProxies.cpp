#include "OndelCore/platform/process/SystemCalls.h"
#include "OndelCore/platform/process/linux/DesktopProxies.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QStringList>

#include <chrono>

namespace OndelCore::platform {

/// Through a connection of its own: the shared one belongs to the main thread.
std::vector<std::string> portalProxies(const std::string& url, const std::string& bus) {
    constexpr std::chrono::milliseconds patience = std::chrono::seconds(10);
    const QString name = QString::fromStdString("proxies-" + newUuid());
    std::vector<std::string> proxies;
    {
        const QDBusConnection connection =
            bus.empty() ? QDBusConnection::connectToBus(QDBusConnection::SessionBus, name)
                        : QDBusConnection::connectToBus(QString::fromStdString(bus), name);
        auto question = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.portal.Desktop"),
                                                       QStringLiteral("/org/freedesktop/portal/desktop"),
                                                       QStringLiteral("org.freedesktop.portal.ProxyResolver"),
                                                       QStringLiteral("Lookup"));
        question << QString::fromStdString(url);
        const QDBusMessage answer =
            connection.call(question, QDBus::Block, static_cast<int>(patience.count()));
        if (answer.type() == QDBusMessage::ReplyMessage && answer.signature() == u"as")
            for (const QString& proxy : answer.arguments().at(0).toStringList())
                proxies.push_back(proxy.toStdString());
    }
    QDBusConnection::disconnectFromBus(name);
    return proxies;
}

} // namespace OndelCore::platform
