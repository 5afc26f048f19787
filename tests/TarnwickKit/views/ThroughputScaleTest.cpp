#include "TarnwickKit/views/charts/ThroughputScale.h"

#include <gtest/gtest.h>

using namespace TarnwickKit::views;

namespace {

struct Case {
    std::optional<QPointF> largest;
    bool live;
    double xTop;
    double yTop;
    std::vector<QString> times;
    std::vector<std::int64_t> rates;
};

TEST(ThroughputScale, TopsAndLabels) {
    const std::vector<std::int64_t> thousand{1000, 800, 600, 400, 200, 0};
    const Case cases[] = {
        {std::nullopt, false, 1, 1000, {"0s", "0.50s", "1s"}, thousand},
        {std::nullopt, true, 5, 1000, {"0s", "2s", "5s"}, thousand},
        {QPointF(0, 0), true, 5, 1000, {"0s", "2s", "5s"}, thousand},
        {QPointF(5, 3), true, 5, 100, {"0s", "2s", "5s"}, {100, 80, 60, 40, 20, 0}},
        {QPointF(5.1, 400), true, 10, 400, {"0s", "5s", "10s"}, {400, 320, 240, 160, 80, 0}},
        {QPointF(0.3, 400.1), false, 0.3, 500, {"0s", "0.15s", "0.30s"}, {500, 400, 300, 200, 100, 0}},
        {QPointF(7.25, 2000), false, 7.25, 2000, {"0s", "3s", "7.3s"}, {2000, 1600, 1200, 800, 400, 0}},
        {QPointF(0, 2000.5), false, 0.05, 3000, {"0s", "0.03s", "0.05s"}, {3000, 2400, 1800, 1200, 600, 0}},
        {QPointF(2, 2500), false, 2, 3000, {"0s", "1s", "2s"}, {3000, 2400, 1800, 1200, 600, 0}},
        {QPointF(61, -4), false, 61, 1000, {"0s", "30s", "61s"}, thousand},
    };
    for (const Case& c : cases) {
        const ThroughputScale scale(c.largest, c.live);
        SCOPED_TRACE(testing::Message() << c.xTop << " " << c.yTop);
        EXPECT_DOUBLE_EQ(scale.xTop, c.xTop);
        EXPECT_DOUBLE_EQ(scale.yTop, c.yTop);
        for (std::size_t i = 0; i < c.times.size(); ++i)
            EXPECT_EQ(seconds(scale.xLabels()[i]), c.times[i]);
        EXPECT_TRUE(std::ranges::equal(scale.yLabels(), c.rates));
    }
}

TEST(ThroughputScale, LabelsOfATopThatFiveDoesNotDivideLoseTheirFraction) {
    ThroughputScale scale(std::nullopt, false);
    scale.yTop = 1e300;
    EXPECT_GT(scale.yLabels()[0], 0); // a number from a strange file
    scale.yTop = 7;
    EXPECT_EQ(scale.yLabels()[1], 5);
}

TEST(ThroughputScale, Times) {
    const std::pair<double, const char*> cases[] = {
        {0, "0s"},      {0.999, "1.00s"}, {0.005, "0.01s"}, {1, "1s"},           {1.04, "1s"},
        {1.25, "1.3s"}, {9.96, "10s"},    {12.5, "12.5s"},  {86400.0, "86400s"},
    };
    for (const auto& [time, text] : cases)
        EXPECT_EQ(seconds(time), QLatin1String(text)) << time;
}

TEST(ThroughputScale, PointsFillThePlot) {
    const auto first = largestOf({{0, 10}, {4, 90}});
    const ThroughputPlot plot{{800, 200}, ThroughputScale(largestOf({{9, 200}, {8, 100}}, 1, first), false)};
    EXPECT_EQ(plot.map({0, 0}), QPointF(42, 180));
    EXPECT_EQ(plot.map({8, 100}), QPointF(792, 8)); // a lone point has counted
    EXPECT_EQ(plot.gridLine(5), plot.floor());
    EXPECT_EQ(largestOf({}, 0, first), QPointF(4, 90));
    EXPECT_FALSE(largestOf({}));
}

} // namespace
