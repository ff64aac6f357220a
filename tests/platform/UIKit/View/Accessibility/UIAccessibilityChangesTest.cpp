// What a host finds for a screen reader after each frame.

#include "UIAccessibilityChanges.h"
#include "TestWindow.h"
#include "UILabel.h"
#include "WheelSource.h"

using namespace gx;
using Texts = std::vector<std::string>;

namespace {

std::string textOf(const UIAccessibilityChanges::Change& change) {
    using Kind = UIAccessibilityChanges::Change::Kind;
    const Ref<UIAccessibilityElement> element = change.element;
    const std::string name = element ? element->label().value_or("(unnamed)") : "(none)";
    switch (change.kind) {
    case Kind::Elements:
        return "elements of " + name;
    case Kind::Label:
        return "label " + name;
    case Kind::Number:
        return "number " + std::to_string(static_cast<int>(element->numbers()->value));
    case Kind::Value:
        return "value " + change.before + " > " + element->value().value_or("(none)");
    case Kind::Expanded:
        return name + (element->isExpanded().value_or(false) ? " expanded" : " collapsed");
    case Kind::Checked:
        return name + (element->isChecked().value_or(false) ? " on" : " off");
    case Kind::Focus:
        return "focus " + name;
    case Kind::Announcement:
        return (change.announcement.priority == UIAccessibilityAnnouncement::Priority::Assertive ? "say now " : "say ") +
               change.announcement.text;
    }
    return {};
}

/// Two columns of a hundred rows from 20 on, named "Number 0" and "Number 1", at 30 and 30.
struct UIAccessibilityChangesTest : testing::Test {
    struct Source : WheelSource {
        std::optional<std::string> pickerView_accessibilityLabelForComponent(const Ref<UIPickerView>&, NSInteger component) override {
            return "Number " + std::to_string(component);
        }
    };
    Ref<Source> source = create<Source>();
    Ref<UIPickerView> wheel = wheelWithSource(source);
    TestWindow window{wheel};
    UIAccessibilityChanges changes;

    void SetUp() override {
        source->rows = {100, 100};
        source->title = [](NSInteger row, NSInteger) { return std::to_string(row + 20); };
        wheel->reloadAllComponents();
        for (NSInteger i : {0, 1}) wheel->selectRow_inComponent_animated(10, i, false);
        window.runUntilStill();
        EXPECT_EQ(take(), Texts{"elements of (none)"}) << "everything is new, once";
        EXPECT_EQ(take(), Texts{});
    }
    Texts take() {
        Texts texts;
        for (const auto& change : changes.takeChanges(*window)) texts.push_back(textOf(change));
        return texts;
    }
};

/// Two radio buttons, "first" and "second", in a group.
class Choices : public UIView {
public:
    NSInteger chosen = 0;
    UIAccessibilityElements accessibilityElements() override { return {choice(0), choice(1)}; }

private:
    struct Group : UIAccessibilityElement {
        explicit Group(const Ref<Choices>& choices) : UIAccessibilityElement(choices, UIAccessibilityRole::RadioGroup), owner(choices) {}
        NSInteger childCount() const override { return 2; }
        Ref<UIAccessibilityElement> child(NSInteger index) const override { return owner.lock()->choice(index); }
        WeakRef<Choices> owner;
    };
    struct Choice : UIAccessibilityElement {
        Choice(const Ref<Choices>& choices, NSInteger index)
            : UIAccessibilityElement(choices, UIAccessibilityRole::RadioButton, index), owner(choices) {}
        std::optional<std::string> label() const override { return part() == 0 ? "first" : "second"; }
        std::optional<bool> isChecked() const override { return owner.lock()->chosen == part(); }
        Ref<UIAccessibilityElement> container() const override { return std::make_shared<Group>(owner.lock()); }
        WeakRef<Choices> owner;
    };
    Ref<UIAccessibilityElement> choice(NSInteger index) { return std::make_shared<Choice>(refTo(this), index); }
};

} // namespace

TEST_F(UIAccessibilityChangesTest, EachChoiceOfAGroupIsComparedOnce) {
    const auto choices = create<Choices>(CGRectMake(0, 0, 50, 20));
    window->addSubview(choices);
    take();
    choices->chosen = 1;
    EXPECT_EQ(take(), (Texts{"first off", "second on"}));
}

TEST_F(UIAccessibilityChangesTest, AKeyAnnouncesEachStepAtOnceAndNothingWhenTheColumnLands) {
    wheel->becomeFirstResponder();
    EXPECT_EQ(take(), Texts{"focus Number 0"});
    window.press(UIKey::Code::Down);
    EXPECT_EQ(take(), (Texts{"number 31", "value 30 > 31"}));
    window.tick(TestWindow::frame);
    EXPECT_EQ(take(), Texts{});
    window.press(UIKey::Code::Down);
    EXPECT_EQ(take(), (Texts{"number 32", "value 31 > 32"}));
    window.runUntilStill();
    EXPECT_EQ(source->notices, (std::vector<WheelSource::Notice>{{12, 0}}));
    EXPECT_EQ(take(), Texts{});
}

TEST_F(UIAccessibilityChangesTest, AFlingIsAnnouncedOnceAtRest) {
    window.fling({120, 150}, {120, 60}, 3);
    for (int i = 0; i < 5; ++i) {
        window.tick(TestWindow::frame);
        const Texts found = take();
        EXPECT_TRUE(found.empty() || found == Texts{"focus Number 0"}) << found[0];
    }
    window.runUntilStill();
    const std::string row = std::to_string(wheel->selectedRowInComponent(0) + 20);
    EXPECT_EQ(take(), (Texts{"number " + row, "value 30 > " + row}));
    window.run(1);
    EXPECT_EQ(take(), Texts{});
}

TEST_F(UIAccessibilityChangesTest, TheMouseWheelIsAnnouncedOnceAtRest) {
    window.scrollNotches({120, 108}, 2);
    window.tick(TestWindow::frame);
    EXPECT_EQ(take(), Texts{});
    window.runUntilStill();
    EXPECT_EQ(take(), (Texts{"number 32", "value 30 > 32"}));
}

TEST_F(UIAccessibilityChangesTest, LeftAndRightMoveTheFocus) {
    wheel->becomeFirstResponder();
    take();
    window.press(UIKey::Code::Right);
    EXPECT_EQ(take(), Texts{"focus Number 1"});
    window.press(UIKey::Code::Right);
    EXPECT_EQ(take(), Texts{}) << "there is no column to the right";
    window.press(UIKey::Code::Left);
    EXPECT_EQ(take(), Texts{"focus Number 0"});
}

TEST_F(UIAccessibilityChangesTest, AWindowWithoutKeysHasNoFocus) {
    wheel->becomeFirstResponder();
    take();
    window->setReceivesKeys(false);
    EXPECT_EQ(take(), Texts{"focus (none)"});
    window->setReceivesKeys(true);
    EXPECT_EQ(take(), Texts{"focus Number 0"});
    wheel->setHidden(true);
    EXPECT_EQ(take(), (Texts{"elements of (none)", "focus (none)"}));
}

TEST_F(UIAccessibilityChangesTest, LabelsAndWhatIsExpandedAreCompared) {
    const auto label = create<UILabel>(CGRectMake(0, 0, 50, 20));
    label->setText("km");
    window->addSubview(label);
    EXPECT_EQ(take(), Texts{"elements of (none)"});
    label->setText("mi");
    EXPECT_EQ(take(), Texts{"label mi"});
    label->setAccessibilityExpanded(false);
    EXPECT_EQ(take(), Texts{"mi collapsed"});
    label->setAccessibilityExpanded(true);
    EXPECT_EQ(take(), Texts{"mi expanded"});
    label->removeFromSuperview();
    EXPECT_EQ(take(), Texts{"elements of (none)"});
}

TEST_F(UIAccessibilityChangesTest, AnnouncementsComeLastInTheirOrder) {
    wheel->becomeFirstResponder();
    window->announce("Saved");
    window->announce("Too fast", UIAccessibilityAnnouncement::Priority::Assertive);
    window->announce("");
    EXPECT_EQ(take(), (Texts{"focus Number 0", "say Saved", "say now Too fast"}));
    EXPECT_EQ(take(), Texts{});
}

TEST_F(UIAccessibilityChangesTest, AnnouncementsWaitForTheFocusToComeBack) {
    wheel->becomeFirstResponder();
    window->setReceivesKeys(false); // A dialog has them.
    take();
    window->announce("Saved");
    EXPECT_EQ(take(), Texts{});
    window->setReceivesKeys(true);
    EXPECT_EQ(take(), (Texts{"focus Number 0", "say Saved"}));
}

TEST_F(UIAccessibilityChangesTest, ALookWithinALookFindsNothing) {
    int looks = 0;
    source->title = [&](NSInteger row, NSInteger) {
        if (changes.takeChanges(*window).empty()) ++looks;
        return std::to_string(row + 20);
    };
    window.press(UIKey::Code::Tab);
    window.press(UIKey::Code::Down);
    EXPECT_EQ(take(), (Texts{"number 31", "value 30 > 31", "focus Number 0"}));
    EXPECT_GT(looks, 0);
}

TEST_F(UIAccessibilityChangesTest, AColumnHasChangedOnceItReportsAnotherRow) {
    EXPECT_FALSE(changes.hasColumnChanged());
    wheel->selectRow_inComponent_animated(11, 1, true);
    EXPECT_TRUE(changes.hasColumnChanged());
    EXPECT_TRUE(changes.hasColumnChanged()) << "until the next look";
    EXPECT_EQ(take(), (Texts{"number 31", "value 30 > 31"}));
    EXPECT_FALSE(changes.hasColumnChanged());
    window.press(UIKey::Code::Tab);
    window.press(UIKey::Code::Down);
    EXPECT_TRUE(changes.hasColumnChanged()) << "a key's row counts at once";
    wheel->removeFromSuperview();
    take();
    EXPECT_FALSE(changes.hasColumnChanged());
}
