#include "OndelAppSupport/updates/PlainNotes.h"
#include "OndelAppSupport/updates/UpdaterHarness.h"
#include "OndelAppSupport/updates/VersionOrder.h"

#include <QFileInfo>
#include <QStringList>

#include <gtest/gtest.h>

namespace fs = std::filesystem;
using namespace test;
using enum Answer::Ending;
using namespace OndelAppSupport::updates;
using namespace Qt::StringLiterals;

TEST_F(UpdaterTest, OpensOnlyVerifiedPackages) {
    const QString signature = sign(package);
    const QString forged = sign(package + 'x');
    QByteArray altered = package;
    altered[7] = '!';
    struct Case {
        const char* name;
        Answer answer;
        QString failsWith; ///< part of the failure; "" for success
        QString signature;
        qint64 stated;
    };
    const qint64 size = package.size();
    const Answer good{200, package};
    const Case cases[]{
        {"good", good, {}, signature, size},
        {"redirect", {302, "", {{"Location", "/elsewhere"}}}, {}, signature, size},
        {"signature of other content", good, u"signed"_s, forged, size},
        {"not a signature", good, u"signed"_s, anySignature, size},
        {"altered", {200, altered}, u"signed"_s, signature, size},
        {"shorter than stated", good, u"as long"_s, signature, size + 1},
        {"longer than stated", good, u"as long"_s, signature, size - 1},
        {"endless", {200, package, {}, endless}, u"as long"_s, signature, size},
        {"empty", {200, ""}, u"as long"_s, signature, size},
        {"cut", {200, package.chopped(1), {}, cut}, u"downloaded"_s, signature, size},
        {"silent", {200, package.chopped(1), {}, silence}, u"downloaded"_s, signature, size},
        {"not found", {404, package}, u"downloaded"_s, signature, size},
        {"to http", {302, "", {{"Location", "http://127.0.0.1/"}}}, u"downloaded"_s, signature, size},
    };
    server.script("/elsewhere", good);
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        opened.clear();
        server.script("/files/tarnwick_1.1_amd64.deb", c.answer);
        environment.patience = std::chrono::seconds(c.answer.ending == silence ? 1 : 60);
        UpdaterModel model(environment);
        const UpdaterController& updater = *model.controller();
        EXPECT_EQ(load(model, c.stated, c.signature), c.failsWith.isEmpty() ? State::Opened : State::Failed);
        const fs::path place = folder.path() / "update";
        if (c.failsWith.isEmpty()) {
            EXPECT_EQ(updater.loaded(), static_cast<double>(size));
            ASSERT_EQ(opened.size(), 1);
            QFile file(opened.first().toLocalFile());
            EXPECT_EQ(file.fileName().toStdString(), (place / "tarnwick_1.1_amd64.deb").string());
            ASSERT_TRUE(file.open(QIODevice::ReadOnly));
            EXPECT_EQ(file.readAll(), package);
            EXPECT_EQ(file.permissions() & (QFile::ExeOwner | QFile::ReadGroup | QFile::ReadOther), 0);
        } else {
            EXPECT_TRUE(updater.failure().contains(c.failsWith)) << qPrintable(updater.failure());
            EXPECT_TRUE(opened.empty());
            EXPECT_TRUE(fs::is_empty(place));
        }
    }
}

TEST_F(UpdaterTest, ReportsWhatPreventsAnInstallation) {
    const QString signature = sign(package);
    server.script("/files/tarnwick_1.1_amd64.deb", {200, package});
    const QString key = publicKey();
    const auto failsWith = [&](const char* words) {
        UpdaterModel model(environment);
        EXPECT_EQ(load(model, package.size(), signature), State::Failed);
        EXPECT_TRUE(model.controller()->failure().contains(QLatin1String(words)))
            << qPrintable(model.controller()->failure());
    };
    environment.openPackage = [](const QUrl&) { return false; };
    failsWith("opens");
    for (const QString& wrong : {key.chopped(4), key + key, u"no key"_s}) {
        configure(server.url(u"/feed"_s), wrong);
        failsWith("signed");
    }
    configure(server.url(u"/feed"_s), key);
    environment.folder = [this] { return std::optional(folder.path() / "missing"); };
    failsWith("written");
    environment.folder = []() -> std::optional<fs::path> { return std::nullopt; };
    failsWith("written");
}

TEST_F(UpdaterTest, AStoppedDownloadLeavesNoFile) {
    server.script("/feed", {200, feed(enclosure(package.size() + 1, anySignature))});
    server.script("/files/tarnwick_1.1_amd64.deb", {200, package, {}, silence});
    const auto isThere = [this] {
        const fs::path place = folder.path() / "update";
        return std::any_of(fs::directory_iterator(place), fs::directory_iterator(),
                           [](const auto& entry) { return entry.path().extension() == ".part"; });
    };
    for (const bool byQuitting : {false, true}) {
        std::optional<UpdaterModel> model(std::in_place, environment);
        UpdaterController& updater = *model->controller();
        checkByHand(*model);
        updater.install();
        waitUntil([&] { return updater.loaded() == static_cast<double>(package.size()); });
        EXPECT_TRUE(isThere());
        int wanted = 0;
        QObject::connect(&updater, &UpdaterController::attentionWanted, [&] { ++wanted; });
        model->checkForUpdates();
        EXPECT_EQ(wanted, 1);
        if (!byQuitting) {
            updater.dismiss();
            EXPECT_EQ(updater.state(), State::Idle);
        }
        model.reset();
        EXPECT_FALSE(isThere());
    }
}

TEST(VersionOrder, OrdersVersions) {
    // Versions ascend from left to right within a line; "=" joins equal ones.
    const QStringList lines{
        u"0.9 1 1.2=1.2.0=v1.2=1.02 1.2.0.1 1.9 1.10 2"_s,
        u"2.0a=2.0-A 2.0.0a1 2.0b2 2.0b10 2.0rc1 2.0.0=2.0=2.0+build.7 2.0.1-rc1 2.0.1"_s,
        u"=0=0.0=.=+x 0.0.1 99999999999999999999 100000000000000000000"_s,
    };
    for (const QString& line : lines) {
        const QStringList groups = line.split(u' ');
        for (qsizetype i = 0; i < groups.size(); ++i)
            for (qsizetype j = 0; j < groups.size(); ++j)
                for (const QString& left : groups[i].split(u'='))
                    for (const QString& right : groups[j].split(u'='))
                        EXPECT_EQ(compareVersions(left, right), std::weak_ordering(i <=> j))
                            << qPrintable(left) << " and " << qPrintable(right);
    }
}

TEST(PlainNotes, KeepsOnlyTheText) {
    const std::pair<QString, QString> cases[]{
        {u"<h2>New</h2>\n<ul>\n <li>One</li>\n <li>Two &amp; <b>three</b></li>\n</ul><p>Bye<br>now"_s,
         u"New\n• One\n• Two & three\n\nBye\nnow"_s},
        {u"a<script>alert('<b>')</script>b<STYLE>x</STYLE >c<img src='http://x/y.png'>d"_s, u"abcd"_s},
        {u"1 < 2 && 3 > 2 &lt;b&gt; &#65;&#x42; &nosuch; &#0; &#xD800;"_s,
         u"1 < 2 && 3 > 2 <b> AB &nosuch; &#0; &#xD800;"_s},
        {u"<!-- <p>no</p> -->yes<!-- never closed"_s, u"yes"_s},
        {u"cut <a href='x"_s, u"cut"_s},
        {u"&#x202e;turned\u0007"_s, u"turned"_s},
    };
    for (const auto& [html, words] : cases)
        EXPECT_EQ(showableNotes(plainNotes(html)), words);
    EXPECT_EQ(showableNotes(QString(1 << 20, u'x')).size(), 20'001);
}
