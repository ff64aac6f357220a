#include "WorkoutFile.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace gallery;

namespace {

std::string replaced(std::string text, const std::string& part, const std::string& by) {
    const std::size_t at = text.find(part);
    EXPECT_NE(at, std::string::npos) << part;
    return at == std::string::npos ? text : text.replace(at, part.size(), by);
}

/// The reason for rejecting the text; empty if it is accepted.
std::string refusal(const std::string& text) {
    std::string error;
    const auto workout = WorkoutFile::workoutOfText(text, error);
    EXPECT_EQ(workout.has_value(), error.empty());
    return error;
}

} // namespace

TEST(WorkoutFile, WritesWhatAPersonCanRead) {
    EXPECT_EQ(WorkoutFile::textOfWorkout({}), R"({
  "format": "GXUIPickers workout",
  "version": 1,
  "workout": {
    "distance": 5300,
    "duration": 1650000,
    "speed": 3.4722222222222223,
    "calories": 420,
    "intervalDistance": 1000,
    "intervalDuration": 285000,
    "intervalPace": 3.508771929824561,
    "averageHeartRate": 142,
    "maximumHeartRate": 171,
    "restingPulse": 60,
    "temperature": 18,
    "waterTemperature": 20,
    "weight": 72.5,
    "height": 176,
    "weather": "partly-cloudy"
  }
}
)");
}

TEST(WorkoutFile, ReadsEveryDigitBack) {
    Workout workout;
    workout.distance = 8529.574;
    workout.weight = static_cast<double>(72.52F);
    workout.intervalPace = 1000.0 / 313;
    workout.temperature = std::nextafter(-7.0, 0.0);
    workout.averageHeartRate = 0;
    workout.weather = 11;
    std::string error;
    EXPECT_EQ(WorkoutFile::workoutOfText(WorkoutFile::textOfWorkout(workout), error), workout);
    EXPECT_EQ(error, "");
}

TEST(WorkoutFile, AcceptsTheEndsOfEachRangeAndNothingBeyond) {
    for (const Workout::Number& number : Workout::numbers()) {
        SCOPED_TRACE(number.name);
        const auto refusalOf = [&number](double value) {
            Workout workout;
            workout.*number.value = value;
            return refusal(WorkoutFile::textOfWorkout(workout));
        };
        constexpr double farBelow = -std::numeric_limits<double>::infinity();
        EXPECT_EQ(refusalOf(number.lowest), "");
        EXPECT_EQ(refusalOf(number.highest), "");
        const std::string complaint = "A number in the file is out of range: " + std::string(number.name) + ".";
        EXPECT_EQ(refusalOf(std::nextafter(number.lowest, farBelow)), complaint);
        EXPECT_EQ(refusalOf(std::nextafter(number.highest, -farBelow)), complaint);
    }
}

TEST(WorkoutFile, IgnoresWhatElseIsInTheFile) {
    const std::string text = WorkoutFile::textOfWorkout({});
    EXPECT_EQ(refusal(replaced(text, R"("version": 1)", R"("note": ["a", {}], "version": 1)")), "");
}

TEST(WorkoutFile, RejectsDamagedAndForeignFilesWithAReason) {
    const std::string text = WorkoutFile::textOfWorkout({});
    const std::string damaged = "This file is damaged, or no workout.";
    EXPECT_EQ(refusal(""), damaged);
    EXPECT_EQ(refusal("{"), damaged);
    for (std::size_t length = 0; length + 2 < text.size(); ++length) ASSERT_EQ(refusal(text.substr(0, length)), damaged) << length;
    EXPECT_EQ(refusal(text + "}"), damaged);
    EXPECT_EQ(refusal(std::string("\xFF\xFE\0\0", 4)), damaged);
    EXPECT_EQ(refusal(replaced(text, "5300", "NaN")), damaged);
    EXPECT_EQ(refusal(std::string(100'000, '[')), damaged);

    const std::string foreign = "This file is no workout.";
    EXPECT_EQ(refusal("[]"), foreign);
    EXPECT_EQ(refusal("7"), foreign);
    EXPECT_EQ(refusal("{}"), foreign);
    EXPECT_EQ(refusal(replaced(text, "GXUIPickers workout", "something else")), foreign);
    EXPECT_EQ(refusal(text + std::string(WorkoutFile::longest, ' ')), foreign);
    EXPECT_EQ(refusal(replaced(text, R"("version": 1)", R"("version": 2)")),
              "This workout was saved by a newer version of this application.");
    EXPECT_EQ(refusal(replaced(text, R"("version": 1)", R"("version": 0)")), "This file is damaged.");
    EXPECT_EQ(refusal(replaced(text, R"("version": 1)", R"("version": "1")")), "This file is damaged.");
    EXPECT_EQ(refusal(R"({"format": "GXUIPickers workout", "version": 1, "workout": 5})"), "This file is damaged.");
    EXPECT_EQ(refusal(replaced(text, R"("weight": 72.5)", R"("weight": "72.5")")), "The file has no number for: weight.");
    EXPECT_EQ(refusal(replaced(text, R"("weight": 72.5)", R"("weight": null)")), "The file has no number for: weight.");
    EXPECT_EQ(refusal(replaced(text, R"("height")", R"("depth")")), "The file has no number for: height.");
    EXPECT_EQ(refusal(replaced(text, "5300", "1e999")), damaged);
    EXPECT_EQ(refusal(replaced(text, "partly-cloudy", "raining frogs")), "The file names no weather that this application knows.");
    EXPECT_EQ(refusal(replaced(text, R"("partly-cloudy")", "1")), "The file names no weather that this application knows.");
}
