#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "UIPickerTitleSearch.h"

using namespace gx;

namespace {

using Result = UIPickerTitleSearch::Result;

/// Titles from a list or by a rule, counting how many are asked for.
struct Search {
    using Rule = std::string (*)(NSInteger row);

    NSInteger count = 0;
    std::vector<std::string> titles;
    Rule rule = nullptr;
    int questions = 0;

    Search(NSInteger rows, Rule titleOfRow) : count(rows), rule(titleOfRow) {}
    explicit Search(const std::vector<std::string>& list) : count(static_cast<NSInteger>(list.size())), titles(list) {}

    Result operator()(const std::string& text) {
        return UIPickerTitleSearch::resultOfText_amongRows(text, count, [this](NSInteger row) {
            ++questions;
            return rule ? rule(row) : titles.at(static_cast<std::size_t>(row));
        });
    }
};

std::string twoDigits(NSInteger number) { return (number < 10 ? "0" : "") + std::to_string(number); }

} // namespace

TEST(UIPickerTitleSearch, ANumberIsFoundByItsValue) {
    Search search(100, [](NSInteger row) { return std::to_string(row); });
    EXPECT_EQ(search("42"), (Result{42, false}));
    EXPECT_EQ(search("4"), (Result{4, true})) << "40 to 49 go on";
    EXPECT_EQ(search("0"), (Result{0, false})) << "no title begins with 0 and goes on";
    EXPECT_EQ(search("100"), (Result{}));
    EXPECT_EQ(search("007"), (Result{7, false}));
}

TEST(UIPickerTitleSearch, PaddedTitlesAreFoundWithAndWithoutTheirZeros) {
    Search search(60, twoDigits);
    EXPECT_EQ(search("05"), (Result{5, false}));
    EXPECT_EQ(search("5"), (Result{5, true})) << "50 to 59 go on";
    EXPECT_EQ(search("6"), (Result{6, false})) << "60 is one too many";
    EXPECT_EQ(search("0"), (Result{0, true})) << "01 goes on";
    EXPECT_EQ(search("00"), (Result{0, false}));
    EXPECT_EQ(search("60"), (Result{}));
}

TEST(UIPickerTitleSearch, TheBeginningOfANumberIsNoRowYet) {
    Search search(211, [](NSInteger row) { return std::to_string(row + 30); });
    EXPECT_EQ(search("1"), (Result{std::nullopt, true}));
    EXPECT_EQ(search("12"), (Result{std::nullopt, true}));
    EXPECT_EQ(search("120"), (Result{90, false}));
    EXPECT_EQ(search("24"), (Result{std::nullopt, true})) << "240 is the last row";
    EXPECT_EQ(search("25"), (Result{}));
    EXPECT_EQ(search("241"), (Result{}));
}

TEST(UIPickerTitleSearch, StepsAreTakenIntoAccount) {
    Search search(21, [](NSInteger row) { return std::to_string(50 * row); }); // 0 to 1000
    EXPECT_EQ(search("150"), (Result{3, false}));
    EXPECT_EQ(search("15"), (Result{std::nullopt, true}));
    EXPECT_EQ(search("16"), (Result{}));
    EXPECT_EQ(search("100"), (Result{2, true})) << "1000 goes on";
}

TEST(UIPickerTitleSearch, NumbersMayRunDownward) {
    Search search(31, [](NSInteger row) { return std::to_string(20 - row); }); // 20 to -10
    EXPECT_EQ(search("20"), (Result{0, false}));
    EXPECT_EQ(search("-4"), (Result{24, false}));
    EXPECT_EQ(search("-1"), (Result{21, true})) << "-10 goes on";
    EXPECT_EQ(search("-"), (Result{std::nullopt, true}));
    EXPECT_EQ(search("-11"), (Result{}));
}

TEST(UIPickerTitleSearch, NegativeTitlesMayHaveAnyMinus) {
    Search search(21, [](NSInteger row) { return row < 10 ? "\u2212" + std::to_string(10 - row) : std::to_string(row - 10); });
    EXPECT_EQ(search("-4"), (Result{6, false}));
    EXPECT_EQ(search("4"), (Result{14, false}));
    EXPECT_EQ(search("-"), (Result{std::nullopt, true}));
}

TEST(UIPickerTitleSearch, ADashForNoValueMayComeFirst) {
    // "-", 30 to 229
    Search search(201, [](NSInteger row) { return row == 0 ? "-" : std::to_string(29 + row); });
    EXPECT_EQ(search("-"), (Result{0, false}));
    EXPECT_EQ(search("30"), (Result{1, false}));
    EXPECT_EQ(search("229"), (Result{200, false}));
}

TEST(UIPickerTitleSearch, TenthsMayBeTitledWithTheirSeparator) {
    Search search({",0", ",1", ",2", ",3", ",4", ",5", ",6", ",7", ",8", ",9"});
    EXPECT_EQ(search("5"), (Result{5, false}));
    EXPECT_EQ(search(".5"), (Result{5, false}));
}

TEST(UIPickerTitleSearch, ABillionRowsTakeAFewDozenQueries) {
    Search search(1'000'000'000, [](NSInteger row) { return std::to_string(row); });
    EXPECT_EQ(search("123456789"), (Result{123456789, false}));
    // 30 halvings, and the ends.
    EXPECT_LE(search.questions, 40);
    search.questions = 0;
    EXPECT_EQ(search("1"), (Result{1, true}));
    EXPECT_LE(search.questions, 80);
}

TEST(UIPickerTitleSearch, TheLastOfAllRowsThereCanBeIsFound) {
    constexpr NSInteger largest = std::numeric_limits<NSInteger>::max();
    // Titles of 18 digits: each stands for ten rows.
    Search search(largest, [](NSInteger row) { return std::to_string(row / 10); });
    EXPECT_EQ(search("922337203685477580").row, largest - 7);
}

TEST(UIPickerTitleSearch, WordsAreFoundByTheirBeginning) {
    Search search({"  kg", "  lb", "  lbs", "  st"});
    EXPECT_EQ(search("k"), (Result{0, true}));
    EXPECT_EQ(search("kg"), (Result{0, false}));
    EXPECT_EQ(search("l"), (Result{1, true}));
    EXPECT_EQ(search("lb"), (Result{1, true}));
    EXPECT_EQ(search("lbs"), (Result{2, false}));
    EXPECT_EQ(search("x"), (Result{}));
}

TEST(UIPickerTitleSearch, LettersOfSeveralBytesAreToldApart) {
    Search search({"kö", "kü", "кг", "кгс"});
    EXPECT_EQ(search("k"), (Result{0, true}));
    EXPECT_EQ(search("kü"), (Result{1, false}));
    EXPECT_EQ(search("к"), (Result{2, true}));
    EXPECT_EQ(search("кг"), (Result{2, true}));
    EXPECT_EQ(search("5к"), (Result{}));
}

TEST(UIPickerTitleSearch, TheRowThatIsSpelledExactlyGoesBeforeOneThatIsEqual) {
    Search search({"a", "05", "b", "5"});
    EXPECT_EQ(search("5").row, 3);
    EXPECT_EQ(search("05").row, 1);
}

TEST(UIPickerTitleSearch, NumbersInNoOrderAreLookedForInTheFirstRows) {
    constexpr NSInteger longest = UIPickerTitleSearch::longestWalk;
    Search search(longest + 1, [](NSInteger row) { return row == 500 ? "none" : std::to_string((row * 7919) % 100003); });
    // 7919 · 999 = 7 911 081 = 79 · 100 003 + 10 844, and row 1000 is beyond the walk: 10 844 +
    // 7919 = 18 763.
    EXPECT_EQ(search("10844").row, longest - 1);
    EXPECT_EQ(search("18763").row, std::nullopt);
}

TEST(UIPickerTitleSearch, NothingIsFoundWithoutATextTitlesOrRows) {
    const auto searchWithoutTitles = [](const std::string& text) {
        return UIPickerTitleSearch::resultOfText_amongRows(text, 3, [](NSInteger) { return std::nullopt; });
    };
    EXPECT_EQ(searchWithoutTitles("1"), (Result{}));
    EXPECT_EQ(searchWithoutTitles("-"), (Result{}));
    EXPECT_EQ(searchWithoutTitles(""), (Result{}));
    Search empty(std::vector<std::string>{});
    EXPECT_EQ(empty("1"), (Result{}));
    EXPECT_EQ(empty.questions, 0);
}

TEST(UIPickerTitleSearch, ANumberSpellsATitleWithSomethingElseBehindIt) {
    Search search({"5'", "6km", "7:30", "8.5", "90"});
    EXPECT_EQ(search("5"), (Result{0, true}));
    EXPECT_EQ(search("6"), (Result{1, true}));
    EXPECT_EQ(search("7"), (Result{2, true}));
    EXPECT_EQ(search("8"), (Result{std::nullopt, true})) << "another number";
    EXPECT_EQ(search("9"), (Result{std::nullopt, true})) << "this too";
}

TEST(UIPickerTitleSearch, ASeparatorAloneIsNoNumberYet) {
    Search tenths(10, [](NSInteger row) { return "," + std::to_string(row); });
    EXPECT_EQ(tenths("."), (Result{std::nullopt, true}));
    EXPECT_EQ(tenths(".7"), (Result{7, false}));
    Search below(10, [](NSInteger row) { return "-." + std::to_string(row); });
    EXPECT_EQ(below("-."), (Result{std::nullopt, true}));
    EXPECT_EQ(below("-.7"), (Result{7, false}));
}

TEST(UIPickerTitleSearch, OfRowsThatAreSpelledAlikeTheFirstIsFound) {
    Search search({"a", "5", "b", "5"});
    EXPECT_EQ(search("5").row, 1);
    Search padded({"a", "05", "b", "005"});
    EXPECT_EQ(padded("5").row, 1) << "equal, though neither is spelled so";
}

TEST(UIPickerTitleSearch, AWordMayComeFirstAndLastAndAlone) {
    Search last({"1", "2", "max"});
    EXPECT_EQ(last("2"), (Result{1, false}));
    EXPECT_EQ(last("m"), (Result{2, true}));
    Search alone(std::vector<std::string>{"max"});
    EXPECT_EQ(alone("1"), (Result{}));
    EXPECT_EQ(alone("max"), (Result{0, false}));
}

TEST(UIPickerTitleSearch, MoreDigitsThanANumberHasAreFoundAsTheyAreSpelled) {
    Search search({"123456789012345678", "1234567890123456789"}); // 18 and 19 digits.
    EXPECT_EQ(search("1234567890123456789"), (Result{1, false}));
    EXPECT_EQ(search("0123456789012345678"), (Result{})) << "19 digits are no number, so they are not equal to row 0";
}
