#include "QtTextEngine.h"

#include <algorithm>

#include <QCoreApplication>
#include <QString>

namespace gx::qt {

namespace {

QFont::Weight weightOf(UIFontWeight weight) {
    switch (weight) {
    case UIFontWeight::Regular:
        return QFont::Normal;
    case UIFontWeight::Medium:
        return QFont::Medium;
    case UIFontWeight::Semibold:
        return QFont::DemiBold;
    case UIFontWeight::Bold:
        return QFont::Bold;
    }
    return QFont::Normal;
}

QFont faceFont(const std::string& family, UIFontWeight weight) {
    QFont font; // The application's own.
    if (!family.empty()) font.setFamilies({QString::fromStdString(family)});
    font.setPixelSize(QtTextEngine::facePixelSize);
    font.setWeight(weightOf(weight));
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

} // namespace

const Ref<QtTextEngine>& QtTextEngine::shared() {
    static const Ref<QtTextEngine> engine = create<QtTextEngine>();
    return engine;
}

const QtTextEngine::Face& QtTextEngine::faceOfFont(const UIFont& font) {
    const std::string& family = font.familyName().empty() ? interfaceFamily_ : font.familyName();
    const auto known = std::find_if(faces_.begin(), faces_.end(), [&](const std::unique_ptr<NamedFace>& entry) {
        return entry->weight == font.weight() && entry->family == family;
    });
    if (known != faces_.end()) return (*known)->face;
    if (faces_.size() >= highestFaceCount) faces_.clear();
    // Qt looks fonts up through the application, so the shared faces are destroyed before it.
    if (faces_.empty() && this == shared().get()) qAddPostRoutine([] { shared()->purge(); });
    const QFont opened = faceFont(family, font.weight());
    const QFontMetricsF metrics(opened);
    const CGFloat ascent = metrics.ascent() / facePixelSize;
    const CGFloat lineHeight = ascent + metrics.descent() / facePixelSize;
    faces_.push_back(std::make_unique<NamedFace>(
        NamedFace{family, font.weight(), {nextIdentifier_++, opened, metrics, ascent, lineHeight, std::make_shared<QtDigits>(opened)}}));
    return faces_.back()->face;
}

CGSize QtTextEngine::sizeOfText_font(std::string_view text, const UIFont& font) {
    const Face& face = faceOfFont(font);
    const CGFloat height = face.lineHeight * font.pointSize();
    if (text.empty()) return {0, height};
    // Adding up the digits of a number takes less than to look it up.
    if (const QtDigits::Places* const places = face.digits->placesOf(text)) {
        return {places->advance / facePixelSize * font.pointSize(), height};
    }
    const QtTextKey key = {.text = text, .face = face.identifier};
    const double* advance = advances_.find(key);
    if (!advance) {
        ++measureCount_;
        const QString string = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
        advance = &advances_.insert(key, face.metrics.horizontalAdvance(string) / facePixelSize, 1);
    }
    return {*advance * font.pointSize(), height};
}

void QtTextEngine::setInterfaceFamily(std::string family) {
    if (family == interfaceFamily_) return;
    interfaceFamily_ = std::move(family);
    purge();
    measuresDidChange();
}

void QtTextEngine::purge() {
    faces_.clear();
    advances_.clear();
}

} // namespace gx::qt
