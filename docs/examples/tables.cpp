// A table of measurements: a tap on a row opens its picker below it.

#include <GXUIPickers/GXUIPickers.h>

#include <iostream>

using namespace gx;

/// A distance and a duration: what the table shows, and what its pickers change.
class Workout : public UITableViewDataSource,
                public UITableViewDelegate,
                public GXBasePickerViewDelegate,
                public std::enable_shared_from_this<Workout> {
public:
    const Ref<UITableView> table = create<UITableView>(CGRectMake(0, 0, 320, 480));

    void show() {
        // A class alone would make cells of the default style, which have no place for a value.
        table->registerClass_forCellReuseIdentifier([] { return create<UITableViewCell>(UITableViewCellStyleValue1, "row"); }, "row");
        table->registerClass_forCellReuseIdentifier<GXDistancePickerCell>(GXDistancePickerCell::cellIdentifier());
        table->registerClass_forCellReuseIdentifier<GXDurationPickerCell>(GXDurationPickerCell::cellIdentifier());
        // That of the pickers' cells.
        table->setBackgroundColor(GXStyleSheet::globalStyleSheet()->tableBgColor());
        for (std::size_t i = 0; i < values_.size(); ++i) texts_[i] = pickerCell(i)->pickerView()->currentValueText();
        table->setDataSource(weak_from_this());
        table->setDelegate(weak_from_this());
    }

    NSInteger tableView_numberOfRowsInSection(const Ref<UITableView>&, NSInteger) override { return open_ ? 3 : 2; }
    Ref<UITableViewCell> tableView_cellForRowAtIndexPath(const Ref<UITableView>&, NSIndexPath path) override {
        const std::size_t measurement = measurementOfRow(path.row);
        if (isPicker(path.row)) return pickerCell(measurement);
        const Ref<UITableViewCell> cell = table->dequeueReusableCellWithIdentifier("row");
        cell->textLabel()->setText(measurement == 0 ? "Distance" : "Duration");
        cell->detailTextLabel()->setText(texts_[measurement]);
        return cell;
    }
    CGFloat tableView_heightForRowAtIndexPath(const Ref<UITableView>&, NSIndexPath path) override {
        return isPicker(path.row) ? 200 : UITableView::automaticDimension;
    }
    bool tableView_isRowPartOfRowAbove(const Ref<UITableView>&, NSIndexPath path) override { return isPicker(path.row); }
    bool tableView_shouldHighlightRowAtIndexPath(const Ref<UITableView>&, NSIndexPath path) override { return !isPicker(path.row); }

    void tableView_didSelectRowAtIndexPath(const Ref<UITableView>&, NSIndexPath path) override {
        const std::size_t tapped = measurementOfRow(path.row);
        const std::optional<std::size_t> closed = open_;
        if (closed) {
            table->finishAnimations(); // A wheel that still moves reports its row now.
            open_.reset();             // First the data, then the table.
            table->deleteRowsAtIndexPaths_animated({pathOf(*closed + 1)}, true);
        }
        if (tapped == closed) return;
        open_ = tapped;
        table->insertRowsAtIndexPaths_animated({pathOf(tapped + 1)}, true);
    }
    void pickerView_didChangeCurrentValue_forComponent(const Ref<GXBasePickerView>& picker, const NSNumber& value, NSInteger) override {
        if (!open_) return;
        values_[*open_] = value;
        texts_[*open_] = picker->currentValueText();
        // No cell is there for a row out of sight.
        if (const auto cell = table->cellForRowAtIndexPath(pathOf(*open_))) cell->detailTextLabel()->setText(texts_[*open_]);
    }

private:
    bool isPicker(NSInteger row) const { return open_ && row == pathOf(*open_ + 1).row; }
    std::size_t measurementOfRow(NSInteger row) const {
        return static_cast<std::size_t>(open_ && row > pathOf(*open_).row ? row - 1 : row);
    }
    static NSIndexPath pathOf(std::size_t row) { return {0, static_cast<NSInteger>(row)}; }
    /// A cell that is used again keeps its picker, so everything is set each time.
    Ref<GXBasePickerCell> pickerCell(std::size_t measurement) {
        const std::string name = measurement == 0 ? GXDistancePickerCell::cellIdentifier() : GXDurationPickerCell::cellIdentifier();
        auto cell = std::static_pointer_cast<GXBasePickerCell>(table->dequeueReusableCellWithIdentifier(name));
        cell->pickerView()->setIsMetric(true);
        cell->pickerView()->setCurrentValue(values_[measurement]);
        cell->pickerView()->setDelegate(weak_from_this());
        return cell;
    }

    std::optional<std::size_t> open_;
    // Metres and milliseconds.
    std::vector<NSNumber> values_ = {NSNumber::numberWithInt(5300), NSNumber::numberWithInt(27 * 60000)};
    std::vector<std::string> texts_ = {"", ""};
};

int main() {
    const auto workout = std::make_shared<Workout>(); // Table and pickers hold it weakly.
    workout->show();
    const Ref<UITableView>& table = workout->table;
    const auto valueOfRow = [&](NSInteger row) { return table->cellForRowAtIndexPath({0, row})->detailTextLabel()->text().value_or(""); };
    std::cout << valueOfRow(0) << ", " << valueOfRow(1) << "\n";

    // A tap on the first row, a spin of the wheel that it opens, and a second tap.
    workout->tableView_didSelectRowAtIndexPath(table, {0, 0});
    std::cout << table->numberOfRowsInSection(0) << " rows\n";
    const auto opened = std::static_pointer_cast<GXBasePickerCell>(table->cellForRowAtIndexPath({0, 1}));
    opened->pickerView()->pickerView()->turnToRow_inComponent(12, 0);
    workout->tableView_didSelectRowAtIndexPath(table, {0, 0});
    std::cout << valueOfRow(0) << ", " << valueOfRow(1) << "\n";
    return 0;
}
