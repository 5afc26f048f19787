#pragma once

#include "OndelAppSupport/UpdaterModel.h"
#include "support/HttpsServer.h"
#include "support/TemporaryFolder.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTimeZone>

#include <gtest/gtest.h>

namespace test {

using namespace OndelAppSupport;
using namespace Qt::StringLiterals;
using State = UpdaterController::State;
using Answer = HttpsServer::Answer;

/// Runs the main thread's events until `condition` holds.
template <typename Condition>
void waitUntil(Condition condition) {
    while (!condition())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

/// A server with a feed and one package, a signing key, and version 1.0 (build 10) on system 6.1.
class UpdaterTest : public testing::Test {
protected:
    UpdaterTest() {
        environment.settings = &settings;
        environment.folder = [this] { return std::optional(folder.path()); };
        environment.now = [this] { return now; };
        environment.isBusy = [this] { return isBusy; };
        environment.openPackage = [this](const QUrl& url) {
            opened.append(url);
            return true;
        };
        environment.authorities = HttpsServer::authorities();
        environment.platforms = {u"linux"_s, u"linux-x86_64"_s};
        environment.systemVersion = u"6.1.0-38-amd64"_s;
        configure(server.url(u"/feed"_s), publicKey());
    }

    void configure(const QUrl& feed, const QString& key) {
        environment.build = InformationDictionary({{u"SUFeedURL"_s, feed.toString()},
                                                   {u"SUPublicEDKey"_s, key},
                                                   {u"CFBundleVersion"_s, u"10"_s},
                                                   {u"CFBundleShortVersionString"_s, u"1.0"_s}});
    }

    /// For the commands of CONTRIBUTING.md.
    QString shell(const QString& command) const {
        QProcess process;
        process.setWorkingDirectory(QString::fromStdString(secrets.path().string()));
        process.start(u"sh"_s, {u"-c"_s, command});
        process.waitForFinished(-1);
        return QString::fromUtf8(process.readAllStandardOutput()).simplified();
    }
    QString publicKey() const {
        return shell(u"[ -e key.pem ] || openssl genpkey -algorithm ed25519 -out key.pem; "
                     "openssl pkey -in key.pem -pubout -outform DER | tail -c 32 | base64"_s);
    }
    QString sign(const QByteArray& content) const {
        QFile file(QString::fromStdString((secrets.path() / "package").string()));
        if (file.open(QIODevice::WriteOnly))
            file.write(content);
        file.close();
        return shell(u"openssl pkeyutl -sign -rawin -inkey key.pem -in package | base64 -w 0"_s);
    }

    /// A feed of one item, with `extra` in it and the attributes of its enclosure.
    static QByteArray
    feed(const QString& attributes, const QString& version = u"11"_s,
         const QString& extra = u"<description>&lt;p&gt;Better.&lt;/p&gt;</description>"_s) {
        return u"<?xml version='1.0' encoding='utf-8'?><rss version='2.0' "
               u"xmlns:s='%1'><channel><title>T</title>"
               "<item><title>t</title><s:version>%2</s:version><s:shortVersionString>1.1</"
               "s:shortVersionString>"
               "%3<enclosure type='application/octet-stream' %4/></item></channel></rss>"_s
                   .arg(u"http://www.andymatuschak.org/xml-namespaces/sparkle"_s, version, extra, attributes)
                   .toUtf8();
    }
    QString enclosure(qint64 length, const QString& signature, const QString& platform = u"linux"_s) const {
        return u"url='%1' length='%2' s:os='%3' s:edSignature='%4'"_s.arg(
            server.url(u"/files/tarnwick_1.1_amd64.deb"_s).toString(), QString::number(length), platform,
            signature);
    }

    State checkByHand(UpdaterModel& model) {
        model.checkForUpdates();
        EXPECT_FALSE(model.canCheckForUpdates());
        waitUntil([&] { return model.canCheckForUpdates(); });
        return model.controller()->state();
    }

    State load(UpdaterModel& model, qint64 length, const QString& signature) {
        server.script("/feed", {200, feed(enclosure(length, signature))});
        EXPECT_EQ(checkByHand(model), State::Available);
        UpdaterController& updater = *model.controller();
        updater.install();
        waitUntil([&] { return updater.state() >= State::Opened; });
        return updater.state();
    }

    const QByteArray package = QByteArray("package ").repeated(40'000);
    const QString anySignature = QString::fromLatin1(QByteArray(64, 'x').toBase64());
    TemporaryFolder folder;
    TemporaryFolder secrets;
    QSettings settings{QString::fromStdString((secrets.path() / "settings.ini").string()),
                       QSettings::IniFormat};
    HttpsServer server;
    QDateTime now = QDateTime(QDate(2026, 3, 1), QTime(12, 0), QTimeZone::utc());
    bool isBusy = false;
    QList<QUrl> opened;
    UpdaterEnvironment environment;
};

} // namespace test
