// Drives the pickers through the tables of tests/reference, which an independent model of the rules
// wrote; the format is described at the head of make_tables.py there. A state is compared word by
// word in the notation of the tables.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <sstream>

#include "GXBpmPickerView.h"
#include "GXCaloriesPickerView.h"
#include "GXSpeedPickerView.h"
#include "GXTemperaturePickerView.h"
#include "NSRunLoop.h"
#include "ReferenceSubject.h"

using namespace gx;
using namespace reference;

namespace {

/// "?" and "." stand for what no rule settles, "int" for an integer of either width.
bool fits(const Texts& expected, const Texts& actual) {
    const auto fitsWord = [](const std::string& word, const std::string& got) {
        return word == got || word == "?" || word == "." || (word == "int" && (got == "i32" || got == "i64"));
    };
    return std::equal(expected.begin(), expected.end(), actual.begin(), actual.end(), fitsWord);
}

/// One line of a table.
class Scenario {
public:
    explicit Scenario(std::unique_ptr<Subject> subject) : subject_(std::move(subject)) {}

    /// Empty if all went as expected, else the first difference.
    std::string differenceIn(const std::string& line) {
        for (const std::string& step : split(line, '|')) {
            std::string difference = take(step);
            if (!difference.empty()) return difference;
        }
        if (states_ == 0 || !expectedTold_.empty()) return "the line ends without a state";
        // Where the rows are stated, so are "at", "show" and "is".
        if (details_ != 3 * states_) return "a state is incomplete";
        return {};
    }

private:
    std::string take(const std::string& step) {
        const Texts words = split(step, ' ');
        const std::string& what = words[0];
        if (what == "set" || what == "bounds") {
            const auto setter = subject_->setters.find(what == "set" ? words.at(1) : what);
            if (setter == subject_->setters.end()) return "no such property: " + step;
            setter->second(Argument(what == "set" ? words : Texts{"", "", "none"}));
            done_ = step;
        } else if (what == "turn") {
            subject_->wheel()->turnToRow_inComponent(integerFrom<NSInteger>(words.at(2)), integerFrom<NSInteger>(words.at(1)));
            done_ = step;
        } else if (what == "pass") {
            NSRunLoop::mainRunLoop()->runPass();
            done_ = step;
        } else if (what == "told") {
            expectedTold_.push_back(step);
        } else if (what == "rows") {
            ++states_;
            told_ = subject_->takeTold();
            const std::string difference = compare(joined(std::exchange(expectedTold_, {}), "|"), joined(told_, "|"));
            return difference.empty() ? compare(step, wheelSays("rows")) : difference;
        } else if (what == "is") {
            ++details_;
            return compare(step == "is told" ? "is" + lastTold() : step, "is " + subject_->stored());
        } else {
            ++details_;
            return compare(step, wheelSays(what));
        }
        return {};
    }

    /// The values of the notices, the last one first: the heart rate tells its maximum before its
    /// average.
    std::string lastTold() const {
        std::string values;
        for (auto told = told_.rbegin(); told != told_.rend(); ++told) values += told->substr(told->find(' ', 5));
        return values;
    }

    std::string wheelSays(const std::string& what) {
        UIPickerView& wheel = *subject_->wheel();
        std::string answer = what;
        for (NSInteger component = 0; component < wheel.numberOfComponents(); ++component) {
            const NSInteger row = wheel.selectedRowInComponent(component);
            if (what == "rows")
                answer += " " + std::to_string(wheel.numberOfRowsInComponent(component));
            else if (what == "at")
                answer += " " + std::to_string(row);
            else if (what == "show")
                answer += " " + shown(subject_->title(row, component));
            else
                return "(an unknown step)";
        }
        return answer;
    }

    static std::string shown(const std::optional<std::string>& title) {
        std::string text = title.value_or("~");
        std::replace(text.begin(), text.end(), ' ', '_');
        return text;
    }

    std::string compare(const std::string& expected, const std::string& actual) const {
        if (fits(split(expected, ' '), split(actual, ' '))) return {};
        return "after \"" + done_ + "\" expected \"" + expected + "\", got \"" + actual + "\"";
    }

    std::unique_ptr<Subject> subject_;
    std::string done_ = "new picker";
    Texts expectedTold_;
    Texts told_;
    int states_ = 0;
    int details_ = 0;
};

struct Table {
    const char* name;
    std::unique_ptr<Subject> (*make)();
};
// GoogleTest asks for this name.
void PrintTo(const Table& table, std::ostream* stream) { *stream << table.name; }

/// By C's own functions, which the standard library for WebAssembly has too. Empty without a file.
std::string textOfFile(const std::string& path) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"), &std::fclose);
    std::string text;
    std::array<char, 65536> part = {};
    while (file) {
        const std::size_t length = std::fread(part.data(), 1, part.size(), file.get());
        if (length == 0) break;
        text.append(part.data(), length);
    }
    return text;
}

class ReferenceTablesTest : public testing::TestWithParam<Table> {};

TEST_P(ReferenceTablesTest, picksWhatTheModelOfTheRulesPicks) {
    constexpr int mostReports = 20;
    const std::string name = GetParam().name;
    std::istringstream file(textOfFile(std::string(GX_REFERENCE_TABLES) + "/" + name + ".txt"));
    std::string line;
    ASSERT_TRUE(std::getline(file, line)) << "no table " << name;
    const Texts head = split(line, ' ');
    ASSERT_TRUE(head.size() == 3 && head[0] == "scenarios" && head[2] == name) << line;
    const int stated = integerFrom<int>(head[1]);
    ASSERT_GT(stated, 0);

    int scenarios = 0;
    int differences = 0;
    while (std::getline(file, line)) {
        ++scenarios;
        const std::string difference = Scenario(GetParam().make()).differenceIn(line);
        // Nothing is left over for the next picker.
        NSRunLoop::mainRunLoop()->runPass();
        if (difference.empty() || ++differences > mostReports) continue;
        ADD_FAILURE() << name << ".txt:" << scenarios + 1 << ": " << difference << "\n  " << line;
    }
    EXPECT_EQ(scenarios, stated);
    EXPECT_EQ(differences, 0);
}

const std::array tables = {Table{"bpm", subject<GXBpmPickerView>},
                           Table{"calories", subject<GXCaloriesPickerView>},
                           Table{"distance", subject<GXDistancePickerView>},
                           Table{"duration", subject<GXDurationPickerView>},
                           Table{"heartrate", subject<GXHeartRatePickerView>},
                           Table{"height", heightSubject},
                           Table{"pace", subject<GXPacePickerView>},
                           Table{"speed", subject<GXSpeedPickerView>},
                           Table{"temperature", subject<GXTemperaturePickerView>},
                           Table{"weight", subject<GXWeightPickerView>}};

INSTANTIATE_TEST_SUITE_P(Pickers, ReferenceTablesTest, testing::ValuesIn(tables),
                         [](const testing::TestParamInfo<Table>& table) { return std::string(table.param.name); });

} // namespace
