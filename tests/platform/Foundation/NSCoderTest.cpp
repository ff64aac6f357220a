#include "NSCoder.h"

#include <limits>

#include <gtest/gtest.h>

using namespace gx;

TEST(NSCoder, WhatWasEncodedIsDecoded) {
    const Ref<NSCoder> coder = create<NSCoder>();
    coder->encodeBool_forKey(true, "bool");
    coder->encodeInteger_forKey(-7, "integer");
    coder->encodeDouble_forKey(2.5, "double");
    coder->encodeString_forKey("text", "string");
    coder->encodeCGRect_forKey(CGRectMake(1, 2, 3, 4), "rect");
    EXPECT_TRUE(coder->decodeBoolForKey("bool"));
    EXPECT_EQ(coder->decodeIntegerForKey("integer"), -7);
    EXPECT_EQ(coder->decodeDoubleForKey("double"), 2.5);
    EXPECT_EQ(coder->decodeStringForKey("string"), "text");
    EXPECT_EQ(coder->decodeCGRectForKey("rect"), CGRectMake(1, 2, 3, 4));
    for (const char* key : {"bool", "integer", "double", "string", "rect"}) EXPECT_TRUE(coder->containsValueForKey(key)) << key;
}

TEST(NSCoder, AMissingKeyReadsAsNothing) {
    const Ref<NSCoder> coder = create<NSCoder>();
    EXPECT_FALSE(coder->containsValueForKey("none"));
    EXPECT_FALSE(coder->decodeBoolForKey("none"));
    EXPECT_EQ(coder->decodeIntegerForKey("none"), 0);
    EXPECT_EQ(coder->decodeDoubleForKey("none"), 0);
    EXPECT_EQ(coder->decodeStringForKey("none"), std::nullopt);
    EXPECT_EQ(coder->decodeCGRectForKey("none"), CGRectZero);
}

TEST(NSCoder, NumbersConvertAmongEachOther) {
    const Ref<NSCoder> coder = create<NSCoder>();
    coder->encodeBool_forKey(true, "bool");
    coder->encodeInteger_forKey(3, "integer");
    coder->encodeDouble_forKey(-2.9, "double");
    coder->encodeDouble_forKey(1e300, "large");
    coder->encodeDouble_forKey(std::numeric_limits<double>::quiet_NaN(), "nan");
    EXPECT_EQ(coder->decodeIntegerForKey("bool"), 1);
    EXPECT_EQ(coder->decodeDoubleForKey("bool"), 1.0);
    EXPECT_TRUE(coder->decodeBoolForKey("integer"));
    EXPECT_EQ(coder->decodeDoubleForKey("integer"), 3.0);
    EXPECT_TRUE(coder->decodeBoolForKey("double"));
    EXPECT_EQ(coder->decodeIntegerForKey("double"), -2);
    EXPECT_EQ(coder->decodeIntegerForKey("large"), 9223372036854775807LL);
    EXPECT_EQ(coder->decodeIntegerForKey("nan"), 0);
    EXPECT_FALSE(coder->decodeBoolForKey("nan"));
}

TEST(NSCoder, AValueOfAnotherKindReadsAsNothing) {
    const Ref<NSCoder> coder = create<NSCoder>();
    coder->encodeString_forKey("12", "string");
    coder->encodeCGRect_forKey(CGRectMake(1, 2, 3, 4), "rect");
    coder->encodeInteger_forKey(12, "integer");
    EXPECT_EQ(coder->decodeIntegerForKey("string"), 0);
    EXPECT_EQ(coder->decodeDoubleForKey("string"), 0);
    EXPECT_FALSE(coder->decodeBoolForKey("rect"));
    EXPECT_EQ(coder->decodeStringForKey("integer"), std::nullopt);
    EXPECT_EQ(coder->decodeCGRectForKey("integer"), CGRectZero);
    EXPECT_EQ(coder->decodeStringForKey("rect"), std::nullopt);
}

TEST(NSCoder, ALaterValueOfAnyKindReplacesAnEarlierOne) {
    const Ref<NSCoder> coder = create<NSCoder>();
    coder->encodeInteger_forKey(1, "key");
    coder->encodeString_forKey("two", "key");
    EXPECT_EQ(coder->decodeIntegerForKey("key"), 0);
    EXPECT_EQ(coder->decodeStringForKey("key"), "two");
}

TEST(NSCoder, AnEmptyTextAndAnEmptyKeyAreValuesLikeOthers) {
    const Ref<NSCoder> coder = create<NSCoder>();
    coder->encodeString_forKey("", "");
    EXPECT_TRUE(coder->containsValueForKey(""));
    EXPECT_EQ(coder->decodeStringForKey(""), "");
}
