// A view restored from any values can be laid out, touched and drawn.

#include "FuzzViews.h"
#include "NullCanvas.h"
#include "UIWindow.h"

using namespace gx;

namespace {

std::string keyOf(FuzzBytes& bytes) {
    constexpr std::array<const char*, 16> known = {
        "frame", "bounds",          "hidden",      "alpha",       "userInteractionEnabled", "clipsToBounds",
        "tag",   "backgroundColor", "tintColor",   "text",        "textAlignment",          "fontSize",
        "style", "reuseIdentifier", "contentMode", "cornerRadius"};
    return bytes.below(8) == 0 ? bytes.text() : known[bytes.below(known.size())];
}

Ref<NSCoder> coderOf(FuzzBytes& bytes) {
    auto coder = create<NSCoder>();
    for (unsigned left = bytes.below(12); left > 0; --left) {
        const std::string key = keyOf(bytes);
        switch (bytes.below(5)) {
        case 0:
            coder->encodeBool_forKey(bytes.flag(), key);
            break;
        case 1:
            coder->encodeInteger_forKey(bytes.integer(), key);
            break;
        case 2:
            coder->encodeDouble_forKey(bytes.number(), key);
            break;
        case 3:
            coder->encodeString_forKey(bytes.text(), key);
            break;
        default:
            coder->encodeCGRect_forKey(bytes.rect(), key);
        }
    }
    return coder;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzBytes bytes(data, size);
    const Ref<NSCoder> coder = bytes.below(16) == 0 ? nullptr : coderOf(bytes);
    const Ref<UIView> view = makeViewWithCoder(bytes, coder);
    if (bytes.flag()) view->awakeFromNib();
    view->sizeThatFits(bytes.rect().size);
    view->layoutIfNeeded();

    const auto window = create<UIWindow>(CGRectMake(0, 0, 400, 400));
    window->addSubview(view);
    double now = 100;
    NullCanvas canvas;
    for (int left = 12; left > 0; --left) {
        const CGPoint point = bytes.point();
        window->touchBegan_at_time(1, point, now);
        window->touchMoved_at_time(1, {point.x, point.y + bytes.byte() - 128.0}, now + 0.02);
        window->touchEnded_at_time(1, {point.x, point.y + bytes.byte() - 128.0}, now + 0.04);
        setSomething(bytes, view);
        window->tick(now += 0.05);
        window->draw(canvas);
    }
    view->renderInContext(canvas);
    return 0;
}
