// Saving and opening on the entry screen.

#include "EntryScreenTest.h"

using namespace gallery;
using namespace gx;

TEST_F(EntryScreenTest, SavesAndOpensAgain) {
    openEntry();
    tapRow("Calories");
    turnWheel(0, 0, 3);
    tap(entry()->saveButton());
    EXPECT_EQ(entry()->message(), "Saved: workout.json");
    const Workout saved = entry()->workout();
    EXPECT_EQ(saved.calories, 450);
    turnWheel(0, 0, 2);
    EXPECT_EQ(value("Calories"), "470 kcal");
    tap(entry()->openButton());
    EXPECT_EQ(entry()->message(), "Opened: file.json");
    EXPECT_EQ(entry()->workout(), saved);
    EXPECT_EQ(value("Calories"), "450 kcal");
    // The open wheel selects it too.
    EXPECT_EQ(wheels()[0]->selectedRowInComponent(0), 45);
}

TEST_F(EntryScreenTest, SavingFinishesASpinFirst) {
    openEntry();
    tapRow("Calories");
    const CGPoint from = middleOfColumn(wheels()[0], 0);
    window->fling(from, {from.x, from.y - 60}, 3);
    window->tick(0.05);
    entry()->save();
    std::string error;
    EXPECT_EQ(WorkoutFile::workoutOfText(files->text, error), entry()->workout());
    EXPECT_GT(entry()->workout().calories, 420);
}

TEST_F(EntryScreenTest, ADamagedFileChangesNothingAndShowsAReason) {
    openEntry();
    tapRow("Calories");
    turnWheel(0, 0, 3);
    const Workout before = entry()->workout();
    files->text = "{\"format\"";
    tap(entry()->openButton());
    EXPECT_EQ(entry()->message(), "file.json: This file is damaged, or no workout.");
    EXPECT_EQ(entry()->workout(), before);
    EXPECT_EQ(value("Calories"), "450 kcal");
    EXPECT_EQ(files->text, "{\"format\"");
}

TEST_F(EntryScreenTest, MessagesAreInTheChosenLanguage) {
    openEntry();
    Settings settings = screen->settings();
    settings.language = "fr";
    choose(settings);
    tap(entry()->saveButton());
    EXPECT_EQ(entry()->message(), "Enregistré\u00A0: workout.json");
    tap(entry()->openButton());
    EXPECT_EQ(entry()->message(), "Ouvert\u00A0: file.json");
    files->text = R"({"format": "GXUIPickers workout", "version": 1, "workout": {}})";
    tap(entry()->openButton());
    EXPECT_EQ(entry()->message(), "file.json\u00A0: Le fichier ne contient aucun nombre pour\u00A0: distance.");
}

TEST_F(EntryScreenTest, ShowsReadAndWriteErrorsAndNothingForADismissedDialog) {
    openEntry();
    const Workout before = entry()->workout();
    files->isDismissed = true;
    tap(entry()->openButton());
    tap(entry()->saveButton());
    EXPECT_EQ(entry()->message(), "");
    files->isDismissed = false;
    files->error = "The disk is full.";
    tap(entry()->saveButton());
    EXPECT_EQ(entry()->message(), "The disk is full.");
    tap(entry()->openButton());
    EXPECT_EQ(entry()->message(), "file.json: The disk is full.");
    EXPECT_EQ(entry()->workout(), before);
    EXPECT_EQ(files->text, "");
}

TEST_F(EntryScreenTest, WithoutFilesThereAreNoButtons) {
    openEntry();
    EXPECT_FALSE(entry()->saveButton()->isHidden());
    entry()->setFiles(nullptr);
    EXPECT_TRUE(entry()->saveButton()->isHidden());
    EXPECT_TRUE(entry()->openButton()->isHidden());
    entry()->save();
    entry()->open();
    EXPECT_EQ(entry()->message(), "");
}

TEST_F(EntryScreenTest, EveryValueOfTheWheelsCanBeSavedAndOpened) {
    openEntry();
    for (const bool isMetric : {true, false}) {
        for (const GXWeightUnit unit : {GXWeightUnitKilogram, GXWeightUnitPound, GXWeightUnitStone}) {
            Settings settings = screen->settings();
            settings.isMetric = isMetric;
            settings.weightUnit = unit;
            choose(settings);
            for (std::size_t i = 0; i < entry()->measurementCount(); ++i) {
                SCOPED_TRACE(entry()->measurement(i)->name() + (isMetric ? ", metric, " : ", imperial, ") + std::to_string(unit));
                entry()->openMeasurement_animated(i, false);
                settle();
                for (const Ref<UIPickerView>& wheel : wheels()) expectEndsToComeBack(wheel);
            }
        }
    }
}
