#include "ScenarioRun.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>

#include "GXLocalization.h"
#include "NSLocale.h"
#include "NSRunLoop.h"
#include "UIAccessibility.h"

using namespace gx;

namespace scenarios {

namespace {

constexpr double frameTime = 1.0 / 60;

/// Texts and separators of a language, read in a direction of the scenario's own.
void setSurroundings(const Json& scenario) {
    const std::string language = scenario.value("language", "en");
    GXLocalization::setSharedLocalization(nullptr);
    GXLocalization::sharedLocalization()->setLanguage(language);
    const Ref<NSLocale> locale = NSLocale::localeWithIdentifier(language);
    const bool isRightToLeft = scenario.value("direction", "ltr") == "rtl";
    locale->setCharacterDirection(isRightToLeft ? NSLocaleLanguageDirection::RightToLeft : NSLocaleLanguageDirection::LeftToRight);
    NSLocale::setCurrentLocale(locale);
}

/// Without the sign of a zero.
double plain(double value) { return value + 0.0; }

} // namespace

ScenarioRun::ScenarioRun(const Json& scenario) : scenario_(scenario) {
    setSurroundings(scenario);
    const CGSize size = {scenario.at("size").at(0).get<double>(), scenario.at("size").at(1).get<double>()};
    picker_ = ScenarioPicker::pickerOfKind(scenario.at("picker").get<std::string>(), scenario.value("options", Json::object()));
    window_ = create<UIWindow>(CGRect{{}, size});
    window_->setHost(this);
    window_->setReducesMotion(scenario.value("reducedMotion", false));
    picker_->view()->setFrame(window_->bounds());
    window_->addSubview(picker_->view());
    picker_->reload();
    shown_ = picker_->selected();
    call([this] { window_->tick(now_); });
}

ScenarioRun::~ScenarioRun() {
    window_->setHost(nullptr);
    NSLocale::setCurrentLocale(nullptr);
    GXLocalization::setSharedLocalization(nullptr);
}

Json ScenarioRun::play() {
    Json states = Json::array();
    for (const Json& step : scenario_.at("steps")) {
        SCOPED_TRACE(step.dump());
        if (step.at(0) == "state") {
            states.push_back(state());
        } else {
            playStep(step);
        }
    }
    return states;
}

void ScenarioRun::playStep(const Json& step) {
    const std::string& name = step.at(0).get_ref<const std::string&>();
    const std::map<std::string, std::function<void()>> steps = {
        {"down", [&] { touch(step); }},
        {"move", [&] { touch(step); }},
        {"up", [&] { touch(step); }},
        {"cancel", [&] { call([&] { window_->touchCancelled_at_time(step.at(1).get<std::int64_t>(), now_); }); }},
        {"glide", [&] { glide(step); }},
        {"notches", [&] { scroll(step); }},
        {"points", [&] { scroll(step); }},
        {"key", [&] { key(step); }},
        {"type", [&] { type(step.at(1).get<std::string>()); }},
        {"focus", [&] { focusColumn(step.at(1).get<std::size_t>()); }},
        {"set",
         [&] {
             call([&] { picker_->set(step.at(1).get<std::string>(), step.at(2)); });
             shown_ = picker_->selected();
         }},
        {"finish", [&] { call([&] { window_->finishAnimations(); }); }},
        {"wait", [&] { wait(step.at(1).get<double>()); }},
        {"expect", [&] { expect(step.at(1)); }},
    };
    const auto found = steps.find(name);
    ASSERT_NE(found, steps.end()) << "no such step";
    found->second();
}

void ScenarioRun::touch(const Json& step) {
    const auto finger = step.at(1).get<std::int64_t>();
    const CGPoint place = placeIn(step.at(2).get<std::size_t>(), step.at(3).get<double>());
    call([&] {
        if (step.at(0) == "down") {
            window_->touchBegan_at_time(finger, place, now_);
        } else if (step.at(0) == "move") {
            window_->touchMoved_at_time(finger, place, now_);
        } else {
            window_->touchEnded_at_time(finger, place, now_);
        }
    });
}

void ScenarioRun::glide(const Json& step) {
    const double from = step.at(3).get<double>();
    const double to = step.at(4).get<double>();
    const int parts = step.at(5).get<int>();
    for (int i = 1; i <= parts; ++i) {
        wait(step.at(6).get<double>());
        touch({"move", step.at(1), step.at(2), from + (to - from) * i / parts});
    }
}

void ScenarioRun::scroll(const Json& step) {
    const bool isNotches = step.at(0) == "notches";
    const CGPoint place = placeIn(step.at(1).get<std::size_t>(), 0);
    const double delta = step.at(2).get<double>();
    call([&] { window_->scroll({isNotches ? UIScroll::Unit::Notches : UIScroll::Unit::Points, 0, delta, now_, place, false}); });
    if (isNotches) return;
    // The pause that ends a stroke on a trackpad.
    wait(0.12);
    call([&] { window_->scroll({UIScroll::Unit::Points, 0, 0, now_, place, true}); });
}

void ScenarioRun::key(const Json& step) {
    const std::map<std::string, UIKey::Code> codes = {{"ArrowLeft", UIKey::Code::Left}, {"ArrowRight", UIKey::Code::Right},
                                                      {"ArrowUp", UIKey::Code::Up},     {"ArrowDown", UIKey::Code::Down},
                                                      {"PageUp", UIKey::Code::PageUp},  {"PageDown", UIKey::Code::PageDown},
                                                      {"Home", UIKey::Code::Home},      {"End", UIKey::Code::End}};
    const bool isRepeat = step.size() > 2 && step.at(2) == "repeat";
    call([&] { window_->keyDown({codes.at(step.at(1).get<std::string>()), {}, 0, isRepeat, now_}); });
}

void ScenarioRun::focusColumn(std::size_t column) {
    // On a page, an element that has the focus already gets no event.
    if (columns().at(column)->isFocused()) return;
    call([&] {
        window_->setReceivesKeys(true);
        columns().at(column)->focus();
    });
}

void ScenarioRun::type(const std::string& text) {
    for (const char character : text) {
        call([&] { window_->keyDown({UIKey::Code::Character, std::string(1, character), 0, false, now_}); });
        frame(frameTime);
    }
}

void ScenarioRun::wait(double seconds) {
    const double end = now_ + seconds;
    while (now_ + frameTime < end) frame(frameTime);
    frame(end - now_);
}

void ScenarioRun::frame(double seconds) {
    now_ += seconds;
    if (!std::exchange(needsFrame_, false)) return;
    call([this] {
        if (window_->tick(now_)) needsFrame_ = true;
    });
}

void ScenarioRun::expect(const Json& expected) {
    for (const auto& [name, value] : expected.items()) {
        if (name == "text") {
            EXPECT_EQ(picker_->text(), value.get<std::string>());
        } else if (name == "changes") {
            Json reported = Json::array();
            for (const Json& change : changes_) reported.push_back(change.at(1));
            ASSERT_EQ(reported.size(), value.size()) << changes_;
            for (std::size_t i = 0; i < value.size(); ++i)
                for (const auto& [part, number] : value[i].items()) EXPECT_EQ(reported[i].at(part), number) << part;
        } else if (name == "rows passed") {
            EXPECT_EQ(rows_, value.get<NSInteger>());
        } else {
            EXPECT_EQ(picker_->values().at(name), value) << name;
        }
    }
}

Json ScenarioRun::state() {
    EXPECT_FALSE(needsFrame_) << "a state is one of rest: wait longer";
    Json found;
    found["values"] = picker_->values();
    found["text"] = picker_->text();
    found["columns"] = Json::array();
    for (const auto& column : columns()) {
        const auto numbers = column->numbers();
        Json told = Json::array();
        for (const double UIAccessibilityNumbers::*part :
             {&UIAccessibilityNumbers::value, &UIAccessibilityNumbers::minimum, &UIAccessibilityNumbers::maximum})
            told.push_back(numbers ? Json(plain((*numbers).*part)) : Json());
        told.push_back(column->value().value_or(""));
        found["columns"].push_back(std::move(told));
    }
    found["inputs"] = {std::exchange(inputs_, 0), std::exchange(rows_, 0), std::exchange(moments_, 0)};
    found["changes"] = std::exchange(changes_, Json::array());
    return found;
}

void ScenarioRun::call(const std::function<void()>& work) {
    work();
    NSRunLoop::mainRunLoop()->runPass();
    if (passedRows_ > 0) {
        ++inputs_;
        rows_ += passedRows_;
        moments_ += static_cast<double>(passedRows_) * (now_ - 1000);
        passedRows_ = 0;
    }
    if (!picker_->takeReport()) return;
    Json selected = picker_->selected();
    if (selected == shown_) return;
    shown_ = std::move(selected);
    changes_.push_back({now_ - 1000, picker_->values()});
}

UIAccessibilityElements ScenarioRun::columns() const {
    UIAccessibilityElements found = picker_->view()->accessibilityElements();
    const auto isOther = [](const Ref<UIAccessibilityElement>& element) { return element->role() != UIAccessibilityRole::Adjustable; };
    found.erase(std::remove_if(found.begin(), found.end(), isOther), found.end());
    return found;
}

CGPoint ScenarioRun::placeIn(std::size_t column, double points) const {
    const CGRect frame = columns().at(column)->frame();
    return {std::floor(CGRectGetMidX(frame)), std::floor(CGRectGetMidY(frame)) + points};
}

} // namespace scenarios
