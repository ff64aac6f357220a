#include "UITextEngine.h"

#include <algorithm>

namespace gx {

namespace {
Ref<UITextEngine>& sharedEngine() {
    static Ref<UITextEngine> engine = create<UIFixedWidthTextEngine>();
    return engine;
}
std::uint64_t& currentGeneration() {
    static std::uint64_t generation = 0;
    return generation;
}
} // namespace

Ref<UITextEngine> UITextEngine::shared() { return sharedEngine(); }

void UITextEngine::setShared(Ref<UITextEngine> engine) {
    sharedEngine() = engine ? std::move(engine) : create<UIFixedWidthTextEngine>();
    measuresDidChange();
}

void UITextEngine::measuresDidChange() { ++currentGeneration(); }
std::uint64_t UITextEngine::generation() { return currentGeneration(); }

CGSize UIFixedWidthTextEngine::sizeOfText_font(std::string_view text, const UIFont&) {
    const auto count = std::count_if(text.begin(), text.end(), startsCodePoint);
    return {static_cast<CGFloat>(count) * codePointWidth_, lineHeight_};
}

} // namespace gx
