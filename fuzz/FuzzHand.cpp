#include "FuzzHand.h"

#include <algorithm>

#include "UIKey.h"

using namespace gx;

NSTimeInterval FuzzHand::time() { return bytes_.below(16) == 15 ? bytes_.number() : now_; }

void FuzzHand::touch() {
    const auto finger = static_cast<std::int64_t>(bytes_.below(4));
    const CGPoint point = bytes_.point();
    const NSTimeInterval when = time();
    switch (bytes_.below(5)) {
    case 0:
        window_->touchBegan_at_time(finger, point, when);
        return;
    case 1:
    case 2:
        return window_->touchMoved_at_time(finger, point, when);
    case 3:
        return window_->touchEnded_at_time(finger, point, when);
    default:
        return window_->touchCancelled_at_time(finger, when);
    }
}

void FuzzHand::scroll() {
    UIScroll scroll;
    scroll.unit = bytes_.flag() ? UIScroll::Unit::Points : UIScroll::Unit::Notches;
    scroll.deltaX = bytes_.flag() ? bytes_.number() : 0;
    scroll.deltaY = bytes_.number();
    scroll.timestamp = time();
    scroll.locationInWindow = bytes_.point();
    scroll.isFinished = bytes_.flag();
    window_->scroll(scroll);
}

void FuzzHand::press() {
    UIKey key;
    const unsigned kind = bytes_.below(24);
    key.code = kind <= static_cast<unsigned>(UIKey::Code::Space) ? static_cast<UIKey::Code>(kind) : UIKey::Code::Character;
    if (key.code == UIKey::Code::Character) key.characters = bytes_.below(8) == 7 ? bytes_.text() : bytes_.typedText();
    key.modifiers = bytes_.below(8) == 7 ? bytes_.below(16) : 0;
    key.isRepeat = bytes_.flag();
    key.timestamp = time();
    window_->keyDown(key);
}

void FuzzHand::wait() {
    now_ += bytes_.byte() / 200.0;
    window_->tick(time());
}

Ref<UIAccessibilityElement> FuzzHand::presentElement() {
    const UIAccessibilityElements elements = window_->accessibilityElements();
    if (elements.empty()) return nullptr;
    const auto count = static_cast<unsigned>(std::min<std::size_t>(elements.size(), 256));
    return elements[bytes_.below(count)];
}

void FuzzHand::hear() {
    const unsigned place = bytes_.below(2 * static_cast<unsigned>(kept_.size()));
    if (place < kept_.size()) {
        // Who is asked meanwhile may keep others.
        const Ref<UIAccessibilityElement> present = presentElement();
        if (present) kept_[place] = present;
    }
    const Ref<UIAccessibilityElement> element = kept_[place % kept_.size()];
    if (!element) return;
    element->exists();
    element->label();
    element->value();
    element->frame();
    element->isEnabled();
    element->index();
    element->count();
    switch (bytes_.below(6)) {
    case 0:
        return element->increment();
    case 1:
        return element->decrement();
    case 2:
        return element->setIndex(bytes_.integer());
    case 3:
        return element->activateAtTime(time());
    default:
        return;
    }
}

void FuzzHand::waitUntilStill() {
    for (int frames = 0; frames < 60; ++frames) {
        now_ += 0.5;
        if (!window_->tick(now_)) return;
    }
}
