#include <gtest/gtest.h>

#include <cmath>

#include <UIPickerView.h>

#include "PageStub.h"
#include "WebRegistry.h"

using namespace gx;
using namespace gx::web;
using namespace gx::elements;
using Texts = std::vector<std::string>;

namespace {

struct WebElementTest : testing::Test {
    WebElementTest() { PageStub::reset(); }
    ~WebElementTest() override {
        UITextEngine::setShared(nullptr);
        GXStyleSheet::setGlobalStyleSheet(nullptr);
        GXLocalization::setSharedLocalization(nullptr);
        NSLocale::setCurrentLocale(nullptr);
    }

    static WebSurroundings surroundings(const std::string& language = "en", double size = 22) {
        WebSurroundings result;
        result.styleSheet()->setFonts({1, size, 2, size});
        result.setLanguage_isRightToLeft(language, false);
        return result;
    }
    std::unique_ptr<WebElement> opened(PickerKind kind, const std::string& language = "en") const {
        auto element = std::make_unique<WebElement>(5, kind, surroundings(language));
        if (!element->exists()) return element;
        element->setSize({320, 216});
        return element;
    }
    void draw(WebElement& element) {
        const WebElement::Visit visit(element);
        page.texts.clear();
        page.rects.clear();
        page.images.clear();
        element.tick(now);
        element.draw();
    }
    void run(WebElement& element, double seconds) {
        const WebElement::Visit visit(element);
        for (const double end = now + seconds; now < end; now += 1.0 / 60) element.tick(now);
    }
    /// A finger that takes a column up by so many points and rests before it lets go.
    void drag(WebElement& element, CGPoint from, double points) {
        const WebElement::Visit visit(element);
        ASSERT_TRUE(element.host().touchBegan(1, from, now));
        for (int i = 1; i <= 10; ++i) {
            run(element, 1.0 / 60);
            element.window().touchMoved_at_time(1, {from.x, from.y - points * i / 10}, now);
        }
        run(element, 0.2);
        element.window().touchEnded_at_time(1, {from.x, from.y - points}, now);
    }

    double now = 1000;
    PageStub& page = PageStub::page();
};

constexpr CGPoint kilometres = {140, 108};

} // namespace

TEST_F(WebElementTest, EachKindOpensAndShowsSomething) {
    for (int kind = 0; kind < static_cast<int>(PickerKind::Count); ++kind) {
        const auto element = opened(static_cast<PickerKind>(kind));
        ASSERT_TRUE(element->exists()) << kind;
        if (element->columns()) element->columns()->setRowCounts({3});
        draw(*element);
        const bool needsIcons = static_cast<PickerKind>(kind) == PickerKind::Icon;
        EXPECT_EQ(page.texts.empty(), needsIcons) << kind;
    }
}

TEST_F(WebElementTest, AKindThatDoesNotExistOpensNothing) {
    EXPECT_FALSE(opened(PickerKind::Count)->exists());
    EXPECT_FALSE(opened(static_cast<PickerKind>(-1))->exists());
}

TEST_F(WebElementTest, ADistanceIsShownInItsUnitWithSeparatorAndLabel) {
    const auto element = opened(PickerKind::Distance);
    EXPECT_TRUE(element->picker().set(PickerProperty::Metric, 1));
    EXPECT_TRUE(element->picker().set(PickerProperty::Value, 5300));
    draw(*element);
    EXPECT_EQ(page.middleRows(), (Texts{"5", "3"}));
    EXPECT_EQ(page.textsOutsideRows(), (Texts{"km", "."}));
    EXPECT_EQ(element->picker().text(), "5.3 km");
    ASSERT_FALSE(page.rects.empty());
    EXPECT_EQ(page.rects[0].shape, 0);
}

TEST_F(WebElementTest, PropertiesAreReadBackAndUnknownOnesAreNot) {
    const auto element = opened(PickerKind::Distance);
    PropertyPicker& picker = element->picker();
    EXPECT_TRUE(picker.set(PickerProperty::FractionDigits, 2));
    EXPECT_EQ(picker.get(PickerProperty::FractionDigits), 2);
    EXPECT_FALSE(picker.set(PickerProperty::Gap, 2));
    EXPECT_EQ(picker.get(PickerProperty::Gap), std::nullopt);
}

TEST_F(WebElementTest, WhatIsShownIsSelectedAgainAfterAnOption) {
    const auto element = opened(PickerKind::Distance);
    PropertyPicker& picker = element->picker();
    picker.set(PickerProperty::Metric, 1);
    picker.set(PickerProperty::Value, 5340);
    picker.set(PickerProperty::FractionDigits, 2);
    EXPECT_EQ(picker.text(), "5.34 km");
    picker.set(PickerProperty::Metric, 0);
    EXPECT_EQ(picker.text(), "3.31 mi") << "3.318 miles, digits that are not shown cut off";
}

TEST_F(WebElementTest, ElementsOfOnePageHaveTheirOwnLanguages) {
    const auto german = opened(PickerKind::Distance, "de");
    const auto english = opened(PickerKind::Distance, "en");
    for (const auto* element : {&german, &english}) {
        const WebElement::Visit visit(**element);
        (*element)->picker().set(PickerProperty::Metric, 1);
        (*element)->reload();
    }
    draw(*german);
    EXPECT_EQ(page.textsOutsideRows(), (Texts{"km", ","}));
    draw(*english);
    EXPECT_EQ(page.textsOutsideRows(), (Texts{"km", "."}));
}

TEST_F(WebElementTest, ADragReportsOnceAtRest) {
    const auto element = opened(PickerKind::Distance);
    element->picker().set(PickerProperty::Metric, 1);
    draw(*element);
    drag(*element, kilometres, 86); // Two rows and the way before it turns.
    EXPECT_EQ(page.changes, 0);
    EXPECT_EQ(element->liveValue(PickerProperty::Value), 7000);
    EXPECT_EQ(element->picker().get(PickerProperty::Value), 5000);
    EXPECT_GE(page.passedRows, 2);
    run(*element, 2);
    EXPECT_EQ(page.changes, 1);
    EXPECT_EQ(element->picker().get(PickerProperty::Value), 7000);
    EXPECT_EQ(element->liveValue(PickerProperty::Value), 7000);
}

TEST_F(WebElementTest, LargerFontsKeepBothHeartRates) {
    const auto element = opened(PickerKind::HeartRate);
    element->picker().set(PickerProperty::Average, 142);
    element->picker().set(PickerProperty::Maximum, 176);
    element->setFonts({1, 33, 2, 33});
    EXPECT_EQ(element->picker().text(), "AVG 142, MAX 176");
    EXPECT_EQ(element->picker().get(PickerProperty::Value), std::nullopt);
}

TEST_F(WebElementTest, WhatTheProgramSetsIsNotReported) {
    const auto element = opened(PickerKind::HeartRate);
    element->picker().set(PickerProperty::Average, 140);
    run(*element, 2);
    EXPECT_EQ(page.changes, 0);
    EXPECT_EQ(page.passedRows, 0);
    EXPECT_EQ(element->picker().get(PickerProperty::Average), 140);
}

TEST_F(WebElementTest, ATouchBesideTheColumnsIsThePages) {
    const auto element = opened(PickerKind::Distance);
    draw(*element);
    const WebElement::Visit visit(*element);
    EXPECT_FALSE(element->host().touchBegan(1, {5, 108}, now));
    EXPECT_TRUE(element->host().touchBegan(2, kilometres, now));
}

TEST_F(WebElementTest, LargerFontsMakeHigherRowsAndKeepTheValues) {
    const auto element = opened(PickerKind::Distance);
    element->picker().set(PickerProperty::Metric, 1);
    element->picker().set(PickerProperty::Value, 5300);
    const auto rowHeight = [&element] { return element->picker().wheels().front()->rowSizeForComponent(0).height; };
    EXPECT_EQ(rowHeight(), 40);
    element->setFonts({1, 44, 2, 44});
    EXPECT_EQ(rowHeight(), 80);
    EXPECT_EQ(element->picker().get(PickerProperty::Value), 5300);
    EXPECT_EQ(element->picker().text(), "5.3 km");
    draw(*element);
    drag(*element, kilometres, 100);
    run(*element, 2);
    EXPECT_EQ(page.changes, 1) << "the new picker reports";
}

TEST_F(WebElementTest, ColumnsOfThePageShowItsTitles) {
    page.widthOfByte = 5;
    const auto element = opened(PickerKind::Columns);
    page.title = [](int column, double row) { return (column == 0 ? "a" : "b") + std::to_string(static_cast<long>(row)); };
    element->columns()->setRowCounts({3, 1e18});
    element->columns()->setRow_ofColumn(1, 0);
    element->columns()->setRow_ofColumn(9007199254740991, 1);
    draw(*element);
    EXPECT_EQ(page.middleRows(), (Texts{"a1", "b9007199254740991"}));
    EXPECT_EQ(element->picker().text(), "a1 b9007199254740991");
    EXPECT_EQ(element->picker().wheels().front()->numberOfRowsInComponent(1), 9007199254740992) << "the rows that a double counts";
}

TEST_F(WebElementTest, ThePageIsNeverAskedForTitlesOfRowsThatDoNotExist) {
    std::vector<std::pair<int, double>> asked;
    page.title = [&asked](int column, double row) {
        asked.emplace_back(column, row);
        return std::string("a");
    };
    const auto element = opened(PickerKind::Columns);
    element->columns()->setRowCounts({0, 1, 0});
    draw(*element);
    EXPECT_EQ(element->picker().text(), "a");
    const std::pair<int, double> only = {1, 0};
    EXPECT_FALSE(asked.empty());
    for (const std::pair<int, double>& row : asked) EXPECT_EQ(row, only);
}

TEST_F(WebElementTest, IconsAreThePagesPictures) {
    const auto element = opened(PickerKind::Icon);
    auto images = std::make_shared<GXIconPickerView::Images>();
    for (int i = 0; i < 3; ++i) images->push_back(UIImage::imageWithHostHandle_size(i, {24, 24}));
    element->setIcons(images);
    element->picker().set(PickerProperty::Value, 1);
    draw(*element);
    ASSERT_EQ(page.images.size(), 3U);
    EXPECT_EQ(element->picker().get(PickerProperty::Value), 1);
}

TEST_F(WebElementTest, ItsColumnsAreToldWithNameAndValue) {
    const auto element = opened(PickerKind::Distance);
    element->picker().set(PickerProperty::Metric, 1);
    draw(*element);
    WebAccessibility& accessibility = element->accessibility();
    ASSERT_EQ(accessibility.refresh(*element->picker().view()), 2);
    EXPECT_EQ(accessibility.text_ofColumn(WebAccessibility::Text::Label, 0), "Distance, kilometres");
    EXPECT_EQ(accessibility.text_ofColumn(WebAccessibility::Text::Value, 1), "5.0 kilometres");
    EXPECT_EQ(accessibility.number_ofColumn(WebAccessibility::Number::Value, 0), 5);
    EXPECT_EQ(accessibility.number_ofColumn(WebAccessibility::Number::Maximum, 1), 9);
    EXPECT_EQ(accessibility.number_ofColumn(WebAccessibility::Number::Value, 2), std::nullopt);
    EXPECT_EQ(accessibility.text_ofColumn(WebAccessibility::Text::Value, -1), std::nullopt);
    accessibility.act_onColumn(WebAccessibility::Action::Step, 0, 1);
    run(*element, 2);
    EXPECT_EQ(element->picker().get(PickerProperty::Value), 6000);
    EXPECT_EQ(page.changes, 1);
}

TEST_F(WebElementTest, ItsColumnsTellAndTakeTheNumbersThatTheyShow) {
    const auto element = opened(PickerKind::Temperature);
    element->picker().set(PickerProperty::Metric, 1);
    element->picker().set(PickerProperty::Min, -20);
    element->picker().set(PickerProperty::Max, 60); // Not a row itself.
    element->picker().set(PickerProperty::Step, 1);
    element->picker().set(PickerProperty::Value, 20);
    draw(*element);
    WebAccessibility& accessibility = element->accessibility();
    ASSERT_EQ(accessibility.refresh(*element->picker().view()), 1);
    EXPECT_EQ(accessibility.number_ofColumn(WebAccessibility::Number::Value, 0), 20);
    EXPECT_EQ(accessibility.number_ofColumn(WebAccessibility::Number::Minimum, 0), -20);
    EXPECT_EQ(accessibility.number_ofColumn(WebAccessibility::Number::Maximum, 0), 59);
    accessibility.act_onColumn(WebAccessibility::Action::SetNumber, 0, -5);
    EXPECT_EQ(accessibility.number_ofColumn(WebAccessibility::Number::Value, 0), -5);
    run(*element, 2);
    EXPECT_EQ(element->picker().get(PickerProperty::Value), -5);
    EXPECT_EQ(page.changes, 1);
}

TEST_F(WebElementTest, TheColumnWithTheFocusIsThatOfTheKeys) {
    const auto element = opened(PickerKind::Duration);
    draw(*element);
    const WebElement::Visit visit(*element);
    WebAccessibility& accessibility = element->accessibility();
    ASSERT_EQ(accessibility.refresh(*element->picker().view()), 2);
    const auto focused = [&accessibility](NSInteger column) {
        return accessibility.number_ofColumn(WebAccessibility::Number::IsFocused, column);
    };
    EXPECT_EQ(focused(1), 0);
    accessibility.act_onColumn(WebAccessibility::Action::Focus, 1, 0);
    EXPECT_EQ(focused(0), 0);
    EXPECT_EQ(focused(1), 1);
    EXPECT_TRUE(element->window().keyDown({UIKey::Code::Left, {}, 0, false, now}));
    EXPECT_EQ(focused(0), 1);
}

TEST_F(WebElementTest, ThePageKnowsItsElementsByNumber) {
    WebRegistry::add(opened(PickerKind::Bpm));
    EXPECT_EQ(WebRegistry::count(), 1);
    EXPECT_EQ(visit(5, [](WebElement& element) { return element.picker().get(PickerProperty::Value).value_or(0); }), 160);
    EXPECT_EQ(visit(6, [](WebElement&) { return 7; }), 0);
    WebRegistry::remove(5);
    WebRegistry::remove(5);
    EXPECT_EQ(WebRegistry::count(), 0);
}

TEST_F(WebElementTest, NumbersComeInAnyOrderAndAreTakenAgain) {
    const auto add = [](std::int32_t number) {
        WebRegistry::add(std::make_unique<WebElement>(number, PickerKind::Bpm, surroundings()));
        return WebRegistry::find(number);
    };
    WebElement* const nine = add(9);
    WebElement* const three = add(3);
    WebElement* const six = add(6);
    EXPECT_EQ(WebRegistry::find(9), nine);
    EXPECT_EQ(WebRegistry::find(3), three);
    EXPECT_EQ(WebRegistry::find(6), six);
    EXPECT_EQ(WebRegistry::find(5), nullptr);
    const WebElement* const sixAgain = add(6);
    EXPECT_EQ(WebRegistry::find(6), sixAgain);
    EXPECT_EQ(WebRegistry::count(), 3);
    for (const std::int32_t number : {3, 9, 6}) WebRegistry::remove(number);
    EXPECT_EQ(WebRegistry::count(), 0);
}
