#include "GXHeightPickerCell.h"

#include "FingerTurn.h"
#include "HeightPickerTest.h"
#include "NSLayoutConstraint.h"

using namespace gx;

namespace {

struct HeightCell : testing::Test {
    ~HeightCell() override { NSRunLoop::mainRunLoop()->runPass(); }

    Ref<GXHeightPickerCell> cell = create<GXHeightPickerCell>(UITableViewCellStyleDefault, GXHeightPickerCell::cellIdentifier());
};

} // namespace

TEST_F(HeightCell, ItsIdentifierIsTheClassesName) {
    EXPECT_EQ(GXHeightPickerCell::cellIdentifier(), "GXHeightPickerCell");
    EXPECT_EQ(cell->reuseIdentifier(), "GXHeightPickerCell");
}

TEST_F(HeightCell, OneMadeInCodeHasItsPickerPinnedToTheContentViewAndNoBackground) {
    ASSERT_TRUE(cell->pickerView());
    EXPECT_EQ(cell->pickerView()->frame(), CGRectMake(0, 0, 320, 44));
    EXPECT_EQ(cell->contentView()->subviews(), (std::vector<Ref<UIView>>{cell->pickerView()}));
    EXPECT_FALSE(cell->pickerView()->translatesAutoresizingMaskIntoConstraints());
    ASSERT_EQ(cell->contentView()->constraints().size(), 4U);
    for (const auto& constraint : cell->contentView()->constraints()) EXPECT_EQ(constraint->firstItem(), cell->pickerView());
    EXPECT_EQ(cell->backgroundColor(), std::nullopt);
    EXPECT_EQ(cell->contentView()->backgroundColor(), std::nullopt);
    EXPECT_EQ(cell->pickerView()->numberOfComponents(), 3) << "feet, inches and unit: it is set up";
}

TEST_F(HeightCell, ItsPickerFollowsWithTheLayoutAndNotBefore) {
    for (const CGRect& frame : {CGRectMake(0, 0, 320, 216), CGRectMake(0, 44, 568, 200), CGRectMake(0, 0, 320, 216)}) {
        const CGRect before = cell->pickerView()->frame();
        cell->setFrame(frame);
        EXPECT_EQ(cell->pickerView()->frame(), before);
        cell->layoutIfNeeded();
        EXPECT_EQ(cell->pickerView()->frame(), (CGRect{{0, 0}, frame.size}));
    }
}

TEST_F(HeightCell, OneFromAnInterfaceGetsItsPickerWhenItAwakes) {
    const auto coder = create<NSCoder>();
    coder->encodeCGRect_forKey(CGRectMake(0, 90, 300, 200), "frame");
    const auto restored = create<GXHeightPickerCell>(coder);
    EXPECT_FALSE(restored->pickerView());
    restored->setFrame(CGRectMake(0, 90, 320, 210)); // safe without a picker
    restored->awakeFromNib();
    ASSERT_TRUE(restored->pickerView());
    EXPECT_EQ(restored->pickerView()->frame(), CGRectMake(0, 0, 320, 210));
    EXPECT_EQ(restored->pickerView()->numberOfComponents(), 3);
    EXPECT_EQ(restored->contentView()->constraints().size(), 4U);
}

TEST_F(HeightCell, ThePickerIsMadeOnceAndKeptInReuse) {
    const Ref<GXHeightPickerView> picker = cell->pickerView();
    picker->setHeightInCm(171);
    cell->awakeFromNib();
    cell->prepareForReuse();
    EXPECT_EQ(cell->pickerView(), picker);
    EXPECT_EQ(picker->heightInCm(), 171);
    EXPECT_EQ(cell->contentView()->subviews().size(), 1U);
    EXPECT_EQ(create<GXHeightPickerCell>(CGRectMake(5, 6, 300, 200))->pickerView()->frame(), CGRectMake(0, 0, 300, 200));
}

TEST_F(HeightCell, AFingerTurnsItsPicker) {
    cell->setFrame(CGRectMake(0, 0, 320, 216));
    cell->pickerView()->setIsMetric(true);
    cell->pickerView()->setHeightInCm(170);
    NSRunLoop::mainRunLoop()->runPass();
    const auto notices = create<HeightNotices>();
    cell->pickerView()->setHeightDelegate(notices);
    TestWindow window(cell);
    turnOneRow(window, cell->pickerView(), 0);
    ASSERT_EQ(notices->list.size(), 1U);
    EXPECT_EQ(notices->list[0].height, 171);
    EXPECT_TRUE(notices->list[0].metric);
}
