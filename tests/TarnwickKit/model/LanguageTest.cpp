#include "TarnwickKit/model/language/Language.h"

#include "TarnwickKit/model/capacity/CapacityText.h"
#include "TarnwickKit/model/format/Format.h"
#include "TarnwickKit/model/format/RemarkText.h"
#include "TarnwickKit/model/runs/Comparison.h"
#include "support/Program.h"
#include "support/TemporaryFolder.h"

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <functional>
#include <map>
#include <thread>

namespace TarnwickKit::model {

namespace {

using namespace Qt::StringLiterals;
using Variables = std::map<std::string, QString>;

QString blockSize() { return QCoreApplication::translate("HostFacts", "Block size"); }
QString throughput() { return QCoreApplication::translate("RunChart", "Throughput over time"); }

/// What `say` returns in a process of its own, where it may choose a language; "crashed" if that does not
/// end.
QString inChild(const std::function<QString()>& say) {
    int ends[2] = {};
    if (pipe(ends) != 0)
        return u"no pipe"_s;
    const pid_t child = fork();
    if (child == 0) {
        const QByteArray said = say().toUtf8();
        const bool isSaid =
            write(ends[1], said.constData(), static_cast<std::size_t>(said.size())) == said.size();
        _exit(isSaid ? 0 : 1);
    }
    close(ends[1]);
    QFile heard;
    const bool isOpen = heard.open(ends[0], QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
    const QString said = isOpen ? QString::fromUtf8(heard.readAll()) : QString();
    int status = -1;
    return waitpid(child, &status, 0) == child && status == 0 ? said : u"crashed"_s;
}

TEST(Language, FollowsTheEnvironment) {
    struct {
        Variables environment;
        QStringList wanted;
        QString best;
    } const cases[] = {
        {{}, {}, u"en"_s},
        {{{"LANG", "C"}}, {}, u"en"_s},
        {{{"LANG", "C.UTF-8"}, {"LANGUAGE", "de"}}, {}, u"en"_s},
        {{{"LANG", "de_DE.UTF-8"}, {"LC_ALL", "POSIX"}}, {}, u"en"_s},
        {{{"LANG", "de_AT.UTF-8@euro"}}, {"de_AT"}, u"de"_s},
        {{{"LANG", "de_DE.UTF-8"}, {"LC_MESSAGES", "fr_FR.UTF-8"}}, {"fr_FR"}, u"fr"_s},
        {{{"LANG", "de_DE"}, {"LC_MESSAGES", "fr_FR"}, {"LC_ALL", "it_IT"}}, {"it_IT"}, u"it"_s},
        {{{"LC_NUMERIC", "de_DE"}, {"LC_TIME", "de_DE"}}, {}, u"en"_s},
        {{{"LC_NUMERIC", "de_DE"}, {"LANG", "fr_FR"}}, {"fr_FR"}, u"fr"_s},
        {{{"LANG", "en_GB"}, {"LANGUAGE", "xx::pl_PL.UTF-8:de"}}, {"xx", "pl_PL", "de", "en_GB"}, u"pl"_s},
        {{{"LANG", "de_DE"}, {"LANGUAGE", "en:de"}}, {"en", "de", "de_DE"}, u"en"_s},
        {{{"LANG", "de_DE"}, {"LANGUAGE", "C:de"}}, {"C", "de", "de_DE"}, u"en"_s},
        {{{"LANGUAGE", "de"}}, {}, u"en"_s},
        {{{"LANG", "xx_YY.UTF-8"}}, {"xx_YY"}, u"en"_s},
    };
    for (const auto& [environment, wanted, best] : cases) {
        const auto value = [&](const char* name) {
            return environment.contains(name) ? environment.at(name) : QString();
        };
        const QStringList found = Language::wanted(value);
        EXPECT_EQ(found, wanted) << found.join(u' ').toStdString();
        EXPECT_EQ(Language::best(found), best) << found.join(u' ').toStdString();
    }
}

TEST(Language, TakesTheNearestCatalogue) {
    const std::pair<QStringList, const char*> cases[] = {
        {{}, "en"},
        {{""}, "en"},
        {{"@"}, "en"},
        {{"de_AT.UTF-8@euro"}, "de"},
        {{"de-CH"}, "de"},
        {{"pt_PT"}, "pt_BR"},
        {{"pt"}, "pt_BR"},
        {{"iw_IL"}, "he"},
        {{"zh"}, "zh_CN"},
        {{"zh_SG"}, "zh_CN"},
        {{"zh_Hans_HK"}, "zh_CN"},
        {{"zh_TW"}, "en"},
        {{"zh_Hant"}, "en"},
        {{"zh_HK", "ja_JP"}, "ja"},
        {{"zh-Hant-TW", "zh_CN"}, "zh_CN"},
        {{"english", "deutsch", "d", "_DE", "../../de", "%n", "e\u0301"}, "en"},
        {{QString(10000, u'd'), u"fr"_s}, "fr"},
        {{QString(10000, u'_')}, "en"},
    };
    for (const auto& [wanted, code] : cases)
        EXPECT_EQ(Language::best(wanted), code) << wanted.join(u' ').left(80).toStdString();
}

TEST(Language, HasEachCatalogue) {
    EXPECT_EQ(blockSize(), "Block size");
    for (const Language::Choice& language : Language::all()) {
        const QString said = inChild([&] {
            const QString code = Language::install(language.code);
            return QStringList{code, Language::isRightToLeft() ? u"left"_s : u"right"_s, Format::block(4096),
                               blockSize()}
                .join(u'|');
        });
        const bool isToTheLeft = language.code == u"ar" || language.code == u"he";
        const QString beginning =
            language.code + (isToTheLeft ? u"|left|\u20664 KiB\u2069|"_s : u"|right|4 KiB|"_s);
        EXPECT_TRUE(said.startsWith(beginning) && said != beginning) << said.toStdString();
        EXPECT_EQ(said.endsWith(u"|Block size"), language.code == u"en") << said.toStdString();
    }
}

/// The texts in which figures have units.
QStringList textsWithUnits() {
    using namespace OndelCore::benchmark;
    QStringList texts{Format::percent(u"40"_s),
                      ComparisonChart::differenceText(-0.042),
                      ComparisonChart::differenceText(1000),
                      spanText(4.2),
                      spanText(30),
                      spanText(7500),
                      decimalSize(31'400'000'000)};
    for (int code = 0; code <= static_cast<int>(RemarkCode::throughPortal); ++code)
        for (const double number : {0.5, 1.0, 20.0}) {
            Remark remark{.code = static_cast<RemarkCode>(code), .test = BenchmarkTest::sequentialWrite};
            remark.numbers.assign(numbersOf(remark.code), number);
            texts << remarkSentence(remark);
        }
    return texts;
}

/// Without what stands between marks of direction, which may be nested.
QString outsideOfIsolates(const QString& text) {
    QString outside;
    int depth = 0;
    for (const QChar letter : text) {
        depth += letter == QChar(0x2066);
        if (depth == 0)
            outside += letter;
        depth -= letter == QChar(0x2069);
    }
    return outside;
}

TEST(Language, KeepsUnitsBehindTheirFiguresFromRightToLeft) {
    for (const QString& code : {u"ar"_s, u"he"_s}) {
        const QString said = inChild([&] {
            Language::install(code);
            return textsWithUnits().join(u'\n');
        });
        EXPECT_GT(said.count(QChar(0x2066)), 20) << said.toStdString();
        static const QRegularExpression apart(
            u"[0-9][ \u00a0][%°A-Za-z]"_s); // a blank lets them change places
        for (const QString& text : said.split(u'\n'))
            EXPECT_FALSE(outsideOfIsolates(text).contains(apart)) << text.toStdString();
    }
    const QString turkish = inChild([] {
        Language::install(u"tr"_s);
        return Format::percent(u"40"_s);
    });
    EXPECT_EQ(turkish, u"%40");
}

TEST(Language, NumbersFollowALocaleOfTheirOwn) {
    const auto says = [](const Variables& environment, const QString& code = {}) {
        return inChild([&] {
            unsetenv("LC_ALL");
            for (const auto& [name, value] : environment)
                qputenv(name.c_str(), value.toUtf8());
            Language::install(code);
            return blockSize() + u' ' + Formatter(UserLocale::fromEnvironment()).decimals(1.5, 1);
        });
    };
    EXPECT_EQ(says({{"LC_MESSAGES", "fr_FR.UTF-8"}, {"LC_NUMERIC", "en_GB.UTF-8"}}), u"Taille de bloc 1.5");
    EXPECT_EQ(says({{"LC_MESSAGES", "C"}, {"LC_NUMERIC", "fr_FR"}}), u"Block size 1,5");
    EXPECT_EQ(says({{"LANG", "xx_YY.UTF-8"}}), u"Block size 1.5");
    EXPECT_EQ(says({{"LANG", "xx_YY.UTF-8"}}, u"de"_s), u"Blockgröße 1.5");
    EXPECT_EQ(says({{"LANG", "fr_FR"}}, u"xx"_s), u"Taille de bloc 1,5");
}

TEST(Language, IsEnglishForAWhile) {
    const QString said = inChild([] {
        Language::install(u"ar"_s);
        const auto look = [] { return blockSize() + (Language::isRightToLeft() ? u"<"_s : u">"_s); };
        const QString arabic = look();
        QStringList looks;
        {
            const EnglishTexts english;
            looks.append(look());
            {
                const EnglishTexts nested;
                const EnglishTexts unwanted(false);
                looks.append(look());
            }
            looks.append(look());
            std::jthread([&] { looks.append(look()); }).join();
        }
        const EnglishTexts unwanted(false);
        looks.append(look());
        return looks.join(u' ').replace(arabic, u"arabic"_s);
    });
    EXPECT_EQ(said, u"Block size> Block size> Block size> arabic arabic");
}

/// Catalogues that TARNWICK_CATALOGUE names.
class GivenCatalogue : public testing::Test {
protected:
    /// What two texts are with a file of these bytes. The language is French otherwise.
    QString saysWith(const QByteArray& bytes) {
        QFile file(path("given.qm"));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            return u"not written"_s;
        file.close();
        return saysWith(file.fileName());
    }

    static QString saysWith(const QString& file) {
        return inChild([&] {
            qputenv("TARNWICK_CATALOGUE", file.toUtf8());
            Language::install(u"fr"_s);
            return blockSize() + u'|' + throughput();
        });
    }

    /// A catalogue made of `messages`.
    QByteArray compiled(const QByteArray& messages, const char* option = "-silent") {
        QFile source(path("given.ts"));
        if (!source.open(QIODevice::WriteOnly))
            return {};
        source.write("<TS version=\"2.1\" language=\"de\"><context>" + messages + "</context></TS>");
        source.close();
        test::Program lrelease(
            {LRELEASE, option, source.fileName().toStdString(), "-qm", path("made.qm").toStdString()});
        EXPECT_TRUE(lrelease.succeeds());
        return QByteArray::fromStdString(test::contentOf(path("made.qm").toStdString()));
    }

    QString path(const char* name) const { return QString::fromStdString((m_folder.path() / name).string()); }

    const QString french = inChild([] {
        Language::install(u"fr"_s);
        return blockSize() + u'|' + throughput();
    });

private:
    test::TemporaryFolder m_folder;
};

TEST_F(GivenCatalogue, IsUsedAsFarAsItGoes) {
    const QByteArray one = "<message><source>Block size</source><translation>BLOCK</translation></message>";
    EXPECT_EQ(saysWith(compiled("<name>HostFacts</name>" + one)), u"BLOCK|Throughput over time");
    EXPECT_EQ(saysWith(compiled("<name>OtherProgram</name>" + one)), u"Block size|Throughput over time");
    const QByteArray other = "<message><source>X</source><translation>Y</translation></message>";
    const QByteArray empty = "<message><source>Block size</source><translation></translation></message>";
    EXPECT_EQ(saysWith(compiled("<name>HostFacts</name>" + other + empty)),
              u"Block size|Throughput over time");
    const QByteArray compressed = compiled("<name>HostFacts</name>" + one, "-compress");
    EXPECT_EQ(saysWith(compressed), u"BLOCK|Throughput over time");
    // A length of zero, which is no absent text: lrelease does not write it, and a hole in a file does.
    QByteArray hole = compressed;
    hole.replace(QByteArray("\3\0\0\0\x0a\0B\0L\0O\0C\0K", 15), QByteArray("\3\0\0\0\0\5XXXX\5XXXX", 15));
    EXPECT_NE(hole, compressed);
    EXPECT_EQ(saysWith(hole), u"Block size|Throughput over time");
}

TEST_F(GivenCatalogue, IsLeftAloneIfItIsNone) {
    const QByteArray whole = compiled("<name>HostFacts</name><message><source>Block size</source>"
                                      "<translation>BLOCK</translation></message>");
    EXPECT_TRUE(french.startsWith(u"Taille de bloc|")) << french.toStdString();
    EXPECT_EQ(saysWith(QByteArray()), french);
    EXPECT_EQ(saysWith(QByteArray("BLOCK\n").repeated(1000)), french);
    EXPECT_EQ(saysWith(whole.first(whole.size() - 1)), french);
    EXPECT_EQ(saysWith(whole.first(whole.size() / 2)), french);
    for (const QString& file : {path("."), path("absent.qm"), u"/dev/zero"_s, u"/dev/null"_s})
        EXPECT_EQ(saysWith(file), french) << file.toStdString();
}

/// Each byte once with each of some values: QTranslator alone believes the lengths that come of it, and
/// crashes.
TEST_F(GivenCatalogue, MayBeDamaged) {
    const QByteArray whole = compiled("<name>HostFacts</name><message><source>Block size</source>"
                                      "<translation>BLOCK</translation></message><message><source>X</source>"
                                      "<translation>Y</translation></message>",
                                      "-compress");
    for (qsizetype place = 0; place < whole.size(); ++place)
        for (const char value : {'\x7f', '\xfe'}) {
            QByteArray damaged = whole;
            damaged[place] = value;
            const QString said = saysWith(damaged);
            EXPECT_TRUE(said != u"crashed" && !said.startsWith(u'|') && !said.endsWith(u'|')) << place;
        }
}

} // namespace

} // namespace TarnwickKit::model
