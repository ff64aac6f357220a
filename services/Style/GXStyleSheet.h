#pragma once

#include "GXStyleSheetFont.h"
#include "UIColor.h"

namespace gx {

/// The looks of all pickers and picker cells of an application: fonts, colours and row heights. Pickers ask the global one and hold none
/// themselves. An application that wants other looks overrides what it wants to differ and calls `setGlobalStyleSheet`, before it makes
/// its pickers.
///
/// A picker reads its row height once, when it is made; fonts and colours apply to what is shown or laid out from then on.
class GXStyleSheet : public NSObject {
public:
    /// The limits of `setTextScale`: below them a row is too low for a finger, above them a wheel no longer fits on a phone.
    static constexpr double minTextScale = 0.8;
    static constexpr double maxTextScale = 3;

    /// Never empty, and the same object until another one is set. The style sheet owns itself through this reference: copy it to keep it.
    static const Ref<GXStyleSheet>& globalStyleSheet();
    /// Holds the style sheet strongly. An empty reference gives a new one with the looks below.
    static void setGlobalStyleSheet(Ref<GXStyleSheet> styleSheet);

    /// One row of a wheel of texts, in points: 40 at scale 1, room for the value font with a gap that keeps neighbouring rows apart.
    virtual double pickerRowHeight() const;
    /// One row of a wheel of icons, in points: 56 at scale 1.
    virtual double pickerImageRowHeight() const;

    /// Row titles and separators: 22 points at scale 1, medium, in the label colour. The same object until the scale changes.
    virtual Ref<GXStyleSheetFont> pickerValueFont() const;
    /// The unit labels beside a wheel; also what column widths are measured with. As large as the value font, but regular and in the
    /// secondary label colour. The same object until the scale changes.
    virtual Ref<GXStyleSheetFont> pickerLabelFont() const;

    /// Behind the picker in a table cell.
    virtual UIColor tableBgColor() const;

    /// How much larger than usual the user wants to read; 1 unless set.
    double textScale() const { return textScale_; }
    /// Scales fonts and row heights together, so that no text outgrows its row. Held to `minTextScale` … `maxTextScale`; NaN is ignored,
    /// and so is the scale that is in force.
    virtual void setTextScale(double scale);

private:
    double textScale_ = 1;
    // Made when first asked for at a scale. Wheels ask for every row that comes into sight.
    mutable Ref<GXStyleSheetFont> valueFont_;
    mutable Ref<GXStyleSheetFont> labelFont_;
};

} // namespace gx
