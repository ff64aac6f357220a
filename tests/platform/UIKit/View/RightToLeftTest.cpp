// Where one reads from right to left: labels that begin at the right, and rows of tables in the
// mirror.

#include <algorithm>

#include "NSLocale.h"
#include "RecordingCanvas.h"
#include "TableSource.h"
#include "TestWindow.h"

using namespace gx;

namespace {

struct RightToLeftTest : testing::Test {
    RightToLeftTest() { NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier("he")); }
    ~RightToLeftTest() override { NSLocale::setCurrentLocale(nullptr); }
    static std::vector<std::string> painted(const Ref<UIView>& view) {
        RecordingCanvas canvas;
        view->renderInContext(canvas);
        return canvas.painted();
    }
    static bool startsWith(const std::string& text, const std::string& start) { return text.starts_with(start); }
};

Ref<UILabel> labelOf(NSTextAlignment alignment) {
    const auto label = create<UILabel>(CGRectMake(0, 0, 100, 20));
    label->setText("abc");
    label->setTextAlignment(alignment);
    return label;
}

} // namespace

TEST_F(RightToLeftTest, ATextOfNaturalAlignmentBeginsAtTheRightAndAnyOtherOneWhereItWasPut) {
    // 30 of 100 points.
    EXPECT_PRED2(startsWith, painted(labelOf(NSTextAlignmentNatural)).at(0), "text abc at 70 0");
    EXPECT_PRED2(startsWith, painted(labelOf(NSTextAlignmentLeft)).at(0), "text abc at 0 0");
    EXPECT_PRED2(startsWith, painted(labelOf(NSTextAlignmentCenter)).at(0), "text abc at 35 0");
    EXPECT_PRED2(startsWith, painted(labelOf(NSTextAlignmentRight)).at(0), "text abc at 70 0");
    NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier("en"));
    EXPECT_PRED2(startsWith, painted(labelOf(NSTextAlignmentNatural)).at(0), "text abc at 0 0");
}

TEST_F(RightToLeftTest, ACellHasItsNameAtTheRightAndItsValueAtTheLeft) {
    const auto cell = create<UITableViewCell>(UITableViewCellStyleValue1, "row");
    cell->textLabel()->setText("Name");
    cell->detailTextLabel()->setText("Value");
    cell->layoutIfNeeded();
    // 320 less 16 at either side are 288: 50 for the value, 8 between, and 230 for the name.
    EXPECT_EQ(cell->detailTextLabel()->frame(), CGRectMake(16, 0, 50, 44));
    EXPECT_EQ(cell->textLabel()->frame(), CGRectMake(74, 0, 230, 44));
    EXPECT_EQ(cell->textLabel()->textAlignment(), NSTextAlignmentNatural);
}

TEST_F(RightToLeftTest, HairlinesAndHeadersOfATableBeginAtTheRight) {
    const auto source = create<TableSource>();
    source->rows = {2};
    source->titles = {"Head"};
    const auto table = tableWithSource(source);
    TestWindow window(table);
    RecordingCanvas canvas;
    window->draw(canvas);
    // The header is 28 high and its text 40 wide; the first row ends at 72.
    const auto calls = canvas.painted();
    const auto has = [&calls](const std::string& start) {
        return std::any_of(calls.begin(), calls.end(), [&start](const std::string& call) { return call.starts_with(start); });
    };
    EXPECT_TRUE(has("fill 0 71.5 304 0.5 "));
    EXPECT_TRUE(has("text Head at 248 4 ")) << "within 288 points";
}
