#include "OndelAppSupport/updates/PlainNotes.h"
#include "OndelAppSupport/updates/VersionOrder.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace OndelAppSupport::updates;
using namespace Qt::StringLiterals;

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
