#include "WheelClick.h"

#include <algorithm>
#include <cstdlib>

#include <gtest/gtest.h>

using namespace gallery;

TEST(WheelClick, IsASoundOf8Milliseconds) {
    EXPECT_EQ(WheelClick::samplesPerSecond, 44100);
    EXPECT_EQ(WheelClick::samples().size(), 352U);
}

TEST(WheelClick, BeginsAndEndsInSilenceAndIsSoft) {
    const std::vector<std::int16_t> sound = WheelClick::samples();
    EXPECT_EQ(sound.front(), 0);
    EXPECT_EQ(sound.back(), 0);
    int loudest = 0;
    for (const std::int16_t sample : sound) loudest = std::max(loudest, std::abs(int{sample}));
    EXPECT_GT(loudest, 32767 / 16);
    EXPECT_LT(loudest, 32767 / 4);
}

namespace {

/// Where clicks begin in the next samples, which are read in pieces of this size.
std::vector<std::size_t> clicksWithin(WheelClick& click, std::size_t count, std::size_t piece) {
    const std::vector<std::int16_t> sound = WheelClick::samples();
    std::vector<std::int16_t> stream(count, 1);
    for (std::size_t at = 0; at < count; at += piece) click.read(std::span(stream).subspan(at, std::min(piece, count - at)));
    std::vector<std::size_t> begins;
    for (std::size_t at = 0; at < count;) {
        if (at + sound.size() <= count && std::equal(sound.begin(), sound.end(), stream.begin() + static_cast<std::ptrdiff_t>(at))) {
            begins.push_back(at);
            at += sound.size();
        } else {
            EXPECT_EQ(stream[at], 0) << at;
            ++at;
        }
    }
    return begins;
}

} // namespace

TEST(WheelClick, TheStreamIsSilentButForEachClick) {
    using Begins = std::vector<std::size_t>;
    WheelClick click;
    EXPECT_EQ(clicksWithin(click, 5000, 512), Begins{});
    click.add();
    EXPECT_EQ(clicksWithin(click, 5000, 512), Begins{0}) << "at once";
    click.add();
    click.add();
    click.add();
    // A thirtieth of a second apart.
    EXPECT_EQ(clicksWithin(click, 5000, 100), (Begins{0, 1470, 2940}));
    for (int i = 0; i < 100; ++i) click.add();
    EXPECT_EQ(clicksWithin(click, 44100, 44100).size(), 6U) << "and not long after the wheel rests";
    EXPECT_EQ(clicksWithin(click, 44100, 1), Begins{});
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
