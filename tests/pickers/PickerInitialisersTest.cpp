#include "GXBasePickerCell.h"
#include "GXBpmPickerView.h"
#include "GXCaloriesPickerView.h"
#include "GXDistanceAndDurationPicker.h"
#include "GXHeartRatePickerView.h"
#include "GXPacePickerView.h"
#include "GXSpeedPickerView.h"
#include "GXWeatherAndTemperaturePickerView.h"
#include "GXWeightPickerView.h"
#include "PickerTest.h"

using namespace gx;

// Every initialiser sets a picker up once, its superclass first.

namespace {

constexpr CGRect usual = {{0, 0}, {320, 216}};

/// Notes each set-up, the base's and its own.
template <class Picker>
struct CountingPicker : Picker {
    std::vector<std::string> setUps;

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
struct ThreeInitialisers : Picker {
    std::vector<std::string> setUps;

    bool initWithFrame(CGRect frame) override { return Picker::initWithFrame(frame) && setUp("frame"); }
    bool initWithCoder(const Ref<NSCoder>& coder) override { return Picker::initWithCoder(coder) && setUp("coder"); }
    bool initWithFrame_rowHeight(CGRect frame, float height) override {
        return Picker::initWithFrame_rowHeight(frame, height) && setUp("height");
    }

private:
    bool setUp(const std::string& how) {
        setUps.push_back(how);
        return true;
    }
};

template <class Picker>
struct PickerInitialisers : testing::Test {};

using Pickers = testing::Types<GXBasePickerView, GXBpmPickerView, GXCaloriesPickerView, GXDistancePickerView, GXDurationPickerView,
                               GXHeartRatePickerView, GXIconPickerView, GXPacePickerView, GXSpeedPickerView, GXTemperaturePickerView,
                               GXWeightPickerView, GXDistanceAndDurationPicker, GXWeatherAndTemperaturePickerView>;
TYPED_TEST_SUITE(PickerInitialisers, Pickers);

} // namespace

TYPED_TEST(PickerInitialisers, EachRunsTheSetUpsOnceTheBasesFirst) {
    using Picker = CountingPicker<TypeParam>;
    const std::vector<std::string> expected = {"base",
                                               "own, maximum " + std::to_string(create<TypeParam>(usual)->maxValue().integerValue())};
    EXPECT_EQ(create<Picker>(usual)->setUps, expected);
    EXPECT_EQ(create<Picker>(create<NSCoder>())->setUps, expected);
    EXPECT_EQ((create<Picker>(usual, 50.0F)->setUps), expected);
}

TYPED_TEST(PickerInitialisers, AnOwnPickerThatOverridesAllOfThemIsSetUpOnce) {
    using Picker = ThreeInitialisers<TypeParam>;
    EXPECT_EQ(create<Picker>(usual)->setUps, std::vector<std::string>{"frame"});
    EXPECT_EQ(create<Picker>(create<NSCoder>())->setUps, std::vector<std::string>{"coder"});
    EXPECT_EQ((create<Picker>(usual, 50.0F)->setUps), std::vector<std::string>{"height"});
}

TYPED_TEST(PickerInitialisers, OneThatRefusesMakesNothing) {
    struct Refusing : TypeParam {
        bool initWithFrame(CGRect) override { return false; }
    };
    EXPECT_FALSE(create<Refusing>(usual));
}

TYPED_TEST(PickerInitialisers, AnOwnPickerThatOverridesOnlyInitWithFrameIsSetUpByEachOfThem) {
    struct OnlyFrame : TypeParam {
        int setUps = 0;
        CGRect given;
        bool initWithFrame(CGRect frame) override {
            if (!TypeParam::initWithFrame(frame)) return false;
            ++setUps;
            given = frame;
            return true;
        }
    };
    const auto framed = create<OnlyFrame>(usual);
    EXPECT_EQ(framed->setUps, 1);

    const auto coder = create<NSCoder>();
    coder->encodeCGRect_forKey(CGRectMake(7, 8, 300, 200), "frame");
    coder->encodeInteger_forKey(5, "tag");
    const auto restored = create<OnlyFrame>(coder);
    EXPECT_EQ(restored->setUps, 1);
    EXPECT_EQ(restored->given, CGRectMake(7, 8, 300, 200));
    EXPECT_EQ(restored->frame(), CGRectMake(7, 8, 300, 200));
    EXPECT_EQ(restored->tag(), 5);
    EXPECT_EQ(restored->subviews().size(), framed->subviews().size());

    const auto high = create<OnlyFrame>(usual, 50.0F);
    const auto plain = create<TypeParam>(usual, 50.0F);
    EXPECT_EQ(high->setUps, 1);
    EXPECT_EQ(high->pickerView_rowHeightForComponent(nullptr, 0), plain->pickerView_rowHeightForComponent(nullptr, 0));
    EXPECT_EQ(high->subviews().size(), plain->subviews().size());
}

TYPED_TEST(PickerInitialisers, OneThatIsOverriddenFurtherDownIsCalledItself) {
    struct OnlyFrame : TypeParam {
        int frames = 0;
        bool initWithFrame(CGRect frame) override {
            ++frames;
            return TypeParam::initWithFrame(frame);
        }
    };
    struct WithCoder : OnlyFrame {
        int coders = 0;
        bool initWithCoder(const Ref<NSCoder>& coder) override {
            ++coders;
            return OnlyFrame::initWithCoder(coder);
        }
    };
    const auto restored = create<WithCoder>(create<NSCoder>());
    EXPECT_EQ(restored->coders, 1);
    EXPECT_EQ(restored->frames, 0);
}
