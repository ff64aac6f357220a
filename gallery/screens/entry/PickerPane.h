#pragma once

#include <string>

#include "Measurement.h"
#include "Paragraph.h"

namespace gallery {

/// The open picker beside the table: a card with the name of the measurement, its value in large
/// letters, and the picker as high as there is room.
///
/// While no picker is open it says how one is opened. In a narrow window the picker has a row of
/// the table instead.
class PickerPane : public gx::UIView {
public:
    bool initWithFrame(gx::CGRect frame) override;

    /// Shows the picker of a measurement, which lies in this cell; the cell is let go when another
    /// is shown. Nothing in place of both: no picker is open.
    void showMeasurement_cell(gx::Ref<Measurement> measurement, gx::Ref<gx::UITableViewCell> cell);
    /// Nothing while no picker is open.
    const gx::Ref<gx::UITableViewCell>& cell() const { return cell_; }
    /// Brings name and value up to date. The texts are in the current language.
    void showTexts();
    const std::string& value() const { return value_->text(); }
    /// What it says while no picker is open.
    const gx::Ref<Paragraph>& hint() const { return hint_; }
    const gx::Ref<gx::UIView>& card() const { return card_; }

    /// As wide as offered, and as high as with the lowest wheel.
    gx::CGSize sizeThatFits(gx::CGSize available) const override;
    void layoutSubviews() override;

private:
    struct Texts;
    Texts textsForWidth(gx::CGFloat width) const;

    gx::Ref<Measurement> measurement_;
    gx::Ref<gx::UITableViewCell> cell_;
    gx::Ref<gx::UIView> card_;
    gx::Ref<Paragraph> name_;
    gx::Ref<Paragraph> value_;
    gx::Ref<Paragraph> hint_;
};

} // namespace gallery
