#include "OndelCore/platform/FakeUDisks.h"
#include "OndelCore/platform/process/linux/DesktopProxies.h"

#include <gtest/gtest.h>

using namespace OndelCore::platform;
using namespace Qt::StringLiterals;

namespace {

/// Answers every call with `m_answer`, and with the question behind it.
class FakePortal : public QDBusVirtualObject {
public:
    explicit FakePortal(QVariant answer)
        : m_answer(std::move(answer)) {}

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        QVariant answer = m_answer;
        if (answer.typeId() == QMetaType::QStringList)
            answer = answer.toStringList() << message.interface() << message.arguments().value(0).toString();
        return connection.send(message.createReply(answer));
    }

private:
    QVariant m_answer;
};

TEST(PortalProxies, AreWhatThePortalAnswers) {
    const test::PrivateBus bus;
    if (bus.address().empty())
        GTEST_SKIP() << "no message bus can be started";
    const std::string url = "https://host.example/path";
    EXPECT_TRUE(portalProxies(url, bus.address()).empty()) << "no portal";
    EXPECT_TRUE(portalProxies(url, "unix:path=/nonexistent").empty()) << "no bus";

    const std::vector<std::string> proxies{"http://a.example:1", "direct://",
                                           "org.freedesktop.portal.ProxyResolver", url};
    for (const auto& [answer, expected] :
         {std::pair(QVariant(QStringList{u"http://a.example:1"_s, u"direct://"_s}), proxies),
          std::pair(QVariant(5), std::vector<std::string>())}) {
        FakePortal portal(answer);
        const test::ServedObject served(bus.address(), u"org.freedesktop.portal.Desktop"_s,
                                        u"/org/freedesktop/portal/desktop"_s, portal);
        EXPECT_EQ(portalProxies(url, bus.address()), expected);
    }
}

} // namespace
