#pragma once

#include <gtest/gtest.h>

#include <functional>

#include "GXHeightPickerView.h"
#include "NSRunLoop.h"

using Calls = std::vector<std::string>;

/// Notes, as given, every request that reaches the wheel.
class RecordingHeightPicker : public gx::GXHeightPickerView {
public:
    Calls calls;

    void setDataSource(gx::WeakRef<gx::UIPickerViewDataSource> dataSource) override {
        calls.emplace_back("data source");
        gx::GXHeightPickerView::setDataSource(std::move(dataSource));
    }
    void setDelegate(gx::WeakRef<gx::UIPickerViewDelegate> delegate) override {
        calls.emplace_back("delegate");
        gx::GXHeightPickerView::setDelegate(std::move(delegate));
    }
    void reloadAllComponents() override {
        calls.emplace_back("reload");
        gx::GXHeightPickerView::reloadAllComponents();
    }
    void selectRow_inComponent_animated(gx::NSInteger row, gx::NSInteger component, bool animated) override {
        calls.push_back("select " + std::to_string(row) + " in " + std::to_string(component) + (animated ? " animated" : ""));
        gx::GXHeightPickerView::selectRow_inComponent_animated(row, component, animated);
    }
};

struct HeightNotices : gx::NSObject, gx::GXHeightPickerViewDelegate {
    struct Notice {
        gx::Ref<gx::GXHeightPickerView> picker;
        gx::CGFloat height;
        bool metric;
    };
    std::vector<Notice> list;
    std::function<void()> whenTold;

    void heightPickerView_didSelectHeightInCm_metric(const gx::Ref<gx::GXHeightPickerView>& picker, gx::CGFloat height,
                                                     bool metric) override {
        list.push_back({picker, height, metric});
        const auto act = whenTold; // It outlives whatever it does to this delegate.
        if (act) act();
    }
};

/// A picker of 320 by 216 points with a delegate that notes what it is told. The run loop turns
/// when a test says so.
struct HeightPicker : testing::Test {
    HeightPicker() {
        picker = gx::create<RecordingHeightPicker>(gx::CGRectMake(0, 0, 320, 216));
        notices = gx::create<HeightNotices>();
        picker->setHeightDelegate(notices);
    }
    ~HeightPicker() override { pass(); }

    static void pass() { gx::NSRunLoop::mainRunLoop()->runPass(); }
    gx::NSInteger rows(gx::NSInteger component) { return picker->numberOfRowsInComponent(component); }
    gx::NSInteger selected(gx::NSInteger component) { return picker->selectedRowInComponent(component); }
    std::string title(gx::NSInteger row, gx::NSInteger component) {
        return picker->pickerView_attributedTitleForRow_forComponent(picker, row, component)->string();
    }
    std::string shown(gx::NSInteger component) { return title(selected(component), component); }
    template <class Act>
    Calls callsOf(Act act) {
        picker->calls.clear();
        act();
        return std::move(picker->calls);
    }
    Calls turn(gx::NSInteger row, gx::NSInteger component) {
        return callsOf([&] { picker->turnToRow_inComponent(row, component); });
    }
    /// The rows that are asked for, by the way that no reload follows.
    Calls rowsOf(gx::CGFloat height) {
        picker->setHeightInCm(height);
        return callsOf([&] { picker->calculatePickerValues(); });
    }
    void expectTold(gx::CGFloat height, bool metric) {
        ASSERT_EQ(notices->list.size(), 1U);
        EXPECT_EQ(notices->list[0].picker, picker);
        EXPECT_EQ(notices->list[0].height, height);
        EXPECT_EQ(notices->list[0].metric, metric);
        EXPECT_EQ(picker->heightInCm(), height);
        notices->list.clear();
    }

    gx::Ref<RecordingHeightPicker> picker;
    gx::Ref<HeightNotices> notices;
};

struct MetricHeightPicker : HeightPicker {
    MetricHeightPicker() { picker->setIsMetric(true); }
};
