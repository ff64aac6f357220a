// Large texts and both reading directions on the entry screen and in the bar above it.

#include "EntryScreenTest.h"
#include "ProportionalTextEngine.h"

using namespace gallery;
using namespace gx;

namespace {

class EntryScreenLayoutTest : public EntryScreenTest {
protected:
    void SetUp() override { UITextEngine::setShared(create<ProportionalTextEngine>()); }
    void openAtScale(double scale, CGFloat width, CGFloat height) {
        openEntry(width, height);
        Settings settings = screen->settings();
        settings.textScale = scale;
        choose(settings);
    }
    CGRect inWindow(const Ref<UIView>& view) { return view->convertRect_toView(view->bounds(), window->ref()); }
    static CGFloat height(const Ref<UIView>& view) { return view->bounds().size.height; }
    /// Name and value of a row.
    std::pair<CGRect, CGRect> textsOf(const Ref<MeasurementCell>& cell) {
        return {cell->contentView()->subviews().at(0)->frame(), cell->contentView()->subviews().at(1)->frame()};
    }
};

} // namespace

// Rows

TEST_F(EntryScreenLayoutTest, ARowIsHigherWhereItsTextsHaveNoRoomSideBySide) {
    openAtScale(1, 390, 844);
    EXPECT_EQ(height(row("Calories")), 44);
    openAtScale(3, 320, 844);
    for (std::size_t i = 0; i < entry()->measurementCount(); ++i) {
        const auto cell = row(entry()->measurement(i)->name());
        SCOPED_TRACE(cell->name());
        const auto [name, value] = textsOf(cell);
        EXPECT_GE(CGRectGetMinY(name), 10);
        const bool isStacked = CGRectGetMinX(value) == CGRectGetMinX(name);
        EXPECT_GE(isStacked ? CGRectGetMinY(value) : CGRectGetMinX(value), isStacked ? CGRectGetMaxY(name) : CGRectGetMaxX(name));
        EXPECT_LE(CGRectGetMaxY(value), height(cell) - 10);
        for (const auto& text : cell->contentView()->subviews()) {
            EXPECT_GE(height(text), text->sizeThatFits({text->bounds().size.width, 0}).height);
        }
        EXPECT_GE(height(cell), MeasurementCell::height());
    }
    EXPECT_GT(height(row("Water temperature")), height(row("Weight"))) << "more lines, a higher row";
}

TEST_F(EntryScreenLayoutTest, ARowGrowsWithItsValueAndDoesNotShrink) {
    // A character is 18 points wide: "Calories" and "0 kcal" need 144 + 12 + 108 of the 288 points
    // between the edges, "2990 kcal" 54 more.
    openAtScale(2, 320, 844);
    Workout none;
    none.calories = 0;
    entry()->setWorkout(none);
    settle();
    const CGFloat oneLine = height(row("Calories"));
    EXPECT_EQ(oneLine, MeasurementCell::height());
    tapRow("Calories");
    const auto turnTo = [&](NSInteger tens) {
        wheels().at(0)->turnToRow_inComponent(tens, 0);
        settle();
    };
    turnTo(299);
    EXPECT_EQ(value("Calories"), "2990 kcal");
    const CGFloat twoLines = height(row("Calories"));
    EXPECT_GT(twoLines, oneLine);
    turnTo(0);
    EXPECT_EQ(value("Calories"), "0 kcal");
    EXPECT_EQ(height(row("Calories")), twoLines);
    EXPECT_EQ(entry()->openMeasurement(), indexOf("Calories"));
}

TEST_F(EntryScreenLayoutTest, ATableOfLargeTextsMayBeWider) {
    openAtScale(1, 719, 800);
    EXPECT_EQ(table()->bounds().size.width, 640);
    openAtScale(3, 1200, 800);
    EXPECT_EQ(table()->bounds().size.width, 1200 - 2 * 32);
}

TEST_F(EntryScreenLayoutTest, HeadingsGrowAndHaveAsManyLinesAsTheyNeed) {
    openAtScale(1, 320, 844);
    EXPECT_EQ(table()->sectionHeaderFont()->pointSize(), 13);
    EXPECT_EQ(table()->sectionHeaderHeight(), 28);
    openAtScale(2, 320, 844);
    EXPECT_EQ(table()->sectionHeaderFont()->pointSize(), 26);
    const auto heightAbove = [this](NSInteger section) {
        const CGFloat above = section == 0 ? 0 : CGRectGetMaxY(table()->rectForRowAtIndexPath({section - 1, 2}));
        return CGRectGetMinY(table()->rectForRowAtIndexPath({section, 0})) - above;
    };
    openAtScale(3, 390, 1600);
    EXPECT_EQ(table()->sectionHeaderFont()->pointSize(), 39);
    EXPECT_EQ(heightAbove(0), 49 + 12);
    EXPECT_EQ(heightAbove(1), 49 + 12) << "one line of 304 points in 358";
    // "Best interval" is 13 characters of 0.6 em, which are wider than 288 points.
    openAtScale(3, 320, 1600);
    EXPECT_EQ(table()->sectionHeaderFont()->pointSize(), 39);
    EXPECT_EQ(heightAbove(0), 49 + 12);
    const auto isHeading = [](const Ref<UIView>& view) {
        const auto paragraph = std::dynamic_pointer_cast<Paragraph>(view);
        return paragraph && paragraph->text() == "Best interval";
    };
    const auto& views = table()->subviews();
    const auto heading = std::find_if(views.begin(), views.end(), isHeading);
    ASSERT_NE(heading, views.end());
    EXPECT_EQ((*heading)->frame().size, CGSizeMake(288, heightAbove(1)));
    EXPECT_GE(heightAbove(1), (*heading)->sizeThatFits({288, 0}).height + 12);
    EXPECT_EQ(std::static_pointer_cast<Paragraph>(*heading)->linesForWidth(288).size(), 2U);
}

// The head and the bar

TEST_F(EntryScreenLayoutTest, ButtonsGoBelowATitleThatLeavesThemNoRoom) {
    // "Add workout" is 11 characters of 16.8 points.
    openAtScale(1, 1200, 800);
    const auto& header = entry()->header();
    EXPECT_EQ(height(header), 56);
    EXPECT_EQ(header->title()->linesForWidth(header->title()->bounds().size.width).size(), 1U);
    EXPECT_EQ(CGRectGetMaxX(header->saveButton()->frame()), header->bounds().size.width);
    EXPECT_EQ(CGRectGetMidY(header->saveButton()->frame()), 28);
    header->setFrame(CGRectMake(0, 0, 200, header->sizeThatFits({200, 0}).height));
    header->layoutIfNeeded();
    EXPECT_GE(CGRectGetMinY(header->saveButton()->frame()), CGRectGetMaxY(header->title()->frame()));
    EXPECT_EQ(CGRectGetMinY(header->saveButton()->frame()), CGRectGetMinY(header->openButton()->frame()));
    EXPECT_LE(CGRectGetMaxY(header->saveButton()->frame()), height(header));
    // Too narrow for both buttons.
    header->setFrame(CGRectMake(0, 0, 100, header->sizeThatFits({100, 0}).height));
    header->layoutIfNeeded();
    EXPECT_GE(CGRectGetMinY(header->saveButton()->frame()), CGRectGetMaxY(header->openButton()->frame()));
    EXPECT_LE(CGRectGetMaxY(header->saveButton()->frame()), height(header));
    EXPECT_GE(CGRectGetMinX(header->openButton()->frame()), 0);
}

TEST_F(EntryScreenLayoutTest, TheBarHasALargeTitleBelowItsButtons) {
    openAtScale(1, 320, 568);
    const auto& bar = screen->menuButton()->superview();
    const auto& title = bar->subviews().at(0);
    EXPECT_EQ(height(bar), 56);
    EXPECT_EQ(CGRectGetMidY(title->frame()), 28);
    openAtScale(3, 320, 568);
    const auto& largeBar = screen->menuButton()->superview();
    const auto& largeTitle = largeBar->subviews().at(0);
    EXPECT_GE(CGRectGetMinY(largeTitle->frame()), CGRectGetMaxY(screen->menuButton()->frame()));
    EXPECT_GE(height(largeTitle), largeTitle->sizeThatFits({largeTitle->bounds().size.width, 0}).height);
    EXPECT_LE(CGRectGetMaxY(largeTitle->frame()), height(largeBar));
    EXPECT_EQ(CGRectGetMinY(entry()->frame()), height(largeBar));
}

// Beside each other

TEST_F(EntryScreenLayoutTest, LargeTextsNeedAWiderWindowForThePickerBesideTheTable) {
    const auto isPaneShown = [this] { return !entry()->pane()->superview()->isHidden(); };
    // 720 less 232 points for the list of pages are 488, times the scale.
    for (const auto& [scale, narrowest] : std::vector<std::pair<double, CGFloat>>{{0.8, 900}, {1, 900}, {1.3, 900}, {2, 976}, {3, 1464}}) {
        SCOPED_TRACE(scale);
        openAtScale(scale, narrowest - 1, 800);
        EXPECT_FALSE(isPaneShown());
        for (CGFloat width = narrowest; width < 2400; width += 37) {
            screen->setFrame(CGRectMake(0, 0, width, 800));
            (*window)->layoutIfNeeded();
            EXPECT_TRUE(isPaneShown()) << width << ", also once the list of pages has appeared";
        }
    }
}

TEST_F(EntryScreenLayoutTest, EverythingIsMirroredFromRightToLeft) {
    std::vector<std::vector<CGRect>> frames;
    for (const std::string language : {"en", "he"}) {
        std::vector<CGRect> found;
        for (const CGFloat width : {1200.0, 390.0}) {
            NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier(language));
            openEntry(width, 800);
            entry()->openMeasurement_animated(1, false);
            settle();
            for (const Ref<UIView>& view : std::initializer_list<Ref<UIView>>{
                     screen->sidebar(), entry(), table(), entry()->pane(), entry()->saveButton(), entry()->openButton(),
                     entry()->header()->title(), screen->menuButton(), screen->styleButton(),
                     row("Calories")->contentView()->subviews().at(0), row("Calories")->contentView()->subviews().at(1)}) {
                CGRect frame = inWindow(view);
                if (language == "he") frame.origin.x = width - CGRectGetMaxX(frame);
                found.push_back(frame);
            }
        }
        frames.push_back(found);
    }
    for (std::size_t i = 0; i < frames[0].size(); ++i) EXPECT_EQ(frames[0][i], frames[1][i]) << "view " << i;
}
