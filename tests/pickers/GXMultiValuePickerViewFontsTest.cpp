#include <concepts>

#include "GXMultiValuePickerView.h"
#include "GXStyleSheet.h"
#include "PickerTest.h"

using namespace gx;

// The fonts of the labels beside the columns, and what the wheel takes as its delegate.

namespace {

struct Source : NSObject, UIPickerViewDataSource, GXMultiValuePickerViewDelegate {
    NSInteger numberOfComponentsInPickerView(const Ref<UIPickerView>&) override { return 3; }
    NSInteger pickerView_numberOfRowsInComponent(const Ref<UIPickerView>&, NSInteger) override { return 10; }
    CGFloat pickerView_widthForComponent(const Ref<UIPickerView>&, NSInteger) override { return 60; }
    std::optional<std::string> pickerView_titleForRow_forComponent(const Ref<UIPickerView>&, NSInteger, NSInteger) override { return "9"; }
};

struct PlainDelegate : NSObject, UIPickerViewDelegate {};

template <class Wheel, class Delegate>
concept Takes = requires(Wheel& wheel, Delegate delegate) {
    wheel.setDelegate(delegate);
};

using Wheel = GXMultiValuePickerView;
static_assert(Takes<Wheel, Ref<Source>>);
static_assert(Takes<Wheel, WeakRef<Source>>);
static_assert(Takes<Wheel, Ref<GXMultiValuePickerViewDelegate>>);
static_assert(Takes<Wheel, WeakRef<GXMultiValuePickerViewDelegate>>);
static_assert(!Takes<Wheel, Ref<PlainDelegate>>, "It gives no titles and widths.");
static_assert(!Takes<Wheel, WeakRef<PlainDelegate>>);
static_assert(!Takes<Wheel, Ref<UIPickerViewDelegate>>);
static_assert(!Takes<Wheel, WeakRef<UIPickerViewDelegate>>);
static_assert(Takes<UIPickerView, Ref<PlainDelegate>>, "A plain wheel asks for nothing that has no default.");

Ref<GXStyleSheetFont> font(CGFloat size, const UIColor& color) {
    return GXStyleSheetFont::fontWithFamily_size_weight_color("", size, UIFontWeight::Regular, color);
}

class Sheet : public GXStyleSheet {
public:
    Ref<GXStyleSheetFont> labelFont = font(10, UIColor::blackColor());
    Ref<GXStyleSheetFont> pickerLabelFont() const override { return labelFont; }
};

struct SideLabels : testing::Test {
    SideLabels() {
        GXStyleSheet::setGlobalStyleSheet(sheet);
        wheel = create<GXMultiValuePickerView>(CGRectMake(0, 0, 320, 216));
        wheel->setDelegate(source);
        wheel->setDataSource(source);
        wheel->setLeftLabelText("AVG");
        wheel->setRightLabelText("MAX");
        wheel->layoutIfNeeded();
    }
    ~SideLabels() override { GXStyleSheet::setGlobalStyleSheet(nullptr); }

    static void expectFont(const Ref<UILabel>& label, const Ref<GXStyleSheetFont>& expected) {
        EXPECT_TRUE(label->font()->isEqualToFont(*expected->font()));
        EXPECT_EQ(label->textColor(), expected->color());
    }

    Ref<Sheet> sheet = create<Sheet>();
    Ref<Source> source = create<Source>();
    Ref<GXMultiValuePickerView> wheel;
    Ref<GXStyleSheetFont> other = font(17, UIColor::systemBlueColor());
};

} // namespace

TEST_F(SideLabels, AReloadDrawsThemInTheFontThatItMeasuresWith) {
    sheet->labelFont = other;
    wheel->reloadAllComponents();
    expectFont(wheel->leftDescLabel(), other);
    expectFont(wheel->rightDescLabel(), other);
}

TEST_F(SideLabels, ALayoutDoesSoToo) {
    sheet->labelFont = other;
    wheel->setNeedsLayout();
    wheel->layoutIfNeeded();
    expectFont(wheel->leftDescLabel(), other);
    expectFont(wheel->rightDescLabel(), other);
}

TEST_F(SideLabels, ANewTextGivesTheFontToItsOwnLabelAlone) {
    const Ref<GXStyleSheetFont> before = sheet->labelFont;
    sheet->labelFont = other;
    wheel->setRightLabelText("km");
    expectFont(wheel->rightDescLabel(), other);
    expectFont(wheel->leftDescLabel(), before);
}

TEST_F(SideLabels, ANewTextScaleLeavesRoomForTheWholeText) {
    GXStyleSheet::setGlobalStyleSheet(nullptr);
    const Ref<GXStyleSheet> plain = GXStyleSheet::globalStyleSheet();
    wheel->reloadAllComponents();
    const CGFloat size = wheel->rightDescLabel()->font()->pointSize();
    plain->setTextScale(2);
    wheel->reloadAllComponents();
    EXPECT_EQ(wheel->rightDescLabel()->font()->pointSize(), 2 * size);
    EXPECT_EQ(wheel->rightDescLabel()->sizeThatFits({}), wheel->rightDescLabel()->frame().size);
}

TEST_F(SideLabels, ACustomFontGoesBeforeTheStyleSheet) {
    wheel->setCustomLabelFont(other);
    sheet->labelFont = font(30, UIColor::whiteColor());
    wheel->reloadAllComponents();
    expectFont(wheel->leftDescLabel(), other);
    expectFont(wheel->rightDescLabel(), other);
}

TEST_F(SideLabels, AStyleSheetWithoutAFontLeavesThemAsTheyAre) {
    const Ref<GXStyleSheetFont> before = sheet->labelFont;
    sheet->labelFont = nullptr;
    wheel->reloadAllComponents();
    expectFont(wheel->leftDescLabel(), before);
    expectFont(wheel->rightDescLabel(), before);
}

// The delegate

TEST(GXMultiValuePickerViewDelegate, NoneIsSetByNothing) {
    const auto source = create<Source>();
    const auto wheel = create<GXMultiValuePickerView>(CGRectZero);
    wheel->setDelegate(source);
    EXPECT_EQ(wheel->delegate().lock(), source);
    wheel->setDelegate({});
    EXPECT_FALSE(wheel->delegate().lock());
    wheel->setDelegate(WeakRef<Source>(source));
    EXPECT_EQ(wheel->delegate().lock(), source);
    wheel->setDelegate(nullptr);
    EXPECT_FALSE(wheel->delegate().lock());
}

TEST(GXMultiValuePickerViewDelegate, ATemporaryReferenceToALivingDelegateIsTaken) {
    const auto source = create<Source>();
    const auto wheel = create<GXMultiValuePickerView>(CGRectZero);
    wheel->setDelegate(refTo(source.get()));
    EXPECT_EQ(wheel->delegate().lock(), source);
}

TEST(GXMultiValuePickerViewDelegate, ASubclassSeesEachWayToSetIt) {
    struct Seeing : GXMultiValuePickerView {
        int count = 0;

    protected:
        void setDelegate(WeakRef<UIPickerViewDelegate> delegate) override {
            ++count;
            GXMultiValuePickerView::setDelegate(std::move(delegate));
        }
    };
    const auto source = create<Source>();
    const auto seeing = create<Seeing>(CGRectZero);
    const Ref<GXMultiValuePickerView> wheel = seeing;
    wheel->setDelegate(source);
    wheel->setDelegate({});
    const Ref<UIPickerView> plain = seeing;
    plain->setDelegate(source);
    EXPECT_EQ(seeing->count, 3);
}

#ifndef NDEBUG
TEST(GXMultiValuePickerViewDeathTest, ADelegateThatNothingHoldsStopsDebugBuilds) {
#if GTEST_HAS_DEATH_TEST
    testing::GTEST_FLAG(death_test_style) = "threadsafe";
    const auto wheel = create<GXMultiValuePickerView>(CGRectZero);
    EXPECT_DEATH(wheel->setDelegate(create<Source>()), "held weakly");
    const auto picker = create<GXBasePickerView>(CGRectZero);
    EXPECT_DEATH(picker->setDelegate(std::make_shared<PickerNotices>()), "held weakly");
#else
    GTEST_SKIP() << "a program that ends needs a process of its own";
#endif
}
#endif
