#pragma once

#include "UIKey.h"
#include "UIPickerRows.h"
#include "UIPickerTypeSelect.h"

namespace gx {

/// Lays out and moves the columns of a wheel: by requests, fingers, the mouse wheel, a trackpad,
/// keys and time.
///
/// The wheel passes events to it, and keeps itself alive during each call.
class UIPickerController final : public UIPickerTypeSelect::Wheel {
public:
    UIPickerController(UIView& view, UIPickerOwner& owner, UIPickerComponents& components, UIPickerRows& rows)
        : view_(view), owner_(owner), components_(components), rows_(rows), typeSelect_(*this) {}

    /// What a layout of the wheel does: queries what is invalid, places columns and shows their
    /// rows.
    void layout();
    /// A request of the program. Returns false if the component does not exist.
    bool requestRow(NSInteger row, NSInteger component, bool animated);

    // Events. They return whether the event is the wheel's, or nothing or false where it is to be
    // passed up.

    std::optional<bool> touchBegan(const UITouch& touch);
    bool touchMoved(const UITouch& touch);
    bool touchEnded(const UITouch& touch);
    bool touchCancelled(const UITouch& touch);
    std::optional<bool> scrolled(const UIScroll& scroll);
    bool keyPressed(const UIKey& key);

    /// The present column of the keys, after a layout if that is needed.
    NSInteger componentOfKeys() override;
    void chooseComponent(NSInteger component) override;
    /// What was typed is complete.
    void completeTyping() { typeSelect_.complete(); }

    // For the user, as by keys. The component exists.

    void stepComponent_byRows(NSInteger component, NSInteger rows);
    void spinComponent_toRow(NSInteger component, NSInteger row);

    // Time

    /// Has the window call `advanceToTime`. Without one no time passes, and what moves ends.
    void animate();
    /// Returns whether it goes on.
    bool advanceToTime(NSTimeInterval time);
    /// Ends every movement at once.
    void finish();

private:
    void letGo(NSInteger component);
    void moveByKey(UIKey::Code code, NSInteger component);
    NSInteger advanceColumn(NSInteger component, NSTimeInterval time);
    void tick(NSInteger rows) const;

    NSInteger componentAfter(NSInteger component) override { return components_.componentAfter(component); }
    bool canSpin(NSInteger component) override { return components_.canSpin(component); }
    bool isHeld(NSInteger component) override { return components_.at(component).axis.isHeld(); }
    NSInteger rowCount(NSInteger component) override { return components_.at(component).rows; }
    std::optional<std::string> titleOfRow(NSInteger row, NSInteger component) override { return rows_.titleOfRow(row, component); }
    std::optional<std::string> separatorTextAfter(NSInteger component) override { return owner_.separatorTextAfter(component); }
    NSInteger landingRow(NSInteger component) override { return components_.at(component).axis.landingRow(); }
    void spinToRow(NSInteger row, NSInteger component) override { components_.at(component).axis.spinToRow(row); }
    void startMoving() override;
    void finishOthers(NSInteger component) override;
    void reportLandings() override;

    UIView& view_;
    UIPickerOwner& owner_;
    UIPickerComponents& components_;
    UIPickerRows& rows_;
    UIPickerTypeSelect typeSelect_;
};

} // namespace gx
