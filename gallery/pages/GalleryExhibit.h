#pragma once

#include <functional>
#include <string>
#include <vector>

#include <GXUIPickers/GXBasePickerView.h>

namespace gallery {

/// What a picker's delegate was told, in two ways.
struct GalleryNotice {
    std::string words; ///< as a person reads it: "5.3 km"
    std::string facts; ///< as the program got it: "5300.0 m (component 0)"
};
using GalleryReport = std::function<void(const GalleryNotice& notice)>;

/// Something about a picker that can be chosen among a few.
struct GalleryOption {
    std::string title;
    std::vector<std::string> choices;
    std::size_t chosen = 0;
    /// Brings the picker to the choice.
    std::function<void(std::size_t choice)> choose;
    /// The choice that the picker is at, for what the user can also change on the wheel itself; else empty.
    std::function<std::size_t()> current;
};

/// One picker on show, with everything that a page needs to know of it.
struct GalleryExhibit {
    gx::Ref<gx::UIView> picker;
    gx::Ref<gx::UIPickerView> wheel;
    /// The picker again, if it is one with fonts to choose; else empty.
    gx::Ref<gx::GXBasePickerView> textPicker;
    std::vector<GalleryOption> options;
    /// Pickers hold their delegate weakly, so someone has to hold it.
    gx::Ref<gx::NSObject> delegate;

    /// What the picker holds now; a later picker of the same kind takes it over.
    std::function<std::vector<gx::NSNumber>()> values;
    std::function<void(const std::vector<gx::NSNumber>& values)> setValues;
};

/// Shows a picker. `unit` is the base unit that it tells its delegate values in; `inWords` puts such a value into words.
GalleryExhibit exhibitOf(const gx::Ref<gx::GXBasePickerView>& picker, const GalleryReport& report, const std::string& unit,
                         std::function<std::string(const gx::NSNumber& value, gx::NSInteger component)> inWords);

/// Gives a picker that has its frame the largest fonts, up to the style sheet's, with which the labels stand within the wheel's band
/// and no row's title is cut in its column; 13 points at least.
/// Values and labels keep one size, and so one baseline. Within a composite all pickers get the same. Absent ones are fine.
void fitFonts(const gx::Ref<gx::GXBasePickerView>& picker);

/// The text beside the wheel, which is the name of the unit that it shows.
std::string unitBesideWheel(const gx::Ref<gx::GXBasePickerView>& picker);

} // namespace gallery
