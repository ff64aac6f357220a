// Examples of the reference: colours, fonts, texts, images and the canvas.

#include <GXUIPickers/GXUIPickers.h>
#include <gtest/gtest.h>

#include <utility>
#include <vector>

using namespace gx;

namespace {

TEST(ReferenceExamples, Colours) {
    // [UIColor UIColorComponents]
    /// - A colour has a value for each look: resolve it before you hand components to anything
    ///   else.
    /// - `==` compares all four values, so two colours may look the same and differ.
    const UIColor warning = UIColor::colorWithLight_dark(UIColor::colorWithHex(0xB00020), UIColor::colorWithHex(0xFF6B6B));
    const UIColorComponents& dark = warning.resolved(UIUserInterfaceStyle::Dark);
    EXPECT_EQ(dark.red, 1);
    EXPECT_EQ(dark.alpha, 1);
    EXPECT_EQ(UIColor::colorWithWhite_alpha(7, 1), UIColor::whiteColor()); // Clamped.
    // [UIColor UIColorComponents]
}

TEST(ReferenceExamples, Fonts) {
    // [UIFont]
    /// - A size that is not above 0 becomes 17 points, without a message.
    /// - Two fonts of one kind are two objects: compare with `isEqualToFont`.
    /// - A family that the host lacks is replaced by the host when it draws.
    const Ref<UIFont> font = UIFont::systemFontOfSize_weight(22, UIFontWeight::Medium);
    EXPECT_EQ(font->pointSize(), 22);
    EXPECT_TRUE(font->isEqualToFont(*UIFont::fontWithName_size_weight("", 22, UIFontWeight::Medium)));
    EXPECT_EQ(UIFont::systemFontOfSize_weight(-1)->pointSize(), UIFont::labelFontSize);
    // [UIFont]
}

TEST(ReferenceExamples, Texts) {
    // [NSAttributedString NSTextAttributes]
    /// - It is one run: for two fonts in a line use two labels.
    /// - An absent attribute means the view's own font or colour, not the system's.
    NSTextAttributes attributes;
    attributes.font = UIFont::systemFontOfSize_weight(13);
    attributes.foregroundColor = UIColor::secondaryLabelColor();
    const Ref<NSAttributedString> unit = NSAttributedString::attributedStringWithString_attributes("km", attributes);
    EXPECT_EQ(unit->string(), "km");
    EXPECT_EQ(sizeWithAttributes("km", attributes).width, 20); // Headless, 10 points a code point.
    // [NSAttributedString NSTextAttributes]
}

// [UITextEngine]
/// - Views keep what they have measured. Call `measuresDidChange` when fonts come late, and
///   `reloadData` of pickers.
/// - The engine is one for the whole process: a test that sets its own restores it with an empty
///   reference.
class NarrowTextEngine : public UITextEngine {
public:
    CGSize sizeOfText_font(std::string_view text, const UIFont& font) override {
        return CGSizeMake(0.5 * font.pointSize() * static_cast<CGFloat>(text.size()), 1.2 * font.pointSize());
    }
};
// [UITextEngine]

TEST(ReferenceExamples, TextEngines) {
    // [UITextEngine]
    UITextEngine::setShared(create<NarrowTextEngine>());
    EXPECT_EQ(sizeWithAttributes("bpm", {UIFont::systemFontOfSize_weight(20), {}}).width, 30);
    UITextEngine::setShared(nullptr);
    // [UITextEngine]
}

TEST(ReferenceExamples, FixedWidthTextEngines) {
    // [UIFixedWidthTextEngine]
    /// - It counts code points, so an "ä" of two code points is twice as wide.
    /// - Fonts do not matter to it: what fits here may not fit with a host's fonts.
    const auto engine = create<UIFixedWidthTextEngine>();
    engine->setCodePointWidth(8);
    EXPECT_EQ(engine->sizeOfText_font("5.3", *UIFont::systemFontOfSize_weight(40)), CGSizeMake(24, 20));
    // [UIFixedWidthTextEngine]
}

// [UIImageLoader]
/// - Without a host there is none, and `UIImage::imageWithContentsOfFile` returns nothing.
/// - Give images a label: a picture without one is decoration to a screen reader.
class RedDots : public UIImageLoader {
public:
    Ref<UIImage> imageWithContentsOfFile(const std::string& path) override {
        if (path.empty()) return nullptr; // It cannot be read.
        return UIImage::imageWithPixels_width_height_scale({255, 0, 0, 255}, 1, 1, 1);
    }
};
// [UIImageLoader]

TEST(ReferenceExamples, Images) {
    // [UIImageLoader]
    UIImageLoader::setShared(std::make_shared<RedDots>());
    EXPECT_NE(UIImage::imageWithContentsOfFile("sun.png"), nullptr);
    EXPECT_EQ(UIImage::imageWithContentsOfFile(""), nullptr);
    UIImageLoader::setShared(nullptr);
    // [UIImageLoader]

    // [UIImage]
    /// - Sizes that do not fit the pixels give nothing, not an empty image.
    /// - `size` is in points: pixels divided by the scale.
    const std::vector<std::uint8_t> pixels(4 * 6 * 4, 255); // Rows, columns, bytes a pixel.
    const Ref<UIImage> image = UIImage::imageWithPixels_width_height_scale(pixels, 6, 4, 2);
    EXPECT_EQ(image->size(), CGSizeMake(3, 2));
    image->setAccessibilityLabel("Snow");
    EXPECT_EQ(UIImage::imageWithPixels_width_height_scale(pixels, 7, 4, 2), nullptr);
    // [UIImage]
}

// [UIGraphicsContext]
/// - `saveState` and `restoreState` come in pairs; a view that forgets one moves all that follows.
/// - Views never keep the canvas: it is the host's, for one frame.
/// - Empty rectangles and texts need not reach the protected operations.
class CountingCanvas : public UIGraphicsContext {
public:
    void saveState() override {}
    void restoreState() override {}
    void translate(CGFloat, CGFloat) override {}
    void scale(CGFloat, CGFloat) override {}
    void clipToRect(CGRect) override {}
    void multiplyAlpha(double) override {}
    int texts = 0;

protected:
    void fillRectWithComponents(CGRect, const UIColorComponents&, CGFloat) override {}
    void drawTextWithComponents(std::string_view, const UIFont&, const UIColorComponents&, CGPoint) override { ++texts; }
    void drawImageInRect(const UIImage&, CGRect) override {}
};
// [UIGraphicsContext]

// [UIDrawingVersion]
/// - `setNeedsDisplay` replaces both numbers of a view, and `tree` of the views above it. A view
///   that draws what another one knows has to be invalidated with that.
/// - Only canvases compare versions. One that does not gets every call of every view.
class RememberingCanvas : public CountingCanvas {
public:
    std::uint64_t shown = 0;
    bool beginView(const UIDrawingVersion& version, CGPoint, double) override { return version.tree == std::exchange(shown, version.tree); }
};
// [UIDrawingVersion]

TEST(ReferenceExamples, Canvases) {
    // [UIGraphicsContext]
    const auto label = create<UILabel>(CGRectMake(0, 0, 100, 20));
    label->setText("5.3 km");
    CountingCanvas canvas;
    label->renderInContext(canvas);
    EXPECT_EQ(canvas.texts, 1);
    // [UIGraphicsContext]
}

TEST(ReferenceExamples, DrawingVersions) {
    // [UIDrawingVersion]
    const auto label = create<UILabel>(CGRectMake(0, 0, 100, 20));
    label->setText("5.3 km");
    RememberingCanvas canvas;
    label->renderInContext(canvas);
    label->renderInContext(canvas); // Looks the same, and is not drawn.
    EXPECT_EQ(canvas.texts, 1);
    label->setText("5.4 km");
    label->renderInContext(canvas);
    EXPECT_EQ(canvas.texts, 2);
    // [UIDrawingVersion]
}

} // namespace
