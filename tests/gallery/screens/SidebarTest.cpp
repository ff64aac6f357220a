#include "Sidebar.h"

#include <gtest/gtest.h>

#include "UITextEngine.h"

using namespace gallery;
using namespace gx;

namespace {

/// Letters of 10 points, and of 12 in strong fonts.
class StrongTextEngine : public UITextEngine {
public:
    CGSize sizeOfText_font(std::string_view text, const UIFont& font) override {
        const CGFloat letter = font.weight() == UIFontWeight::Regular ? 10 : 12;
        return {letter * static_cast<CGFloat>(text.size()), 20};
    }
};

} // namespace

TEST(SidebarTest, TheChosenRowIsAsHighAsItsStrongerTextNeeds) {
    UITextEngine::setShared(create<StrongTextEngine>());
    const auto sidebar = Sidebar::sidebarWithPages_show({"Add", "Eighteen letters x"}, [](std::size_t) {});
    sidebar->setFrame(CGRectMake(0, 0, 232, 400));
    const auto heights = [&sidebar] {
        sidebar->layoutIfNeeded();
        return std::vector<CGFloat>{sidebar->rows()[0]->frame().size.height, sidebar->rows()[1]->frame().size.height};
    };
    // 180 of 184 points; as the chosen one, 216 in two lines of 22 and 4 above and below.
    EXPECT_EQ(heights(), (std::vector<CGFloat>{40, 40}));
    sidebar->setChosenPage(1);
    EXPECT_EQ(heights(), (std::vector<CGFloat>{40, 52}));
    sidebar->setChosenPage(0);
    EXPECT_EQ(heights(), (std::vector<CGFloat>{40, 40}));
    UITextEngine::setShared(nullptr);
}
