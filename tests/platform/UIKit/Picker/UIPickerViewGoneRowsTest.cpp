// What a wheel asks for when rows go while it is asking.

#include <string>
#include <vector>

#include "TestWindow.h"
#include "WheelSource.h"

using namespace gx;

namespace {

/// A source that takes rows away while it is asked for one, and notes whether it is asked for one
/// that is not there.
struct Shrinking : WheelSource {
    enum class Question { View, AttributedTitle, Title, SpokenValue };
    Question shrinksAt = Question::Title;
    NSInteger shrinksAtRow = 0;
    std::vector<NSInteger> rowsAfter = {0};
    int questionsForNoRow = 0;
    bool isArmed = false;

    void hear(Question question, const Ref<UIPickerView>& wheel, NSInteger row, NSInteger component) {
        const auto index = static_cast<std::size_t>(component);
        if (index >= rows.size() || row >= rows[index]) ++questionsForNoRow;
        if (!isArmed || question != shrinksAt || row < shrinksAtRow) return;
        isArmed = false;
        rows = rowsAfter;
        wheel->reloadAllComponents();
    }
    Ref<UIView> pickerView_viewForRow_forComponent_reusingView(const Ref<UIPickerView>& wheel, NSInteger row, NSInteger component,
                                                               const Ref<UIView>&) override {
        hear(Question::View, wheel, row, component);
        return nullptr;
    }
    Ref<NSAttributedString> pickerView_attributedTitleForRow_forComponent(const Ref<UIPickerView>& wheel, NSInteger row,
                                                                          NSInteger component) override {
        hear(Question::AttributedTitle, wheel, row, component);
        return nullptr;
    }
    std::optional<std::string> pickerView_titleForRow_forComponent(const Ref<UIPickerView>& wheel, NSInteger row,
                                                                   NSInteger component) override {
        hear(Question::Title, wheel, row, component);
        return std::to_string(row);
    }
    std::optional<std::string> pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>& wheel, NSInteger row,
                                                                                NSInteger component) override {
        hear(Question::SpokenValue, wheel, row, component);
        return std::nullopt;
    }
};

using Question = Shrinking::Question;

} // namespace

TEST(UIPickerView, DoesNotQueryRowsThatAReloadDuringLayoutRemoved) {
    for (const Question question : {Question::View, Question::AttributedTitle, Question::Title}) {
        for (const auto& left : {std::vector<NSInteger>{2, 2}, {1}, {0, 0}, {}}) {
            const auto source = create<Shrinking>();
            source->rows = {100, 100};
            const auto wheel = wheelWithSource(source);
            TestWindow window(wheel);
            source->rowsAfter = left;
            source->shrinksAt = question;
            source->shrinksAtRow = 1;
            source->isArmed = true;
            wheel->reloadAllComponents();
            window.runUntilStill();
            EXPECT_FALSE(source->isArmed);
            EXPECT_EQ(source->questionsForNoRow, 0);
            EXPECT_EQ(wheel->numberOfComponents(), static_cast<NSInteger>(left.size()));
            EXPECT_FALSE(wheel->viewForRow_forComponent(2, 0));
            const bool hasRows = !left.empty() && left[0] > 0;
            EXPECT_EQ(wheel->viewForRow_forComponent(0, 0) != nullptr, hasRows);
        }
    }
}

TEST(UIPickerView, ShowsAllVisibleRowsThoughItsDelegateReloadsInEveryQuery) {
    const auto source = create<WheelSource>();
    const auto wheel = wheelWithSource(source);
    source->title = [&wheel](NSInteger row, NSInteger) {
        wheel->reloadAllComponents();
        return std::to_string(row);
    };
    TestWindow window(wheel);
    window.tick(TestWindow::frame);
    for (const NSInteger row : {0, 1, 2}) EXPECT_TRUE(wheel->viewForRow_forComponent(row, 0)) << row;
}

TEST(UIPickerView, DoesNotQueryRowsThatAReloadRemovedDuringAMovement) {
    const auto source = create<Shrinking>();
    const auto wheel = wheelWithSource(source);
    TestWindow window(wheel);
    source->rowsAfter = {20};
    source->shrinksAtRow = 20;
    source->isArmed = true;
    window.fling({160, 200}, {160, 8}, 4);
    window.runUntilStill();
    EXPECT_FALSE(source->isArmed) << "it should have come to row 20";
    EXPECT_EQ(source->questionsForNoRow, 0);
    EXPECT_LT(wheel->selectedRowInComponent(0), 20);
}

TEST(UIPickerView, DoesNotQueryRowsRemovedDuringATitleSearch) {
    for (const Question question : {Question::AttributedTitle, Question::Title}) {
        const auto source = create<Shrinking>();
        const auto wheel = wheelWithSource(source);
        TestWindow window(wheel);
        wheel->becomeFirstResponder();
        source->rowsAfter = {5};
        source->shrinksAt = question;
        source->shrinksAtRow = 9;
        source->isArmed = true;
        window.type("x");
        window.runUntilStill();
        EXPECT_FALSE(source->isArmed);
        EXPECT_EQ(source->questionsForNoRow, 0);
        EXPECT_EQ(source->notices.size(), 0U);
    }
}

TEST(UIPickerView, DoesNotQueryRowsRemovedDuringAnAccessibilityQuery) {
    for (const Question question : {Question::SpokenValue, Question::AttributedTitle}) {
        const auto source = create<Shrinking>();
        const auto wheel = wheelWithSource(source);
        wheel->selectRow_inComponent_animated(50, 0, false);
        TestWindow window(wheel);
        const auto elements = wheel->accessibilityElements();
        ASSERT_EQ(elements.size(), 1U);
        source->rowsAfter = {5};
        source->shrinksAt = question;
        source->shrinksAtRow = 50;
        source->isArmed = true;
        elements[0]->value();
        EXPECT_EQ(source->questionsForNoRow, 0);
    }
}
