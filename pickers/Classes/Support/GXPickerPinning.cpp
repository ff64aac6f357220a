#include "GXPickerPinning.h"

#include "NSLayoutConstraint.h"

namespace gx {

void addPinnedPicker(const Ref<UIView>& contentView, const Ref<UIView>& picker) {
    picker->setTranslatesAutoresizingMaskIntoConstraints(false);
    contentView->addSubview(picker);
    for (const char* format : {"H:|[picker]|", "V:|[picker]|"}) {
        contentView->addConstraints(
            NSLayoutConstraint::constraintsWithVisualFormat_options_metrics_views(format, 0, {}, {{"picker", picker}}));
    }
}

} // namespace gx
