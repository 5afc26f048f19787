#include "OndelAppSupport/updates/UpdaterHarness.h"

#include <QStringEncoder>
#include <QTcpServer>
#include <QTcpSocket>

#include <functional>

using namespace test;
using enum Answer::Ending;

namespace {

QByteArray entityBomb() {
    QByteArray bomb = "<?xml version='1.0'?><!DOCTYPE rss [<!ENTITY a 'aaaaaaaaaa'>";
    for (char c = 'b'; c < 'm'; ++c)
        bomb +=
            QByteArray("<!ENTITY ") + c + " '" + (QByteArray("&") + char(c - 1) + ';').repeated(10) + "'>";
    return bomb + "]><rss><channel><item><title>&l;</title></item></channel></rss>";
}

QByteArray utf16(const QByteArray& utf8) {
    return QStringEncoder(QStringConverter::Utf16, QStringConverter::Flag::WriteBom)
        .encode(QString::fromUtf8(utf8));
}

} // namespace

TEST_F(UpdaterTest, ReadsOrRejectsFeeds) {
    const QString good = enclosure(9, anySignature);
    const QByteArray valid = feed(good);
    const QByteArray nested = feed(good, u"11"_s, u"<description>"_s + u"<b>"_s.repeated(150'000));
    QString attributes = good;
    QString inner = u"<description>"_s;
    for (int i = 0; i < 20'000; ++i) { // quadratic time in the XML reader: half a minute each
        attributes += u" a%1='>'"_s.arg(i);
        inner += u"<b xmlns:n%1='x'>"_s.arg(i);
    }
    inner += u"</b>"_s.repeated(20'000) + u"</description>"_s;
    const QByteArray second = feed(enclosure(9, {}), u"12"_s);
    const QByteArray below = QByteArray(valid).replace(
        "<item>", second.mid(second.indexOf("<item>")).replace("</channel></rss>", "<item>"));
    const auto minimum = [&](const char* version) {
        return feed(good, u"11"_s,
                    u"<s:minimumSystemVersion>%1</s:minimumSystemVersion>"_s.arg(QLatin1String(version)));
    };
    HttpsServer other;
    HttpsServer impostor(HttpsServer::Certificate::forAnotherHost);
    other.script("/moved", {200, valid});
    impostor.script("/feed", {200, valid});
    const auto redirect = [](const QString& to, int status = 302) {
        return Answer{status, "moved", {{"Location", to.toUtf8()}}};
    };
    struct Case {
        const char* name;
        Answer answer;
        QString says; ///< part of the failure, or the state
    };
    const Case cases[]{
        {"newer", {200, valid}, u"Available"_s},
        {"newer for this processor",
         {200, feed(enclosure(9, anySignature, u"Linux-x86_64"_s))},
         u"Available"_s},
        {"minimum system version met", {200, minimum("6.1")}, u"Available"_s},
        {"redirect to another host", redirect(other.url(u"/moved"_s).toString()), u"Available"_s},
        {"newest without signature, next one complete", {200, below}, u"Available"_s},
        {"in UTF-16", {200, utf16(valid)}, u"Available"_s},
        {"in Latin-1",
         {200, QByteArray(valid).replace("utf-8", "iso-8859-1").replace("Better", "B\xe4tter")},
         u"Available"_s},
        {"the same", {200, feed(good, u"10.0"_s)}, u"UpToDate"_s},
        {"older", {200, feed(good, u"9.9.9"_s)}, u"UpToDate"_s},
        {"before the release", {200, feed(good, u"10rc3"_s)}, u"UpToDate"_s},
        {"another platform", {200, feed(enclosure(9, anySignature, u"windows"_s))}, u"UpToDate"_s},
        {"another processor", {200, feed(enclosure(9, anySignature, u"linux-arm64"_s))}, u"UpToDate"_s},
        {"no platform", {200, feed(enclosure(9, anySignature, {}))}, u"UpToDate"_s},
        {"minimum system version not met", {200, minimum("6.2")}, u"UpToDate"_s},
        {"beta channel", {200, feed(good, u"11"_s, u"<s:channel>beta</s:channel>"_s)}, u"UpToDate"_s},
        {"no items", {200, "<rss version='2.0'><channel/></rss>"}, u"UpToDate"_s},
        {"no signature", {200, feed(enclosure(9, {}))}, u"safely"_s},
        {"signature too short", {200, feed(enclosure(9, anySignature.chopped(8)))}, u"safely"_s},
        {"no length", {200, feed(enclosure(0, anySignature))}, u"safely"_s},
        {"absurd length", {200, feed(enclosure(qint64{1} << 40, anySignature))}, u"safely"_s},
        {"package over http", {200, QByteArray(valid).replace("url='https", "url='http")}, u"safely"_s},
        {"truncated XML", {200, valid.chopped(40)}, u"read"_s},
        {"not a feed", {200, "<html><body>Log in</body></html>"}, u"read"_s},
        {"empty", {200, ""}, u"read"_s},
        {"entity bomb", {200, entityBomb()}, u"read"_s},
        {"nesting deeper than the stack", {200, nested}, u"read"_s},
        {"too many attributes", {200, feed(attributes)}, u"read"_s},
        {"too many namespaces", {200, feed(good, u"11"_s, inner)}, u"read"_s},
        {"cut connection", {200, valid, {}, cut}, u"reached"_s},
        {"cut before the head", {0, "", {}, cut}, u"reached"_s},
        {"endless", {200, valid, {}, endless}, u"reached"_s},
        {"never answers", {0, "", {}, silence}, u"reached"_s},
        {"silent after the body", {200, valid, {}, silence}, u"reached"_s},
        {"server error", {500, valid}, u"reached"_s},
        {"no content", {204, ""}, u"reached"_s},
        {"redirect to http", redirect(QString(other.url().toString()).replace(u"https"_s, u"http"_s)),
         u"reached"_s},
        {"redirect loop", redirect(server.url(u"/feed"_s).toString()), u"reached"_s},
        {"redirect to a host with a wrong certificate", redirect(impostor.url(u"/feed"_s).toString()),
         u"reached"_s},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        server.script("/feed", c.answer);
        environment.patience = std::chrono::milliseconds(c.answer.ending == silence ? 60 : 60'000);
        UpdaterModel model(environment);
        const State state = checkByHand(model);
        const QString failure = model.controller()->failure();
        if (state == State::Failed)
            EXPECT_TRUE(failure.contains(c.says)) << qPrintable(failure);
        else
            EXPECT_EQ(QVariant::fromValue(state).toString(), c.says);
    }
    EXPECT_EQ(other.connections(), 1);
    EXPECT_TRUE(impostor.requests().empty());

    environment.authorities.reset(); // an unknown authority
    UpdaterModel distrusting(environment);
    EXPECT_EQ(checkByHand(distrusting), State::Failed);
    configure(QUrl(u"http://127.0.0.1/feed"_s), publicKey());
    UpdaterModel insecure(environment);
    EXPECT_EQ(checkByHand(insecure), State::Failed);
}

TEST_F(UpdaterTest, ABuildWithoutFeedOrKeyContactsNoServer) {
    for (const auto& [url, key] : {std::pair{server.url(u"/feed"_s), QString()}, {QUrl(), publicKey()}}) {
        configure(url, key);
        UpdaterModel model(environment);
        model.setAutomaticallyChecksForUpdates(true);
        EXPECT_FALSE(model.isConfigured());
        EXPECT_FALSE(model.canCheckForUpdates());
        model.checkForUpdates();
        model.controller()->checkIfDue();
        EXPECT_EQ(model.controller()->state(), State::Idle);
    }
    configure(server.url(u"/feed"_s), publicKey());
    UpdaterModel configured(environment);
    checkByHand(configured);
    EXPECT_EQ(server.connections(), 1);
}

TEST_F(UpdaterTest, ChecksOnceADayWhenAllowed) {
    server.script("/feed", {200, feed({}, u"9"_s)});
    UpdaterModel model(environment);
    UpdaterController& updater = *model.controller();
    qsizetype expected = 0;
    const auto tick = [&](bool looks) {
        updater.checkIfDue();
        if (looks) {
            ++expected;
            waitUntil([&] { return settings.value(u"updatesCheckedAt"_s).toDateTime() == now; });
        }
        EXPECT_EQ(server.requests().size(), expected) << qPrintable(now.toString());
        EXPECT_EQ(updater.state(), State::Idle);
    };
    tick(false); // the first start does not ask yet
    updater.checkIfDue();
    EXPECT_EQ(updater.state(), State::Asking);
    updater.allowAutomaticChecks(true);
    EXPECT_TRUE(model.automaticallyChecksForUpdates());
    tick(true);
    const std::pair<qint64, bool> days[]{{0, false},     {86'399, false}, {1, true},
                                         {86'400, true}, {-3600, true}, // set back
                                         {3600, false},  {90'000, true}};
    for (const auto& [seconds, looks] : days) {
        now = now.addSecs(seconds);
        tick(looks);
    }
    now = now.addDays(1);
    isBusy = true;
    tick(false);
    isBusy = false;
    model.setAutomaticallyChecksForUpdates(false);
    tick(false);
    checkByHand(model);
    EXPECT_EQ(server.requests().size(), expected + 1); // no other check was running
}

TEST_F(UpdaterTest, AnAutomaticCheckOffersNewVersionsUnlessSkipped) {
    UpdaterModel model(environment);
    UpdaterController& updater = *model.controller();
    model.setAutomaticallyChecksForUpdates(true);
    const auto look = [&](const Answer& answer) {
        server.script("/feed", answer);
        now = now.addDays(1);
        const qsizetype before = server.requests().size();
        updater.checkIfDue();
        waitUntil([&] { return server.requests().size() > before && !updater.isWorking(); });
        return updater.state();
    };
    const QString good = enclosure(9, anySignature);
    EXPECT_EQ(look({500, ""}), State::Idle);
    EXPECT_EQ(look({200, feed(good, u"10"_s)}), State::Idle);
    EXPECT_EQ(look({200, feed(good)}), State::Available);
    EXPECT_EQ(updater.newVersion(), u"1.1"_s);
    EXPECT_EQ(updater.notes(), u"Better."_s);
    updater.dismiss(); // later
    EXPECT_EQ(look({200, feed(good)}), State::Available);
    updater.skipVersion();
    EXPECT_EQ(look({200, feed(good)}), State::Idle);
    EXPECT_EQ(checkByHand(model), State::Available);
    updater.skipVersion();
    EXPECT_EQ(look({200, feed(good, u"12"_s)}), State::Available);
    for (const auto& request : server.requests())
        EXPECT_EQ(request.path, "/feed"); // no package without the user's consent
}

TEST_F(UpdaterTest, AManualCheckTakesOverAnAutomaticOne) {
    server.script("/feed", {0, "", {}, silence});
    UpdaterModel model(environment);
    UpdaterController& updater = *model.controller();
    model.setAutomaticallyChecksForUpdates(true);
    updater.checkIfDue();
    EXPECT_TRUE(model.canCheckForUpdates());
    waitUntil([&] { return server.requests().size() == 1; });
    model.checkForUpdates();
    EXPECT_EQ(updater.state(), State::Checking);
    updater.dismiss();
    EXPECT_EQ(updater.state(), State::Idle);
    server.script("/feed", {200, feed({}, u"9"_s)});
    EXPECT_EQ(checkByHand(model), State::UpToDate);
    EXPECT_EQ(server.requests().size(), 2);
}

TEST_F(UpdaterTest, StopsReadingAFeed) {
    const QByteArray valid = feed(enclosure(9, anySignature));
    std::stop_source stop;
    EXPECT_TRUE(updates::readAppcast(valid, stop.get_token()));
    stop.request_stop();
    EXPECT_FALSE(updates::readAppcast(valid, stop.get_token()));
}

// Proxy settings may name a script on a server. The wait for it cannot be interrupted.
TEST_F(UpdaterTest, AbandonsALookUpOfProxiesThatHangs) {
    QTcpServer silent;
    ASSERT_TRUE(silent.listen(QHostAddress::LocalHost));
    QList<QTcpSocket*> heard;
    QObject::connect(&silent, &QTcpServer::newConnection,
                     [&] { heard.append(silent.nextPendingConnection()); });
    qputenv("https_proxy", "pac+http://127.0.0.1:" + QByteArray::number(silent.serverPort()) + "/x.pac");
    {
        UpdaterModel model(environment);
        UpdaterController& updater = *model.controller();
        for (const int checks : {1, 2}) {
            model.checkForUpdates();
            waitUntil([&] { return heard.size() == checks; });
            updater.dismiss();
            EXPECT_EQ(updater.state(), State::Idle);
        }
        environment.patience = std::chrono::milliseconds(40);
        UpdaterModel impatient(environment);
        EXPECT_EQ(checkByHand(impatient), State::Failed);
        impatient.controller()->checkForUpdates();
        EXPECT_EQ(impatient.controller()->state(), State::Checking);
    }
    qunsetenv("https_proxy");
    EXPECT_EQ(server.connections(), 0);
}

TEST_F(UpdaterTest, LimitsTheSizeOfAProxysHead) {
    QTcpServer proxy;
    ASSERT_TRUE(proxy.listen(QHostAddress::LocalHost));
    qint64 sent = 0;
    QObject::connect(&proxy, &QTcpServer::newConnection, [&] {
        QTcpSocket* socket = proxy.nextPendingConnection();
        const auto feed = [socket] { socket->write(QByteArray("X-Filler: filler\r\n").repeated(1 << 12)); };
        QObject::connect(socket, &QTcpSocket::bytesWritten, [&sent, socket, feed](qint64 bytes) {
            if ((sent += bytes) < Answer::muchBytes)
                feed();
            else
                socket->disconnectFromHost();
        });
        socket->write("HTTP/1.1 200 Connected\r\n");
    });
    qputenv("https_proxy", "http://127.0.0.1:" + QByteArray::number(proxy.serverPort()));
    UpdaterModel model(environment);
    EXPECT_EQ(checkByHand(model), State::Failed);
    qunsetenv("https_proxy");
    EXPECT_GT(sent, 0);
    EXPECT_LT(sent, 16 << 20);
}
