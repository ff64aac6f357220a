#include "WheelClick.h"

#include <cstdint>
#include <cstdlib>

#include <gtest/gtest.h>

using namespace gallery;

namespace {

std::int32_t number(const std::string& bytes, std::size_t at, std::size_t count) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < count; ++i) value |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes.at(at + i))) << (8 * i);
    return count == 2 ? static_cast<std::int16_t>(value) : static_cast<std::int32_t>(value);
}

} // namespace

TEST(WheelClick, IsAWaveFileOf8Milliseconds) {
    const std::string file = WheelClick::waveFile();
    ASSERT_EQ(file.size(), 44U + 2 * 352); // 44100 samples a second for 0.008 s, two bytes each.
    EXPECT_EQ(file.substr(0, 4), "RIFF");
    EXPECT_EQ(number(file, 4, 4), 36 + 704);
    EXPECT_EQ(file.substr(8, 8), "WAVEfmt ");
    EXPECT_EQ(number(file, 16, 4), 16);
    EXPECT_EQ(number(file, 20, 2), 1) << "plain samples";
    EXPECT_EQ(number(file, 22, 2), 1) << "channels";
    EXPECT_EQ(number(file, 24, 4), 44100);
    EXPECT_EQ(number(file, 28, 4), 88200);
    EXPECT_EQ(number(file, 32, 2), 2);
    EXPECT_EQ(number(file, 34, 2), 16);
    EXPECT_EQ(file.substr(36, 4), "data");
    EXPECT_EQ(number(file, 40, 4), 704);
}

TEST(WheelClick, BeginsAndEndsInSilenceAndIsSoft) {
    const std::string file = WheelClick::waveFile();
    EXPECT_EQ(number(file, 44, 2), 0);
    EXPECT_EQ(number(file, file.size() - 2, 2), 0);
    int loudest = 0;
    for (std::size_t at = 44; at < file.size(); at += 2) loudest = std::max(loudest, std::abs(number(file, at, 2)));
    EXPECT_GT(loudest, 32767 / 16);
    EXPECT_LT(loudest, 32767 / 4);
}

TEST(WheelClick, IsHeardAtMost30TimesASecond) {
    WheelClick click;
    EXPECT_TRUE(click.isHeardAt(10));
    EXPECT_FALSE(click.isHeardAt(10));
    EXPECT_FALSE(click.isHeardAt(10.03));
    EXPECT_TRUE(click.isHeardAt(10.034));
    EXPECT_FALSE(click.isHeardAt(10.06)) << "counted from the last one that was heard";
    EXPECT_TRUE(click.isHeardAt(10.068));
    EXPECT_TRUE(click.isHeardAt(1)) << "the clock has started again";
}
