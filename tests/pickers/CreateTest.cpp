// Classes of an application, made with `create`.

#include <gtest/gtest.h>

#include "GXBasePickerCell.h"
#include "GXDistanceFormatter.h"
#include "GXDistancePickerView.h"

using namespace gx;

namespace {

/// Overrides one initialiser, and with that hides the names of the others.
struct OwnView : UIView {
    int frames = 0;
    bool initWithFrame(CGRect frame) override {
        ++frames;
        return UIView::initWithFrame(frame);
    }
};
struct OwnPicker : GXDistancePickerView {
    bool initWithFrame(CGRect frame) override { return GXDistancePickerView::initWithFrame(frame); }
};
struct OwnCell : UITableViewCell {
    bool initWithFrame(CGRect frame) override { return UITableViewCell::initWithFrame(frame); }
};
struct OwnFormatter : GXDistanceFormatter {
    bool init() override { return GXDistanceFormatter::init(); }
};

constexpr CGRect place = {{1, 2}, {320, 216}};

} // namespace

TEST(Create, AViewWithAnInitialiserOfItsOwnTakesAFrameAndACoder) {
    EXPECT_EQ(create<OwnView>(place)->frames, 1);
    EXPECT_EQ(create<OwnView>(CGRectZero)->frame(), CGRectZero);
    const auto coder = create<NSCoder>();
    coder->encodeCGRect_forKey(place, "frame");
    EXPECT_EQ(create<OwnView>(coder)->frame(), place);
    EXPECT_EQ(create<OwnView>(Ref<NSCoder>())->frame(), CGRect());
}

TEST(Create, APickerWithAnInitialiserOfItsOwnTakesAFrameAndARowHeight) {
    EXPECT_EQ(create<OwnPicker>(place)->frame(), place);
    EXPECT_EQ(create<OwnPicker>(place, 50)->pickerView_rowHeightForComponent(nullptr, 0), 50);
    EXPECT_EQ(create<OwnPicker>(place, 50.5)->pickerView_rowHeightForComponent(nullptr, 0), 50.5);
    EXPECT_EQ(create<OwnPicker>(place, 50.5F)->frame(), place);
    EXPECT_TRUE(create<OwnPicker>(create<NSCoder>()));
    static_assert(!Creatable<OwnPicker, CGRect, const char*>);
    static_assert(!Creatable<OwnView, CGRect, float>, "a row height is the pickers'");
}

TEST(Create, ACellWithAnInitialiserOfItsOwnTakesAStyleAndAnIdentifier) {
    EXPECT_EQ(create<OwnCell>(UITableViewCellStyleDefault, "row")->reuseIdentifier(), "row");
    EXPECT_FALSE(create<OwnCell>(UITableViewCellStyleDefault, std::nullopt)->reuseIdentifier());
    EXPECT_EQ(create<OwnCell>(place)->frame(), place);
}

TEST(Create, AFormatterWithAnInitialiserOfItsOwnTakesStyleSystemAndUnit) {
    EXPECT_TRUE(create<OwnFormatter>(1, true, 1)->metric());
    EXPECT_FALSE(create<OwnFormatter>(1, false, true)->metric());
}
