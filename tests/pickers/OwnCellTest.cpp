#include <gtest/gtest.h>

#include "GXBasePickerCell.h"
#include "GXBpmPickerCell.h"

using namespace gx;

// Cells of an application.

namespace {

struct WithIdentifier : GXBasePickerCell {
    static std::string cellIdentifier() { return "WithIdentifier"; }
};
struct WithoutIdentifier : GXBasePickerCell {};

} // namespace

TEST(OwnPickerCell, OneWithAnIdentifierIsMadeForIt) {
    const auto cell = create<WithIdentifier>(UITableViewCellStyleDefault, WithIdentifier::cellIdentifier());
    EXPECT_EQ(cell->reuseIdentifier(), "WithIdentifier");
    EXPECT_FALSE(cell->pickerView());
}

TEST(OwnPickerCell, OneWithoutMayBeMadeForAnyOtherIdentifier) {
    EXPECT_TRUE(create<WithoutIdentifier>(UITableViewCellStyleDefault, std::string("other")));
    EXPECT_TRUE(create<WithoutIdentifier>(UITableViewCellStyleDefault, std::nullopt));
    EXPECT_TRUE(create<WithoutIdentifier>(CGRectZero));
}

#ifndef NDEBUG
TEST(OwnPickerCellDeathTest, OneWithoutAnIdentifierThatIsMadeForTheInheritedOneStopsDebugBuilds) {
#if GTEST_HAS_DEATH_TEST
    testing::GTEST_FLAG(death_test_style) = "threadsafe";
    EXPECT_DEATH(create<WithoutIdentifier>(UITableViewCellStyleDefault, WithoutIdentifier::cellIdentifier()), "cellIdentifier");
#else
    GTEST_SKIP() << "a program that ends needs a process of its own";
#endif
}
#endif
