#include "NoticeLog.h"

#include <gtest/gtest.h>

#include "NSLocale.h"

using namespace gallery;
using namespace gx;

namespace {

class NoticeLogTest : public testing::Test {
protected:
    Ref<NoticeLog> log = create<NoticeLog>(CGRectZero);

    void TearDown() override { NSLocale::setCurrentLocale(nullptr); }

    void layWithWidth(CGFloat width) {
        log->setFrame(CGRectMake(0, 0, width, log->sizeThatFits({width, 0}).height));
        log->layoutIfNeeded();
    }
    std::vector<CGRect> visibleFrames() {
        std::vector<CGRect> frames;
        // Behind the heading and the invitation.
        for (std::size_t i = 2; i < log->subviews().size(); ++i) {
            if (!log->subviews()[i]->isHidden()) frames.push_back(log->subviews()[i]->frame());
        }
        return frames;
    }
};

} // namespace

// A letter is 10 points wide, a line 22 high, and 16 points are at either side. The heading has
// three lines in 132 points, and 8 below it.

TEST_F(NoticeLogTest, FactsStandBesideTheWordsWhereBothFit) {
    log->addNotice({"5.3 km", "5300 m"});
    layWithWidth(16 + 132 + 16); // Six letters, 12 points, six letters.
    EXPECT_EQ(visibleFrames(), (std::vector<CGRect>{{{16, 90}, {60, 32}}, {{88, 90}, {60, 32}}}));
    layWithWidth(16 + 131 + 16);
    EXPECT_EQ(visibleFrames(), (std::vector<CGRect>{{{16, 95}, {131, 22}}, {{16, 117}, {131, 22}}}));
}

TEST_F(NoticeLogTest, NoticesOfAFullListShareTheRoomThatIsLeft) {
    // In 200 points there is room for two notices of 10 + 3 * 22 = 76, and 48 are left. The heading
    // has three lines in 132 points.
    for (int i = 0; i < 2; ++i) log->addNotice({"5.3 km", "5300.0 m of a run"});
    layWithWidth(16 + 132 + 16);
    EXPECT_EQ(visibleFrames(),
              (std::vector<CGRect>{{{16, 95}, {132, 22}}, {{16, 117}, {132, 44}}, {{16, 171}, {132, 22}}, {{16, 193}, {132, 44}}}));
    log->addNotice({"5.3 km", "5300.0 m of a run"});
    layWithWidth(16 + 132 + 16);
    EXPECT_EQ(visibleFrames(),
              (std::vector<CGRect>{{{16, 107}, {132, 22}}, {{16, 129}, {132, 44}}, {{16, 207}, {132, 22}}, {{16, 229}, {132, 44}}}));
}

TEST_F(NoticeLogTest, WordsAreWhereReadingBegins) {
    NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier("ar"));
    log->addNotice({"5.3 km", "5300 m"});
    layWithWidth(16 + 132 + 16);
    EXPECT_EQ(visibleFrames(), (std::vector<CGRect>{{{88, 90}, {60, 32}}, {{16, 90}, {60, 32}}}));
}

TEST_F(NoticeLogTest, ItsHeightStaysAndNoticesWithoutRoomAreHidden) {
    // Below the heading there is room for four notices of 50 points.
    layWithWidth(332);
    const CGFloat wide = log->bounds().size.height;
    layWithWidth(132);
    const CGFloat narrow = log->bounds().size.height;
    for (int i = 0; i < 7; ++i) {
        log->addNotice({"5.3 km", "5300.0 m (component 0)"});
        log->setNeedsLayout();
        layWithWidth(132);
        EXPECT_EQ(log->bounds().size.height, narrow);
        for (const CGRect frame : visibleFrames()) EXPECT_LE(CGRectGetMaxY(frame), narrow);
    }
    // Facts of three lines: each notice has 10 + 4 * 22 = 98 points, and two of them fit in 200.
    EXPECT_EQ(visibleFrames().size(), 4U);
    layWithWidth(332);
    EXPECT_EQ(log->bounds().size.height, wide);
    EXPECT_EQ(visibleFrames().size(), 12U) << "all six, beside each other";
}
