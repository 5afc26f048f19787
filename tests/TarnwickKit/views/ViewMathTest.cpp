#include "OndelControls/ViewMath.h"

#include <gtest/gtest.h>

using OndelControls::ViewMath;

namespace {

TEST(ViewMath, LeavesWhatOthersAndTheirGapsDoNotTake) {
    EXPECT_EQ(ViewMath::roomBeside(300, {}, 12), 300);
    EXPECT_EQ(ViewMath::roomBeside(300, {8, 30, 104.5}, 12), 121.5);
}

TEST(ViewMath, MovesItemsTogetherBeforeTheyWrap) {
    struct Case {
        double width, taken;
        int count;
        double spacing;
    };
    const Case cases[] = {
        {400, 100, 4, 22}, // room to spare
        {166, 100, 4, 22}, // fits to the last pixel
        {165, 100, 4, 21}, // whole pixels
        {136, 100, 4, 12}, // as close as they may
        {135, 100, 4, 22}, // they wrap
        {50, 100, 1, 22},  // no gap
        {50, 0, 0, 22},
    };
    for (const Case& c : cases)
        EXPECT_EQ(ViewMath::spacingInLine(c.width, c.taken, c.count, 22, 12), c.spacing)
            << c.width << " " << c.count;
}

TEST(ViewMath, FindsAValue) {
    EXPECT_EQ(ViewMath::lastIndexOf({4096, 65536, 4096}, 4096), 2);
    EXPECT_EQ(ViewMath::lastIndexOf({4096, 65536}, 512), -1);
}

} // namespace
