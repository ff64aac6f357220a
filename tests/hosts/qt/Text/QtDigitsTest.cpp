#include <gtest/gtest.h>

#include "QtDigits.h"
#include "QtTextEngine.h"

using namespace gx;
using gx::qt::QtDigits;
using gx::qt::QtTextEngine;

namespace {

struct QtDigitsTest : testing::Test {
    const QtTextEngine::Face& face() { return QtTextEngine::shared()->faceOfFont(*font); }
    Ref<UIFont> font = UIFont::systemFontOfSize_weight(22);
    QtDigits digits{face().font};
};

TEST_F(QtDigitsTest, NumbersAreAsWideAsShapedToTheBit) {
    for (int i = 0; i < 500; ++i) {
        const std::string number = std::to_string(i < 150 ? i : i * 48271);
        const QtDigits::Places* const places = digits.placesOf(number);
        ASSERT_NE(places, nullptr);
        EXPECT_EQ(places->advance, face().metrics.horizontalAdvance(QString::fromStdString(number))) << number;
        EXPECT_EQ(places->count, number.size());
    }
    EXPECT_NE(digits.placesOf("00000000000000000007"), nullptr);
}

TEST_F(QtDigitsTest, OtherTextsAreShaped) {
    for (const char* text : {"", "-1", "1.5", "1 000", "12h", "١٢", "000000000000000000007"}) {
        EXPECT_EQ(digits.placesOf(text), nullptr) << text;
    }
}

TEST_F(QtDigitsTest, TheFirstDigitBeginsAtThePen) {
    const QtDigits::Places* const places = digits.placesOf("47");
    ASSERT_NE(places, nullptr);
    EXPECT_EQ(places->x[0], 0);
    const double both = face().metrics.horizontalAdvance("47");
    EXPECT_EQ(places->x[1], both - face().metrics.horizontalAdvance("7"));
}

TEST_F(QtDigitsTest, AnEngineMeasuresNumbersAsItDoesOtherTexts) {
    QtTextEngine& engine = *QtTextEngine::shared();
    const double em = QtTextEngine::facePixelSize;
    for (const char* number : {"0", "07", "171", "65535"}) {
        EXPECT_EQ(engine.sizeOfText_font(number, *font).width, face().metrics.horizontalAdvance(number) / em * 22) << number;
    }
}

TEST_F(QtDigitsTest, ImagesThatDifferForbidComposing) {
    EXPECT_TRUE(digits.canCompose());
    digits.placesOf("7");
    EXPECT_FALSE(digits.takeImageCheck()) << "one digit shows nothing";
    digits.placesOf("12");
    EXPECT_TRUE(digits.takeImageCheck());
    EXPECT_FALSE(digits.takeImageCheck());
    digits.forbidComposing();
    EXPECT_FALSE(digits.canCompose());
}

} // namespace
