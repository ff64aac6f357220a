#pragma once

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "GXBpmPickerView.h"
#include "GXCaloriesPickerView.h"
#include "GXDistanceAndDurationPicker.h"
#include "GXHeartRatePickerView.h"
#include "GXIconPickerView.h"
#include "GXPacePickerView.h"
#include "GXSpeedPickerView.h"
#include "GXWeatherAndTemperaturePickerView.h"
#include "GXWeightPickerView.h"
#include "NSCoder.h"

/// One class of pickers, for tests that pickers of each class have to pass: a test compiles once
/// for all of them.
struct PickerKind {
    const char* name;
    // The forms of `create`.
    gx::Ref<gx::GXBasePickerView> (*withFrame)(const gx::CGRect&);
    gx::Ref<gx::GXBasePickerView> (*withCoder)(const gx::Ref<gx::NSCoder>&);
    gx::Ref<gx::GXBasePickerView> (*withRowHeight)(const gx::CGRect&, const float&);

    friend std::ostream& operator<<(std::ostream& out, const PickerKind& kind) { return out << kind.name; }
};

template <class Picker, class... Arguments>
gx::Ref<gx::GXBasePickerView> createdAs(const Arguments&... arguments) {
    return gx::create<Picker>(arguments...);
}

template <class Picker>
PickerKind pickerKind(const char* name) {
    return {name, createdAs<Picker, gx::CGRect>, createdAs<Picker, gx::Ref<gx::NSCoder>>, createdAs<Picker, gx::CGRect, float>};
}

/// What `make` makes for each class of pickers but composites, from the class and its name.
template <class Make>
auto kindsOfSinglePickers(Make make) {
    return std::vector{make.template operator()<gx::GXBasePickerView>("Base"),
                       make.template operator()<gx::GXBpmPickerView>("Bpm"),
                       make.template operator()<gx::GXCaloriesPickerView>("Calories"),
                       make.template operator()<gx::GXDistancePickerView>("Distance"),
                       make.template operator()<gx::GXDurationPickerView>("Duration"),
                       make.template operator()<gx::GXHeartRatePickerView>("HeartRate"),
                       make.template operator()<gx::GXIconPickerView>("Icon"),
                       make.template operator()<gx::GXPacePickerView>("Pace"),
                       make.template operator()<gx::GXSpeedPickerView>("Speed"),
                       make.template operator()<gx::GXTemperaturePickerView>("Temperature"),
                       make.template operator()<gx::GXWeightPickerView>("Weight")};
}

/// The same with the composites.
template <class Make>
auto kindsOfPickers(Make make) {
    auto kinds = kindsOfSinglePickers(make);
    kinds.push_back(make.template operator()<gx::GXDistanceAndDurationPicker>("DistanceAndDuration"));
    kinds.push_back(make.template operator()<gx::GXWeatherAndTemperaturePickerView>("WeatherAndTemperature"));
    return kinds;
}

/// Names a test by the kind of its picker.
struct NameOfKind {
    template <class Kind>
    std::string operator()(const testing::TestParamInfo<Kind>& info) const {
        return info.param.name;
    }
};

/// A picker of a test's own subclass, with the part of it that the test looks at.
template <class Notes>
struct OwnPicker {
    gx::Ref<gx::GXBasePickerView> picker;
    Notes* notes = nullptr;
};

/// Makes a picker of a class that derives from one and from `Notes`, by the initialiser that
/// `create` takes. Empty if that refuses.
///
/// Its owner is compiled once. `create` has one for each class, of sixty functions; that is most of
/// what a small subclass for each kind of picker compiles to.
template <class Own, class Notes, class... Arguments>
OwnPicker<Notes> ownPicker(const Arguments&... arguments) {
    auto* const made = new Own;
    gx::Ref<gx::GXBasePickerView> owner(static_cast<gx::GXBasePickerView*>(made));
    if (!initialise(*made, arguments...)) return {};
    return {std::move(owner), made};
}
