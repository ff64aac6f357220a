// Examples of the reference: the wheel, and tables.

#include <GXUIPickers/GXUIPickers.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace gx;

namespace {

// [UIPickerView UIPickerViewDataSource UIPickerViewDelegate]
/// - Data source and delegate are held weakly: keep them alive yourself.
/// - Counts and titles are cached: call `reloadAllComponents` when they change.
/// - The delegate is called for gestures alone, never after `selectRow_inComponent_animated`.
/// - `selectedRowInComponent` of a spinning column is the row that it reports, not the one in
///   sight.
class Sizes : public NSObject, public UIPickerViewDataSource, public UIPickerViewDelegate {
public:
    NSInteger numberOfComponentsInPickerView(const Ref<UIPickerView>&) override { return 1; }
    NSInteger pickerView_numberOfRowsInComponent(const Ref<UIPickerView>&, NSInteger) override { return 4; }
    std::optional<std::string> pickerView_titleForRow_forComponent(const Ref<UIPickerView>&, NSInteger row, NSInteger) override {
        return std::vector<std::string>{"S", "M", "L", "XL"}[static_cast<std::size_t>(row)];
    }
    void pickerView_didSelectRow_inComponent(const Ref<UIPickerView>&, NSInteger row, NSInteger) override { picked = row; }
    NSInteger picked = -1;
};
// [UIPickerView UIPickerViewDataSource UIPickerViewDelegate]

TEST(ReferenceExamples, Wheels) {
    // [UIPickerView UIPickerViewDataSource UIPickerViewDelegate]
    const auto wheel = create<UIPickerView>(CGRectMake(0, 0, 320, 216));
    const auto sizes = create<Sizes>();
    wheel->setDataSource(sizes);
    wheel->setDelegate(sizes);
    wheel->selectRow_inComponent_animated(2, 0, false);
    EXPECT_EQ(wheel->selectedRowInComponent(0), 2);
    EXPECT_EQ(sizes->picked, -1);       // The program's own request.
    wheel->turnToRow_inComponent(9, 0); // What a gesture of the user ends in.
    EXPECT_EQ(sizes->picked, 3);        // The last row there is.
    // [UIPickerView UIPickerViewDataSource UIPickerViewDelegate]
}

// [UITableView UITableViewDataSource UITableViewDelegate UITableViewCell]
/// - Cells are reused with all that they contain: set everything that differs from row to row.
/// - A row selects nothing by itself; `didSelectRow` reports a tap.
/// - Insert rows into your own data first: the data source returns the new counts already.
/// - A delegate's heights are queried for each row, but not in sections of more than 100,000.
class Months : public NSObject, public UITableViewDataSource, public UITableViewDelegate {
public:
    NSInteger tableView_numberOfRowsInSection(const Ref<UITableView>&, NSInteger) override { return 12; }
    Ref<UITableViewCell> tableView_cellForRowAtIndexPath(const Ref<UITableView>& table, NSIndexPath path) override {
        const Ref<UITableViewCell> cell = table->dequeueReusableCellWithIdentifier("month");
        cell->textLabel()->setText("Month " + std::to_string(path.row + 1));
        return cell;
    }
    void tableView_didSelectRowAtIndexPath(const Ref<UITableView>&, NSIndexPath path) override { tapped = path; }
    std::optional<NSIndexPath> tapped;
};
// [UITableView UITableViewDataSource UITableViewDelegate UITableViewCell]

TEST(ReferenceExamples, Tables) {
    // [UITableView UITableViewDataSource UITableViewDelegate UITableViewCell]
    const auto window = create<UIWindow>(CGRectMake(0, 0, 320, 220));
    const auto table = create<UITableView>(window->bounds());
    const auto months = create<Months>();
    table->registerClass_forCellReuseIdentifier<UITableViewCell>("month");
    table->setDataSource(months);
    table->setDelegate(months);
    window->addSubview(table);
    window->tick(0.0);
    EXPECT_EQ(table->indexPathsForVisibleRows().size(), 5U); // Of 44 points each.

    window->touchBegan_at_time(0, CGPointMake(100, 60), 0.0);
    window->touchEnded_at_time(0, CGPointMake(100, 60), 0.1);
    EXPECT_EQ(months->tapped, (NSIndexPath{0, 1}));
    // [UITableView UITableViewDataSource UITableViewDelegate UITableViewCell]
}

// [GXMultiValuePickerView GXMultiValuePickerViewDelegate]
/// - A separator has a component of its own, whose rows have no titles: count it.
/// - Separators set before data source and delegate are there are not remembered.
/// - Where one reads from right to left, the labels change sides and the components do not.
class Score : public NSObject, public UIPickerViewDataSource, public GXMultiValuePickerViewDelegate {
public:
    NSInteger numberOfComponentsInPickerView(const Ref<UIPickerView>&) override { return 3; }
    NSInteger pickerView_numberOfRowsInComponent(const Ref<UIPickerView>&, NSInteger component) override { return component == 1 ? 1 : 10; }
    CGFloat pickerView_widthForComponent(const Ref<UIPickerView>&, NSInteger component) override { return component == 1 ? 10 : 50; }
    std::optional<std::string> pickerView_titleForRow_forComponent(const Ref<UIPickerView>&, NSInteger row, NSInteger component) override {
        if (component == 1) return std::nullopt;
        return std::to_string(row);
    }
};
// [GXMultiValuePickerView GXMultiValuePickerViewDelegate]

TEST(ReferenceExamples, LabelledWheels) {
    // [GXMultiValuePickerView GXMultiValuePickerViewDelegate]
    const auto wheel = create<GXMultiValuePickerView>(CGRectMake(0, 0, 320, 216));
    const auto score = create<Score>();
    wheel->setDataSource(score);
    wheel->setDelegate(score);
    wheel->setSeparatorText_afterComponent(":", 0);
    wheel->setRightLabelText("points");
    wheel->layoutIfNeeded();
    EXPECT_EQ(wheel->separatorAfterComponent(0)->text(), ":");
    EXPECT_EQ(wheel->rightDescLabel()->frame().size.width, 60);
    // [GXMultiValuePickerView GXMultiValuePickerViewDelegate]
}

} // namespace
