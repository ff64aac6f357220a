#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>

#include "GXLocalization.h"
#include "GXStyleSheet.h"
#include "MainScreen.h"
#include "MeasurementCell.h"
#include "NSRunLoop.h"
#include "QtFiles.h"
#include "UIPickerView.h"
#include "UIViewWidget.h"

/// The gallery in a window of Qt, used with the mouse alone: every step is an event that a person's
/// hand would cause. The clock is turned by hand; files are chosen as if in the system's dialog.
class ApplicationTest : public testing::Test {
protected:
    QTemporaryDir folder;
    std::unique_ptr<gx::qt::UIViewWidget> widget;
    gx::Ref<gallery::MainScreen> screen;
    double now = 1000;
    QString chosenPath = folder.filePath("workout.json");

    void SetUp() override { start(); }
    void TearDown() override {
        widget = nullptr;
        screen = nullptr;
        gx::GXStyleSheet::setGlobalStyleSheet(nullptr);
        gx::GXLocalization::setSharedLocalization(nullptr);
        gx::NSLocale::setCurrentLocale(nullptr);
    }

    /// Opens a new window, as after a start of the program.
    void start(int width = 390, int height = 700) {
        widget = nullptr;
        screen = gx::create<gallery::MainScreen>(gx::CGRectZero);
        widget = std::make_unique<gx::qt::UIViewWidget>();
        widget->setClock([this] { return now; });
        widget->setRootView(screen);
        widget->resize(width, height);
        gallery::QtFiles::Dialogs dialogs = {[this](QWidget*, const QString&) { return chosenPath; },
                                             [this](QWidget*) { return chosenPath; }};
        screen->entry()->setFiles(std::make_shared<gallery::QtFiles>(widget.get(), dialogs));
        widget->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(widget.get()));
        settle();
    }
    void step(double seconds) {
        now += seconds;
        widget->stepFrame();
    }
    void settle() {
        gx::NSRunLoop::mainRunLoop()->runPass();
        constexpr int longest = 60 * 20;
        int frames = 0;
        while (widget->isFrameDue() && ++frames < longest) step(1.0 / 60);
        EXPECT_LT(frames, longest) << "still moving after twenty seconds";
    }

    // The mouse

    QPoint middleOf(const gx::Ref<gx::UIView>& view, gx::CGRect part) {
        const gx::CGPoint point = view->convertPoint_toView({CGRectGetMidX(part), CGRectGetMidY(part)}, widget->uiWindow());
        return QPointF(point.x, point.y).toPoint();
    }
    QPoint middleOf(const gx::Ref<gx::UIView>& view) { return middleOf(view, view->bounds()); }
    void click(QPoint point) {
        QTest::mouseClick(widget.get(), Qt::LeftButton, {}, point);
        settle();
    }
    void drag(QPoint from, int way) {
        QTest::mousePress(widget.get(), Qt::LeftButton, {}, from);
        constexpr int steps = 10;
        for (int i = 1; i <= steps; ++i) {
            step(0.016);
            QTest::mouseMove(widget.get(), {from.x(), from.y() + way * i / steps});
        }
        step(0.3); // At rest before the button is released, so that it is no fling.
        QTest::mouseRelease(widget.get(), Qt::LeftButton, {}, {from.x(), from.y() + way});
        settle();
    }
    /// With the mouse wheel over the table, as far as brings a rectangle of it into sight.
    void bringIntoSight(const gx::Ref<gx::UIScrollView>& scroll, const std::function<gx::CGRect()>& rect) {
        const QPoint over = middleOf(scroll, {scroll->bounds().origin, {scroll->bounds().size.width, 8}});
        for (int notch = 0; notch < 200; ++notch) {
            const gx::CGRect wanted = rect();
            const gx::CGRect seen = scroll->bounds();
            const bool isBelow = CGRectGetMaxY(wanted) > CGRectGetMaxY(seen);
            const bool isAbove = CGRectGetMinY(wanted) < CGRectGetMinY(seen);
            if (!isBelow && !isAbove) return;
            QWheelEvent event(over, widget->mapToGlobal(over), {}, {0, isBelow ? -120 : 120}, Qt::NoButton, Qt::NoModifier,
                              Qt::NoScrollPhase, false);
            QApplication::sendEvent(widget.get(), &event);
            settle();
        }
        ADD_FAILURE() << "not to be brought into sight";
    }

    // The entry screen

    const gx::Ref<gallery::EntryScreen>& entry() { return screen->entry(); }
    std::size_t indexOf(const std::string& name) {
        for (std::size_t i = 0; i < entry()->measurementCount(); ++i) {
            if (entry()->measurement(i)->name() == name) return i;
        }
        ADD_FAILURE() << name;
        return 0;
    }
    gx::Ref<gallery::MeasurementCell> row(const std::string& name) {
        const gx::NSIndexPath path = entry()->pathOfMeasurement(indexOf(name));
        bringIntoSight(entry()->table(), [&] { return entry()->table()->rectForRowAtIndexPath(path); });
        return std::dynamic_pointer_cast<gallery::MeasurementCell>(entry()->table()->cellForRowAtIndexPath(path));
    }
    /// The names and values of all rows.
    std::vector<std::pair<std::string, std::string>> shown() {
        std::vector<std::pair<std::string, std::string>> rows;
        for (std::size_t i = 0; i < entry()->measurementCount(); ++i) {
            const auto cell = row(entry()->measurement(i)->name());
            rows.emplace_back(cell->name(), cell->value());
        }
        return rows;
    }
    std::vector<gx::Ref<gx::UIPickerView>> openWheels() {
        std::vector<gx::Ref<gx::UIPickerView>> found;
        addWheels(entry()->openPickerCell(), found);
        return found;
    }
    /// Turns every column of the open picker that has more than one row, each by its own number of
    /// rows, and returns how many turned.
    int turnEachColumn() {
        int turned = 0;
        for (const auto& wheel : openWheels()) {
            for (gx::NSInteger component = 0; component < wheel->numberOfComponents(); ++component) {
                if (wheel->numberOfRowsInComponent(component) <= 1) continue;
                const gx::NSInteger before = wheel->selectedRowInComponent(component);
                const bool isLast = before + 1 >= wheel->numberOfRowsInComponent(component);
                const auto view = wheel->viewForRow_forComponent(before, component);
                if (!view || !view->showsSomething()) continue; // A spacer.
                const int way = static_cast<int>(wheel->rowSizeForComponent(component).height) + 6;
                drag(middleOf(view), isLast ? way : -way);
                EXPECT_NE(wheel->selectedRowInComponent(component), before) << "component " << component;
                ++turned;
            }
        }
        return turned;
    }

    // Other screens

    void goTo(const std::string& page) {
        const std::size_t index = screen->indexOfPage(page).value_or(0);
        if (!screen->hasSidebar()) click(middleOf(screen->menuButton()));
        click(middleOf(screen->sidebar()->rows()[index]));
        ASSERT_EQ(screen->pageIndex(), index);
    }
    void chooseSetting(const std::string& name, std::size_t choice) {
        const auto control = screen->settingsControls()->control(name);
        ASSERT_TRUE(control) << name;
        bringIntoSight(screen->scroll(), [&] { return screen->scroll()->convertRect_fromView(control->bounds(), control); });
        click(middleOf(control, control->frameOfSegment(choice)));
        EXPECT_EQ(screen->settingsControls()->control(name)->chosen(), choice) << name;
    }

private:
    static void addWheels(const gx::Ref<gx::UIView>& view, std::vector<gx::Ref<gx::UIPickerView>>& found) {
        if (!view) return;
        if (const auto wheel = std::dynamic_pointer_cast<gx::UIPickerView>(view)) return found.push_back(wheel);
        for (const auto& below : view->subviews()) addWheels(below, found);
    }
};
