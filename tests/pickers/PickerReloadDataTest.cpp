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
#include "GXWeatherAndTemperaturePickerView.h"
#include "GXWeightPickerView.h"
#include "HeightPickerTest.h"
#include "IconImages.h"
#include "NSLocale.h"
#include "PickerKind.h"
#include "PickerTest.h"
#include "TestWindow.h"

using namespace gx;

// After the language, the locale or the style sheet has changed, `reloadData` shows what they give
// now.

namespace {

constexpr CGRect usual = {{0, 0}, {320, 216}};

/// Texts of its own for every key.
class Shouting : public GXLocalization {
public:
    std::optional<std::string> localizedStringWithKey_comment(const std::string& key, const std::string&) const override {
        return key + "!";
    }
};

class Sheet : public GXStyleSheet {
public:
    Ref<GXStyleSheetFont> pickerValueFont() const override { return value; }
    Ref<GXStyleSheetFont> pickerLabelFont() const override { return label; }
    Ref<GXStyleSheetFont> value = font(30);
    Ref<GXStyleSheetFont> label = font(31);
    double pickerRowHeight() const override { return 77; }

private:
    static Ref<GXStyleSheetFont> font(CGFloat size) {
        return GXStyleSheetFont::fontWithFamily_size_weight_color("", size, UIFontWeight::Regular, UIColor::systemBlueColor());
    }
};

void restoreServices() {
    GXLocalization::setSharedLocalization(nullptr);
    GXStyleSheet::setGlobalStyleSheet(nullptr);
    NSLocale::setCurrentLocale(nullptr);
}

/// What a picker shows beside its numbers.
struct Texts {
    std::optional<std::string> left;
    std::optional<std::string> right;
    std::vector<std::optional<std::string>> separators; // after the components 0 to 3

    friend bool operator==(const Texts& one, const Texts& other) {
        return one.left == other.left && one.right == other.right && one.separators == other.separators;
    }
    friend std::ostream& operator<<(std::ostream& out, const Texts& texts) {
        out << texts.left.value_or("-") << " " << texts.right.value_or("-");
        for (const auto& separator : texts.separators) out << " " << separator.value_or("-");
        return out;
    }
};

Texts textsOf(const GXBasePickerView& picker) {
    const Ref<GXMultiValuePickerView> wheel = picker.pickerView();
    Texts texts = {wheel->leftLabelText(), wheel->rightLabelText(), {}};
    for (const NSUInteger component : {0U, 1U, 2U, 3U}) {
        const Ref<UILabel> separator = wheel->separatorAfterComponent(component);
        texts.separators.push_back(separator ? separator->text() : std::nullopt);
    }
    return texts;
}

void changeServices() {
    GXLocalization::setSharedLocalization(create<Shouting>());
    GXStyleSheet::setGlobalStyleSheet(create<Sheet>());
    NSLocale::setCurrentLocale(create<NSLocale>(std::string("de_DE")));
}

void prepare(GXBasePickerView&) {}
void prepare(GXIconPickerView& picker) { picker.setIconImages(iconImages(5)); }

struct Kind : PickerKind {
    void (*prepare)(GXBasePickerView&);
};
template <class Picker>
Kind kind(const char* name) {
    return {pickerKind<Picker>(name), [](GXBasePickerView& picker) { prepare(static_cast<Picker&>(picker)); }};
}

struct ReloadData : PickerTest<GXBasePickerView>, testing::WithParamInterface<Kind> {
    ReloadData() : PickerTest(GetParam().withFrame) { GetParam().prepare(*picker); }
    ~ReloadData() override { restoreServices(); }
};

INSTANTIATE_TEST_SUITE_P(Pickers, ReloadData,
                         testing::ValuesIn(kindsOfSinglePickers([]<class Picker>(const char* name) { return kind<Picker>(name); })),
                         NameOfKind());

std::optional<std::string> rightText(const Ref<GXBasePickerView>& picker) { return picker->pickerView()->rightLabelText(); }

} // namespace

TEST_P(ReloadData, AfterwardsThePickerShowsWhatAFreshOneShows) {
    const Texts before = textsOf(*picker);
    changeServices();
    EXPECT_EQ(textsOf(*picker), before);
    picker->reloadData();
    EXPECT_EQ(textsOf(*picker), textsOf(*GetParam().withFrame(usual)));
}

TEST_P(ReloadData, RowsAndLabelsTakeTheNewFonts) {
    picker->layoutIfNeeded();
    changeServices();
    picker->reloadData();
    picker->layoutIfNeeded();
    const auto& wheel = picker->pickerView();
    EXPECT_EQ(wheel->leftDescLabel()->font()->pointSize(), 31);
    EXPECT_EQ(wheel->rightDescLabel()->font()->pointSize(), 31);
    EXPECT_EQ(wheel->rightDescLabel()->textColor(), UIColor::systemBlueColor());
    for (const NSInteger component : {0, 2}) {
        const auto row = asKindOf<UILabel>(wheel->viewForRow_forComponent(selected(component), component));
        if (row) {
            EXPECT_EQ(row->font()->pointSize(), 30) << "component " << component;
        }
        const Ref<UILabel> separator = wheel->separatorAfterComponent(static_cast<NSUInteger>(component));
        if (!separator || component + 1 >= wheel->numberOfComponents()) continue;
        EXPECT_EQ(separator->font()->pointSize(), 30);
        EXPECT_EQ(separator->frame().size, separator->sizeThatFits({}));
    }
}

TEST_P(ReloadData, ValuesRowsAndRowHeightStayAndNobodyIsTold) {
    wheel().selectRow_inComponent_animated(1, 0, false);
    const NSNumber value = picker->currentValue();
    const CGFloat height = picker->pickerView_rowHeightForComponent(nullptr, 0);
    std::vector<NSInteger> rows;
    for (NSInteger i = 0; i < wheel().numberOfComponents(); ++i) rows.push_back(selected(i));
    changeServices();
    picker->reloadData();
    EXPECT_TRUE(picker->currentValue().isIdenticalTo(value));
    EXPECT_EQ(picker->pickerView_rowHeightForComponent(nullptr, 0), height);
    for (NSInteger i = 0; i < wheel().numberOfComponents(); ++i) EXPECT_EQ(selected(i), rows[static_cast<std::size_t>(i)]);
    EXPECT_TRUE(notices->list.empty());
}

TEST_P(ReloadData, ItReloadsTheWheelOnceAndSelectsNothing) {
    const Calls calls = callsOf([this] { picker->reloadData(); });
    ASSERT_FALSE(calls.empty());
    EXPECT_EQ(calls.front(), "reload");
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "reload"), 1);
    for (const std::string& call : calls) EXPECT_NE(call.substr(0, 6), "select");
}

TEST(ReloadDataOfOnePicker, TheUnitFollowsTheLanguage) {
    const auto pace = create<GXPacePickerView>(usual);
    const auto weight = create<GXWeightPickerView>(usual);
    const auto bpm = create<GXBpmPickerView>(usual);
    const auto duration = create<GXDurationPickerView>(usual);
    const auto distance = create<GXDistancePickerView>(usual);
    const auto heart = create<GXHeartRatePickerView>(usual);
    changeServices();
    for (const Ref<GXBasePickerView>& picker : std::vector<Ref<GXBasePickerView>>{pace, weight, bpm, duration, distance, heart}) {
        picker->reloadData();
    }
    EXPECT_EQ(rightText(pace), "min/mi!");
    EXPECT_EQ(rightText(weight), "kg!");
    EXPECT_EQ(rightText(bpm), "bpm!");
    EXPECT_EQ(rightText(duration), "hh:mm!");
    EXPECT_EQ(rightText(distance), "mi!");
    EXPECT_EQ(rightText(heart), "MAX!");
    EXPECT_EQ(heart->pickerView()->leftLabelText(), "AVG!");
    EXPECT_EQ(weight->pickerView()->separatorAfterComponent(0)->text(), ",");
    EXPECT_EQ(distance->pickerView()->separatorAfterComponent(0)->text(), ",");
    restoreServices();
}

TEST(ReloadDataOfOnePicker, TheUnitComponentOfAWeightFollowsTheLanguage) {
    const auto weight = create<GXWeightPickerView>(usual);
    weight->setWeightUnitSelectable(true);
    weight->layoutIfNeeded();
    changeServices();
    weight->reloadData();
    EXPECT_FALSE(weight->pickerView()->rightLabelText());
    const auto row = asKindOf<UILabel>(weight->pickerView()->viewForRow_forComponent(0, 3));
    ASSERT_TRUE(row);
    EXPECT_EQ(row->text(), "  kg!");
    restoreServices();
}

TEST(ReloadDataOfOnePicker, ACaloriesPickerAsksItsFormatterOfThatMoment) {
    class Joules : public GXCaloriesFormatter {
    public:
        std::optional<std::string> unit(const NSNumber&) const override { return "kJ"; }
    };
    const auto picker = create<GXCaloriesPickerView>(usual);
    picker->setCaloriesFormatter(create<Joules>(0, false, true));
    EXPECT_EQ(rightText(picker), "kcal");
    picker->reloadData();
    EXPECT_EQ(rightText(picker), "kJ");
}

TEST(ReloadDataOfOnePicker, AMovementOfTheWheelGoesOn) {
    const auto picker = create<GXBpmPickerView>(usual);
    TestWindow window(picker);
    window.fling({160, 108}, {160, 40}, 3);
    ASSERT_TRUE(picker->pickerView()->isTurning());
    picker->reloadData();
    EXPECT_TRUE(picker->pickerView()->isTurning());
    window.runUntilStill();
}

// Composites and the height picker

TEST(ReloadDataOfComposites, BothInnerPickersReload) {
    const auto course = create<GXDistanceAndDurationPicker>(usual);
    const auto outdoors = create<GXWeatherAndTemperaturePickerView>(usual);
    outdoors->weatherPicker()->setIconImages(iconImages(3));
    changeServices();
    course->reloadData();
    outdoors->reloadData();
    EXPECT_EQ(rightText(course->distancePicker()), "mi!");
    EXPECT_EQ(course->distancePicker()->pickerView()->separatorAfterComponent(0)->text(), ",");
    EXPECT_EQ(rightText(course->durationPicker()), "hh:mm!");
    EXPECT_EQ(rightText(outdoors->temperaturePicker()), "°F!");
    course->setDistancePicker(nullptr);
    course->setDurationPicker(nullptr);
    outdoors->setWeatherPicker(nullptr);
    outdoors->setTemperaturePicker(nullptr);
    course->reloadData();
    outdoors->reloadData();
    restoreServices();
}

TEST_F(MetricHeightPicker, ReloadDataShowsTheUnitsInTheNewLanguageAndSelectsNothing) {
    picker->setHeightInCm(175);
    pass();
    picker->layoutIfNeeded();
    GXLocalization::setSharedLocalization(create<Shouting>());
    EXPECT_EQ(callsOf([this] { picker->reloadData(); }), Calls{"reload"});
    const auto row = asKindOf<UILabel>(picker->viewForRow_forComponent(0, 1));
    ASSERT_TRUE(row);
    EXPECT_EQ(row->text(), "cm!");
    EXPECT_EQ(selected(0), 55);
    GXLocalization::setSharedLocalization(nullptr);
}
