#pragma once

#include <string>

#include <QColor>

#include <GXUIPickers/GXStyleSheet.h>

namespace gx::quick {

/// What an item's style sheet is made of: the font and the colours of its control.
struct QuickLooks {
    std::string family;
    double pixelSize = 0; ///< of the rows
    QColor text;
    bool isHighContrast = false;
    friend bool operator==(const QuickLooks&, const QuickLooks&) = default;
};

/// The looks of one item. Rows are as high as fit their font, in the usual proportion.
class QuickStyleSheet final : public GXStyleSheet {
public:
    const QuickLooks& looks() const { return looks_; }
    void setLooks(const QuickLooks& looks);

    Ref<GXStyleSheetFont> pickerValueFont() const override { return rowFont_; }
    Ref<GXStyleSheetFont> pickerLabelFont() const override { return labelFont_; }

private:
    QuickLooks looks_;
    Ref<GXStyleSheetFont> rowFont_ = GXStyleSheet::pickerValueFont();
    Ref<GXStyleSheetFont> labelFont_ = GXStyleSheet::pickerLabelFont();
};

} // namespace gx::quick
