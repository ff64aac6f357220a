#pragma once

#include <cassert>
#include <concepts>
#include <type_traits>

#include "GXBasePickerView.h"
#include "GXExport.h"
#include "UITableViewCell.h"

namespace gx {

/// A table cell that shows a picker over its whole area. This one has no picker; each kind of
/// picker has a cell of its own.
///
/// An application registers a cell under its `cellIdentifier` and uses the cell's `pickerView` like
/// a picker that stands free. The picker is made once, with the cell's bounds: at construction in
/// code, in `awakeFromNib` for a cell from an interface.
///
/// A cell that is used again keeps its picker, and the picker its values, fonts and delegate: set
/// all that differs from row to row.
///
/// To derive: override `makePicker`, and declare a `cellIdentifier` of your own. A cell without one
/// would be registered in place of other cells without one; debug builds stop there.
/// `docs/guide/own-picker.md` shows both.
class GX_EXPORT GXBasePickerCell : public UITableViewCell {
public:
    /// What an application registers the class under.
    static std::string cellIdentifier();

    bool initWithStyle_reuseIdentifier(UITableViewCellStyle style, const std::optional<std::string>& reuseIdentifier) override;
    bool initWithFrame(CGRect frame) override;
    void awakeFromNib() override;

    /// Held strongly. The setter stores only; the cell shows what is in its content view.
    virtual const Ref<GXBasePickerView>& pickerView() const { return pickerView_; }
    virtual void setPickerView(Ref<GXBasePickerView> pickerView) { pickerView_ = std::move(pickerView); }

    /// The picker takes the new bounds, be it inside the cell or not.
    void setFrame(CGRect frame) override;
    void setBounds(CGRect bounds) override;

    /// Styles the cell.
    virtual void initGXBasePickerCell();
    /// The content view becomes clear and the cell takes the style sheet's background for tables.
    virtual void styleGXBasePickerCell();

protected:
    /// Called once the cell is styled, unless it has a picker already: makes the picker and shows
    /// it. Here there is none.
    virtual void makePicker();
    /// Takes a picker and puts it into the content view.
    void showPicker(const Ref<GXBasePickerView>& picker);
    /// Makes a picker with the cell's bounds and shows it.
    template <class Picker>
    void showNewPicker() {
        const Ref<UIView> keep = refTo<UIView>(this);
        showPicker(create<Picker>(bounds()));
    }

private:
    void setUp();
    void fillWithPicker();

    Ref<GXBasePickerView> pickerView_;
};

/// How `create` makes a picker cell, besides `(frame)` and `(coder)`: `(style, identifier)`.
///
/// A cell without a `cellIdentifier` of its own has that of `GXBasePickerCell`, as all others
/// without one: the last of them that was registered would be shown in place of all.
template <std::derived_from<GXBasePickerCell> Cell>
bool initialise(Cell& cell, UITableViewCellStyle style, const std::optional<std::string>& reuseIdentifier) {
    assert((std::is_same_v<Cell, GXBasePickerCell> || reuseIdentifier != GXBasePickerCell::cellIdentifier()) &&
           "This cell class is registered under an inherited identifier: declare a cellIdentifier() of its own.");
    return static_cast<GXBasePickerCell&>(cell).initWithStyle_reuseIdentifier(style, reuseIdentifier);
}

} // namespace gx
