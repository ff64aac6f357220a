#pragma once

#include <GXUIPickers/UIView.h>

namespace gallery {

/// Choices as a screen reader finds them: a named group of radio buttons, one of which is checked.
///
/// The group's view has the role `RadioGroup` and an accessibility label, and offers the radio
/// buttons among its elements, whatever views they are.
class ChoiceGroupElement : public gx::UIAccessibilityElement {
public:
    explicit ChoiceGroupElement(const gx::Ref<gx::UIView>& view);
    /// The group that a view is in, or that it is itself; empty if it is in none.
    static gx::Ref<ChoiceGroupElement> around(const gx::Ref<gx::UIView>& view);

    gx::NSInteger childCount() const override;
    gx::Ref<gx::UIAccessibilityElement> child(gx::NSInteger index) const override;
    /// Keys go to the choices.
    bool isFocusable() const override { return false; }
    bool isFocused() const override { return false; }
    bool focus() const override { return false; }

private:
    gx::UIAccessibilityElements choices() const;

    gx::WeakRef<gx::UIView> group_;
};

/// One of the choices of a group: the whole of a view, or a part of it.
class ChoiceElement : public gx::UIAccessibilityElement {
public:
    explicit ChoiceElement(const gx::Ref<gx::UIView>& view, gx::NSInteger part = -1);

    gx::Ref<gx::UIAccessibilityElement> container() const override;
    std::optional<gx::UIAccessibilityPlace> place() const override;

private:
    gx::WeakRef<gx::UIView> choice_;
};

} // namespace gallery
