// Which view has the focus, where keys go, and how Tab moves it.

#include "TestWindow.h"

using namespace gx;
using Code = UIKey::Code;

namespace {

/// Notes the keys and changes of focus that reach it, and what is to come into sight.
struct Field : UIView {
    bool isWilling = true;
    bool usesKeys = true;
    std::string log;
    CGRect revealed = CGRectNull;
    std::function<void()> whenFocusChanges;

    bool canBecomeFirstResponder() override { return isWilling; }
    bool keyPressed(const UIKey& key) override {
        log += key.code == Code::Character ? key.characters : "key";
        log += ' ';
        return usesKeys && key.code != Code::Tab && key.code != Code::BackTab ? true : UIView::keyPressed(key);
    }
    void focusDidChange() override {
        UIView::focusDidChange();
        log += isFirstResponder() ? "gained " : "lost ";
        if (whenFocusChanges) whenFocusChanges();
    }
    void revealDescendant(CGRect rect) override {
        revealed = rect;
        UIView::revealDescendant(rect);
    }
};

struct UIWindowFocusTest : testing::Test {
    Ref<UIView> root = create<UIView>(CGRectMake(0, 0, 100, 100));
    TestWindow window{root};

    Ref<Field> fieldIn(const Ref<UIView>& above, CGRect frame = CGRectMake(0, 0, 10, 10)) {
        auto field = create<Field>(frame);
        field->isWilling = true;
        above->addSubview(field);
        return field;
    }
    Ref<Field> a = fieldIn(root);
    Ref<Field> b = fieldIn(root);
    Ref<Field> c = fieldIn(root);
};

} // namespace

TEST_F(UIWindowFocusTest, KeysWithoutAFocusAreNotUsed) {
    EXPECT_FALSE(window.press(Code::Down));
    EXPECT_FALSE(window.typeCharacter("4"));
    EXPECT_EQ(a->log, "");
}

TEST_F(UIWindowFocusTest, KeysGoToTheFocusAndUp) {
    const auto inner = fieldIn(b);
    EXPECT_TRUE(inner->becomeFirstResponder());
    EXPECT_TRUE(window.typeCharacter("x"));
    EXPECT_EQ(inner->log, "gained x gained ") << "and the mark appears";
    EXPECT_EQ(b->log, "");
    inner->usesKeys = false;
    EXPECT_TRUE(window.typeCharacter("y"));
    EXPECT_EQ(b->log, "y ");
    b->usesKeys = false;
    EXPECT_FALSE(window.typeCharacter("z"));
}

TEST_F(UIWindowFocusTest, OneViewAtATimeHasTheFocus) {
    EXPECT_TRUE(a->becomeFirstResponder());
    EXPECT_TRUE(b->becomeFirstResponder());
    EXPECT_FALSE(a->isFirstResponder());
    EXPECT_TRUE(b->isFirstResponder());
    EXPECT_EQ(a->log, "gained lost ");
    EXPECT_FALSE(a->resignFirstResponder());
    EXPECT_TRUE(b->resignFirstResponder());
    EXPECT_EQ(window->firstResponder(), nullptr);
    EXPECT_EQ(b->log, "gained lost ");
}

TEST_F(UIWindowFocusTest, OnlyAViewThatCanInSightAndInAWindowTakesTheFocus) {
    const auto alone = create<Field>(CGRectMake(0, 0, 10, 10));
    EXPECT_FALSE(alone->becomeFirstResponder());
    a->isWilling = false;
    EXPECT_FALSE(a->becomeFirstResponder());
    b->setHidden(true);
    EXPECT_FALSE(b->becomeFirstResponder());
    c->setAlpha(0);
    EXPECT_FALSE(c->becomeFirstResponder());
    c->setAlpha(1);
    root->setUserInteractionEnabled(false);
    EXPECT_FALSE(c->becomeFirstResponder());
    root->setUserInteractionEnabled(true);
    EXPECT_TRUE(c->becomeFirstResponder());
    EXPECT_FALSE(create<UIView>()->becomeFirstResponder());
}

TEST_F(UIWindowFocusTest, TabGoesThroughTheViewsInReadingOrder) {
    const auto inner = fieldIn(a);
    std::vector<Ref<UIView>> visited;
    for (int i = 0; i < 4; ++i) {
        EXPECT_TRUE(window.press(Code::Tab));
        visited.push_back(window->firstResponder());
    }
    EXPECT_EQ(visited, (std::vector<Ref<UIView>>{a, inner, b, c}));
    EXPECT_FALSE(window.press(Code::Tab)) << "the host may go on";
    EXPECT_EQ(window->firstResponder(), nullptr);
    EXPECT_TRUE(window.press(Code::Tab));
    EXPECT_TRUE(a->isFirstResponder()) << "and round";
}

TEST_F(UIWindowFocusTest, ShiftAndTabGoBack) {
    EXPECT_TRUE(window.press(Code::BackTab, UIKey::Shift));
    EXPECT_TRUE(c->isFirstResponder());
    EXPECT_TRUE(window.press(Code::BackTab, UIKey::Shift));
    EXPECT_TRUE(b->isFirstResponder());
    EXPECT_TRUE(window.press(Code::BackTab, UIKey::Shift));
    EXPECT_FALSE(window.press(Code::BackTab, UIKey::Shift));
    EXPECT_EQ(window->firstResponder(), nullptr);
}

TEST_F(UIWindowFocusTest, TabWithControlDoesNotMoveTheFocus) {
    EXPECT_FALSE(window.press(Code::Tab, UIKey::Control));
    EXPECT_EQ(window->firstResponder(), nullptr);
}

TEST_F(UIWindowFocusTest, TabPassesOverWhatTakesNoInput) {
    a->setHidden(true);
    b->setAlpha(0);
    fieldIn(b);
    EXPECT_TRUE(window.press(Code::Tab));
    EXPECT_TRUE(c->isFirstResponder());
}

TEST_F(UIWindowFocusTest, TheViewThatTabGoesToComesIntoSight) {
    const auto inner = fieldIn(c, CGRectMake(3, 4, 20, 10));
    c->setFrame(CGRectMake(10, 20, 30, 30));
    c->setBounds(CGRectMake(0, 1, 30, 30));
    inner->becomeFirstResponder();
    EXPECT_TRUE(CGRectIsNull(c->revealed)) << "but not the one that a finger or the program chose";
    inner->resignFirstResponder();
    window.press(Code::BackTab, UIKey::Shift);
    EXPECT_EQ(inner->revealed, CGRectMake(0, 0, 20, 10));
    EXPECT_EQ(c->revealed, CGRectMake(3, 4, 20, 10)) << "in its own coordinates";
}

TEST_F(UIWindowFocusTest, AViewThatIsHiddenOrLeavesLosesTheFocus) {
    const auto inner = fieldIn(b);
    inner->becomeFirstResponder();
    b->setHidden(true);
    EXPECT_EQ(window->firstResponder(), nullptr);
    EXPECT_EQ(inner->log, "gained lost ");
    b->setHidden(false);
    inner->becomeFirstResponder();
    b->removeFromSuperview();
    EXPECT_EQ(window->firstResponder(), nullptr);
    EXPECT_EQ(inner->log, "gained lost gained lost ");
    a->becomeFirstResponder();
    b->setHidden(true);
    EXPECT_TRUE(a->isFirstResponder()) << "others keep it";
}

TEST_F(UIWindowFocusTest, ADisabledOrClearViewLosesTheFocusWithTheNextKey) {
    a->becomeFirstResponder();
    a->setUserInteractionEnabled(false);
    EXPECT_FALSE(window.press(Code::Down));
    EXPECT_EQ(window->firstResponder(), nullptr);
}

TEST_F(UIWindowFocusTest, AViewThatIsGoneHasTheFocusNoMore) {
    a->becomeFirstResponder();
    const WeakRef<Field> weak = a;
    a->removeFromSuperview();
    a = nullptr;
    EXPECT_TRUE(weak.expired());
    EXPECT_EQ(window->firstResponder(), nullptr);
}

TEST_F(UIWindowFocusTest, TheMarkShowsFromAKeyToATouchAndWhileKeysCome) {
    a->becomeFirstResponder();
    EXPECT_FALSE(window->showsFocus());
    window.press(Code::Down);
    EXPECT_TRUE(window->showsFocus());
    window->setReceivesKeys(false);
    EXPECT_FALSE(window->showsFocus());
    EXPECT_TRUE(a->isFirstResponder());
    window->setReceivesKeys(true);
    EXPECT_TRUE(window->showsFocus());
    window.down({50, 50});
    EXPECT_FALSE(window->showsFocus());
}

TEST_F(UIWindowFocusTest, AKeyThatIsNotUsedShowsNoMark) {
    a->usesKeys = false;
    a->becomeFirstResponder();
    EXPECT_FALSE(window.press(Code::Down));
    EXPECT_FALSE(window->showsFocus());
}

TEST_F(UIWindowFocusTest, ACallbackMayPassTheFocusOn) {
    b->whenFocusChanges = [this] { c->becomeFirstResponder(); };
    a->becomeFirstResponder();
    EXPECT_FALSE(b->becomeFirstResponder()) << "it has gone on";
    EXPECT_TRUE(c->isFirstResponder());
}

TEST_F(UIWindowFocusTest, ACallbackOfItsLossMayGiveTheFocusToAnother) {
    a->becomeFirstResponder();
    a->whenFocusChanges = [this] {
        a->whenFocusChanges = nullptr;
        c->becomeFirstResponder();
    };
    EXPECT_FALSE(b->becomeFirstResponder()) << "it has gone elsewhere";
    EXPECT_TRUE(c->isFirstResponder());
    EXPECT_EQ(b->log.find("gained"), std::string::npos);
}

TEST_F(UIWindowFocusTest, TabDoesNotGoToAViewThatAnotherOneRemoved) {
    struct Pusher : Field {
        std::function<void()> whenAsked;
        bool canBecomeFirstResponder() override {
            whenAsked();
            return false;
        }
    };
    const auto pusher = create<Pusher>(CGRectMake(0, 0, 10, 10));
    pusher->whenAsked = [this] { a->removeFromSuperview(); };
    root->insertSubview_atIndex(pusher, 0);
    EXPECT_TRUE(window.press(Code::Tab));
    EXPECT_TRUE(b->isFirstResponder());
}

TEST_F(UIWindowFocusTest, AViewThatLosesTheFocusMayComeBackElsewhere) {
    const auto other = create<UIView>(CGRectMake(0, 0, 10, 10));
    a->whenFocusChanges = [&] {
        if (!a->superview()) other->addSubview(a);
    };
    a->becomeFirstResponder();
    a->removeFromSuperview();
    EXPECT_EQ(a->superview(), other);
    EXPECT_FALSE(a->window());
}

TEST_F(UIWindowFocusTest, TabPassesOverAViewThatRefusesInTheEnd) {
    struct Fickle : Field {
        int questions = 0;
        bool canBecomeFirstResponder() override { return ++questions == 1; }
    };
    const auto fickle = create<Fickle>(CGRectMake(0, 0, 10, 10));
    root->insertSubview_atIndex(fickle, 0);
    EXPECT_TRUE(window.press(Code::Tab));
    EXPECT_TRUE(a->isFirstResponder());
    EXPECT_GT(fickle->questions, 1);
}

TEST_F(UIWindowFocusTest, TheFocusedViewIsNotifiedWhenKeysComeAndGoAndOnlyThen) {
    window->setReceivesKeys(false); // Nobody has it yet.
    a->becomeFirstResponder();
    a->log.clear();
    window->setReceivesKeys(false);
    EXPECT_EQ(a->log, "") << "they did not come before";
    window->setReceivesKeys(true);
    EXPECT_EQ(a->log, "gained ");
}
