// A view restored from any values can be laid out, asked, set, touched, typed at, heard and drawn.

#include "FuzzHand.h"
#include "FuzzProperties.h"
#include "FuzzViews.h"
#include "NullCanvas.h"

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

/// An application's own format: it has a value for every key, or does not know yet, and each time
/// another.
class AnyCoder : public NSCoder {
public:
    explicit AnyCoder(FuzzBytes& bytes) : bytes_(bytes) {}

    bool containsValueForKey(std::string_view) const override { return bytes_.below(4) > 0; }
    bool decodeBoolForKey(std::string_view) const override { return bytes_.flag(); }
    NSInteger decodeIntegerForKey(std::string_view) const override { return bytes_.integer(); }
    double decodeDoubleForKey(std::string_view) const override { return bytes_.number(); }
    std::optional<std::string> decodeStringForKey(std::string_view) const override {
        return bytes_.flag() ? std::optional(bytes_.text()) : std::nullopt;
    }
    CGRect decodeCGRectForKey(std::string_view) const override { return bytes_.rect(); }

private:
    FuzzBytes& bytes_;
};

Ref<NSCoder> someCoder(FuzzBytes& bytes) {
    switch (bytes.below(8)) {
    case 0:
        return nullptr;
    case 1:
    case 2:
        return std::make_shared<AnyCoder>(bytes);
    default:
        return coderOf(bytes);
    }
}

void use(FuzzBytes& bytes, const Ref<UIView>& view, FuzzHand& hand) {
    switch (bytes.below(10)) {
    case 0:
    case 1:
        return setSomething(bytes, view.get());
    case 2:
        return askSomething(bytes, view);
    case 3:
    case 4:
        return hand.touch();
    case 5:
        return hand.scroll();
    case 6:
        return hand.press();
    case 7:
        return hand.hear();
    case 8:
        return view->awakeFromNib();
    default:
        return hand.wait();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzBytes bytes(data, size);
    const Ref<NSCoder> coder = someCoder(bytes);
    const Ref<UIView> view = makeViewWithCoder(bytes, coder);
    if (bytes.flag()) view->awakeFromNib();
    view->sizeThatFits(bytes.rect().size);
    view->layoutIfNeeded();

    const auto window = create<UIWindow>(CGRectMake(0, 0, 400, 400));
    window->addSubview(view);
    FuzzHand hand(bytes, window);
    NullCanvas canvas;
    for (int left = 60; left > 0 && !bytes.isEmpty(); --left) use(bytes, view, hand);
    hand.waitUntilStill();
    window->draw(canvas);
    view->renderInContext(canvas);
    return 0;
}
