#include "RecordedEvent.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "LineReader.h"

using namespace gx;

namespace gallery {

namespace {

using Json = nlohmann::ordered_json;
using Kind = RecordedEvent::Kind;

template <class Value>
struct Named {
    Value value;
    std::string_view name;
};

constexpr std::array<Named<Kind>, 21> kinds = {{{Kind::TouchBegan, "touchBegan"},
                                                {Kind::TouchMoved, "touchMoved"},
                                                {Kind::TouchEnded, "touchEnded"},
                                                {Kind::TouchCancelled, "touchCancelled"},
                                                {Kind::Scroll, "scroll"},
                                                {Kind::PointerMoved, "pointerMoved"},
                                                {Kind::PointerLeft, "pointerLeft"},
                                                {Kind::Key, "key"},
                                                {Kind::ReceivesKeys, "receivesKeys"},
                                                {Kind::FocusTaken, "focusTaken"},
                                                {Kind::Action, "action"},
                                                {Kind::AnimationsFinished, "animationsFinished"},
                                                {Kind::Size, "size"},
                                                {Kind::Look, "look"},
                                                {Kind::Contrast, "contrast"},
                                                {Kind::Motion, "motion"},
                                                {Kind::Tick, "tick"},
                                                {Kind::Draw, "draw"},
                                                {Kind::Pass, "pass"},
                                                {Kind::File, "file"},
                                                {Kind::Picture, "picture"}}};

using Action = UIAccessibilityAction::Kind;
constexpr std::array<Named<Action>, 5> actions = {{{Action::Increment, "increment"},
                                                   {Action::Decrement, "decrement"},
                                                   {Action::SetNumber, "setNumber"},
                                                   {Action::Focus, "focus"},
                                                   {Action::Activate, "activate"}}};

constexpr std::array<Named<UIKey::Code>, 15> codes = {{{UIKey::Code::None, "none"},
                                                       {UIKey::Code::Character, "character"},
                                                       {UIKey::Code::Left, "left"},
                                                       {UIKey::Code::Right, "right"},
                                                       {UIKey::Code::Up, "up"},
                                                       {UIKey::Code::Down, "down"},
                                                       {UIKey::Code::PageUp, "pageUp"},
                                                       {UIKey::Code::PageDown, "pageDown"},
                                                       {UIKey::Code::Home, "home"},
                                                       {UIKey::Code::End, "end"},
                                                       {UIKey::Code::Tab, "tab"},
                                                       {UIKey::Code::BackTab, "backTab"},
                                                       {UIKey::Code::Return, "return"},
                                                       {UIKey::Code::Escape, "escape"},
                                                       {UIKey::Code::Space, "space"}}};

template <class Names, class Value>
std::string nameOf(const Names& names, Value value) {
    const auto found = std::find_if(names.begin(), names.end(), [value](const auto& entry) { return entry.value == value; });
    return found == names.end() ? std::string() : std::string(found->name);
}

template <class Names>
auto valueOf(const Names& names, const std::string& name, LineReader& reader) {
    const auto found = std::find_if(names.begin(), names.end(), [&name](const auto& entry) { return entry.name == name; });
    if (found != names.end()) return found->value;
    reader.refuse("\"" + name + "\" is not known here");
    return names.front().value;
}

bool isTouch(Kind kind) {
    return kind == Kind::TouchBegan || kind == Kind::TouchMoved || kind == Kind::TouchEnded || kind == Kind::TouchCancelled;
}
bool hasPoint(Kind kind) { return (isTouch(kind) && kind != Kind::TouchCancelled) || kind == Kind::Scroll || kind == Kind::PointerMoved; }
bool hasFlag(Kind kind) { return kind == Kind::ReceivesKeys || kind == Kind::Look || kind == Kind::Contrast || kind == Kind::Motion; }

void readScroll(LineReader& reader, UIScroll& scroll) {
    scroll.unit = reader.flag("isInPoints") ? UIScroll::Unit::Points : UIScroll::Unit::Notches;
    scroll.deltaX = reader.number("dx");
    scroll.deltaY = reader.number("dy");
    scroll.isFinished = reader.flag("isFinished");
}

void readKey(LineReader& reader, UIKey& key) {
    constexpr std::int64_t allModifiers = UIKey::Shift | UIKey::Control | UIKey::Alternate | UIKey::Command;
    key.code = valueOf(codes, reader.text("key"), reader);
    key.characters = reader.text("text");
    const std::int64_t modifiers = reader.integer("modifiers");
    if (modifiers < 0 || modifiers > allModifiers) reader.refuse("\"modifiers\" are not known here");
    key.modifiers = static_cast<unsigned>(modifiers & allModifiers);
    key.isRepeat = reader.flag("isRepeat");
}

void readAction(LineReader& reader, RecordedEvent& event) {
    event.action.kind = valueOf(actions, reader.text("action"), reader);
    event.element = reader.integers("element");
    if (event.action.kind == Action::SetNumber) event.action.number = reader.number("number");
}

void readFile(LineReader& reader, UserFiles::Outcome& file) {
    file.name = reader.text("name");
    file.text = reader.text("text");
    file.error = reader.text("error");
}

/// A picture becomes a file of that name.
void checkName(LineReader& reader, const std::string& name) {
    constexpr std::size_t longest = 64;
    const bool isPlain = std::all_of(name.begin(), name.end(), [](char letter) {
        return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z') || (letter >= '0' && letter <= '9') || letter == '-';
    });
    if (name.empty() || name.size() > longest || !isPlain) reader.refuse(R"("name" is no name of letters, digits and "-")");
}

} // namespace

std::string RecordedEvent::line() const {
    Json json = {{"time", time}, {"event", nameOf(kinds, kind)}};
    if (isTouch(kind)) json["finger"] = finger;
    if (hasPoint(kind)) {
        json["x"] = point.x;
        json["y"] = point.y;
    }
    if (hasFlag(kind)) json["isOn"] = isOn;
    if (kind == Kind::Scroll) {
        json["isInPoints"] = scroll.unit == UIScroll::Unit::Points;
        json["dx"] = scroll.deltaX;
        json["dy"] = scroll.deltaY;
        json["isFinished"] = scroll.isFinished;
    }
    if (kind == Kind::Key) {
        json["key"] = nameOf(codes, key.code);
        json["text"] = key.characters;
        json["modifiers"] = key.modifiers;
        json["isRepeat"] = key.isRepeat;
    }
    if (kind == Kind::Action) {
        json["action"] = nameOf(actions, action.kind);
        json["element"] = element;
        if (action.kind == UIAccessibilityAction::Kind::SetNumber) json["number"] = action.number;
    }
    if (kind == Kind::Size) {
        json["width"] = size.width;
        json["height"] = size.height;
    }
    if (kind == Kind::File) {
        json["name"] = file.name;
        json["text"] = file.text;
        json["error"] = file.error;
    }
    if (kind == Kind::Picture) json["name"] = name;
    // A text that is no UTF-8 must not end the recording.
    return json.dump(-1, ' ', /*ensure_ascii=*/false, Json::error_handler_t::replace);
}

std::optional<RecordedEvent> RecordedEvent::eventOfLine(const std::string& line, std::string& error) {
    LineReader reader(line);
    RecordedEvent event;
    event.time = reader.number("time");
    event.kind = valueOf(kinds, reader.text("event"), reader);
    if (isTouch(event.kind)) event.finger = reader.integer("finger");
    if (hasPoint(event.kind)) event.point = {reader.number("x"), reader.number("y")};
    if (hasFlag(event.kind)) event.isOn = reader.flag("isOn");
    if (event.kind == Kind::Scroll) readScroll(reader, event.scroll);
    if (event.kind == Kind::Key) readKey(reader, event.key);
    if (event.kind == Kind::Action) readAction(reader, event);
    if (event.kind == Kind::Size) event.size = reader.size(0);
    if (event.kind == Kind::File) readFile(reader, event.file);
    if (event.kind == Kind::Picture) {
        event.name = reader.text("name");
        checkName(reader, event.name);
    }
    if (reader.isGood()) return event;
    error = reader.error();
    return std::nullopt;
}

} // namespace gallery
