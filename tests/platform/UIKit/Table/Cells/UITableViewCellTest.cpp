#include "UITableViewCell.h"

#include <gtest/gtest.h>

#include "RecordingCanvas.h"
#include "UILabel.h"

using namespace gx;

TEST(UITableViewCellTest, KeepsStyleAndIdentifier) {
    const auto cell = create<UITableViewCell>(UITableViewCellStyleValue1, "row");
    EXPECT_EQ(cell->style(), UITableViewCellStyleValue1);
    EXPECT_EQ(cell->reuseIdentifier(), "row");
    EXPECT_EQ(cell->frame(), CGRectMake(0, 0, 320, 44));
    EXPECT_EQ(create<UITableViewCell>(UITableViewCellStyleDefault, std::nullopt)->reuseIdentifier(), std::nullopt);
}

TEST(UITableViewCellTest, FillsItselfWithTheContentView) {
    const auto cell = create<UITableViewCell>(UITableViewCellStyleDefault, "row");
    ASSERT_EQ(cell->subviews().size(), 1U);
    EXPECT_EQ(cell->subviews()[0], cell->contentView());
    EXPECT_EQ(cell->contentView()->frame(), CGRectMake(0, 0, 320, 44));
    cell->setFrame(CGRectMake(5, 100, 400, 216));
    EXPECT_EQ(cell->contentView()->frame(), CGRectMake(0, 0, 400, 216));
    cell->setBounds(CGRectMake(0, 0, 200, 50));
    EXPECT_EQ(cell->contentView()->frame(), CGRectMake(0, 0, 200, 50));
}

TEST(UITableViewCellTest, MakesLabelsOnFirstUse) {
    const auto plain = create<UITableViewCell>(UITableViewCellStyleDefault, "row");
    EXPECT_TRUE(plain->contentView()->subviews().empty());
    EXPECT_EQ(plain->detailTextLabel(), nullptr);
    const Ref<UILabel> label = plain->textLabel();
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(plain->textLabel(), label);
    EXPECT_EQ(plain->contentView()->subviews().size(), 1U);
    EXPECT_NE(create<UITableViewCell>(UITableViewCellStyleValue1, "row")->detailTextLabel(), nullptr);
}

TEST(UITableViewCellTest, TruncatesTheNameBeforeTheValue) {
    const auto cell = create<UITableViewCell>(UITableViewCellStyleValue1, "row");
    cell->textLabel()->setText("Distance");
    cell->detailTextLabel()->setText("5.3 km"); // Ten points a letter.
    cell->layoutIfNeeded();
    EXPECT_EQ(cell->detailTextLabel()->frame(), CGRectMake(244, 0, 60, 44));
    EXPECT_EQ(cell->textLabel()->frame(), CGRectMake(16, 0, 220, 44));
    cell->detailTextLabel()->setText("12.3 km");
    cell->layoutIfNeeded();
    EXPECT_EQ(cell->detailTextLabel()->frame(), CGRectMake(234, 0, 70, 44));
    cell->detailTextLabel()->setText(std::string(40, 'm'));
    cell->layoutIfNeeded();
    EXPECT_EQ(cell->detailTextLabel()->frame(), CGRectMake(16, 0, 288, 44));
    EXPECT_EQ(cell->textLabel()->frame().size.width, 0);
    cell->detailTextLabel()->setText(std::nullopt);
    cell->layoutIfNeeded();
    EXPECT_EQ(cell->textLabel()->frame(), CGRectMake(16, 0, 288, 44));
}

TEST(UITableViewCellTest, IsFilledWhileHighlightedOrSelected) {
    const auto cell = create<UITableViewCell>(UITableViewCellStyleDefault, "row");
    const auto fills = [&cell] {
        RecordingCanvas canvas;
        cell->renderInContext(canvas);
        std::size_t count = 0;
        for (const std::string& call : canvas.calls) count += call.starts_with("fill") ? 1U : 0U;
        return count;
    };
    EXPECT_EQ(fills(), 0U);
    cell->setHighlighted(true);
    EXPECT_EQ(fills(), 1U);
    cell->setSelected(true);
    cell->setHighlighted(false);
    EXPECT_EQ(fills(), 1U);
    cell->setHighlighted(true);
    cell->prepareForReuse();
    EXPECT_FALSE(cell->isHighlighted());
    EXPECT_FALSE(cell->isSelected());
    EXPECT_EQ(fills(), 0U);
}

TEST(UITableViewCellTest, IsRestoredFromACoder) {
    const auto coder = create<NSCoder>();
    coder->encodeCGRect_forKey(CGRectMake(1, 2, 300, 60), "frame");
    coder->encodeInteger_forKey(1, "style");
    coder->encodeString_forKey("row", "reuseIdentifier");
    const auto cell = create<UITableViewCell>(coder);
    EXPECT_EQ(cell->frame(), CGRectMake(1, 2, 300, 60));
    EXPECT_EQ(cell->contentView()->frame(), CGRectMake(0, 0, 300, 60));
    EXPECT_EQ(cell->style(), UITableViewCellStyleValue1);
    EXPECT_EQ(cell->reuseIdentifier(), "row");

    for (const auto& empty : {create<UITableViewCell>(create<NSCoder>()), create<UITableViewCell>(Ref<NSCoder>())}) {
        EXPECT_EQ(empty->style(), UITableViewCellStyleDefault);
        EXPECT_EQ(empty->reuseIdentifier(), std::nullopt);
        EXPECT_TRUE(empty->contentView());
    }
    coder->encodeInteger_forKey(7, "style");
    EXPECT_EQ(create<UITableViewCell>(coder)->style(), UITableViewCellStyleDefault);
}
