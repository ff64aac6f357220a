// The components of a wheel without a wheel: what is cached, and which column keys move.

#include "UIPickerComponents.h"

#include <gtest/gtest.h>

using namespace gx;

namespace {

/// Counts its queries; other calls are not expected.
class CountingOwner final : public UIPickerOwner {
public:
    std::vector<NSInteger> rows = {100, 1, 10};
    int counts = 0;
    int rowCounts = 0;
    int sizes = 0;
    std::function<void()> whenQueried;

    NSInteger queryNumberOfComponents() override {
        ++counts;
        if (whenQueried) whenQueried();
        return static_cast<NSInteger>(rows.size());
    }
    NSInteger queryNumberOfRows(NSInteger component) override {
        ++rowCounts;
        return rows[static_cast<std::size_t>(component)];
    }
    Sizes querySizes(NSInteger component) override {
        ++sizes;
        return {component == 0 ? std::optional<CGFloat>(80) : std::nullopt, 40};
    }
    Delegate lockDelegate() override { return nullptr; }
    Ref<UIView> viewForRow(const Delegate&, NSInteger, NSInteger, const Ref<UIView>&) override { return nullptr; }
    Ref<NSAttributedString> attributedTitleForRow(const Delegate&, NSInteger, NSInteger) override { return nullptr; }
    std::optional<std::string> titleForRow(const Delegate&, NSInteger, NSInteger) override { return std::nullopt; }
    std::optional<std::string> accessibilityLabel(const Delegate&, NSInteger) override { return std::nullopt; }
    std::optional<std::string> accessibilityValue(const Delegate&, NSInteger, NSInteger) override { return std::nullopt; }
    NSInteger componentCount() override { return 0; }
    NSInteger selectedRow(NSInteger) override { return 0; }
    NSInteger rowCount(NSInteger) override { return 0; }
    Ref<UIView> visibleView(NSInteger, NSInteger) override { return nullptr; }
    void report(NSInteger, NSInteger) override {}
    bool isLayoutNeeded() const override { return false; }
};

struct UIPickerComponentsTest : testing::Test {
    CountingOwner owner;
    UIPickerComponents components{owner, 5, 32};
    Ref<UIView> wheel = create<UIView>(CGRectMake(0, 0, 320, 216));
    void layout() {
        components.refreshAll();
        components.placeColumns(*wheel);
    }
};

} // namespace

TEST_F(UIPickerComponentsTest, QueriesOnceUntilInvalidated) {
    EXPECT_EQ(components.refreshCount(), 3);
    EXPECT_EQ(components.refreshRows(0), 100);
    EXPECT_EQ(components.refreshRows(0), 100);
    EXPECT_EQ(owner.counts, 1);
    EXPECT_EQ(owner.rowCounts, 1);
    owner.rows = {7};
    EXPECT_EQ(components.refreshRows(0), 100);
    components.invalidate();
    EXPECT_EQ(components.refreshRows(0), 7);
    EXPECT_EQ(owner.counts, 2);
    EXPECT_EQ(owner.rowCounts, 2);
}

TEST_F(UIPickerComponentsTest, ACallbackDuringAQueryGetsThePreviousValue) {
    components.refreshCount();
    std::vector<NSInteger> seen;
    owner.rows = {7};
    owner.whenQueried = [&] { seen.push_back(components.refreshCount()); };
    components.invalidate();
    EXPECT_EQ(components.refreshCount(), 1);
    EXPECT_EQ(seen, std::vector<NSInteger>{3});
}

TEST_F(UIPickerComponentsTest, AnInvalidationDuringAQueryLasts) {
    owner.whenQueried = [&] {
        owner.whenQueried = nullptr;
        components.invalidate();
    };
    components.refreshCount();
    EXPECT_EQ(owner.counts, 1);
    components.refreshCount();
    EXPECT_EQ(owner.counts, 2);
}

TEST_F(UIPickerComponentsTest, RowsAreInvalidOnceAfterEachInvalidation) {
    EXPECT_TRUE(components.takeRowsInvalid()) << "before the first layout";
    EXPECT_FALSE(components.takeRowsInvalid());
    components.invalidate();
    EXPECT_TRUE(components.takeRowsInvalid());
}

TEST_F(UIPickerComponentsTest, ColumnsWithoutAWidthShareTheWheelEqually) {
    layout();
    EXPECT_EQ(components.width(0, 320), 80);
    EXPECT_NEAR(components.width(1, 320), (320 - 10) / 3.0, 1e-9);
    EXPECT_EQ(components.highestRow(), 40);
    ASSERT_EQ(wheel->subviews().size(), 3U);
    EXPECT_EQ(components.componentAt({wheel->subviews()[2]->frame().origin.x + 1, 100}), 2);
    EXPECT_EQ(components.componentAt({-50, 100}), -1);
}

TEST_F(UIPickerComponentsTest, AColumnThatIsRemovedKeepsItsRequest) {
    layout();
    components.at(2).requested = 9;
    owner.rows = {100};
    components.invalidate();
    layout();
    EXPECT_EQ(wheel->subviews().size(), 1U);
    EXPECT_FALSE(components.exists(2));
    owner.rows = {100, 1, 5};
    components.invalidate();
    layout();
    EXPECT_EQ(components.requestedRow(2), 4) << "row 9, clamped to the rows there are";
}

TEST_F(UIPickerComponentsTest, ColumnsThatShowNothingCannotBeSpunOrChosen) {
    layout();
    EXPECT_FALSE(components.canSpin(0)) << "its rows have no views";
    EXPECT_FALSE(components.canSpin(-1));
    EXPECT_FALSE(components.canSpin(3));
    EXPECT_EQ(components.componentOfKeys(), -1);
    EXPECT_EQ(components.componentAfter(-1), -1);
}

TEST_F(UIPickerComponentsTest, KeysChooseAmongColumnsOfMoreThanOneRow) {
    layout();
    for (NSInteger i = 0; i < 3; ++i) components.at(i).column->showRow({0, create<UIView>(CGRectZero), UIPickerColumn::Maker::Delegate});
    EXPECT_EQ(components.componentOfKeys(), 0);
    EXPECT_EQ(components.componentBeside(0, 1), 2) << "the second has one row";
    EXPECT_EQ(components.componentAfter(0), 1) << "which can be spun all the same";
    EXPECT_TRUE(components.choose(2));
    EXPECT_FALSE(components.choose(2));
    EXPECT_EQ(components.componentOfKeys(), 2);
    EXPECT_EQ(components.componentBeside(2, 1), -1);
    EXPECT_EQ(components.componentBeside(2, -1), 0);
    EXPECT_TRUE(components.exchange(0, 2)) << "the choice goes along";
    EXPECT_EQ(components.componentOfKeys(), 0);
    EXPECT_EQ(components.at(0).part, 2);
    EXPECT_FALSE(components.exchange(1, 2));
}
