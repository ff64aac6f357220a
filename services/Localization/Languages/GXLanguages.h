#pragma once

#include "GXArabic.h"
#include "GXDutch.h"
#include "GXEnglish.h"
#include "GXFrench.h"
#include "GXGerman.h"
#include "GXHebrew.h"
#include "GXItalian.h"
#include "GXJapanese.h"
#include "GXKorean.h"
#include "GXPolish.h"
#include "GXPortuguese.h"
#include "GXRussian.h"
#include "GXSimplifiedChinese.h"
#include "GXSpanish.h"
#include "GXTurkish.h"

namespace gx {

template <class... Languages>
struct GXLanguageList {};

/// All languages, in the order in which users choose from them; English first.
///
/// To add a language, write its file and name it here. What its file lacks does not compile. The
/// gallery has its own texts in `gallery/text/languages/`.
using GXLanguages = GXLanguageList<GXEnglish, GXGerman, GXFrench, GXSpanish, GXItalian, GXPortuguese, GXDutch, GXPolish, GXRussian,
                                   GXTurkish, GXArabic, GXHebrew, GXJapanese, GXSimplifiedChinese, GXKorean>;

/// Those that are compiled in. Where size matters, the others are added as data
/// (`GXLocalization::addLanguage`).
#if defined(GX_LANGUAGES_ON_DEMAND)
using GXLanguagesCompiledIn = GXLanguageList<GXEnglish>;
#else
using GXLanguagesCompiledIn = GXLanguages;
#endif

} // namespace gx
