#include "CommandLineArguments.h"

#include <gtest/gtest.h>

using namespace gallery;

namespace {
std::string errorOf(const std::vector<std::string>& arguments) {
    std::string error;
    return CommandLineArguments::parse(arguments, error) ? "none" : error;
}
} // namespace

TEST(CommandLineArguments, WithoutAnyTheWindowFollowsTheSystem) {
    std::string error;
    const auto parsed = CommandLineArguments::parse({}, error);
    ASSERT_TRUE(parsed);
    EXPECT_FALSE(parsed->showsHelp);
    EXPECT_FALSE(parsed->pictureFolder);
    EXPECT_FALSE(parsed->size);
    EXPECT_EQ(parsed->scale, 2);
    EXPECT_EQ(parsed->textScale, 1);
    EXPECT_FALSE(parsed->isContrastHigh);
    EXPECT_FALSE(parsed->locale);
    EXPECT_FALSE(parsed->page);
}

TEST(CommandLineArguments, AllOfThemAreReadInAnyOrder) {
    std::string error;
    const auto parsed = CommandLineArguments::parse(
        {"--locale", "de", "--size", "430x932", "--shots", "some folder", "--page", "Heart rate", "--scale", "3"}, error);
    ASSERT_TRUE(parsed) << error;
    EXPECT_EQ(parsed->pictureFolder, "some folder");
    EXPECT_EQ(parsed->size, gx::CGSizeMake(430, 932));
    EXPECT_EQ(parsed->scale, 3);
    EXPECT_EQ(parsed->locale, "de");
    EXPECT_EQ(parsed->page, "Heart rate");
}

TEST(CommandLineArguments, HelpIsShownForBothSpellings) {
    std::string error;
    for (const char* spelling : {"--help", "-h"}) {
        const auto parsed = CommandLineArguments::parse({spelling}, error);
        ASSERT_TRUE(parsed);
        EXPECT_TRUE(parsed->showsHelp);
    }
    for (const char* option : {"--shots DIR", "--page NAME", "--size WxH", "--scale N", "--locale NAME", "--text-scale N", "--contrast C",
                               "--record FILE", "--replay FILE", "--version", "--help"}) {
        EXPECT_NE(CommandLineArguments::usage("gallery").find(option), std::string::npos) << option;
    }
}

TEST(CommandLineArguments, VersionIsShown) {
    std::string error;
    const auto parsed = CommandLineArguments::parse({"--version"}, error);
    ASSERT_TRUE(parsed) << error;
    EXPECT_TRUE(parsed->showsVersion);
    EXPECT_FALSE(CommandLineArguments::parse({"--help"}, error)->showsVersion);
}

TEST(CommandLineArguments, UsageNamesTheProgramAsItWasStarted) {
    EXPECT_EQ(CommandLineArguments::programName("/usr/bin/gxuipickers-gallery"), "gxuipickers-gallery");
    EXPECT_EQ(CommandLineArguments::programName("gallery"), "gallery");
    EXPECT_EQ(CommandLineArguments::programName("build/dev/"), "gallery");
    EXPECT_EQ(CommandLineArguments::programName(""), "gallery");
    EXPECT_EQ(CommandLineArguments::programName(nullptr), "gallery");
    EXPECT_EQ(CommandLineArguments::usage("gxuipickers-gallery").find("usage: gxuipickers-gallery [options]\n"), 0);
}

TEST(CommandLineArguments, AnInvalidArgumentIsNamed) {
    EXPECT_EQ(errorOf({"--shot"}), "unknown option --shot");
    EXPECT_EQ(errorOf({"shots"}), "unknown option shots");
    EXPECT_EQ(errorOf({"--shots"}), "--shots needs a value");
    EXPECT_EQ(errorOf({"--shots", ""}), "--shots needs a value");
    EXPECT_EQ(errorOf({"--help", "--page"}), "--page needs a value");
}

TEST(CommandLineArguments, ARecordingIsWrittenOrPlayed) {
    std::string error;
    const auto recording = CommandLineArguments::parse({"--record", "a b.jsonl", "--page", "Weight"}, error);
    ASSERT_TRUE(recording) << error;
    EXPECT_EQ(recording->recordingToWrite, "a b.jsonl");
    EXPECT_FALSE(recording->recordingToPlay);
    const auto replay = CommandLineArguments::parse({"--shots", "pictures", "--replay", "a b.jsonl"}, error);
    ASSERT_TRUE(replay) << error;
    EXPECT_EQ(replay->recordingToPlay, "a b.jsonl");
    EXPECT_EQ(replay->pictureFolder, "pictures");
    EXPECT_FALSE(replay->recordingToWrite);
    EXPECT_FALSE(CommandLineArguments::parse({}, error)->recordingToWrite);
    EXPECT_FALSE(CommandLineArguments::parse({}, error)->recordingToPlay);
    for (const char* option : {"--record", "--replay"}) {
        EXPECT_EQ(errorOf({option}), std::string(option) + " needs a value");
        EXPECT_EQ(errorOf({option, ""}), std::string(option) + " needs a value");
    }
}

TEST(CommandLineArguments, ARecordingNeedsAWindow) {
    const std::string reason = "--record needs a window, and goes with neither --replay nor --shots";
    EXPECT_EQ(errorOf({"--record", "a", "--replay", "a"}), reason);
    EXPECT_EQ(errorOf({"--replay", "a", "--record", "b"}), reason);
    EXPECT_EQ(errorOf({"--shots", "pictures", "--record", "a"}), reason);
}

TEST(CommandLineArguments, SizesLieBetweenASmallPhoneAndALargeScreen) {
    EXPECT_EQ(errorOf({"--size", "320x320"}), "none");
    EXPECT_EQ(errorOf({"--size", "4096x4096"}), "none");
    for (const char* wrong : {"319x640", "640x319", "4097x640", "640x4097", "640", "x640", "640x", "640x480x2", "-640x480", "6.4e2x480",
                              "64000000000x480", "640 x480"}) {
        EXPECT_EQ(errorOf({"--size", wrong}),
                  std::string("--size is a width and a height of 320 to 4096 points, such as 900x640, and not ") + wrong);
    }
}

TEST(CommandLineArguments, ScalesAreOneToFour) {
    EXPECT_EQ(errorOf({"--scale", "1"}), "none");
    EXPECT_EQ(errorOf({"--scale", "4"}), "none");
    for (const char* wrong : {"0", "5", "-1", "1.5", "two", "99999999999"}) {
        EXPECT_EQ(errorOf({"--scale", wrong}), std::string("--scale is 1, 2, 3 or 4, and not ") + wrong);
    }
}

TEST(CommandLineArguments, TextScalesAreThoseOfTheStyleSheet) {
    std::string error;
    for (const auto& [text, scale] :
         std::vector<std::pair<std::string, double>>{{"0.8", 0.8}, {"1", 1}, {"1.3", 1.3}, {"2.0", 2}, {"3", 3}}) {
        const auto parsed = CommandLineArguments::parse({"--text-scale", text}, error);
        ASSERT_TRUE(parsed) << text;
        EXPECT_EQ(parsed->textScale, scale);
    }
    for (const char* text : {"0.7", "3.1", "4", "0", "1.25", "1.", ".9", "-1", "large", "1.x"}) {
        EXPECT_EQ(errorOf({"--text-scale", text}), std::string("--text-scale is 0.8 to 3, such as 1.3, and not ") + text);
    }
}

TEST(CommandLineArguments, ContrastIsNormalOrHigh) {
    std::string error;
    EXPECT_TRUE(CommandLineArguments::parse({"--contrast", "high"}, error)->isContrastHigh);
    EXPECT_FALSE(CommandLineArguments::parse({"--contrast", "normal"}, error)->isContrastHigh);
    EXPECT_EQ(errorOf({"--contrast", "low"}), "--contrast is normal or high, and not low");
    EXPECT_EQ(errorOf({"--contrast"}), "--contrast needs a value");
}
