// Wheels turned by the keyboard, through the window, and what the delegate hears of it.

#include <limits>

#include "FocusableView.h"
#include "RecordingCanvas.h"
#include "TestWindow.h"
#include "WheelSource.h"

using namespace gx;
using Notices = std::vector<WheelSource::Notice>;
using Code = UIKey::Code;
using Calls = std::vector<std::string>;

namespace {

/// A wheel of 320 by 216 points with columns of 80 by 40, 5 apart, which has the focus.
struct Keys : testing::Test {
    explicit Keys(std::vector<NSInteger> rows = {100, 100}) {
        source->rows = std::move(rows);
        wheel->reloadAllComponents();
        window.tick(0);
        wheel->becomeFirstResponder();
    }
    void stand(NSInteger row, NSInteger component = 0) {
        wheel->selectRow_inComponent_animated(row, component, false);
        window.tick(0);
    }

    Ref<WheelSource> source = create<WheelSource>();
    Ref<UIPickerView> wheel = wheelWithSource(source);
    TestWindow window{wheel};
};

struct ThreeColumns : Keys {
    ThreeColumns() : Keys({100, 1, 10}) {}
};

/// Minutes and seconds, titled 00 to 59.
struct Times : Keys {
    Times() : Keys({60, 60}) {
        source->title = [](NSInteger row, NSInteger) { return (row < 10 ? "0" : "") + std::to_string(row); };
        wheel->reloadAllComponents();
        window.tick(0);
    }
};

} // namespace

// Arrows, pages and ends

TEST_F(Keys, an_arrow_turns_by_one_row_and_reports_once_at_rest) {
    stand(50);
    EXPECT_TRUE(window.press(Code::Down));
    EXPECT_EQ(source->notices, Notices{});
    EXPECT_EQ(wheel->selectedRowInComponent(0), 50);
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{51, 0}}));
    EXPECT_TRUE(window.press(Code::Up));
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{51, 0}, {50, 0}}));
}

TEST_F(Keys, quick_presses_add_up_and_report_once) {
    for (int i = 0; i < 7; ++i) {
        window.press(Code::Down);
        window.tick(0.02);
    }
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{7, 0}}));
}

TEST_F(Keys, a_held_key_turns_on_and_reports_when_it_is_let_go) {
    window.press(Code::Down);
    for (int i = 0; i < 60; ++i) {
        window.tick(1.0 / 30);
        window.press(Code::Down, 0, true);
    }
    EXPECT_EQ(source->notices, Notices{});
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{61, 0}}));
}

TEST_F(Keys, pages_are_the_rows_in_sight_less_one) {
    stand(50);
    // Of rows of 40, five show all of themselves on a wheel of 216.
    EXPECT_TRUE(window.press(Code::PageDown));
    window.runUntilStill();
    EXPECT_TRUE(window.press(Code::PageUp));
    EXPECT_TRUE(window.press(Code::PageUp));
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{54, 0}, {46, 0}}));
}

TEST_F(Keys, a_page_is_at_least_one_row) {
    source->height = 150;
    wheel->reloadAllComponents();
    window.tick(0);
    window.press(Code::PageDown);
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{1, 0}}));
}

TEST_F(Keys, home_and_end_go_to_the_ends) {
    stand(50);
    EXPECT_TRUE(window.press(Code::End));
    window.runUntilStill();
    EXPECT_TRUE(window.press(Code::Home));
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{99, 0}, {0, 0}}));
}

TEST_F(Keys, at_an_end_keys_are_of_use_but_turn_nothing) {
    for (const Code code : {Code::Up, Code::PageUp, Code::Home}) EXPECT_TRUE(window.press(code));
    window.runUntilStill();
    EXPECT_EQ(source->notices, Notices{});
    EXPECT_FALSE(wheel->isTurning());
}

TEST_F(Keys, without_a_window_a_key_turns_at_once) {
    wheel->removeFromSuperview();
    UIKey key;
    key.code = Code::Down;
    EXPECT_TRUE(wheel->keyPressed(key));
    EXPECT_EQ(source->notices, (Notices{{1, 0}}));
    key.code = Code::Character;
    key.characters = "4";
    EXPECT_TRUE(wheel->keyPressed(key));
    EXPECT_EQ(source->notices, (Notices{{1, 0}, {4, 0}})) << "there is no clock that could complete it";
    EXPECT_FALSE(wheel->isTurning());
}

TEST_F(Keys, keys_for_a_column_that_a_finger_holds_are_ignored) {
    stand(50);
    window.down({117, 108});
    for (const Code code : {Code::Down, Code::PageDown, Code::End}) EXPECT_TRUE(window.press(code));
    EXPECT_TRUE(window.type("7"));
    window.up({117, 108});
    window.runUntilStill();
    EXPECT_EQ(source->notices, Notices{});
    EXPECT_EQ(wheel->selectedRowInComponent(0), 50);
}

TEST_F(Keys, keys_of_commands_and_unknown_keys_are_left_to_others) {
    for (const unsigned held : {UIKey::Control, UIKey::Alternate, UIKey::Command}) {
        EXPECT_FALSE(window.press(Code::Down, held));
        EXPECT_FALSE(window->keyDown({Code::Character, "4", held, false, window.now}));
    }
    for (const Code code : {Code::Space, Code::Return, Code::Escape, Code::None}) EXPECT_FALSE(window.press(code));
    EXPECT_TRUE(window.press(Code::Down, UIKey::Shift));
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{1, 0}}));
}

TEST_F(Keys, keys_tick_for_each_row) {
    struct Host : UIWindowHost {
        void windowNeedsFrame() override {}
        void giveFeedback(UIFeedback) override { ++ticks; }
        int ticks = 0;
    } host;
    window->setHost(&host);
    window.press(Code::Down);
    window.runUntilStill();
    EXPECT_EQ(host.ticks, 1);
    window.type("42");
    window.runUntilStill();
    EXPECT_EQ(host.ticks, 1 + 41) << "1 to 4 and on to 42, each row on the way once";
    window->setHost(nullptr);
}

TEST_F(Keys, a_host_may_take_the_wheel_away_with_a_tick) {
    struct Host : UIWindowHost {
        explicit Host(Ref<UIPickerView> wheel) : wheel_(std::move(wheel)) {}
        void windowNeedsFrame() override {}
        void giveFeedback(UIFeedback) override {
            ++ticks;
            wheel_->removeFromSuperview();
        }
        int ticks = 0;

    private:
        Ref<UIPickerView> wheel_;
    } host(wheel);
    window->setHost(&host);
    window.press(Code::End); // Several rows pass in a frame.
    window.runUntilStill();
    EXPECT_EQ(host.ticks, 1);
    EXPECT_EQ(source->notices, (Notices{{99, 0}})) << "without a window it arrives";
    window->setHost(nullptr);
}

// Columns

TEST_F(Keys, left_and_right_choose_the_column) {
    EXPECT_EQ(wheel->componentOfKeys(), 0);
    EXPECT_TRUE(window.press(Code::Right));
    EXPECT_EQ(wheel->componentOfKeys(), 1);
    EXPECT_TRUE(window.press(Code::Right)) << "of use also beyond the last one";
    EXPECT_EQ(wheel->componentOfKeys(), 1);
    window.press(Code::Down);
    EXPECT_TRUE(window.press(Code::Left));
    EXPECT_TRUE(window.press(Code::Left));
    window.press(Code::Down);
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{1, 0}, {1, 1}}));
}

TEST_F(ThreeColumns, columns_of_one_row_are_passed_over) {
    window.press(Code::Right);
    EXPECT_EQ(wheel->componentOfKeys(), 2);
    window.press(Code::Left);
    EXPECT_EQ(wheel->componentOfKeys(), 0);
}

TEST_F(ThreeColumns, so_are_columns_that_show_nothing) {
    source->rows = {100, 100, 10};
    source->title = [](NSInteger row, NSInteger component) { return component == 1 ? std::nullopt : std::optional(std::to_string(row)); };
    wheel->reloadAllComponents();
    window.press(Code::Right);
    EXPECT_EQ(wheel->componentOfKeys(), 2);
}

TEST_F(Keys, a_touch_chooses_its_column) {
    window.tap({202, 108});
    EXPECT_EQ(wheel->componentOfKeys(), 1);
    window.press(Code::Down);
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{1, 1}}));
}

TEST_F(Keys, a_column_that_is_gone_gives_way_to_the_first) {
    window.press(Code::Right);
    source->rows = {100};
    wheel->reloadAllComponents();
    EXPECT_EQ(wheel->componentOfKeys(), 0);
    source->rows = {1};
    wheel->reloadAllComponents();
    EXPECT_EQ(wheel->componentOfKeys(), -1);
    EXPECT_FALSE(window.press(Code::Down));
}

// The focus

TEST_F(Keys, a_wheel_that_nobody_can_turn_takes_no_focus) {
    wheel->resignFirstResponder();
    source->rows = {1, 1};
    wheel->reloadAllComponents();
    EXPECT_FALSE(wheel->becomeFirstResponder());
    source->rows = {1, 2};
    wheel->reloadAllComponents();
    EXPECT_TRUE(wheel->becomeFirstResponder());
    EXPECT_EQ(wheel->componentOfKeys(), 1);
    const auto unseen = create<UIPickerView>(CGRectZero);
    unseen->setDataSource(source);
    EXPECT_EQ(unseen->numberOfRowsInComponent(1), 2);
    EXPECT_FALSE(unseen->canBecomeFirstResponder()) << "nor does one that has no room for columns";
}

TEST_F(Keys, a_touch_gives_the_focus_without_its_mark) {
    wheel->resignFirstResponder();
    window.tap({117, 108});
    EXPECT_TRUE(wheel->isFirstResponder());
    EXPECT_FALSE(window->showsFocus());
    window.press(Code::Down);
    EXPECT_TRUE(window->showsFocus());
    window.tap({117, 108});
    EXPECT_FALSE(window->showsFocus());
}

TEST_F(Keys, the_chosen_column_is_marked_within_the_band_once_a_key_is_used) {
    wheel->setTintColor(UIColor::colorWithHex(0xFF0000));
    const auto marks = [this] {
        RecordingCanvas canvas;
        window->draw(canvas);
        std::vector<std::string> found;
        for (const std::string& call : canvas.painted()) {
            if (call.find("with 1 0 0") != std::string::npos) found.push_back(call);
        }
        return found;
    };
    EXPECT_EQ(marks(), Calls{});
    window.press(Code::Right);
    // The second column lies from 162.5 to 242.5, the band from 88 to 128.
    EXPECT_EQ(marks(), (Calls{"fill 162.5 88 80 40 with 1 0 0 0.14 rounded 8", "fill 170.5 88 64 2 with 1 0 0 1 rounded 1",
                              "fill 170.5 126 64 2 with 1 0 0 1 rounded 1"}));
    window->setReceivesKeys(false);
    EXPECT_EQ(marks(), Calls{});
    window->setReceivesKeys(true);
    source->width = 16;
    wheel->reloadAllComponents();
    window.tick(0);
    // The second column lies from 162.5 to 178.5: its corners leave no room for bars.
    EXPECT_EQ(marks(), (Calls{"fill 162.5 88 16 40 with 1 0 0 0.14 rounded 8"}));
    source->rows = {0, 0};
    wheel->reloadAllComponents();
    window.tick(0);
    EXPECT_EQ(marks(), Calls{}) << "no column is left to turn";
    source->rows = {100, 100};
    wheel->reloadAllComponents();
    window.tick(0);
    EXPECT_NE(marks(), Calls{});
    const auto field = create<FocusableView>(CGRectMake(0, 0, 10, 10));
    window->addSubview(field);
    field->becomeFirstResponder();
    EXPECT_TRUE(window->showsFocus());
    EXPECT_EQ(marks(), Calls{}) << "the keys go elsewhere";
}

// Typed characters

TEST_F(Keys, a_typed_number_is_turned_to_at_once_and_reported_when_it_is_complete) {
    window.type("4");
    EXPECT_TRUE(wheel->isTurning());
    window.run(0.9);
    EXPECT_EQ(wheel->rowInBandOfComponent(0), 4);
    EXPECT_EQ(source->notices, Notices{}) << "more digits may come";
    window.type("2");
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{42, 0}}));
}

TEST_F(Keys, a_second_without_another_character_completes_a_number) {
    window.type("4"); // and a frame
    window.run(0.98);
    EXPECT_EQ(source->notices, Notices{});
    window.run(0.01);
    EXPECT_EQ(source->notices, (Notices{{4, 0}}));
    window.type("2");
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{4, 0}, {2, 0}})) << "another number";
}

TEST_F(Keys, a_number_that_no_title_goes_on_is_complete_at_once) {
    window.type("99");
    const double time = window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{99, 0}}));
    EXPECT_LT(time, 0.4);
    EXPECT_FALSE(wheel->isTurning());
}

TEST_F(Keys, a_number_that_is_shown_already_is_no_turn) {
    stand(42);
    window.type("77");
    window.run(2);
    source->notices.clear();
    window.type("77");
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{77, 0}})) << "by way of row 7";
    window.press(Code::Home);
    window.runUntilStill();
    source->notices.clear();
    window.type("0");
    window.run(2);
    EXPECT_EQ(source->notices, Notices{});
}

TEST_F(Keys, another_key_completes_a_number) {
    for (const Code code : {Code::Return, Code::Escape, Code::Right, Code::Tab}) {
        source->notices.clear();
        stand(0);
        wheel->becomeFirstResponder();
        window.press(Code::Left);
        window.type("4");
        window.run(0.5);
        EXPECT_EQ(source->notices, Notices{});
        window.press(code);
        EXPECT_EQ(source->notices, (Notices{{4, 0}}));
        window.run(1.5);
        EXPECT_EQ(source->notices.size(), 1U);
    }
}

TEST_F(Keys, a_step_after_a_number_starts_from_it) {
    window.type("4");
    window.press(Code::Down); // still on the way
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{5, 0}}));
}

TEST_F(Keys, a_touch_completes_a_number) {
    window.type("4");
    window.run(0.5);
    window.tap({202, 108}); // the other column
    window.tick(TestWindow::frame);
    EXPECT_EQ(source->notices, (Notices{{4, 0}}));
}

TEST_F(Keys, losing_the_focus_completes_a_number) {
    window.type("4");
    window.run(0.5);
    wheel->resignFirstResponder();
    EXPECT_EQ(source->notices, (Notices{{4, 0}}));
}

TEST_F(Keys, a_request_for_another_row_takes_a_typed_number_back) {
    window.type("4");
    window.run(0.5);
    wheel->selectRow_inComponent_animated(30, 0, false);
    window.run(2);
    EXPECT_EQ(source->notices, Notices{});
    EXPECT_EQ(wheel->selectedRowInComponent(0), 30);
}

TEST_F(Keys, a_character_that_spells_nothing_leaves_the_wheel) {
    stand(50);
    EXPECT_TRUE(window.type("x"));
    window.run(2);
    EXPECT_EQ(source->notices, Notices{});
    EXPECT_EQ(wheel->rowInBandOfComponent(0), 50);
}

TEST_F(Keys, blanks_alone_spell_nothing_and_are_left_to_others) {
    struct Taker : UIView {
        bool keyPressed(const UIKey&) override { return true; }
    };
    EXPECT_FALSE(window.typeCharacter(" "));
    const auto taker = create<Taker>(wheel->frame());
    window->addSubview(taker);
    taker->addSubview(wheel);
    wheel->becomeFirstResponder();
    EXPECT_TRUE(window.typeCharacter(" ")) << "who is above has taken it";
    EXPECT_TRUE(window.typeCharacter(" 7"));
    EXPECT_EQ(wheel->rowInBandOfComponent(0), 0) << "it is on its way";
    window.runUntilStill();
    EXPECT_EQ(wheel->selectedRowInComponent(0), 7);
}

TEST_F(Keys, a_number_for_one_column_leaves_another_to_the_finger_on_it) {
    window.down({202, 108});
    window.glide({202, 108}, {202, 62}, 10); // 46 points less the slop: one row.
    window.press(Code::Left);
    window.typeCharacter("7");
    window.runUntilStill();
    EXPECT_EQ(source->notices.size(), 1U) << "of the number, once it is complete";
    EXPECT_EQ(wheel->rowInBandOfComponent(1), 1) << "still where the finger has it";
    window.run(0.2);
    window.up({202, 62});
    window.runUntilStill();
    EXPECT_EQ(wheel->selectedRowInComponent(0), 7);
    EXPECT_EQ(wheel->selectedRowInComponent(1), 1);
}

TEST_F(Keys, of_a_number_that_is_not_there_no_part_counts) {
    stand(50);
    for (const char* text : {"300", "4x2", "9999"}) {
        source->notices.clear();
        window.type(text);
        window.run(0.5);
        EXPECT_EQ(wheel->rowInBandOfComponent(0), 50) << text;
        for (const WheelSource::Notice& notice : source->notices) EXPECT_EQ(notice, (WheelSource::Notice{50, 0})) << text;
        window.run(1);
    }
    window.type("7");
    window.run(2);
    EXPECT_EQ(source->notices.back(), (WheelSource::Notice{7, 0})) << "after a pause another one begins";
}

TEST_F(Keys, a_digit_too_many_takes_a_number_back_that_was_told_already) {
    stand(50);
    window.type("99");
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{99, 0}}));
    window.type("5");
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{99, 0}, {50, 0}}));
}

TEST_F(ThreeColumns, behind_a_separator_a_digit_too_many_counts_for_nothing) {
    source->title = [](NSInteger row, NSInteger component) {
        return component == 1 ? std::nullopt : std::optional(std::to_string(row)); // Between them stands a separator.
    };
    wheel->reloadAllComponents();
    window.tick(0);
    window.type("42.195");
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{42, 0}, {1, 2}}));
    EXPECT_EQ(wheel->componentOfKeys(), 2);
}

TEST_F(Keys, a_column_beside_a_fraction_takes_only_what_it_has) {
    source->rows = {100, 1, 10, 3};
    source->title = [](NSInteger row, NSInteger component) -> std::optional<std::string> {
        if (component == 1) return std::nullopt;
        return component == 3 ? std::string(1, static_cast<char>('a' + row)) : std::to_string(row);
    };
    wheel->reloadAllComponents();
    window.tick(0);
    window.type("4.27");
    window.run(2);
    EXPECT_EQ(source->notices, (Notices{{4, 0}, {2, 2}})) << "7 is no letter";
    EXPECT_EQ(wheel->componentOfKeys(), 2);
    window.type("3b");
    window.run(2);
    EXPECT_EQ(source->notices.back(), (WheelSource::Notice{2, 2})) << "nor is 3b a digit, without a separator before it";
}

TEST_F(Keys, a_mark_that_ends_a_title_goes_on_only_to_what_the_next_column_has) {
    source->rows = {5, 10};
    source->title = [](NSInteger row, NSInteger component) { return std::to_string(row) + (component == 0 ? "'" : "in"); };
    wheel->reloadAllComponents();
    window.tick(0);
    window.type("3'x");
    window.run(2);
    EXPECT_EQ(wheel->selectedRowInComponent(0), 0) << "3'x is not there";
    window.type("3'7");
    window.run(2);
    EXPECT_EQ(source->notices.back(), (WheelSource::Notice{7, 1}));
    EXPECT_EQ(wheel->selectedRowInComponent(0), 3);
}

TEST_F(ThreeColumns, what_stands_behind_the_separator_of_a_number_that_is_not_there_is_not_typed_either) {
    source->title = [](NSInteger row, NSInteger component) -> std::optional<std::string> {
        if (component == 1) return std::nullopt;
        return std::to_string(component == 0 ? row + 30 : row);
    };
    wheel->reloadAllComponents();
    window.tick(0);
    window.type("3.5");
    window.run(2);
    EXPECT_EQ(source->notices, Notices{});
    EXPECT_EQ(wheel->componentOfKeys(), 0);
}

TEST_F(Keys, a_character_that_is_held_is_typed_once) {
    window.typeCharacter("4");
    for (int i = 0; i < 9; ++i) {
        window.tick(1.0 / 30);
        EXPECT_TRUE(window->keyDown({Code::Character, "4", 0, true, window.now}));
    }
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{4, 0}}));
}

TEST_F(Keys, several_characters_may_come_with_one_key) {
    EXPECT_TRUE(window.typeCharacter("42"));
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{42, 0}}));
}

TEST_F(Keys, digits_of_any_script_are_read) {
    window.typeCharacter("٤");
    window.typeCharacter("٢");
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{42, 0}}));
}

TEST_F(Times, padded_titles_are_found_with_and_without_their_zero) {
    window.type("05");
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{5, 0}}));
    window.press(Code::Right);
    window.type("7");
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{5, 0}, {7, 1}}));
}

TEST_F(Times, a_colon_goes_on_to_the_next_column) {
    EXPECT_TRUE(window.type("4:30"));
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{4, 0}, {30, 1}}));
}

TEST_F(ThreeColumns, a_decimal_separator_goes_on_to_the_next_column_that_shows_something) {
    source->title = [](NSInteger row, NSInteger component) -> std::optional<std::string> {
        if (component == 1) return std::nullopt;
        return (component == 2 ? "," : "") + std::to_string(row);
    };
    wheel->reloadAllComponents();
    window.tick(0);
    for (const char* text : {"5,7", "6.8"}) {
        window.press(Code::Left);
        EXPECT_TRUE(window.type(text));
        window.runUntilStill();
    }
    EXPECT_EQ(source->notices, (Notices{{5, 0}, {7, 2}, {6, 0}, {8, 2}}));
}

TEST_F(Keys, a_separator_within_a_title_stays_in_its_column) {
    source->title = [](NSInteger row, NSInteger component) -> std::optional<std::string> {
        if (component == 1) return std::to_string(row);
        return std::to_string(row / 2) + (row % 2 == 0 ? ",0" : ",5");
    };
    wheel->reloadAllComponents();
    window.tick(0);
    EXPECT_TRUE(window.type("36,5"));
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{73, 0}}));
    window.run(1);
    EXPECT_TRUE(window.type("4.5.7")) << "the second one goes on";
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{73, 0}, {9, 0}, {7, 1}}));
}

TEST_F(ThreeColumns, a_column_arrives_before_the_next_one_is_asked_for_its_titles) {
    // On row 0 of the first column, the last one has but the digits from 7 on.
    source->rows = {100, 1, 3};
    source->title = [this](NSInteger row, NSInteger component) -> std::optional<std::string> {
        if (component == 1) return std::nullopt;
        const bool isShort = component == 2 && source->rows[2] == 3;
        return std::to_string(isShort ? row + 7 : row);
    };
    source->whenTold = [this](NSInteger row, NSInteger component) {
        if (component != 0) return;
        source->rows[2] = row == 0 ? 3 : 10;
        wheel->reloadAllComponents();
    };
    wheel->reloadAllComponents();
    window.tick(0);
    window.typeCharacter("5");
    window.typeCharacter(".");
    window.typeCharacter("2");
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{5, 0}, {2, 2}}));
}

TEST_F(Keys, negative_numbers_are_typed_with_any_minus) {
    source->title = [](NSInteger row, NSInteger) { return std::to_string(row - 20); };
    wheel->reloadAllComponents();
    stand(50);
    for (const char* minus : {"-", "\u2212"}) {
        EXPECT_TRUE(window.typeCharacter(minus));
        EXPECT_TRUE(window.typeCharacter("4"));
        window.run(2);
    }
    EXPECT_EQ(source->notices, (Notices{{16, 0}})) << "the second time it stands there already";
}

TEST_F(Keys, letters_find_the_title_that_begins_with_them) {
    source->rows = {3};
    source->title = [](NSInteger row, NSInteger) { return row == 0 ? "kg" : row == 1 ? "lb" : "st"; };
    wheel->reloadAllComponents();
    window.tick(0);
    window.type("S");
    window.run(2);
    window.type("lB");
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{2, 0}, {1, 0}}));
}

TEST_F(Keys, the_delegate_may_change_everything_while_its_titles_are_read) {
    bool isAsked = false;
    source->title = [&](NSInteger row, NSInteger) {
        if (isAsked && source->rows.size() == 2) {
            source->rows = {};
            wheel->reloadAllComponents();
            EXPECT_EQ(wheel->numberOfComponents(), 0);
        }
        return std::to_string(row);
    };
    isAsked = true;
    EXPECT_TRUE(window.typeCharacter("4"));
    window.runUntilStill();
    EXPECT_EQ(source->notices, Notices{});
}

TEST_F(Keys, characters_after_the_one_that_took_the_columns_away_spell_nothing) {
    wheel->selectRow_inComponent_animated(50, 0, false);
    window.tick(0);
    source->title = [this](NSInteger row, NSInteger) {
        source->rows = {};
        wheel->reloadAllComponents();
        return std::to_string(row);
    };
    window.typeCharacter("42");
    window.runUntilStill();
    EXPECT_EQ(source->notices, Notices{});
}

TEST_F(Keys, a_character_whose_neighbours_take_its_column_away_spells_nothing) {
    for (const std::vector<NSInteger>& left : {std::vector<NSInteger>{}, std::vector<NSInteger>{0, 100}}) {
        source->rows = {100, 100};
        source->whenTold = nullptr;
        wheel->reloadAllComponents();
        stand(0);
        stand(0, 1);
        source->notices.clear();
        EXPECT_TRUE(window.scrollNotches({202, 108}, 1)); // The second column turns …
        source->whenTold = [&](NSInteger, NSInteger) {
            source->rows = left; // … and its report takes away the one that is typed into.
            wheel->reloadAllComponents();
        };
        EXPECT_TRUE(window.typeCharacter("7"));
        window.runUntilStill();
        EXPECT_EQ(source->notices, (Notices{{1, 1}}));
    }
}

TEST_F(Keys, without_a_delegate_there_are_no_titles_to_spell) {
    auto other = create<WheelSource>();
    wheel->setDelegate(other);
    window.tick(0);
    other = nullptr;
    EXPECT_TRUE(window.typeCharacter("7"));
    window.runUntilStill();
    EXPECT_EQ(wheel->selectedRowInComponent(0), 0);
}

TEST_F(Keys, the_delegate_may_drop_the_wheel_while_it_hears_of_a_number) {
    const WeakRef<UIPickerView> weak = wheel;
    source->whenTold = [&](NSInteger, NSInteger) {
        wheel->removeFromSuperview();
        wheel = nullptr;
    };
    window.type("4");
    window.run(0.5);
    EXPECT_FALSE(window.press(Code::Escape));
    EXPECT_EQ(source->notices, (Notices{{4, 0}}));
    EXPECT_TRUE(weak.expired());
}

TEST_F(Keys, attributed_titles_are_spelled_before_plain_ones) {
    /// Row 4 says 8 to the eye, and 4 as its plain title.
    class DoubledTitles : public WheelSource {
    public:
        Ref<NSAttributedString> pickerView_attributedTitleForRow_forComponent(const Ref<UIPickerView>&, NSInteger row, NSInteger) override {
            return NSAttributedString::attributedStringWithString_attributes(std::to_string(2 * row), {});
        }
    };
    const auto doubled = create<DoubledTitles>();
    wheel->setDelegate(doubled);
    window.tick(0);
    window.type("8");
    window.runUntilStill();
    EXPECT_EQ(doubled->notices, (Notices{{4, 0}}));
}

TEST_F(Keys, a_separator_typed_in_the_last_column_leaves_the_keys_there) {
    window.press(Code::Right);
    EXPECT_EQ(wheel->componentOfKeys(), 1);
    window.type("5.");
    EXPECT_EQ(wheel->componentOfKeys(), 1);
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{5, 1}}));
}

TEST_F(Times, what_is_typed_beyond_the_last_column_counts_for_nothing) {
    window.type("12:20:05");
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{12, 0}, {20, 1}})) << "and not 05 minutes";
    window.run(1);
    window.type("07");
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{12, 0}, {20, 1}, {7, 1}})) << "after a pause it is another number";
}

TEST_F(Times, so_is_what_follows_a_number_that_might_have_gone_on) {
    window.type("12:2:05:30");
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{12, 0}, {2, 1}}));
    window.type(":30"); // The pause counts from the last character.
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{12, 0}, {2, 1}}));
}

TEST_F(Times, another_key_and_a_finger_end_what_was_typed_beyond_the_last_column) {
    window.type("12:20:");
    window.press(Code::Right);
    window.type("30"); // Before the column has come to 20.
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{12, 0}, {30, 1}}));
    window.type("40:");
    window.tap({202, 148}); // The row below.
    window.type("50");
    window.runUntilStill();
    EXPECT_EQ(source->notices.back(), (WheelSource::Notice{50, 1}));
}

TEST_F(Keys, a_title_may_begin_with_a_separator_also_in_the_last_column) {
    source->rows = {100, 10};
    source->title = [](NSInteger row, NSInteger component) { return (component == 1 ? "." : "") + std::to_string(row); };
    wheel->reloadAllComponents();
    window.tick(0);
    window.press(Code::Right);
    window.type(".5");
    window.run(0.5);
    window.type(".");
    window.run(2);
    EXPECT_EQ(source->notices, (Notices{{5, 1}, {0, 1}})) << "no title is .5., so it is taken back";
    window.type(".7");
    window.run(2);
    EXPECT_EQ(source->notices.back(), (WheelSource::Notice{7, 1}));
}

TEST_F(Keys, a_separator_that_nothing_was_typed_before_is_passed_over) {
    window.press(Code::Right);
    window.type(".5");
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{5, 1}}));
}

TEST_F(Keys, a_host_without_clicks_turns_wheels_all_the_same) {
    struct QuietHost : UIWindowHost {
        void windowNeedsFrame() override {}
    } host;
    window->setHost(&host);
    window.press(Code::Down);
    window.runUntilStill();
    window->setHost(nullptr);
    EXPECT_EQ(source->notices, (Notices{{1, 0}}));
}

TEST_F(Keys, a_press_at_no_time_counts_as_at_the_latest) {
    EXPECT_TRUE(window->keyDown({UIKey::Code::Down, {}, 0, false, std::numeric_limits<double>::quiet_NaN()}));
    window.runUntilStill();
    EXPECT_EQ(source->notices.size(), 1U);
}
