#include "GXBpmPickerView.h"
#include "GXCaloriesPickerView.h"
#include "GXDistanceAndDurationPicker.h"
#include "GXHeartRatePickerView.h"
#include "GXPacePickerView.h"
#include "GXSpeedPickerView.h"
#include "GXWeatherAndTemperaturePickerView.h"
#include "GXWeightPickerView.h"
#include "PickerKind.h"

using namespace gx;

// Every initialiser sets a picker up once, its superclass first.

namespace {

constexpr CGRect usual = {{0, 0}, {320, 216}};

using SetUps = std::vector<std::string>;

/// What an own picker notes while it is made.
struct Notes {
    SetUps setUps;
    CGRect given;

protected:
    bool note(const char* how) {
        setUps.emplace_back(how);
        return true;
    }
};

/// Notes each set-up, the base's and its own.
template <class Picker>
struct CountingPicker : Picker, Notes {
protected:
    void initGXBasePickerView() override {
        setUps.emplace_back("base");
        Picker::initGXBasePickerView();
    }
    void didInitialize() override {
        Picker::didInitialize();
        setUps.push_back("own, maximum " + std::to_string(this->maxValue().integerValue()));
    }
};

/// An application's picker in the older form: each initialiser calls the superclass's, then its own
/// set-up.
template <class Picker>
struct ThreeInitialisers : Picker, Notes {
    bool initWithFrame(CGRect frame) override { return Picker::initWithFrame(frame) && note("frame"); }
    bool initWithCoder(const Ref<NSCoder>& coder) override { return Picker::initWithCoder(coder) && note("coder"); }
    bool initWithFrame_rowHeight(CGRect frame, float height) override {
        return Picker::initWithFrame_rowHeight(frame, height) && note("height");
    }
};

template <class Picker>
struct OnlyFrame : Picker, Notes {
    bool initWithFrame(CGRect frame) override {
        given = frame;
        return Picker::initWithFrame(frame) && note("frame");
    }
};

/// Overrides one that its superclass has not overridden.
template <class Picker>
struct CoderBelowFrame : OnlyFrame<Picker> {
    bool initWithCoder(const Ref<NSCoder>& coder) override { return OnlyFrame<Picker>::initWithCoder(coder) && this->note("coder"); }
};

template <class Picker>
struct Refusing : Picker, Notes {
    bool initWithFrame(CGRect) override { return false; }
};

using Own = OwnPicker<Notes>;

/// A class of own pickers, by the three forms of `create`.
struct OwnClass {
    Own (*withFrame)(const CGRect&);
    Own (*withCoder)(const Ref<NSCoder>&);
    Own (*withRowHeight)(const CGRect&, const float&);
};
template <class Picker>
OwnClass ownClass() {
    return {ownPicker<Picker, Notes, CGRect>, ownPicker<Picker, Notes, Ref<NSCoder>>, ownPicker<Picker, Notes, CGRect, float>};
}

/// A class of pickers, and own classes that derive from it.
struct Kind : PickerKind {
    OwnClass counting;
    OwnClass threeInitialisers;
    OwnClass onlyFrame;
    Own (*coderBelowFrame)(const Ref<NSCoder>&);
    Own (*refusing)(const CGRect&);
};
template <class Picker>
Kind kind(const char* name) {
    return {pickerKind<Picker>(name),
            ownClass<CountingPicker<Picker>>(),
            ownClass<ThreeInitialisers<Picker>>(),
            ownClass<OnlyFrame<Picker>>(),
            ownPicker<CoderBelowFrame<Picker>, Notes, Ref<NSCoder>>,
            ownPicker<Refusing<Picker>, Notes, CGRect>};
}

struct PickerInitialisers : testing::TestWithParam<Kind> {};

INSTANTIATE_TEST_SUITE_P(Pickers, PickerInitialisers,
                         testing::ValuesIn(kindsOfPickers([]<class Picker>(const char* name) { return kind<Picker>(name); })),
                         NameOfKind());

} // namespace

TEST_P(PickerInitialisers, EachRunsTheSetUpsOnceTheBasesFirst) {
    const NSNumber maximum = GetParam().withFrame(usual)->maxValue();
    const SetUps expected = {"base", "own, maximum " + std::to_string(maximum.integerValue())};
    const OwnClass& counting = GetParam().counting;
    EXPECT_EQ(counting.withFrame(usual).notes->setUps, expected);
    EXPECT_EQ(counting.withCoder(create<NSCoder>()).notes->setUps, expected);
    EXPECT_EQ(counting.withRowHeight(usual, 50).notes->setUps, expected);
}

TEST_P(PickerInitialisers, AnOwnPickerThatOverridesAllOfThemIsSetUpOnce) {
    const OwnClass& three = GetParam().threeInitialisers;
    EXPECT_EQ(three.withFrame(usual).notes->setUps, SetUps{"frame"});
    EXPECT_EQ(three.withCoder(create<NSCoder>()).notes->setUps, SetUps{"coder"});
    EXPECT_EQ(three.withRowHeight(usual, 50).notes->setUps, SetUps{"height"});
}

TEST_P(PickerInitialisers, OneThatRefusesMakesNothing) { EXPECT_FALSE(GetParam().refusing(usual).picker); }

TEST_P(PickerInitialisers, AnOwnPickerThatOverridesOnlyInitWithFrameIsSetUpByEachOfThem) {
    const OwnClass& onlyFrame = GetParam().onlyFrame;
    const Own framed = onlyFrame.withFrame(usual);
    EXPECT_EQ(framed.notes->setUps, SetUps{"frame"});

    const auto coder = create<NSCoder>();
    coder->encodeCGRect_forKey(CGRectMake(7, 8, 300, 200), "frame");
    coder->encodeInteger_forKey(5, "tag");
    const Own restored = onlyFrame.withCoder(coder);
    EXPECT_EQ(restored.notes->setUps, SetUps{"frame"});
    EXPECT_EQ(restored.notes->given, CGRectMake(7, 8, 300, 200));
    EXPECT_EQ(restored.picker->frame(), CGRectMake(7, 8, 300, 200));
    EXPECT_EQ(restored.picker->tag(), 5);
    EXPECT_EQ(restored.picker->subviews().size(), framed.picker->subviews().size());

    const Own high = onlyFrame.withRowHeight(usual, 50);
    const auto plain = GetParam().withRowHeight(usual, 50);
    EXPECT_EQ(high.notes->setUps, SetUps{"frame"});
    EXPECT_EQ(high.picker->pickerView_rowHeightForComponent(nullptr, 0), plain->pickerView_rowHeightForComponent(nullptr, 0));
    EXPECT_EQ(high.picker->subviews().size(), plain->subviews().size());
}

TEST_P(PickerInitialisers, OneThatIsOverriddenFurtherDownIsCalledItself) {
    EXPECT_EQ(GetParam().coderBelowFrame(create<NSCoder>()).notes->setUps, SetUps{"coder"});
}
