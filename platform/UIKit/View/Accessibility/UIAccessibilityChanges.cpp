#include "UIAccessibilityChanges.h"

#include <algorithm>

namespace gx {

namespace {

using Change = UIAccessibilityChanges::Change;

bool areSame(const UIAccessibilityElements& some, const UIAccessibilityElements& others) {
    return std::equal(some.begin(), some.end(), others.begin(), others.end(),
                      [](const auto& one, const auto& other) { return one->isSameAs(*other); });
}

/// The elements in sight and what holds them or belongs to them, each once. The items of lists come
/// from the views, which offer those in sight.
void collect(const Ref<UIAccessibilityElement>& element, UIAccessibilityElements& found) {
    const auto isIt = [&element](const auto& each) { return each->isSameAs(*element); };
    if (std::any_of(found.begin(), found.end(), isIt)) return;
    // A group has collected all that it holds, and so this one too; a list has not.
    if (const Ref<UIAccessibilityElement> container = element->container()) collect(container, found);
    if (std::any_of(found.begin(), found.end(), isIt)) return;
    found.push_back(element);
    if (element->role() == UIAccessibilityRole::List) return;
    for (NSInteger i = 0; i < element->childCount(); ++i) {
        if (const Ref<UIAccessibilityElement> child = element->child(i)) collect(child, found);
    }
}

} // namespace

UIAccessibilityChanges::Known UIAccessibilityChanges::known(const Ref<UIAccessibilityElement>& element) {
    return {element,
            element->label(),
            element->value(),
            element->index(),
            element->numbers(),
            element->isExpanded(),
            element->isChecked(),
            element->childCount()};
}

void UIAccessibilityChanges::compare(Known& before, const Ref<UIAccessibilityElement>& element, std::vector<Change>& changes) {
    using Kind = Change::Kind;
    const auto add = [&changes, &element](Kind kind) -> Change& { return changes.emplace_back(Change{kind, element, {}, {}}); };
    Known now = {element,        element->label(),      element->value(),     element->index(),
                 before.numbers, element->isExpanded(), element->isChecked(), element->childCount()};
    // The numbers are those of the rows' titles, which take several queries.
    if (now.index != before.index || now.value != before.value) now.numbers = element->numbers();
    if (now.childCount != before.childCount) add(Kind::Elements);
    if (now.label != before.label) add(Kind::Label);
    const auto numberOf = [](const Known& known) { return known.numbers ? std::optional(known.numbers->value) : std::nullopt; };
    if (numberOf(now) != numberOf(before)) add(Kind::Number);
    if (now.value != before.value) add(Kind::Value).before = before.value.value_or(std::string());
    if (now.isExpanded != before.isExpanded) add(Kind::Expanded);
    if (now.isChecked != before.isChecked) add(Kind::Checked);
    before = std::move(now);
}

std::vector<Change> UIAccessibilityChanges::takeChanges(UIWindow& window) {
    if (isLooking_) return {};
    isLooking_ = true;
    const Ref<UIWindow> keep = refTo(&window);
    std::vector<Change> changes;
    const UIAccessibilityElements offered = window.accessibilityElements();
    UIAccessibilityElements top = outermostAccessibilityElements(offered);
    if (!areSame(top, top_)) changes.push_back({Change::Kind::Elements, nullptr, {}, {}});
    top_ = std::move(top);

    UIAccessibilityElements present;
    for (const Ref<UIAccessibilityElement>& element : offered) collect(element, present);
    std::vector<Known> now;
    for (const Ref<UIAccessibilityElement>& element : present) {
        const auto entry =
            std::find_if(known_.begin(), known_.end(), [&element](const Known& known) { return known.element->isSameAs(*element); });
        if (entry == known_.end()) {
            now.push_back(known(element));
            continue;
        }
        compare(*entry, element, changes);
        now.push_back(std::move(*entry));
        known_.erase(entry);
    }
    known_ = std::move(now);

    const Ref<UIAccessibilityElement> focused = window.focusedAccessibilityElement();
    const bool isSame = focused && focused_ ? focused->isSameAs(*focused_) : focused == focused_;
    if (!isSame) changes.push_back({Change::Kind::Focus, focused, {}, {}});
    focused_ = focused;
    // What takes the focus when the keys come back would cut them off.
    if (!window.receivesKeys()) {
        isLooking_ = false;
        return changes;
    }
    for (UIAccessibilityAnnouncement& announcement : window.takeAnnouncements()) {
        changes.push_back({Change::Kind::Announcement, nullptr, {}, std::move(announcement)});
    }
    isLooking_ = false;
    return changes;
}

bool UIAccessibilityChanges::hasColumnChanged() {
    if (isLooking_) return false;
    isLooking_ = true; // Queries may look, which would replace what is known.
    const bool hasChanged =
        std::any_of(known_.begin(), known_.end(), [](const Known& known) { return known.index && known.element->index() != known.index; });
    isLooking_ = false;
    return hasChanged;
}

} // namespace gx
