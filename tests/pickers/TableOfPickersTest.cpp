// Picker cells in a table.

#include "GXBpmPickerCell.h"
#include "GXBpmPickerView.h"
#include "GXStyleSheet.h"
#include "TableSource.h"
#include "TestWindow.h"

using namespace gx;

namespace {

class TallRows : public GXStyleSheet {
public:
    double pickerRowHeight() const override { return 61; }
};

struct TableOfPickers : testing::Test {
    Ref<TableSource> source = create<TableSource>();
    Ref<UITableView> table = create<UITableView>(CGRectMake(0, 0, 320, 440));
    TestWindow window{table};

    TableOfPickers() {
        source->cell = [](const Ref<UITableView>& view, NSIndexPath) {
            return view->dequeueReusableCellWithIdentifier(GXBpmPickerCell::cellIdentifier());
        };
        table->registerClass_forCellReuseIdentifier<GXBpmPickerCell>(GXBpmPickerCell::cellIdentifier());
        table->setRowHeight(220);
        table->setDataSource(source);
        scrollTo(110); // Three cells …
        scrollTo(220); // … of which one waits.
    }
    ~TableOfPickers() override { GXStyleSheet::setGlobalStyleSheet(nullptr); }
    TableOfPickers(const TableOfPickers&) = delete;
    TableOfPickers& operator=(const TableOfPickers&) = delete;

    void scrollTo(CGFloat y) {
        table->setContentOffset({0, y});
        window.tick(0);
    }
    std::vector<CGFloat> rowHeights() {
        std::vector<CGFloat> heights;
        for (const NSIndexPath path : table->indexPathsForVisibleRows()) {
            const auto cell = std::static_pointer_cast<GXBpmPickerCell>(table->cellForRowAtIndexPath(path));
            heights.push_back(cell->pickerView()->pickerView()->rowSizeForComponent(0).height);
        }
        return heights;
    }
};

} // namespace

TEST_F(TableOfPickers, TakeANewStyleWhenTheirClassIsRegisteredAgain) {
    const CGFloat before = GXStyleSheet::globalStyleSheet()->pickerRowHeight();
    EXPECT_EQ(rowHeights(), (std::vector<CGFloat>{before, before}));
    GXStyleSheet::setGlobalStyleSheet(create<TallRows>());
    table->registerClass_forCellReuseIdentifier<GXBpmPickerCell>(GXBpmPickerCell::cellIdentifier());
    scrollTo(330);
    EXPECT_EQ(rowHeights(), (std::vector<CGFloat>{before, before, 61})) << "no waiting cell comes back";
    table->reloadData();
    window.tick(0);
    EXPECT_EQ(rowHeights(), (std::vector<CGFloat>{61, 61, 61})) << "nor one that was in sight";
}
