#pragma once

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

#include "GXBasePickerView.h"
#include "GXHeightPickerView.h"

namespace scenarios {

/// Keeps the order in which a scenario writes its options.
using Json = nlohmann::ordered_json;

/// A picker with its properties under the names that scenarios give them, as an application would
/// set them.
class ScenarioPicker : public gx::NSObject, public gx::GXBasePickerViewDelegate, public gx::GXHeightPickerViewDelegate {
public:
    static gx::Ref<ScenarioPicker> pickerOfKind(const std::string& kind, const Json& options);

    const gx::Ref<gx::UIView>& view() const { return view_; }
    /// Fails for a property that the picker does not have.
    void set(const std::string& name, const Json& value);
    /// What the user can change, by its names. Of a wheel of own columns, the rows in the selection
    /// indicator.
    Json values() const;
    /// The same, but of such a wheel the rows that it reports.
    Json selected() const { return selectedRows_ ? selectedRows_() : values(); }
    std::string text() const { return text_(); }
    void reload() const { reload_(); }
    /// Whether it has reported something since this was last asked.
    bool takeReport() { return std::exchange(hasReported_, false); }

    void pickerView_didChangeCurrentValue_forComponent(const gx::Ref<gx::GXBasePickerView>&, const gx::NSNumber&, gx::NSInteger) override {
        hasReported_ = true;
    }
    void heightPickerView_didSelectHeightInCm_metric(const gx::Ref<gx::GXHeightPickerView>&, gx::CGFloat, bool) override {
        hasReported_ = true;
    }

private:
    friend class ScenarioPickerMaker;
    friend class ScenarioWheel;

    gx::Ref<gx::UIView> view_;
    std::map<std::string, std::function<void(const Json&)>> setters_;
    std::vector<std::pair<std::string, std::function<Json()>>> values_;
    std::function<Json()> selectedRows_;
    std::function<std::string()> text_;
    std::function<void()> reload_;
    gx::Ref<gx::NSObject> source_;
    bool hasReported_ = false;
};

} // namespace scenarios
