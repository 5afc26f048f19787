#include "OndelAppSupport/SupportNudges.h"

#include "OndelAppSupport/ThirdPartyNotices.h"
#include "support/TemporaryFolder.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <fstream>

using namespace OndelAppSupport;

namespace {

const QString snoozedAt = "supportSnoozedAt", alreadySupported = "supportAlreadySupported";

struct Week {
    test::TemporaryFolder folder;
    QString file = QString::fromStdString((folder.path() / "settings.conf").string());
    QSettings defaults{file, QSettings::IniFormat};
    QDateTime time = QDateTime::fromString("2026-03-01T12:00:00Z", Qt::ISODate);

    std::unique_ptr<SupportNudges> nudges() {
        return std::make_unique<SupportNudges>(defaults, [this] { return time; });
    }
};

} // namespace

TEST(SupportNudges, FollowTheStoredDate) {
    const struct {
        QVariant stored;
        bool shows;
    } table[] = {
        {{}, true},
        {QVariant("yesterday"), true},
        {QVariant(12), true},
        {QVariant(QDateTime()), true},
        {Week().time, false},
        {Week().time.addMSecs(-604799999), false},
        {Week().time.addSecs(-604800), true},
        {Week().time.addSecs(-700000), true},
        {Week().time.addYears(1), false}, // longer than a timer's range
    };
    for (const auto& [stored, shows] : table) {
        Week week;
        if (stored.isValid())
            week.defaults.setValue(snoozedAt, stored);
        const auto nudges = week.nudges();
        EXPECT_EQ(nudges->showsNote(), shows) << stored.toString().toStdString();
        EXPECT_EQ(nudges->isWaiting(), !shows);
        EXPECT_FALSE(nudges->isSupporter());
    }
}

TEST(SupportNudges, ReturnAfterAWeek) {
    Week week;
    const auto nudges = week.nudges();
    int changes = 0;
    QObject::connect(nudges.get(), &SupportNudges::showsNoteChanged, [&] { ++changes; });
    nudges->notNow();
    EXPECT_FALSE(nudges->showsNote());
    EXPECT_EQ(QSettings(week.file, QSettings::IniFormat).value(snoozedAt).toDateTime(), week.time)
        << "not written to the file at once";
    week.time = week.time.addSecs(604799);
    nudges->applicationBecameActive();
    EXPECT_FALSE(nudges->showsNote());
    EXPECT_FALSE(week.nudges()->showsNote()) << "after a restart";
    week.time = week.time.addSecs(1);
    nudges->applicationBecameActive();
    EXPECT_TRUE(nudges->showsNote());
    EXPECT_FALSE(nudges->isWaiting());
    EXPECT_EQ(changes, 2);
}

TEST(SupportNudges, ReturnByTimer) {
    Week week;
    SupportNudges nudges(week.defaults, &QDateTime::currentDateTimeUtc, 0.05);
    nudges.notNow();
    while (!nudges.showsNote())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_FALSE(nudges.isWaiting());
}

TEST(SupportNudges, AreHiddenFromSupporters) {
    Week week;
    const auto nudges = week.nudges();
    nudges->setSupporter(true);
    EXPECT_FALSE(nudges->showsNote());
    nudges->notNow();
    EXPECT_EQ(week.defaults.value(snoozedAt).toDateTime(), week.time);
    EXPECT_FALSE(nudges->isWaiting());
    EXPECT_TRUE(QSettings(week.file, QSettings::IniFormat).value(alreadySupported).toBool());
    EXPECT_FALSE(week.nudges()->showsNote());
    week.time = week.time.addSecs(604800);
    nudges->setSupporter(false);
    EXPECT_TRUE(nudges->showsNote());
    week.defaults.setValue(alreadySupported, "nonsense");
    EXPECT_FALSE(week.nudges()->isSupporter());
}

TEST(SupportNudges, DismissTheNoteOnlyFromItsOwnButton) {
    Week week;
    const auto nudges = week.nudges();
    QList<QUrl> pages;
    QObject::connect(nudges.get(), &SupportNudges::pageWanted, [&](const QUrl& page) { pages << page; });
    nudges->openSupportPage(false);
    EXPECT_TRUE(nudges->showsNote());
    EXPECT_FALSE(week.defaults.contains(snoozedAt));
    nudges->openSupportPage(true);
    EXPECT_FALSE(nudges->showsNote());
    EXPECT_EQ(pages, QList<QUrl>({SupportNudges::supportURL(), SupportNudges::supportURL()}));
    EXPECT_EQ(pages[0].path(), "/support");
}

TEST(ThirdPartyNotices, AreReadFromTheFirstFolderThatHasThem) {
    const test::TemporaryFolder one, two;
    EXPECT_EQ(thirdPartyNotices({one.path(), two.path() / "none"}), std::nullopt);
    std::ofstream(two.path() / "ThirdPartyNotices.txt") << "text";
    EXPECT_EQ(thirdPartyNotices({one.path(), two.path() / "x" / ".."}), two.path() / "ThirdPartyNotices.txt");
    std::ofstream(one.path() / "ThirdPartyNotices.txt") << "text";
    EXPECT_EQ(thirdPartyNotices({one.path(), two.path()}), one.path() / "ThirdPartyNotices.txt");
    EXPECT_TRUE(thirdPartyNotices()) << "not found in the source tree";
}
