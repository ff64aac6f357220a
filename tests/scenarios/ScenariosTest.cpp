// Plays the scenarios of lists/ in the library's own window and compares what they end in with
// results.jsonl, which the tests in a browser compare with too. GX_WRITE_SCENARIO_RESULTS=1 writes
// that file.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>

#include "ScenarioRun.h"

using namespace scenarios;

namespace {

const std::filesystem::path folder = GX_SCENARIOS;

/// In the order of the files' names.
std::vector<Json> allScenarios() {
    std::set<std::filesystem::path> files;
    for (const auto& file : std::filesystem::directory_iterator(folder / "lists")) files.insert(file.path());
    std::vector<Json> scenarios;
    for (const auto& file : files) {
        std::ifstream stream(file);
        const Json list = Json::parse(stream);
        scenarios.insert(scenarios.end(), list.begin(), list.end());
    }
    return scenarios;
}

std::map<std::string, std::string> knownResults() {
    std::map<std::string, std::string> results;
    std::ifstream file(folder / "results.jsonl");
    for (std::string line; std::getline(file, line);) results[Json::parse(line).at("name").get<std::string>()] = line;
    return results;
}

std::string resultOf(const Json& scenario) {
    Json result;
    result["name"] = scenario.at("name");
    result["states"] = ScenarioRun(scenario).play();
    return result.dump();
}

} // namespace

TEST(Scenarios, EndOnTheSameRowsWithTheSameReportsAsInTheBrowser) {
    const bool isWriting = std::getenv("GX_WRITE_SCENARIO_RESULTS") != nullptr;
    const auto known = knownResults();
    std::string written;
    std::size_t count = 0;
    for (const Json& scenario : allScenarios()) {
        const auto name = scenario.at("name").get<std::string>();
        SCOPED_TRACE(name);
        const std::string result = resultOf(scenario);
        written += result + "\n";
        ++count;
        if (isWriting) continue;
        const auto expected = known.find(name);
        ASSERT_NE(expected, known.end()) << "not in results.jsonl";
        EXPECT_EQ(result, expected->second);
    }
    EXPECT_GT(count, 0U);
    if (isWriting) {
        std::ofstream(folder / "results.jsonl") << written;
    } else {
        EXPECT_EQ(count, known.size()) << "results.jsonl has others, or a name stands twice";
    }
}

TEST(Scenarios, PlayEachPickerInEachWay) {
    std::map<std::string, std::set<std::string>> ways;
    for (const Json& scenario : allScenarios())
        for (const Json& step : scenario.at("steps")) ways[scenario.at("picker").get<std::string>()].insert(step.at(0).get<std::string>());
    EXPECT_EQ(ways.size(), 15U);
    for (const auto& [picker, steps] : ways)
        for (const char* step : {"down", "notches", "points", "key", "type", "set", "finish", "state", "expect"})
            EXPECT_TRUE(steps.count(step)) << picker << " is never played by " << step;
}
