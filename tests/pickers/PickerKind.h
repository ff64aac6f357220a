#pragma once

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "GXBasePickerView.h"
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
