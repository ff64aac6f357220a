#pragma once

#include "ArabicTexts.h"
#include "DutchTexts.h"
#include "EnglishTexts.h"
#include "FrenchTexts.h"
#include "GermanTexts.h"
#include "HebrewTexts.h"
#include "ItalianTexts.h"
#include "JapaneseTexts.h"
#include "KoreanTexts.h"
#include "PolishTexts.h"
#include "PortugueseTexts.h"
#include "RussianTexts.h"
#include "SimplifiedChineseTexts.h"
#include "SpanishTexts.h"
#include "TurkishTexts.h"

namespace gallery {

template <class... Languages>
struct ApplicationLanguageList {};

/// The languages of the pickers in their order; a test compares them.
using ApplicationLanguages =
    ApplicationLanguageList<EnglishTexts, GermanTexts, FrenchTexts, SpanishTexts, ItalianTexts, PortugueseTexts, DutchTexts, PolishTexts,
                            RussianTexts, TurkishTexts, ArabicTexts, HebrewTexts, JapaneseTexts, SimplifiedChineseTexts, KoreanTexts>;

} // namespace gallery
