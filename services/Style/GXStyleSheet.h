#pragma once

#include "GXExport.h"
#include "GXStyleSheetFont.h"
#include "UIColor.h"

namespace gx {

/// The looks of all pickers and picker cells of an application: fonts, colours and row heights.
///
/// Pickers read the global style sheet and keep none themselves. An application that wants other
/// looks overrides `virtual` operations and calls `setGlobalStyleSheet`, best before it makes its
/// pickers.
///
/// After a change of the style sheet or its text scale, an application calls `reloadData()` of its
/// pickers. Without it they get fonts and colours where something is shown or laid out again, and
/// keep their row height.
///
///     GXStyleSheet::globalStyleSheet()->setTextScale(1.5);
///     distancePicker->reloadData();
class GX_EXPORT GXStyleSheet : public NSObject {
public:
    /// The limits of `setTextScale`, chosen: below them a row is too low for a finger, above them a
    /// wheel is wider than a phone.
    static constexpr double minTextScale = 0.8;
    /// The upper limit.
    static constexpr double maxTextScale = 3;

    /// Never empty. The reference keeps the style sheet alive, also if a call replaces it.
    static Ref<GXStyleSheet> globalStyleSheet();
    /// Holds the style sheet strongly. An empty reference gives a new one with the looks below.
    static void setGlobalStyleSheet(Ref<GXStyleSheet> styleSheet);

    /// The height of a row of a wheel of texts: 40 points at scale 1.
    virtual double pickerRowHeight() const;
    /// The height of a row of a wheel of icons: 56 points at scale 1.
    virtual double pickerImageRowHeight() const;

    /// The font of row titles and separators: 22 points at scale 1, medium, in the label colour.
    ///
    /// The same object until the scale changes.
    virtual Ref<GXStyleSheetFont> pickerValueFont() const;
    /// The font of the unit labels beside a wheel, with which column widths are measured too.
    ///
    /// As large as the value font, but regular and in the secondary label colour. The same object
    /// until the scale changes.
    virtual Ref<GXStyleSheetFont> pickerLabelFont() const;

    /// The colour behind the picker in a table cell.
    virtual UIColor tableBgColor() const;

    /// How much larger than usual the user wants to read; 1 unless set.
    double textScale() const { return textScale_; }
    /// Scales fonts and row heights together, so that each text fits its row.
    ///
    /// Clamped to `minTextScale` … `maxTextScale`. NaN is ignored, and so is the present scale.
    virtual void setTextScale(double scale);

private:
    double textScale_ = 1;
    // Made when first needed at a scale: wheels read them for each row that becomes visible.
    mutable Ref<GXStyleSheetFont> valueFont_;
    mutable Ref<GXStyleSheetFont> labelFont_;
};

} // namespace gx
