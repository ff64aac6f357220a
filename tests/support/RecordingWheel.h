#pragma once

#include <string>
#include <vector>

#include "CastTo.h"
#include "GXMultiValuePickerView.h"

/// A wheel that notes, as given, every request that reaches it from outside: "select 3 in 0",
/// "reload", "reload 2", "right km", "separator : after 0".
class RecordingWheel : public gx::GXMultiValuePickerView {
public:
    std::vector<std::string> calls;

    /// Puts one under the picker that is made next. The factory keeps no wheel alive.
    static void install() {
        gx::GXMultiValuePickerView::setFactory([](gx::CGRect frame) { return gx::create<RecordingWheel>(frame); });
    }
    static void uninstall() { gx::GXMultiValuePickerView::setFactory(nullptr); }
    template <class Picker>
    static RecordingWheel& under(const gx::Ref<Picker>& picker) {
        return *castTo<RecordingWheel>(picker->pickerView());
    }
    /// What was noted since the last call of this.
    std::vector<std::string> takeCalls() { return std::move(calls); }

    void reloadAllComponents() override {
        calls.emplace_back("reload");
        GXMultiValuePickerView::reloadAllComponents();
    }
    void reloadComponent(gx::NSInteger component) override {
        calls.push_back("reload " + std::to_string(component));
        GXMultiValuePickerView::reloadComponent(component);
    }
    void selectRow_inComponent_animated(gx::NSInteger row, gx::NSInteger component, bool animated) override {
        calls.push_back("select " + std::to_string(row) + " in " + std::to_string(component) + (animated ? " animated" : ""));
        GXMultiValuePickerView::selectRow_inComponent_animated(row, component, animated);
    }
    void setLeftLabelText(std::optional<std::string> text) override {
        calls.push_back("left " + text.value_or("(nothing)"));
        GXMultiValuePickerView::setLeftLabelText(std::move(text));
    }
    void setRightLabelText(std::optional<std::string> text) override {
        calls.push_back("right " + text.value_or("(nothing)"));
        GXMultiValuePickerView::setRightLabelText(std::move(text));
    }
    void setSeparatorText_afterComponent(std::optional<std::string> text, gx::NSUInteger component) override {
        calls.push_back("separator " + text.value_or("(nothing)") + " after " + std::to_string(component));
        GXMultiValuePickerView::setSeparatorText_afterComponent(std::move(text), component);
    }
    void setDataSource(gx::WeakRef<gx::UIPickerViewDataSource> dataSource) override {
        calls.emplace_back("data source");
        GXMultiValuePickerView::setDataSource(std::move(dataSource));
    }
    void setDelegate(gx::WeakRef<gx::UIPickerViewDelegate> delegate) override {
        calls.emplace_back("delegate");
        GXMultiValuePickerView::setDelegate(std::move(delegate));
    }
    void setCustomLabelFont(gx::Ref<gx::GXStyleSheetFont> font) override {
        calls.emplace_back("label font");
        GXMultiValuePickerView::setCustomLabelFont(std::move(font));
    }
    void setCustomValueFont(gx::Ref<gx::GXStyleSheetFont> font) override {
        calls.emplace_back("value font");
        GXMultiValuePickerView::setCustomValueFont(std::move(font));
    }
};
