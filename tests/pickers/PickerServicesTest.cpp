#include <set>

#include "GXBpmPickerCell.h"
#include "GXBpmPickerView.h"
#include "GXCaloriesPickerView.h"
#include "GXDistanceAndDurationPicker.h"
#include "GXHeartRatePickerView.h"
#include "GXHeightPickerView.h"
#include "GXIconPickerView.h"
#include "GXLocalization.h"
#include "GXPacePickerView.h"
#include "GXSpeedPickerView.h"
#include "GXStyleSheet.h"
#include "GXTemperaturePickerCell.h"
#include "GXWeatherAndTemperaturePickerView.h"
#include "GXWeightPickerView.h"
#include "IconImages.h"
#include "PickerKind.h"

using namespace gx;

// A service may replace itself, and drop the picker, while it is asked: its caller keeps both until
// it returns.

namespace {

constexpr CGRect usual = {{0, 0}, {320, 216}};

/// What is asked of services, and whether one was gone before it had returned.
struct Log {
    int asked = 0;
    int gone = 0;
    std::function<void()> whenAsked;
    std::set<const void*> living;
};
Log& log() {
    static Log log;
    return log;
}

/// Makes a service note its life, and see itself replaced.
template <class Service, class Own>
class Replaced : public Service {
public:
    Replaced() { log().living.insert(this); }
    ~Replaced() override { log().living.erase(this); }

protected:
    template <class Result>
    Result asked(Result result) const {
        ++log().asked;
        if (log().whenAsked) log().whenAsked();
        Own::replace();
        if (log().living.count(this) == 0) ++log().gone;
        return result;
    }
};

class Sheet : public Replaced<GXStyleSheet, Sheet> {
public:
    static void replace() { GXStyleSheet::setGlobalStyleSheet(create<Sheet>()); }
    double pickerRowHeight() const override { return asked(GXStyleSheet::pickerRowHeight()); }
    double pickerImageRowHeight() const override { return asked(GXStyleSheet::pickerImageRowHeight()); }
    Ref<GXStyleSheetFont> pickerValueFont() const override { return asked(GXStyleSheet::pickerValueFont()); }
    Ref<GXStyleSheetFont> pickerLabelFont() const override { return asked(GXStyleSheet::pickerLabelFont()); }
    UIColor tableBgColor() const override { return asked(GXStyleSheet::tableBgColor()); }
};

class Localization : public Replaced<GXLocalization, Localization> {
public:
    static void replace() { GXLocalization::setSharedLocalization(create<Localization>()); }
    std::optional<std::string> localizedStringWithKey_comment(const std::string& key, const std::string& comment) const override {
        return asked(GXLocalization::localizedStringWithKey_comment(key, comment));
    }
};

/// A formatter that has its picker take another one.
template <class Base>
class Formatter : public Replaced<Base, Formatter<Base>> {
public:
    static std::function<void()>& replacing() {
        static std::function<void()> replacing;
        return replacing;
    }
    static void replace() {
        if (replacing()) replacing()();
    }
    std::optional<std::string> unit(const NSNumber& quantity) const override { return this->asked(Base::unit(quantity)); }
};

struct OwnServices : testing::Test {
    OwnServices() {
        log() = Log();
        Sheet::replace();
        Localization::replace();
    }
    ~OwnServices() override {
        log().whenAsked = nullptr;
        GXStyleSheet::setGlobalStyleSheet(nullptr);
        GXLocalization::setSharedLocalization(nullptr);
    }
};

void prepare(GXBasePickerView&) {}
void prepare(GXIconPickerView& picker) { picker.setIconImages(iconImages(5)); }
void prepare(GXWeightPickerView& picker) { picker.setWeightUnitSelectable(true); }

struct Kind : PickerKind {
    void (*prepare)(GXBasePickerView&);
};
template <class Picker>
Kind kind(const char* name) {
    return {pickerKind<Picker>(name), [](GXBasePickerView& picker) { prepare(static_cast<Picker&>(picker)); }};
}

struct PickerServices : OwnServices, testing::WithParamInterface<Kind> {};

INSTANTIATE_TEST_SUITE_P(Pickers, PickerServices,
                         testing::ValuesIn(kindsOfPickers([]<class Picker>(const char* name) { return kind<Picker>(name); })),
                         NameOfKind());

} // namespace

TEST_P(PickerServices, OneThatReplacesItselfLivesUntilItHasReturned) {
    GetParam().withCoder(create<NSCoder>());
    GetParam().withRowHeight(usual, 50);
    const auto picker = GetParam().withFrame(usual);
    GetParam().prepare(*picker);
    picker->layoutIfNeeded();
    picker->setIsMetric(true);
    picker->setIsMetric(false);
    picker->setCustomLabelFont(nullptr);
    picker->setCustomValueFont(nullptr);
    picker->reloadData();
    picker->layoutIfNeeded();
    for (NSInteger component = 0; component < 4; ++component) {
        picker->pickerView_viewForRow_forComponent_reusingView(picker->pickerView(), 0, component, nullptr);
        picker->pickerView_accessibilityLabelForComponent(picker->pickerView(), component);
        picker->pickerView_accessibilityValueForRow_forComponent(picker->pickerView(), 0, component);
    }
    EXPECT_GT(log().asked, 0);
    EXPECT_EQ(log().gone, 0);
}

TEST_P(PickerServices, OneMayDropThePickerThatAsksIt) {
    Ref<GXBasePickerView> held;
    using Call = void (*)(GXBasePickerView&);
    const Call calls[] = {[](GXBasePickerView& picker) { picker.reloadData(); },
                          [](GXBasePickerView& picker) { picker.setIsMetric(true); },
                          [](GXBasePickerView& picker) { picker.setCustomLabelFont(nullptr); },
                          [](GXBasePickerView& picker) { picker.layoutIfNeeded(); },
                          [](GXBasePickerView& picker) { picker.pickerView_viewForRow_forComponent_reusingView(nullptr, 0, 0, nullptr); },
                          [](GXBasePickerView& picker) { picker.pickerView_accessibilityLabelForComponent(nullptr, 0); }};
    int dropped = 0;
    for (const Call call : calls) {
        held = GetParam().withFrame(usual);
        GetParam().prepare(*held);
        const WeakRef<GXBasePickerView> weak = held;
        log().whenAsked = [&] { held = nullptr; };
        call(*held);
        log().whenAsked = nullptr;
        EXPECT_EQ(weak.expired(), held == nullptr);
        if (!held) ++dropped;
    }
    EXPECT_GT(dropped, 0);
    EXPECT_EQ(log().gone, 0);
}

TEST_F(OwnServices, AFormatterThatIsTakenFromItsPickerLivesUntilItHasReturned) {
    const auto distance = create<GXDistancePickerView>(usual);
    const auto speed = create<GXSpeedPickerView>(usual);
    const auto calories = create<GXCaloriesPickerView>(usual);
    log().asked = log().gone = 0;
    using Distance = Formatter<GXDistanceFormatter>;
    using Speed = Formatter<GXSpeedFormatter>;
    using Calories = Formatter<GXCaloriesFormatter>;
    Distance::replacing() = [&] { distance->setDistanceFormatter(nullptr); };
    Speed::replacing() = [&] { speed->setSpeedFormatter(nullptr); };
    Calories::replacing() = [&] { calories->setCaloriesFormatter(nullptr); };
    distance->setDistanceFormatter(create<Distance>(1, false, true));
    speed->setSpeedFormatter(create<Speed>(1, false, true));
    calories->setCaloriesFormatter(create<Calories>(0, false, true));
    distance->setIsMetric(true);
    speed->setIsMetric(true);
    calories->reloadData();
    Distance::replacing() = Speed::replacing() = Calories::replacing() = nullptr;
    EXPECT_GE(log().asked, 3 + 3) << "each unit, and the localiser that it asks";
    EXPECT_EQ(log().gone, 0);
}

TEST_F(OwnServices, CellsAndTheHeightPickerKeepTheirsToo) {
    create<GXBpmPickerCell>(UITableViewCellStyleDefault, std::nullopt);
    create<GXTemperaturePickerCell>(UITableViewCellStyleDefault, std::nullopt);
    const auto height = create<GXHeightPickerView>(usual);
    height->setIsMetric(true);
    height->layoutIfNeeded();
    height->reloadData();
    height->layoutIfNeeded();
    EXPECT_GT(log().asked, 0);
    EXPECT_EQ(log().gone, 0);
}

TEST_F(OwnServices, OneMayDropTheCellThatAsksIt) {
    auto cell = create<GXTemperaturePickerCell>(UITableViewCellStyleDefault, std::nullopt);
    const WeakRef<UIView> weak = cell;
    log().whenAsked = [&] { cell = nullptr; };
    cell->styleGXBasePickerCell();
    EXPECT_TRUE(weak.expired());
    log().whenAsked = nullptr;
    cell = create<GXTemperaturePickerCell>(UITableViewCellStyleDefault, std::nullopt);
    log().whenAsked = [&] { cell = nullptr; };
    cell->initGXTemperaturePickerCell();
    EXPECT_FALSE(cell);
}
