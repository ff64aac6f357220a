// What a screen reader finds on the screens of the gallery.

#include "EntryScreenTest.h"

using namespace gallery;
using namespace gx;

namespace {

using Role = UIAccessibilityRole;

class ScreenReaderTest : public EntryScreenTest {
protected:
    /// All elements, those of lists and groups included.
    UIAccessibilityElements all() {
        UIAccessibilityElements found;
        collect(outermostAccessibilityElements((*window)->accessibilityElements()), found);
        return found;
    }
    std::vector<std::string> labelsOf(Role role) {
        std::vector<std::string> labels;
        for (const auto& element : all()) {
            if (element->role() == role) labels.push_back(element->label().value_or(""));
        }
        return labels;
    }
    Ref<UIAccessibilityElement> find(Role role, const std::string& label) {
        for (const auto& element : all()) {
            if (element->role() == role && element->label() == label) return element;
        }
        ADD_FAILURE() << label;
        return nullptr;
    }
    /// The label of the checked one in a group.
    std::string checkedIn(const std::string& group) {
        std::string checked;
        const auto found = find(Role::RadioGroup, group);
        for (NSInteger i = 0; found && i < found->childCount(); ++i) {
            if (found->child(i)->isChecked() == true) checked += found->child(i)->label().value_or("");
        }
        return checked;
    }
    std::vector<std::string> announced() {
        settle();
        std::vector<std::string> texts;
        for (const auto& announcement : (*window)->takeAnnouncements()) {
            texts.push_back((announcement.priority == UIAccessibilityAnnouncement::Priority::Assertive ? "! " : "") + announcement.text);
        }
        return texts;
    }

private:
    static void collect(const UIAccessibilityElements& elements, UIAccessibilityElements& found) {
        for (const auto& element : elements) {
            found.push_back(element);
            for (NSInteger i = 0; i < element->childCount(); ++i) {
                if (const auto child = element->child(i)) collect({child}, found);
            }
        }
    }
};

} // namespace

TEST_F(ScreenReaderTest, TitlesOfPagesAndSectionsAreHeadings) {
    open(1200, 1200);
    EXPECT_EQ(labelsOf(Role::Heading),
              (std::vector<std::string>{"Add workout", "Workout", "Best interval", "Heart", "Conditions", "Body"}));
    openEntry(1200, 1200);
    tapRow("Weight"); // Its picker opens beside the table, with the name above.
    EXPECT_EQ(labelsOf(Role::Heading).back(), "Weight");
    show("Settings", 1200, 800);
    EXPECT_EQ(labelsOf(Role::Heading), (std::vector<std::string>{"Settings", "Language"}));
    show("Speed", 1200, 800);
    EXPECT_EQ(labelsOf(Role::Heading).at(0), "Speed");
    show("Speed", 390, 844); // In the bar.
    EXPECT_EQ(labelsOf(Role::Heading).at(0), "Speed");
}

TEST_F(ScreenReaderTest, ARowOfTheEntryScreenIsExpandedWhileItsPickerIsOpen) {
    openEntry();
    const auto element = find(Role::ListItem, "Average speed, 12.5 km/h");
    ASSERT_TRUE(element);
    EXPECT_EQ(element->isExpanded(), false);
    element->activateAtTime(window->now);
    settle();
    EXPECT_EQ(entry()->openMeasurement(), indexOf("Average speed"));
    EXPECT_EQ(find(Role::ListItem, "Average speed, 12.5 km/h")->isExpanded(), true);
    EXPECT_EQ(find(Role::ListItem, "Calories, 420 kcal")->isExpanded(), false);
    find(Role::ListItem, "Calories, 420 kcal")->activateAtTime(window->now);
    settle();
    EXPECT_EQ(find(Role::ListItem, "Average speed, 12.5 km/h")->isExpanded(), false);
    EXPECT_EQ(find(Role::ListItem, "Calories, 420 kcal")->isExpanded(), true);
}

TEST_F(ScreenReaderTest, SavingAndOpeningAreAnnouncedAndErrorsAtOnce) {
    openEntry();
    announced();
    entry()->save();
    EXPECT_EQ(announced(), std::vector<std::string>{"Saved: workout.json"});
    entry()->open();
    EXPECT_EQ(announced(), std::vector<std::string>{"Opened: file.json"});
    files->error = "The disk is full.";
    entry()->save();
    EXPECT_EQ(announced(), std::vector<std::string>{"! The disk is full."});
    EXPECT_EQ(labelsOf(Role::Text).at(0), "The disk is full.") << "and it can be read again";
    files->isDismissed = true;
    entry()->save();
    EXPECT_TRUE(announced().empty());
}

TEST_F(ScreenReaderTest, EachSettingIsARadioGroupWithItsName) {
    show("Settings", 1200, 800);
    EXPECT_EQ(labelsOf(Role::RadioGroup), (std::vector<std::string>{"Units", "Weight", "Text size", "Look", "Contrast", "Decimal separator",
                                                                    "Motion", "Language", "All pages"}));
    EXPECT_EQ(checkedIn("Units"), "Metric");
    find(Role::RadioButton, "Imperial")->activateAtTime(window->now);
    settle();
    EXPECT_EQ(checkedIn("Units"), "Imperial");
    EXPECT_FALSE(screen->settings().isMetric);
    EXPECT_EQ(checkedIn("Language"), "English");
    EXPECT_EQ(labelsOf(Role::Text), std::vector<std::string>{"GXUIPickers"}) << "the names are those of the groups";
}

TEST_F(ScreenReaderTest, TheListOfPagesSaysWhichIsShown) {
    show("Settings", 1200, 800);
    EXPECT_EQ(checkedIn("All pages"), "Settings");
    find(Role::RadioButton, "Pace")->activateAtTime(window->now);
    settle();
    EXPECT_EQ(checkedIn("All pages"), "Pace");
    EXPECT_EQ(screen->page()->name(), "Pace");
}

TEST_F(ScreenReaderTest, TheMenuButtonSaysWhetherTheListIsOpen) {
    open(390, 844);
    const auto element = find(Role::Button, "All pages");
    ASSERT_TRUE(element);
    EXPECT_EQ(element->isExpanded(), false);
    element->activateAtTime(window->now);
    settle();
    EXPECT_EQ(element->isExpanded(), true);
    find(Role::RadioButton, "Pace")->activateAtTime(window->now);
    settle();
    EXPECT_EQ(element->isExpanded(), false);
}

TEST_F(ScreenReaderTest, TheSwitchForTheLookSaysWhichItIs) {
    open(390, 844);
    const auto element = find(Role::Button, "Light or dark, Light");
    ASSERT_TRUE(element);
    element->activateAtTime(window->now);
    settle();
    EXPECT_EQ(element->label(), "Light or dark, Dark");
    // The user's choice goes before the system's.
    (*window)->setUserInterfaceStyle(UIUserInterfaceStyle::Light);
    EXPECT_EQ(element->label(), "Light or dark, Dark");
}

TEST_F(ScreenReaderTest, ButtonsSayWhatTheyDo) {
    openEntry();
    EXPECT_TRUE(find(Role::Button, "Open a workout"));
    EXPECT_TRUE(find(Role::Button, "Save the workout"));
    EXPECT_EQ(entry()->saveButton()->title(), "Save");
    show("All pickers", 1200, 800);
    EXPECT_TRUE(find(Role::Button, "Show the page: Distance"));
    EXPECT_EQ(screen->overview()->heading(0)->title(), "Distance");
    Settings settings = screen->settings();
    settings.language = "pl";
    choose(settings);
    EXPECT_TRUE(find(Role::Button, "Pokaż stronę: Dystans"));
    screen->showPage(MainScreen::entryPage);
    screen->entry()->setFiles(files);
    settle();
    EXPECT_TRUE(find(Role::Button, "Zapisz trening"));
}
