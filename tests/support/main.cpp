// The entry of every headless test: takes over the user's locale, so that a dependence on it would
// show.

#include <gtest/gtest.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    std::setlocale(LC_ALL, "");
    const bool isCommaExpected = std::getenv("GX_EXPECT_DECIMAL_COMMA") != nullptr;
    if (isCommaExpected && std::strcmp(std::localeconv()->decimal_point, ",") != 0) {
        std::fprintf(stderr, "The tests were to run with a decimal comma, but the C locale has none.\n");
        return 1;
    }
    const int result = RUN_ALL_TESTS();
    if (testing::UnitTest::GetInstance()->test_to_run_count() > 0) return result;
    std::fprintf(stderr, "No tests were found.\n");
    return 1;
}
