#include <fstream>
#include <sstream>

#include <nlohmann/json.hpp>

#include "ApplicationTest.h"

using namespace gallery;
using namespace gx;

namespace {

using Rows = std::vector<std::pair<std::string, std::string>>;

class AddWorkoutTest : public ApplicationTest {
protected:
    std::string fileText() {
        std::ifstream file(chosenPath.toStdString(), std::ios::binary);
        std::ostringstream text;
        text << file.rdbuf();
        return text.str();
    }
    void write(const std::string& text) { std::ofstream(chosenPath.toStdString(), std::ios::binary) << text; }
};

} // namespace

TEST_F(AddWorkoutTest, EachRowOpensEachWheelTurnsAndWhatIsSavedIsWhatWasShown) {
    for (std::size_t i = 0; i < entry()->measurementCount(); ++i) {
        const std::string name = entry()->measurement(i)->name();
        SCOPED_TRACE(name);
        const std::string before = row(name)->value();
        click(middleOf(row(name)));
        ASSERT_EQ(entry()->openMeasurement(), i);
        EXPECT_GE(turnEachColumn(), 1);
        EXPECT_NE(row(name)->value(), before);
        click(middleOf(row(name)));
        EXPECT_EQ(entry()->openMeasurement(), std::nullopt);
    }
    // Every column one row further, the height also to the other unit.
    const Rows expected = {{"Distance and time", "6.4 km, 1:28 h"},
                           {"Average speed", "13.6 km/h"},
                           {"Calories", "430 kcal"},
                           {"Distance", "2.11 km"},
                           {"Duration", "1:05:46"},
                           {"Pace", "5:46 min/km"},
                           {"Heart rate", "AVG 143, MAX 172"},
                           {"Resting pulse", "61 bpm"},
                           {"Weather", "cloudy, 19 °C"},
                           {"Water temperature", "21 °C"},
                           {"Weight", "73.6 kg"},
                           {"Height", "5' 10\""}};
    const Rows entered = shown();
    EXPECT_EQ(entered, expected);

    goTo("Settings");
    chooseSetting("Units", 1);
    chooseSetting("Weight", 1);
    goTo("Add workout");
    const Rows imperial = shown();
    EXPECT_EQ(imperial[3].second, "1.31 mi");   // 2110 m are 1.3111 mi.
    EXPECT_EQ(imperial[9].second, "69 °F");     // 21 °C are 69.8 °F.
    EXPECT_EQ(imperial[10].second, "162.3 lb"); // 73.6 kg are 162.26 lb.
    click(middleOf(entry()->saveButton()));
    EXPECT_EQ(entry()->message(), "Saved: workout.json");

    const auto saved = nlohmann::json::parse(fileText()).at("workout");
    EXPECT_EQ(saved.at("distance"), 6400);
    EXPECT_EQ(saved.at("duration"), 88 * 60 * 1000);
    EXPECT_EQ(saved.at("calories"), 430);
    EXPECT_EQ(saved.at("intervalDistance"), 2110);
    EXPECT_EQ(saved.at("intervalDuration"), (65 * 60 + 46) * 1000);
    EXPECT_EQ(saved.at("averageHeartRate"), 143);
    EXPECT_EQ(saved.at("maximumHeartRate"), 172);
    EXPECT_EQ(saved.at("restingPulse"), 61);
    EXPECT_EQ(saved.at("weather"), "cloudy");
    EXPECT_EQ(saved.at("temperature"), 19);
    EXPECT_EQ(saved.at("waterTemperature"), 21);
    EXPECT_NEAR(saved.at("weight"), 73.6, 1e-5);
    EXPECT_NEAR(saved.at("speed"), 13.6 / 3.6, 1e-8);
    EXPECT_NEAR(saved.at("intervalPace"), 1000.0 / 346, 1e-9);

    // In a new window, with the default settings.
    start();
    EXPECT_NE(shown(), expected);
    click(middleOf(entry()->openButton()));
    EXPECT_EQ(entry()->message(), "Opened: workout.json");
    Rows reopened = shown();
    // The unit belongs to the wheel and not to the workout.
    EXPECT_EQ(reopened.back().second, "177 cm");
    reopened.back() = expected.back();
    EXPECT_EQ(reopened, expected);
    goTo("Settings");
    chooseSetting("Units", 1);
    chooseSetting("Weight", 1);
    goTo("Add workout");
    EXPECT_EQ(shown(), imperial);
}

TEST_F(AddWorkoutTest, TheMouseWheelSpinsAWheelInARowAndNotTheTable) {
    click(middleOf(row("Calories")));
    const auto wheel = openWheels().at(0);
    const CGFloat place = entry()->table()->contentOffset().y;
    const QPoint over = middleOf(wheel->viewForRow_forComponent(42, 0));
    for (int notch = 0; notch < 60; ++notch) { // More than there are rows above.
        QWheelEvent event(over, widget->mapToGlobal(over), {}, {0, 120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(widget.get(), &event);
        step(0.02);
    }
    settle();
    EXPECT_EQ(row("Calories")->value(), "0 kcal");
    EXPECT_EQ(entry()->table()->contentOffset().y, place);
}

TEST_F(AddWorkoutTest, ADamagedFileIsRejectedAndStaysAsItIs) {
    write("{ \"format\": \"GXUIPickers workout\", ");
    const Rows before = shown();
    click(middleOf(entry()->openButton()));
    EXPECT_EQ(entry()->message(), "workout.json: This file is damaged, or no workout.");
    EXPECT_EQ(shown(), before);
    EXPECT_EQ(fileText(), "{ \"format\": \"GXUIPickers workout\", ");
}

TEST_F(AddWorkoutTest, AMissingFileAndAMissingFolderAreReported) {
    chosenPath = folder.filePath("none/workout.json");
    click(middleOf(entry()->openButton()));
    EXPECT_TRUE(entry()->message().starts_with("workout.json: The file could not be read:")) << entry()->message();
    click(middleOf(entry()->saveButton()));
    EXPECT_TRUE(entry()->message().starts_with("The file could not be written:")) << entry()->message();
    chosenPath = "";
    click(middleOf(entry()->saveButton())); // The user dismisses the dialog.
    EXPECT_TRUE(entry()->message().starts_with("The file could not be written:"));
}

TEST_F(AddWorkoutTest, SettingsShowAtOnceOnTheOpenScreen) {
    click(middleOf(row("Distance")));
    goTo("Settings");
    chooseSetting("Decimal separator", 2);
    chooseSetting("Text size", 2);
    goTo("Add workout");
    EXPECT_EQ(row("Distance")->value(), "1,00 km");
    EXPECT_NEAR(openWheels().at(0)->rowSizeForComponent(0).height, 52, 1e-5);
    goTo("Settings");
    chooseSetting("Look", 2);
    EXPECT_EQ(widget->userInterfaceStyle(), UIUserInterfaceStyle::Dark);
    chooseSetting("Look", 1);
    EXPECT_EQ(widget->userInterfaceStyle(), UIUserInterfaceStyle::Light);
}

TEST_F(AddWorkoutTest, WorksFromASmallPhoneToADesktopWindow) {
    for (const QSize size : {QSize(320, 568), QSize(568, 320), QSize(844, 390), QSize(1200, 800)}) {
        SCOPED_TRACE(size.width());
        start(size.width(), size.height());
        screen->setStyleAction([this](auto style) { widget->setUserInterfaceStyle(style); });
        click(middleOf(row("Resting pulse")));
        ASSERT_EQ(entry()->openMeasurement(), indexOf("Resting pulse"));
        EXPECT_EQ(turnEachColumn(), 1);
        EXPECT_EQ(row("Resting pulse")->value(), "61 bpm");
    }
}
