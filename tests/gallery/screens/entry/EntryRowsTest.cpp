#include "EntryRows.h"

#include <gtest/gtest.h>

using namespace gallery;
using gx::NSIndexPath;

namespace {

/// Three measurements in the first section, two in the second.
EntryRows fiveRows(std::optional<std::size_t> open = std::nullopt) {
    EntryRows rows;
    rows.setSections({3, 2});
    rows.setOpen(open);
    return rows;
}

} // namespace

TEST(EntryRows, HaveOneRowForEachMeasurementWhileAllAreClosed) {
    const EntryRows rows = fiveRows();
    EXPECT_EQ(rows.measurementCount(), 5U);
    EXPECT_EQ(rows.sectionCount(), 2);
    EXPECT_EQ(rows.rowCountOfSection(0), 3);
    EXPECT_EQ(rows.rowCountOfSection(1), 2);
    EXPECT_EQ(rows.pathOfMeasurement(2), (NSIndexPath{0, 2}));
    EXPECT_EQ(rows.pathOfMeasurement(3), (NSIndexPath{1, 0}));
}

TEST(EntryRows, HaveARowForThePickerBelowTheOpenMeasurement) {
    const EntryRows rows = fiveRows(1);
    EXPECT_EQ(rows.rowCountOfSection(0), 4);
    EXPECT_EQ(rows.rowCountOfSection(1), 2);
    EXPECT_EQ(rows.pathOfPicker(), (NSIndexPath{0, 2}));
    EXPECT_EQ(rows.pathOfMeasurement(0), (NSIndexPath{0, 0}));
    EXPECT_EQ(rows.pathOfMeasurement(1), (NSIndexPath{0, 1}));
    EXPECT_EQ(rows.pathOfMeasurement(2), (NSIndexPath{0, 3}));
    EXPECT_EQ(rows.pathOfMeasurement(3), (NSIndexPath{1, 0})) << "the next section is as it was";
}

TEST(EntryRows, EachPathLeadsBackToItsRow) {
    for (const auto open : {std::optional<std::size_t>(), std::optional<std::size_t>(0), std::optional<std::size_t>(2),
                            std::optional<std::size_t>(3), std::optional<std::size_t>(4)}) {
        const EntryRows rows = fiveRows(open);
        for (std::size_t i = 0; i < 5; ++i) {
            const EntryRows::Row row = rows.rowAt(rows.pathOfMeasurement(i));
            EXPECT_EQ(row.measurement, i);
            EXPECT_FALSE(row.isPicker);
        }
        if (!open) continue;
        const EntryRows::Row picker = rows.rowAt(rows.pathOfPicker());
        EXPECT_EQ(picker.measurement, *open);
        EXPECT_TRUE(picker.isPicker);
    }
}

TEST(EntryRows, HaveNoRowForAPickerThatIsShownElsewhere) {
    EntryRows rows = fiveRows(1);
    rows.setHasPickerRow(false);
    EXPECT_EQ(rows.open(), 1U);
    EXPECT_EQ(rows.rowCountOfSection(0), 3);
    EXPECT_EQ(rows.pathOfMeasurement(2), (NSIndexPath{0, 2}));
    EXPECT_EQ(rows.rowAt({0, 2}).measurement, 2U);
    EXPECT_FALSE(rows.rowAt({0, 2}).isPicker);
    EXPECT_EQ(rows.pathOfPicker(), (NSIndexPath{0, 2})) << "where it would be";
    rows.setHasPickerRow(true);
    EXPECT_EQ(rows.rowCountOfSection(0), 4);
    EXPECT_TRUE(rows.rowAt({0, 2}).isPicker);
}
