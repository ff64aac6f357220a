#include "GXBasePickerCell.h"
#include "CastTo.h"

#include <functional>

#include "FingerTurn.h"
#include "GXBpmPickerCell.h"
#include "GXBpmPickerView.h"
#include "GXCaloriesPickerCell.h"
#include "GXCaloriesPickerView.h"
#include "GXDistanceAndDurationCell.h"
#include "GXDistanceAndDurationPicker.h"
#include "GXDistancePickerCell.h"
#include "GXDurationPickerCell.h"
#include "GXHeartRatePickerCell.h"
#include "GXHeartRatePickerView.h"
#include "GXPacePickerCell.h"
#include "GXPacePickerView.h"
#include "GXSpeedPickerCell.h"
#include "GXSpeedPickerView.h"
#include "GXStyleSheet.h"
#include "GXTemperaturePickerCell.h"
#include "GXWeatherAndTemperaturePickerCell.h"
#include "GXWeatherAndTemperaturePickerView.h"
#include "GXWeightPickerCell.h"
#include "GXWeightPickerView.h"
#include "NSLayoutConstraint.h"
#include "PickerTest.h"

using namespace gx;

namespace {

/// A cell class, and what is expected of it.
struct CellKind {
    const char* name;
    const char* expectedIdentifier;
    std::string identifier;
    Ref<GXBasePickerCell> (*make)();
    Ref<GXBasePickerCell> (*restore)(const Ref<NSCoder>&);
    Ref<GXBasePickerCell> (*makeWithFrame)(CGRect);
    bool (*hasMade)(const GXBasePickerView&);

    friend std::ostream& operator<<(std::ostream& out, const CellKind& kind) { return out << kind.name; }
};

template <class Cell, class Picker>
CellKind kind(const char* name, const char* expectedIdentifier) {
    return {name,
            expectedIdentifier,
            Cell::cellIdentifier(),
            []() -> Ref<GXBasePickerCell> { return create<Cell>(UITableViewCellStyleDefault, Cell::cellIdentifier()); },
            [](const Ref<NSCoder>& coder) -> Ref<GXBasePickerCell> { return create<Cell>(coder); },
            [](CGRect frame) -> Ref<GXBasePickerCell> { return create<Cell>(frame); },
            [](const GXBasePickerView& picker) { return isExactly<Picker>(picker); }};
}

std::vector<CellKind> allKinds() {
    return {
        kind<GXBpmPickerCell, GXBpmPickerView>("Bpm", "GXBpmPickerCellIdentifier"),
        kind<GXCaloriesPickerCell, GXCaloriesPickerView>("Calories", "GXCaloriesPickerCellIdentifier"),
        kind<GXDistanceAndDurationCell, GXDistanceAndDurationPicker>("DistanceAndDuration", "GXDistanceAndDurationCellIdentifier"),
        kind<GXDistancePickerCell, GXDistancePickerView>("Distance", "GXDistancePickerCellIdentifier"),
        kind<GXDurationPickerCell, GXDurationPickerView>("Duration", "GXDurationPickerCellIdentifier"),
        kind<GXHeartRatePickerCell, GXHeartRatePickerView>("HeartRate", "GXHeartRatePickerCellIdentifier"),
        kind<GXPacePickerCell, GXPacePickerView>("Pace", "GXPacePickerCellIdentifier"),
        kind<GXSpeedPickerCell, GXSpeedPickerView>("Speed", "GXSpeedPickerCellIdentifier"),
        kind<GXTemperaturePickerCell, GXTemperaturePickerView>("Temperature", "GXTemperaturePickerCellIdentifier"),
        kind<GXWeatherAndTemperaturePickerCell, GXWeatherAndTemperaturePickerView>("WeatherAndTemperature",
                                                                                   "GXWeatherAndTemperaturePickerCellIdentifier"),
        kind<GXWeightPickerCell, GXWeightPickerView>("Weight", "GXWeightPickerCell"),
    };
}

class PickerCell : public testing::TestWithParam<CellKind> {
protected:
    /// One picker, of the kind's own class, in the content view.
    static void expectPickerIn(const Ref<GXBasePickerCell>& cell) {
        ASSERT_TRUE(cell->pickerView());
        EXPECT_TRUE(GetParam().hasMade(*cell->pickerView()));
        EXPECT_EQ(cell->contentView()->subviews(), (std::vector<Ref<UIView>>{cell->pickerView()}));
        EXPECT_EQ(cell->contentView()->backgroundColor(), UIColor::clearColor());
        EXPECT_EQ(cell->backgroundColor(), GXStyleSheet::globalStyleSheet()->tableBgColor());
    }
};

INSTANTIATE_TEST_SUITE_P(Kinds, PickerCell, testing::ValuesIn(allKinds()),
                         [](const testing::TestParamInfo<CellKind>& tested) { return std::string(tested.param.name); });

} // namespace

// Every picker's cell

TEST_P(PickerCell, ItsIdentifierIsTheOneThatApplicationsLookFor) { EXPECT_EQ(GetParam().identifier, GetParam().expectedIdentifier); }

TEST_P(PickerCell, OneMadeInCodeHasItsPickerWithTheCellsBounds) {
    const auto cell = GetParam().make();
    expectPickerIn(cell);
    EXPECT_EQ(cell->reuseIdentifier(), GetParam().expectedIdentifier);
    EXPECT_EQ(cell->pickerView()->frame(), CGRectMake(0, 0, 320, 44));
}

TEST_P(PickerCell, OneMadeWithAFrameHasItsPickerToo) {
    const auto cell = GetParam().makeWithFrame(CGRectMake(5, 6, 300, 200));
    expectPickerIn(cell);
    EXPECT_EQ(cell->pickerView()->frame(), CGRectMake(0, 0, 300, 200));
}

TEST_P(PickerCell, ThePickerFollowsNewBounds) {
    const auto cell = GetParam().make();
    cell->setBounds(CGRectMake(0, 0, 280, 180));
    EXPECT_EQ(cell->pickerView()->frame(), CGRectMake(0, 0, 280, 180));
    cell->setBounds(CGRectMake(3, 4, 100, 50));
    EXPECT_EQ(cell->pickerView()->frame(), CGRectMake(3, 4, 100, 50));
}

TEST_P(PickerCell, OneFromAnInterfaceGetsItsPickerWhenItAwakes) {
    const auto coder = create<NSCoder>();
    coder->encodeCGRect_forKey(CGRectMake(0, 90, 300, 200), "frame");
    coder->encodeString_forKey("restored", "reuseIdentifier");
    const auto cell = GetParam().restore(coder);
    EXPECT_FALSE(cell->pickerView());
    EXPECT_EQ(cell->backgroundColor(), std::nullopt);
    EXPECT_EQ(cell->reuseIdentifier(), "restored");
    cell->setFrame(CGRectMake(0, 90, 320, 210)); // safe without a picker
    cell->awakeFromNib();
    expectPickerIn(cell);
    EXPECT_EQ(cell->pickerView()->frame(), CGRectMake(0, 0, 320, 210));
}

TEST_P(PickerCell, ThePickerIsMadeOnce) {
    const auto cell = GetParam().make();
    const Ref<GXBasePickerView> picker = cell->pickerView();
    cell->awakeFromNib();
    EXPECT_EQ(cell->pickerView(), picker);
    expectPickerIn(cell);
}

TEST_P(PickerCell, ThePickerFillsTheCellWhateverItsFrame) {
    const auto cell = GetParam().make();
    for (const CGRect& frame : {CGRectMake(0, 0, 320, 216), CGRectMake(0, 44, 568, 200), CGRectMake(10, 0, 320, 216), CGRectNull}) {
        cell->setFrame(frame);
        const CGRect filled = {{0, 0}, cell->bounds().size};
        EXPECT_EQ(cell->pickerView()->frame(), filled) << "at once";
        cell->layoutIfNeeded();
        EXPECT_EQ(cell->pickerView()->frame(), filled) << "and after a layout";
    }
    cell->setFrame(CGRectMake(0, 0, 320, 216));
    EXPECT_EQ(cell->pickerView()->frame(), CGRectMake(0, 0, 320, 216));
}

TEST_P(PickerCell, ReuseKeepsThePickerWithItsValueAndDelegate) {
    const auto cell = GetParam().make();
    const auto notices = create<PickerNotices>();
    const Ref<GXBasePickerView> picker = cell->pickerView();
    const NSNumber value = boxed(200);
    picker->setCurrentValue(value);
    const NSNumber held = picker->currentValue(); // Some pickers hold it to their range.
    picker->setDelegate(notices);
    cell->prepareForReuse();
    EXPECT_EQ(cell->pickerView(), picker);
    EXPECT_TRUE(picker->currentValue().isIdenticalTo(held));
    EXPECT_EQ(picker->delegate().lock(), notices);
    expectPickerIn(cell);
}

TEST_P(PickerCell, ThePickerMayBeReplacedOrTakenAway) {
    const auto cell = GetParam().make();
    const auto other = create<GXBasePickerView>(CGRectZero);
    cell->setPickerView(other);
    EXPECT_FALSE(other->superview()) << "the setter stores only";
    cell->setFrame(CGRectMake(0, 0, 320, 216));
    EXPECT_EQ(other->frame(), CGRectMake(0, 0, 320, 216));
    cell->setPickerView(nullptr);
    cell->setFrame(CGRectMake(0, 0, 568, 200));
    cell->layoutIfNeeded();
    EXPECT_EQ(cell->frame(), CGRectMake(0, 0, 568, 200));
}

// The base

TEST(BasePickerCell, ABareOneIsStyledAndHasNoPicker) {
    EXPECT_EQ(GXBasePickerCell::cellIdentifier(), "GXBasePickerCellIdentifier");
    const auto cell = create<GXBasePickerCell>(UITableViewCellStyleValue1, "other");
    EXPECT_EQ(cell->style(), UITableViewCellStyleValue1);
    EXPECT_EQ(cell->reuseIdentifier(), "other");
    EXPECT_FALSE(cell->pickerView());
    EXPECT_TRUE(cell->contentView()->subviews().empty());
    EXPECT_EQ(cell->contentView()->backgroundColor(), UIColor::clearColor());
    cell->setFrame(CGRectMake(0, 0, 320, 216));
    EXPECT_EQ(cell->frame(), CGRectMake(0, 0, 320, 216));
    EXPECT_EQ(cell->contentView()->frame(), CGRectMake(0, 0, 320, 216));
    cell->awakeFromNib();
    EXPECT_FALSE(cell->pickerView());
}

TEST(BasePickerCell, ItsBackgroundIsTheStyleSheets) {
    struct Style : GXStyleSheet {
        UIColor tableBgColor() const override { return UIColor::colorWithHex(0x123456); }
    };
    GXStyleSheet::setGlobalStyleSheet(create<Style>());
    const auto cell = create<GXBasePickerCell>(UITableViewCellStyleDefault, std::nullopt);
    GXStyleSheet::setGlobalStyleSheet(nullptr);
    EXPECT_EQ(cell->backgroundColor(), UIColor::colorWithHex(0x123456));
}

TEST(BasePickerCell, ASubclassStylesItBeforeThePickerIsMade) {
    struct Noted : GXBpmPickerCell {
        Calls calls;
        void initGXBasePickerCell() override {
            calls.emplace_back("set up");
            GXBpmPickerCell::initGXBasePickerCell();
        }
        void styleGXBasePickerCell() override {
            calls.emplace_back("style");
            GXBpmPickerCell::styleGXBasePickerCell();
        }
        void makePicker() override {
            calls.emplace_back("picker");
            GXBpmPickerCell::makePicker();
        }
    };
    EXPECT_EQ(create<Noted>(UITableViewCellStyleDefault, std::nullopt)->calls, (Calls{"set up", "style", "picker"}));
    const auto coded = create<Noted>(create<NSCoder>());
    EXPECT_EQ(coded->calls, Calls{});
    coded->awakeFromNib();
    EXPECT_EQ(coded->calls, (Calls{"set up", "style", "picker"}));
}

TEST(BasePickerCell, APickerMayTakeItselfAndTheCellAwayWhileItIsMoved) {
    struct Meddler : GXBasePickerView {
        std::function<void()> whenMoved;
        void setFrame(CGRect frame) override {
            GXBasePickerView::setFrame(frame);
            const auto action = whenMoved;
            if (action) action();
        }
    };
    auto cell = create<GXBasePickerCell>(UITableViewCellStyleDefault, std::nullopt);
    const WeakRef<UIView> weak = cell;
    const auto meddler = create<Meddler>(CGRectZero);
    cell->setPickerView(meddler);
    meddler->whenMoved = [&] {
        cell->setPickerView(nullptr);
        cell = nullptr;
    };
    cell->setFrame(CGRectMake(0, 0, 320, 216));
    EXPECT_TRUE(weak.expired());
}

// Single cells

TEST(BpmPickerCell, AFreshOneShows160AndFollowsAFinger) {
    const auto cell = create<GXBpmPickerCell>(UITableViewCellStyleDefault, GXBpmPickerCell::cellIdentifier());
    cell->setFrame(CGRectMake(0, 0, 320, 216));
    const auto notices = create<PickerNotices>();
    cell->pickerView()->setDelegate(notices);
    EXPECT_EQ(cell->pickerView()->currentValue().intValue(), 160);
    TestWindow window(cell);
    const Ref<UIPickerView> wheel = cell->pickerView()->pickerView();
    EXPECT_EQ(wheel->selectedRowInComponent(0), 16);
    turnOneRow(window, wheel, 0);
    ASSERT_EQ(notices->list.size(), 1U);
    EXPECT_EQ(notices->list[0].picker, cell->pickerView());
    EXPECT_EQ(notices->list[0].value.integerValue(), 170);
}

TEST(PickerCells, AnApplicationsWheelComesUnderTheirPickers) {
    RecordingWheel::install();
    const auto cell = create<GXBpmPickerCell>(UITableViewCellStyleDefault, std::nullopt);
    RecordingWheel::uninstall();
    EXPECT_EQ(RecordingWheel::under(cell->pickerView()).rightLabelText(), "bpm");
}

TEST(TemperaturePickerCell, ItsRowsAreAsHighAsTheStyleSheetSaysInSinglePrecision) {
    struct Style : GXStyleSheet {
        double pickerRowHeight() const override { return 0.1; }
    };
    GXStyleSheet::setGlobalStyleSheet(create<Style>());
    const auto cell = create<GXTemperaturePickerCell>(UITableViewCellStyleDefault, std::nullopt);
    GXStyleSheet::setGlobalStyleSheet(nullptr);
    EXPECT_EQ(cell->pickerView()->pickerView_rowHeightForComponent(nullptr, 0), 0.10000000149011612);
}

TEST(CompositeCells, TheirInnerPickersFollowTheCell) {
    const auto distance = create<GXDistanceAndDurationCell>(UITableViewCellStyleDefault, std::nullopt);
    distance->setFrame(CGRectMake(0, 0, 320, 216));
    const auto workout = castTo<GXDistanceAndDurationPicker>(distance->pickerView());
    EXPECT_EQ(workout->distancePicker()->frame(), CGRectMake(0, 0, 165, 216));
    EXPECT_EQ(workout->durationPicker()->frame(), CGRectMake(140, 0, 180, 216));
    const auto weather = create<GXWeatherAndTemperaturePickerCell>(UITableViewCellStyleDefault, std::nullopt);
    weather->setFrame(CGRectMake(0, 0, 568, 200));
    const auto outdoors = castTo<GXWeatherAndTemperaturePickerView>(weather->pickerView());
    EXPECT_EQ(outdoors->weatherPicker()->frame(), CGRectMake(0, 0, 254, 200));
    EXPECT_EQ(outdoors->temperaturePicker()->frame(), CGRectMake(254, 0, 314, 200));
    EXPECT_EQ(outdoors->temperaturePicker()->pickerView_rowHeightForComponent(nullptr, 0), 56);
}

TEST(WeightPickerCell, ItsPickerIsPinnedToTheContentView) {
    const auto cell = create<GXWeightPickerCell>(UITableViewCellStyleDefault, GXWeightPickerCell::cellIdentifier());
    EXPECT_FALSE(cell->pickerView()->translatesAutoresizingMaskIntoConstraints());
    ASSERT_EQ(cell->contentView()->constraints().size(), 4U);
    for (const auto& constraint : cell->contentView()->constraints()) {
        EXPECT_EQ(constraint->firstItem(), cell->pickerView());
        EXPECT_EQ(constraint->constant(), 0);
    }
    cell->pickerView()->setFrame(CGRectMake(9, 9, 9, 9));
    cell->contentView()->setNeedsLayout();
    cell->layoutIfNeeded();
    EXPECT_EQ(cell->pickerView()->frame(), CGRectMake(0, 0, 320, 44));
}

TEST(PickerCells, OnlyTheWeightsPickerIsPinned) {
    const auto cell = create<GXBpmPickerCell>(UITableViewCellStyleDefault, std::nullopt);
    EXPECT_TRUE(cell->pickerView()->translatesAutoresizingMaskIntoConstraints());
    EXPECT_TRUE(cell->contentView()->constraints().empty());
}
