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
        return window_->touchBegan_at_time(finger, point, when);
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
    key.code = static_cast<UIKey::Code>(bytes_.below(static_cast<unsigned>(UIKey::Code::Space) + 1));
    if (key.code == UIKey::Code::Character) key.characters = bytes_.text();
    key.modifiers = bytes_.below(4) == 0 ? bytes_.below(16) : 0;
    key.isRepeat = bytes_.flag();
    key.timestamp = time();
    window_->keyDown(key);
}

void FuzzHand::wait() {
    now_ += bytes_.byte() / 200.0;
    window_->tick(time());
}

void FuzzHand::hear() {
    const UIAccessibilityElements elements = window_->accessibilityElements();
    if (elements.empty()) return;
    const auto count = static_cast<unsigned>(std::min<std::size_t>(elements.size(), 256));
    const Ref<UIAccessibilityElement> element = elements[bytes_.below(count)];
    element->label();
    element->value();
    element->frame();
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
