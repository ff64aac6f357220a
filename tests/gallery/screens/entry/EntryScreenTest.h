#pragma once

#include "EntryScreen.h"
#include "GalleryTest.h"
#include "MeasurementCell.h"
#include "WorkoutFile.h"

/// Files in memory: one that the user is supposed to choose.
class OneFile : public gallery::UserFiles {
public:
    std::string text;
    std::string error;
    bool isDismissed = false;

    void saveText_name(const std::string& newText, const std::string& suggestedName, const Done& done) override {
        if (isDismissed) return;
        if (error.empty()) text = newText;
        done({suggestedName, "", error});
    }
    void openText(const Done& done) override {
        if (!isDismissed) done({"file.json", error.empty() ? text : "", error});
    }
};

class EntryScreenTest : public GalleryTest {
protected:
    std::shared_ptr<OneFile> files = std::make_shared<OneFile>();

    void openEntry(gx::CGFloat width = 390, gx::CGFloat height = 844) {
        open(width, height);
        entry()->setFiles(files);
        settle();
    }
    const gx::Ref<gallery::EntryScreen>& entry() { return screen->entry(); }
    const gx::Ref<gx::UITableView>& table() { return entry()->table(); }
    std::size_t indexOf(const std::string& name) {
        for (std::size_t i = 0; i < entry()->measurementCount(); ++i) {
            if (entry()->measurement(i)->name() == name) return i;
        }
        ADD_FAILURE() << name;
        return 0;
    }
    gx::Ref<gallery::MeasurementCell> row(const std::string& name) {
        const gx::NSIndexPath path = entry()->pathOfMeasurement(indexOf(name));
        table()->scrollToRowAtIndexPath_animated(path, false);
        settle();
        return std::dynamic_pointer_cast<gallery::MeasurementCell>(table()->cellForRowAtIndexPath(path));
    }
    std::string value(const std::string& name) { return row(name)->value(); }
    void tapRow(const std::string& name) { tap(row(name)); }
    /// The wheels of the open picker, from the left.
    std::vector<gx::Ref<gx::UIPickerView>> wheels() {
        std::vector<gx::Ref<gx::UIPickerView>> found;
        if (const auto cell = entry()->openPickerCell()) addWheels(cell, found);
        return found;
    }
    gx::CGPoint middleOfColumn(const gx::Ref<gx::UIPickerView>& wheel, gx::NSInteger component) {
        return middleOf(wheel->viewForRow_forComponent(wheel->selectedRowInComponent(component), component));
    }
    void turnWheel(std::size_t wheel, gx::NSInteger component, int rows) {
        const gx::Ref<gx::UIPickerView> turned = wheels().at(wheel);
        const gx::CGPoint from = middleOfColumn(turned, component);
        const double slop = rows > 0 ? 6 : -6;
        window->drag(from, {from.x, from.y - rows * turned->rowSizeForComponent(component).height - slop});
        settle();
    }
    /// Turns each column to its first row and to its last one, and each time saves and opens.
    void expectEndsToComeBack(const gx::Ref<gx::UIPickerView>& wheel) {
        for (gx::NSInteger component = 0; component < wheel->numberOfComponents(); ++component) {
            for (const bool isLast : {false, true}) {
                wheel->turnToRow_inComponent(isLast ? wheel->numberOfRowsInComponent(component) - 1 : 0, component);
                gx::NSRunLoop::mainRunLoop()->runPass();
                entry()->save();
                std::string error;
                EXPECT_EQ(gallery::WorkoutFile::workoutOfText(files->text, error), entry()->workout()) << error << files->text;
            }
        }
    }
    void choose(gallery::Settings settings) {
        screen->setSettings(settings);
        settle();
    }

private:
    static void addWheels(const gx::Ref<gx::UIView>& view, std::vector<gx::Ref<gx::UIPickerView>>& found) {
        if (const auto wheel = std::dynamic_pointer_cast<gx::UIPickerView>(view)) return found.push_back(wheel);
        for (const gx::Ref<gx::UIView>& below : view->subviews()) addWheels(below, found);
    }
};
