// Lines of a recording, right and damaged ones.

#include <gtest/gtest.h>

#include "LineReader.h"
#include "Recording.h"

using namespace gallery;
using namespace gx;

namespace {

using Kind = RecordedEvent::Kind;

RecordedEvent eventOf(const std::string& line) {
    std::string error;
    const auto event = RecordedEvent::eventOfLine(line, error);
    EXPECT_TRUE(event) << line << ": " << error;
    EXPECT_EQ(error, "");
    return event.value_or(RecordedEvent());
}

std::string errorOf(const std::string& line) {
    std::string error;
    EXPECT_FALSE(RecordedEvent::eventOfLine(line, error)) << line;
    return error;
}

std::string errorOfText(const std::string& text) {
    std::string error;
    EXPECT_FALSE(Recording::recordingOfText(text, error));
    return error;
}

const std::string tick = R"({"time":1.5,"event":"tick"})";

} // namespace

TEST(RecordedEvent, IsOneLineOfJson) {
    RecordedEvent event;
    event.kind = Kind::TouchMoved;
    event.time = 1.25;
    event.finger = -1;
    event.point = {310, 200.5};
    EXPECT_EQ(event.line(), R"({"time":1.25,"event":"touchMoved","finger":-1,"x":310.0,"y":200.5})");
    event = {};
    event.kind = Kind::Key;
    event.time = 2;
    event.key = {UIKey::Code::Character, "5\n\"é", UIKey::Shift | UIKey::Command, true, 0};
    EXPECT_EQ(event.line(), R"({"time":2.0,"event":"key","key":"character","text":"5\n\"é","modifiers":9,"isRepeat":true})");
}

TEST(RecordedEvent, ComesBackFromItsLine) {
    for (const char* const line :
         {R"({"time":0.1,"event":"touchBegan","finger":9223372036854775807,"x":0.1,"y":-3.0})",
          R"({"time":0.1,"event":"touchEnded","finger":0,"x":1e-300,"y":123456.78901234567})",
          R"({"time":-5.5,"event":"touchCancelled","finger":-9223372036854775808})",
          R"({"time":1.0,"event":"scroll","x":1.0,"y":2.0,"isInPoints":true,"dx":0.5,"dy":-1.5,"isFinished":true})",
          R"({"time":1.0,"event":"scroll","x":1.0,"y":2.0,"isInPoints":false,"dx":0.0,"dy":1.0,"isFinished":false})",
          R"({"time":1.0,"event":"pointerMoved","x":1.0,"y":2.0})",
          R"({"time":1.0,"event":"pointerLeft"})",
          R"({"time":1.0,"event":"key","key":"pageDown","text":"","modifiers":15,"isRepeat":false})",
          R"({"time":1.0,"event":"receivesKeys","isOn":true})",
          R"({"time":1.0,"event":"focusTaken"})",
          R"({"time":1.0,"event":"action","action":"increment","element":[2,0]})",
          R"({"time":1.0,"event":"action","action":"decrement","element":[0]})",
          R"({"time":1.0,"event":"action","action":"setNumber","element":[2,1],"number":-12.7})",
          R"({"time":1.0,"event":"action","action":"focus","element":[]})",
          R"({"time":1.0,"event":"action","action":"activate","element":[9223372036854775807]})",
          R"({"time":1.0,"event":"animationsFinished"})",
          R"({"time":1.0,"event":"size","width":320.0,"height":0.0})",
          R"({"time":1.0,"event":"look","isOn":true})",
          R"({"time":1.0,"event":"contrast","isOn":false})",
          R"({"time":1.0,"event":"motion","isOn":true})",
          R"({"time":1.0,"event":"tick"})",
          R"({"time":1.0,"event":"draw"})",
          R"({"time":1.0,"event":"pass"})",
          R"({"time":1.0,"event":"file","name":"a.json","text":"{\n}","error":""})",
          R"({"time":1.0,"event":"picture","name":"mark-1"})"}) {
        EXPECT_EQ(eventOf(line).line(), line);
    }
}

TEST(RecordedEvent, NumbersKeepEveryBit) {
    RecordedEvent event;
    for (const double time : {0.1, 1.0 / 3, 5e-324, 1234.5678901234567, 1e11}) {
        event.time = time;
        EXPECT_EQ(eventOf(event.line()).time, time);
    }
}

TEST(RecordedEvent, TypedTextThatIsNoUtf8IsReplaced) {
    RecordedEvent event;
    event.kind = Kind::Key;
    event.key.characters = "a\xFF";
    EXPECT_EQ(eventOf(event.line()).key.characters, "a\uFFFD");
}

TEST(RecordedEvent, DamagedLinesAreRefusedWithTheirReason) {
    EXPECT_EQ(errorOf(""), "this is no JSON; the line may be cut off");
    EXPECT_EQ(errorOf(tick.substr(0, tick.size() - 1)), "this is no JSON; the line may be cut off");
    EXPECT_EQ(errorOf("[1]"), "this is no object");
    EXPECT_EQ(errorOf("{}"), "\"time\" is missing");
    EXPECT_EQ(errorOf(R"({"time":"1","event":"tick"})"), "\"time\" is no number in its range");
    EXPECT_EQ(errorOf(R"({"time":1e13,"event":"tick"})"), "\"time\" is no number in its range");
    EXPECT_EQ(errorOf(R"({"time":1e999,"event":"tick"})"), "this is no JSON; the line may be cut off");
    EXPECT_EQ(errorOf(R"({"time":null,"event":"tick"})"), "\"time\" is no number in its range");
    EXPECT_EQ(errorOf(R"({"time":1})"), "\"event\" is missing");
    EXPECT_EQ(errorOf(R"({"time":1,"event":7})"), "\"event\" is no text");
    EXPECT_EQ(errorOf(R"({"time":1,"event":"explode"})"), "\"explode\" is not known here");
    EXPECT_EQ(errorOf(R"({"time":1,"event":"touchBegan","finger":1.5,"x":0,"y":0})"), "\"finger\" is no whole number");
    EXPECT_EQ(errorOf(R"({"time":1,"event":"touchBegan","finger":9223372036854775808,"x":0,"y":0})"), "\"finger\" is no whole number");
    EXPECT_EQ(errorOf(R"({"time":1,"event":"touchBegan","finger":1,"x":0})"), "\"y\" is missing");
    EXPECT_EQ(errorOf(R"({"time":1,"event":"look","isOn":1})"), "\"isOn\" is neither true nor false");
    EXPECT_EQ(errorOf(R"({"time":1,"event":"size","width":-1,"height":100})"), "\"width\" is no number in its range");
    EXPECT_EQ(errorOf(R"({"time":1,"event":"size","width":32768,"height":100})"), "\"width\" is no number in its range");
    EXPECT_EQ(errorOf(R"({"time":1,"event":"size","width":4096,"height":4097})"), R"("width" times "height" is too large)");
    EXPECT_EQ(errorOf(R"({"time":1,"event":"key","key":"F1","text":"","modifiers":0,"isRepeat":false})"), "\"F1\" is not known here");
    EXPECT_EQ(errorOf(R"({"time":1,"event":"key","key":"up","text":"","modifiers":16,"isRepeat":false})"),
              "\"modifiers\" are not known here");
    EXPECT_EQ(errorOf("{\"time\":1,\"event\":\"\xFF\"}"), "this is no JSON; the line may be cut off");
    EXPECT_EQ(errorOf(std::string(LineReader::longestLine + 1, ' ')), "the line is too long");
}

TEST(RecordedEvent, AWindowMayCoverSeveralScreens) {
    RecordedEvent event;
    event.kind = Kind::Size;
    for (const CGSize size : {CGSizeMake(32767, 512), CGSizeMake(5120, 2880), CGSizeMake(4096, 4096), CGSizeMake(0, 9000)}) {
        event.size = size;
        EXPECT_EQ(eventOf(event.line()).size, size);
    }
}

TEST(RecordedEvent, DamagedActionsAreRefusedWithTheirReason) {
    const auto action = [](const std::string& members) { return R"({"time":1,"event":"action",)" + members + "}"; };
    EXPECT_EQ(errorOf(action(R"("action":"explode","element":[])")), "\"explode\" is not known here");
    EXPECT_EQ(errorOf(action(R"("element":[])")), "\"action\" is missing");
    EXPECT_EQ(errorOf(action(R"("action":"focus")")), "\"element\" is missing");
    for (const char* const list : {"1", "{}", "[1.5]", "[\"1\"]", "[1,null]", "[9223372036854775808]"}) {
        EXPECT_EQ(errorOf(action(R"("action":"focus","element":)" + std::string(list))), "\"element\" is no list of whole numbers") << list;
    }
    std::string longest = "0";
    for (std::size_t i = 1; i < LineReader::longestList; ++i) longest += ",0";
    EXPECT_EQ(eventOf(action(R"("action":"focus","element":[)" + longest + "]")).element.size(), LineReader::longestList);
    EXPECT_EQ(errorOf(action(R"("action":"focus","element":[0,)" + longest + "]")), "\"element\" is no list of whole numbers");
    EXPECT_EQ(errorOf(action(R"("action":"setNumber","element":[])")), "\"number\" is missing");
    EXPECT_EQ(errorOf(action(R"("action":"setNumber","element":[],"number":1e13)")), "\"number\" is no number in its range");
}

TEST(RecordedEvent, NamesOfPicturesStayInTheirFolder) {
    const auto picture = [](const std::string& name) { return R"({"time":1,"event":"picture","name":")" + name + "\"}"; };
    EXPECT_EQ(eventOf(picture("Mark-12")).name, "Mark-12");
    for (const std::string& name : {std::string(), std::string("../a"), std::string("a/b"), std::string("a.png"), std::string(65, 'a')}) {
        EXPECT_EQ(errorOf(picture(name)), "\"name\" is no name of letters, digits and \"-\"") << name;
    }
}

TEST(Recording, BeginsWithWhatTheGalleryWasStartedWith) {
    RecordingStart start;
    start.size = {390, 844};
    start.locale = "de_CH";
    start.page = "Heart rate";
    EXPECT_EQ(start.line(), R"({"format":"GXUIPickers recording","version":1,"width":390.0,"height":844.0,"scale":1.0,"locale":"de_CH",)"
                            R"("decimalSeparator":".","isRightToLeft":false,"textScale":1.0,"isContrastHigh":false,"isDark":false,)"
                            R"("offersClicks":false,"page":"Heart rate"})");
    std::string error;
    const auto recording = Recording::recordingOfText(start.line() + "\n" + tick + "\n" + tick + "\n", error);
    ASSERT_TRUE(recording) << error;
    EXPECT_EQ(recording->start.line(), start.line());
    EXPECT_EQ(recording->events.size(), 2U);
}

TEST(Recording, ErrorsNameTheLine) {
    const std::string start = RecordingStart().line() + "\n";
    EXPECT_EQ(errorOfText(""), "line 1: this is no JSON; the line may be cut off");
    EXPECT_EQ(errorOfText("{}"), "line 1: \"format\" is missing");
    EXPECT_EQ(errorOfText(tick), "line 1: \"format\" is missing");
    EXPECT_EQ(errorOfText(start + tick + "\n" + tick.substr(0, 10)), "line 3: this is no JSON; the line may be cut off");
    EXPECT_EQ(errorOfText(start + "\n" + tick + "\n"), "line 2: this is no JSON; the line may be cut off");
    EXPECT_EQ(errorOfText(start + start), "line 2: \"time\" is missing");
    std::string newer = start;
    newer.replace(newer.find("\"version\":1"), 11, "\"version\":2");
    EXPECT_EQ(errorOfText(newer), "line 1: this was recorded by a newer version of the gallery");
    std::string other = start;
    other.replace(other.find("GXUIPickers recording"), 21, "GXUIPickers workout");
    EXPECT_EQ(errorOfText(other), "line 1: this is no recording of the gallery");
    std::string large = start;
    large.replace(large.find("\"textScale\":1.0"), 15, "\"textScale\":9.0");
    EXPECT_EQ(errorOfText(large), "line 1: \"textScale\" is no number in its range");
}

TEST(Recording, MayStartInAWindowOverSeveralScreens) {
    RecordingStart wide;
    wide.size = {7680, 2160};
    std::string error;
    const auto recording = Recording::recordingOfText(wide.line() + "\n", error);
    ASSERT_TRUE(recording) << error;
    EXPECT_EQ(recording->start.size, wide.size);
}

TEST(Recording, EveryCutAndEveryChangedByteIsReadOrRefused) {
    RecordedEvent key;
    key.kind = Kind::Key;
    key.key = {UIKey::Code::Character, "5", 0, false, 0};
    const std::string whole = RecordingStart().line() + "\n" + key.line() + "\n" + tick + "\n";
    std::size_t refused = 0;
    for (std::size_t i = 0; i < whole.size(); ++i) {
        std::string error;
        const bool isCutRead = Recording::recordingOfText(whole.substr(0, i), error).has_value();
        EXPECT_NE(isCutRead, error.starts_with("line ")) << i;
        for (const char other : {'\0', '"', '9', '}', '\xFF'}) {
            std::string changed = whole;
            changed[i] = other;
            std::string reason;
            const bool isRead = Recording::recordingOfText(changed, reason).has_value();
            EXPECT_NE(isRead, reason.starts_with("line ")) << i;
            refused += isRead ? 0 : 1;
        }
    }
    EXPECT_GT(refused, whole.size());
}

TEST(RecordingStart, OffersClicksWhereTheyWereOffered) {
    RecordingStart start;
    EXPECT_EQ(start.makeScreen()->settings().clicks, std::nullopt);
    start.offersClicks = true;
    EXPECT_EQ(start.makeScreen()->settings().clicks, false);
}

TEST(RecordingStart, APageThatDoesNotExistMakesNoScreen) {
    RecordingStart start;
    start.page = "Nowhere";
    EXPECT_FALSE(start.makeScreen());
    start.page = "heart RATE";
    const auto screen = start.makeScreen();
    ASSERT_TRUE(screen);
    EXPECT_EQ(screen->page()->name(), "Heart rate");
}
