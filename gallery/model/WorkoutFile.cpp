#include "WorkoutFile.h"

#include <cmath>
#include <cstdint>

#include <nlohmann/json.hpp>

#include "NumberFormat.h"
#include "Translations.h"
#include "WeatherIcons.h"

namespace gallery {

namespace {

using Json = nlohmann::ordered_json;

constexpr const char* format = "GXUIPickers workout";
constexpr int version = 1;

/// Whole numbers without a decimal point, as a person would write them.
Json numberOf(double value) {
    constexpr double tooLarge = 9e15; // Below it every whole number is a double.
    if (value == std::trunc(value) && std::fabs(value) < tooLarge) return static_cast<std::int64_t>(value);
    return value;
}

/// Returns an empty text if the member exists and is a number within its range.
std::string complaintAbout(const Json& values, const Workout::Number& number) {
    const auto found = values.find(number.name);
    if (found == values.end() || !found->is_number()) return Translations::filled("The file has no number for: {0}.", number.name);
    const auto value = found->get<double>();
    if (value >= number.lowest && value <= number.highest) return "";
    return Translations::filled("A number in the file is out of range: {0}.", number.name);
}

} // namespace

std::string WorkoutFile::textOfWorkout(const Workout& workout) {
    Json values;
    for (const Workout::Number& number : Workout::numbers()) values[number.name] = numberOf(workout.*number.value);
    values["weather"] = WeatherIcons::identifier(workout.weather);
    const Json whole = {{"format", format}, {"version", version}, {"workout", values}};
    return whole.dump(2) + "\n";
}

std::optional<Workout> WorkoutFile::workoutOfText(const std::string& text, std::string& error) {
    const auto refuse = [&error](const std::string& reason) {
        error = reason;
        return std::nullopt;
    };
    if (text.size() > longest) return refuse(Translations::text("This file is no workout."));
    const Json whole = Json::parse(text, nullptr, /*allow_exceptions=*/false);
    if (whole.is_discarded()) return refuse(Translations::text("This file is damaged, or no workout."));
    const auto kind = whole.is_object() ? whole.find("format") : whole.end();
    if (kind == whole.end() || *kind != format) return refuse(Translations::text("This file is no workout."));
    const auto made = whole.find("version");
    if (made == whole.end() || !made->is_number_integer() || *made < 1) return refuse(Translations::text("This file is damaged."));
    if (*made > version) return refuse(Translations::text("This workout was saved by a newer version of this application."));
    const auto values = whole.find("workout");
    if (values == whole.end() || !values->is_object()) return refuse(Translations::text("This file is damaged."));

    Workout workout;
    for (const Workout::Number& number : Workout::numbers()) {
        const std::string complaint = complaintAbout(*values, number);
        if (!complaint.empty()) return refuse(complaint);
        workout.*number.value = values->at(number.name).get<double>();
    }
    const auto weather = values->find("weather");
    const auto index =
        weather != values->end() && weather->is_string() ? WeatherIcons::indexOfIdentifier(weather->get<std::string>()) : std::nullopt;
    if (!index) return refuse(Translations::text("The file names no weather that this application knows."));
    workout.weather = *index;
    return workout;
}

} // namespace gallery
