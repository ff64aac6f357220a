// The mouse over a widget, and its cursor.

#include <QEnterEvent>

#include "WidgetTest.h"

using namespace gx;

namespace {

struct UIViewWidgetPointer : WidgetTest {
    void hover(QPoint place, Qt::MouseEventSource origin = Qt::MouseEventNotSynthesized) {
        QMouseEvent event(QEvent::MouseMove, place, place, widget.mapToGlobal(place), Qt::NoButton, Qt::NoButton, Qt::NoModifier, origin);
        QApplication::sendEvent(&widget, &event);
    }
    void enter(QPoint place) {
        QEnterEvent event(place, place, widget.mapToGlobal(place));
        QApplication::sendEvent(&widget, &event);
    }
    void leave() {
        QEvent event(QEvent::Leave);
        QApplication::sendEvent(&widget, &event);
    }
    Qt::CursorShape shape() const { return widget.cursor().shape(); }

    /// Returns one style everywhere.
    struct StyleView : UIView {
        std::optional<UIPointerStyle> hoverMoved(CGPoint) override { return style; }
        UIPointerStyle style = UIPointerStyle::Default;
    };
};

TEST_F(UIViewWidgetPointer, TheCursorIsAnOpenHandOverAColumnAndAClosedOneDuringADrag) {
    EXPECT_EQ(shape(), Qt::ArrowCursor);
    hover(firstColumn);
    EXPECT_EQ(shape(), Qt::OpenHandCursor);
    QTest::mousePress(&widget, Qt::LeftButton, {}, firstColumn);
    EXPECT_EQ(shape(), Qt::ClosedHandCursor);
    step(0.016);
    QTest::mouseMove(&widget, {20, 60});
    EXPECT_EQ(shape(), Qt::ClosedHandCursor);
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, {20, 60});
    run(1);
    EXPECT_EQ(shape(), Qt::ArrowCursor) << "beside the columns";
}

TEST_F(UIViewWidgetPointer, EnteringAndLeavingCountAsMoves) {
    enter(secondColumn);
    EXPECT_EQ(shape(), Qt::OpenHandCursor);
    leave();
    EXPECT_EQ(shape(), Qt::ArrowCursor);
    enter(secondColumn);
    widget.setEnabled(false);
    EXPECT_EQ(widget.uiWindow()->pointerStyle(), UIPointerStyle::Default);
    widget.setEnabled(true);
    enter(secondColumn);
    widget.hide();
    EXPECT_EQ(shape(), Qt::ArrowCursor);
}

TEST_F(UIViewWidgetPointer, EachStyleHasAShape) {
    const auto view = create<StyleView>(CGRectMake(0, 0, 320, 216));
    widget.setRootView(view);
    const std::vector<std::pair<UIPointerStyle, Qt::CursorShape>> shapes = {{UIPointerStyle::Press, Qt::PointingHandCursor},
                                                                            {UIPointerStyle::Turn, Qt::OpenHandCursor},
                                                                            {UIPointerStyle::Turning, Qt::ClosedHandCursor},
                                                                            {UIPointerStyle::Disabled, Qt::ForbiddenCursor},
                                                                            {UIPointerStyle::Default, Qt::ArrowCursor}};
    for (const auto& [style, expected] : shapes) {
        view->style = style;
        hover({100, 100});
        EXPECT_EQ(shape(), expected);
    }
}

TEST_F(UIViewWidgetPointer, AViewMayDropTheWidgetWhenThePointerLeavesAsItIsHidden) {
    struct DroppingView : UIView {
        std::optional<UIPointerStyle> hoverMoved(CGPoint) override { return UIPointerStyle::Press; }
        void hoverEnded() override { delete std::exchange(shownBy, nullptr); }
        qt::UIViewWidget* shownBy = nullptr;
    };
    const auto view = create<DroppingView>(CGRectMake(0, 0, 320, 216));
    view->shownBy = new qt::UIViewWidget;
    view->shownBy->setClock([] { return 5.0; });
    view->shownBy->setRootView(view);
    view->shownBy->uiWindow()->pointerMoved({100, 100});
    QHideEvent event; // Where memory is checked, a use of the widget afterwards fails.
    QApplication::sendEvent(view->shownBy, &event);
    EXPECT_EQ(view->shownBy, nullptr);
    EXPECT_FALSE(view->window());
}

TEST_F(UIViewWidgetPointer, MovesThatASystemMakesOfTouchesDoNotHover) {
    hover(firstColumn, Qt::MouseEventSynthesizedBySystem);
    EXPECT_EQ(shape(), Qt::ArrowCursor);
}

TEST_F(UIViewWidgetPointer, ARestingPointerNeedsNoFrames) {
    hover(firstColumn);
    run(0.1);
    EXPECT_FALSE(widget.isFrameDue());
    hover(firstColumn + QPoint(1, 1));
    EXPECT_FALSE(widget.isFrameDue());
}

} // namespace
