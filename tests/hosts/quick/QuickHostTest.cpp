#include <gtest/gtest.h>

#include "QuickHost.h"
#include "UIImage.h"
#include "UITextEngine.h"

using namespace gx;

namespace {

class OwnEngine : public UITextEngine {
public:
    CGSize sizeOfText_font(std::string_view, const UIFont&) override { return {7, 9}; }
};

TEST(QuickHost, ATextEngineOfTheApplicationStays) {
    const Ref<UITextEngine> before = UITextEngine::shared();
    UIImageLoader::setShared(nullptr);
    const Ref<UITextEngine> first = create<OwnEngine>();
    UITextEngine::setShared(first);
    quick::installHost();
    EXPECT_EQ(UITextEngine::shared(), first);
    EXPECT_NE(UIImageLoader::shared(), nullptr) << "the rest of the host is installed";
    const Ref<UITextEngine> second = create<OwnEngine>();
    UITextEngine::setShared(second);
    quick::installHost();
    EXPECT_EQ(UITextEngine::shared(), second);
    UITextEngine::setShared(before);
}

} // namespace
