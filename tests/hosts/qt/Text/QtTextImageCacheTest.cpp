#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

#include <QPainter>

#include "Pixels.h"
#include "QtCanvas.h"
#include "QtTextImageCache.h"
#include "UIWindow.h"
#include "WheelSource.h"

namespace {
std::size_t allocations = 0;
}

// Counts what the tests here look at. The library functions below them are the usual ones.
void* operator new(std::size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size > 0 ? size : 1)) return memory;
    std::abort();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

using namespace gx;
using gx::qt::QtTextEngine;
using gx::qt::QtTextImage;
using gx::qt::QtTextImageCache;

namespace {

constexpr QRgb black = 0xff000000;

struct QtTextImageCacheTest : testing::Test {
    const QtTextEngine::Face& face() { return QtTextEngine::shared()->faceOfFont(*font); }
    Ref<UIFont> font = UIFont::systemFontOfSize_weight(22);
    QtTextImageCache cache;
};

TEST_F(QtTextImageCacheTest, ATextIsDrawnOnce) {
    const QtTextImage* first = cache.imageOfText("42", face(), 44, black);
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(cache.imageOfText("42", face(), 44, black), first);
    EXPECT_EQ(cache.missCount(), 1U);
    EXPECT_EQ(cache.hitCount(), 1U);
}

TEST_F(QtTextImageCacheTest, AnotherTextFontColourOrResolutionIsAnotherImage) {
    cache.imageOfText("42", face(), 44, black);
    cache.imageOfText("43", face(), 44, black);
    cache.imageOfText("42", face(), 44.5, black);
    cache.imageOfText("42", face(), 44, 0xff0000ff);
    const Ref<UIFont> bold = UIFont::systemFontOfSize_weight(22, UIFontWeight::Bold);
    cache.imageOfText("42", QtTextEngine::shared()->faceOfFont(*bold), 44, black);
    EXPECT_EQ(cache.missCount(), 5U);
    EXPECT_EQ(cache.imageCount(), 5U);
}

TEST_F(QtTextImageCacheTest, TheInkLiesWithinAClearEdge) {
    for (const char* text : {"42", "Åg|", "/km", "f"}) {
        const QtTextImage* drawnText = cache.imageOfText(text, face(), 66, black);
        ASSERT_NE(drawnText, nullptr);
        const QImage& image = drawnText->image;
        const QRect ink = inkOf(image);
        EXPECT_FALSE(ink.isEmpty()) << text;
        EXPECT_TRUE(image.rect().adjusted(1, 1, -1, -1).contains(ink)) << text;
    }
}

/// Letters of a second font, with marks and tails below the baseline, before and behind digits.
TEST_F(QtTextImageCacheTest, TextOfSeveralFontsIsNotCut) {
    for (const char* text : {"420 سعرة", "12.5 كم/س", "عالٍ", "5 רגלן", "°م 20"}) {
        const QtTextImage* drawnText = cache.imageOfText(text, face(), 66, black);
        ASSERT_NE(drawnText, nullptr);
        QImage whole(1000, 400, QImage::Format_ARGB32_Premultiplied);
        whole.fill(Qt::transparent);
        QPainter painter(&whole);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
        painter.translate(100, 200);
        painter.scale(66.0 / QtTextEngine::facePixelSize, 66.0 / QtTextEngine::facePixelSize);
        painter.setFont(face().font);
        painter.drawText(QPointF(0, 0), text);
        painter.end();
        EXPECT_EQ(inkOf(drawnText->image).size(), inkOf(whole).size()) << text;
        EXPECT_EQ(inkOf(drawnText->image).bottom() - drawnText->baseline, inkOf(whole).bottom() - 200) << text;
    }
}

/// The same text as one `drawText`, at the place that it has in an image.
QImage drawnByQt(const char* text, const QtTextEngine::Face& face, double pixelsPerEm, QRgb color, const QtTextImage& place) {
    QImage image(place.image.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.translate(place.penX, place.baseline);
    painter.scale(pixelsPerEm / QtTextEngine::facePixelSize, pixelsPerEm / QtTextEngine::facePixelSize);
    painter.setFont(face.font);
    painter.setPen(QColor::fromRgba(color));
    painter.drawText(QPointF(0, 0), text);
    return image;
}

/// Numbers are made of their digits from the second one on, other texts are drawn as a whole: at
/// one, one and a half and two pixels a point, and at sizes at which Qt fills outlines.
TEST_F(QtTextImageCacheTest, AnImageIsPixelForPixelWhatQtDraws) {
    for (const auto weight : {UIFontWeight::Regular, UIFontWeight::Semibold}) {
        const QtTextEngine::Face& opened = QtTextEngine::shared()->faceOfFont(*UIFont::systemFontOfSize_weight(22, weight));
        for (const double size : {15.0, 17.6, 22.0, 23.5, 33.0, 35.25, 44.0, 47.0, 63.9, 64.0, 66.0}) {
            for (int i = 0; i < 60; ++i) {
                const std::string number = std::to_string((i * 7919 + 3) % (i % 2 == 0 ? 100 : 1000000));
                const QtTextImage* made = cache.imageOfText(number, opened, size, 0xff3366cc);
                ASSERT_NE(made, nullptr);
                ASSERT_EQ(made->image, drawnByQt(number.c_str(), opened, size, 0xff3366cc, *made)) << number << " at " << size;
            }
            for (const char* text : {"1", "00", "11:07", "5.25", "1234…", "km/h", "420 سعرة", "12.5 كم/س", "5 רגלן", "Åg|fi"}) {
                const QtTextImage* made = cache.imageOfText(text, opened, size, black);
                ASSERT_NE(made, nullptr);
                ASSERT_EQ(made->image, drawnByQt(text, opened, size, black, *made)) << text << " at " << size;
            }
        }
        EXPECT_TRUE(opened.digits->canCompose());
    }
}

TEST_F(QtTextImageCacheTest, ATranslucentNumberIsWhatQtDraws) {
    for (int number = 10; number < 100; ++number) {
        const std::string text = std::to_string(number);
        const QtTextImage* made = cache.imageOfText(text, face(), 44, 0x803366cc);
        ASSERT_NE(made, nullptr);
        ASSERT_EQ(made->image, drawnByQt(text.c_str(), face(), 44, 0x803366cc, *made)) << text;
    }
}

TEST_F(QtTextImageCacheTest, IsBoundedByWhatIsInSight) {
    const int one = 0;
    const int other = 0;
    const auto fill = [this] {
        for (int number = 0; number < 1000; ++number) cache.imageOfText(std::to_string(number), face(), 44, black);
    };
    EXPECT_EQ(cache.byteBound(), QtTextImageCache::smallestBound);
    fill();
    EXPECT_LE(cache.byteCount(), QtTextImageCache::smallestBound);
    cache.setBytesInSight(&one, 100 << 10U);
    cache.setBytesInSight(&other, 50 << 10U);
    EXPECT_EQ(cache.byteBound(), QtTextImageCache::keptScreens * (150 << 10U));
    fill();
    EXPECT_GT(cache.byteCount(), QtTextImageCache::smallestBound);
    EXPECT_LE(cache.byteCount(), cache.byteBound());
    cache.setBytesInSight(&one, 0);
    EXPECT_EQ(cache.byteBound(), QtTextImageCache::smallestBound);
    EXPECT_LE(cache.byteCount(), QtTextImageCache::smallestBound);
    cache.setBytesInSight(&other, 100 << 20U);
    EXPECT_EQ(cache.byteBound(), QtTextImageCache::defaultCapacity);
    cache.setBytesInSight(&other, 0);
    cache.setByteCapacity(1000);
    EXPECT_EQ(cache.byteBound(), 1000U);
}

TEST_F(QtTextImageCacheTest, ACanvasThatIsGoneHasNothingInSight) {
    const auto shared = std::make_shared<QtTextImageCache>();
    {
        gx::qt::QtCanvas canvas(QtTextEngine::shared(), shared);
        QImage image(2000, 2000, QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&image);
        canvas.begin(painter);
        canvas.drawText("88", *UIFont::systemFontOfSize_weight(600), UIColor::labelColor(), {0, 0});
        canvas.end();
        EXPECT_GT(shared->byteBound(), QtTextImageCache::smallestBound);
        canvas.begin(painter);
        canvas.end();
        EXPECT_EQ(shared->byteBound(), QtTextImageCache::smallestBound);
        canvas.begin(painter);
        canvas.drawText("88", *UIFont::systemFontOfSize_weight(600), UIColor::labelColor(), {0, 0});
        canvas.end();
    }
    EXPECT_EQ(shared->byteBound(), QtTextImageCache::smallestBound);
}

TEST_F(QtTextImageCacheTest, DigitsEndAtTheBaseline) {
    const QtTextImage* drawnText = cache.imageOfText("1", face(), 88, black);
    ASSERT_NE(drawnText, nullptr);
    EXPECT_EQ(inkOf(drawnText->image).bottom() + 1, drawnText->baseline);
}

TEST_F(QtTextImageCacheTest, ATextWithoutInkHasNoImage) {
    const QtTextImage* drawnText = cache.imageOfText(" ", face(), 44, black);
    ASSERT_NE(drawnText, nullptr);
    EXPECT_TRUE(drawnText->image.isNull());
}

TEST_F(QtTextImageCacheTest, AHitAllocatesNothing) {
    const QtTextEngine::Face& opened = face();
    cache.imageOfText("a text that is too long to be kept in place", opened, 44, black);
    const std::size_t before = allocations;
    const QtTextImage* hit = cache.imageOfText("a text that is too long to be kept in place", opened, 44, black);
    const std::size_t after = allocations;
    EXPECT_NE(hit, nullptr);
    EXPECT_EQ(after, before);
    EXPECT_EQ(cache.hitCount(), 1U);
}

/// Rows that were drawn before, in steady motion: what a widget does in each of its frames.
TEST(QtFrame, RecordingAndComparingASpinningWheelAllocatesNothing) {
    const auto source = gx::create<WheelSource>();
    source->rows = {12, 12, 12};
    const auto wheel = wheelWithSource(source);
    const auto window = gx::create<UIWindow>(wheel->frame());
    window->addSubview(wheel);
    gx::qt::QtCanvas canvas;
    gx::qt::QtFrame shown;
    double now = 1000;
    std::size_t taken = 0;
    int frames = 0;
    const auto spinTo = [&](NSInteger row) {
        for (const NSInteger column : {0, 1, 2}) wheel->selectRow_inComponent_animated(row, column, true);
        for (int frame = 0; frame < 60; ++frame) {
            window->tick(now += 1.0 / 60);
            const std::size_t start = allocations;
            canvas.begin(shown, QTransform());
            window->draw(canvas);
            canvas.end();
            frames += shown.changedArea().isEmpty() ? 0 : 1;
            taken += allocations - start;
        }
    };
    spinTo(11);
    spinTo(0);
    taken = 0;
    frames = 0;
    spinTo(11);
    spinTo(0);
    EXPECT_GT(frames, 20) << "it spins";
    EXPECT_EQ(taken, 0U);
}

TEST_F(QtTextImageCacheTest, MeasuringAKnownTextAllocatesNothing) {
    QtTextEngine& engine = *QtTextEngine::shared();
    const CGSize first = engine.sizeOfText_font("another text that is too long to be kept in place", *font);
    const std::size_t before = allocations;
    const CGSize second = engine.sizeOfText_font("another text that is too long to be kept in place", *font);
    const std::size_t after = allocations;
    EXPECT_EQ(second, first);
    EXPECT_EQ(after, before);
}

TEST_F(QtTextImageCacheTest, RemovesTheLeastRecentlyUsedImage) {
    cache.imageOfText("11", face(), 44, black);
    const std::size_t one = cache.byteCount();
    cache.imageOfText("11", face(), 44, 0xff000001);
    cache.imageOfText("11", face(), 44, 0xff000002);
    EXPECT_EQ(cache.byteCount(), 3 * one);
    cache.imageOfText("11", face(), 44, black); // Used again.
    cache.setByteCapacity(2 * one);
    EXPECT_EQ(cache.byteCount(), 2 * one);
    EXPECT_EQ(cache.imageCount(), 2U);
    cache.imageOfText("11", face(), 44, black);
    cache.imageOfText("11", face(), 44, 0xff000002);
    EXPECT_EQ(cache.missCount(), 3U);
    cache.imageOfText("11", face(), 44, 0xff000001);
    EXPECT_EQ(cache.missCount(), 4U);
}

TEST_F(QtTextImageCacheTest, TheLatestImageStaysWhateverItsSize) {
    cache.setByteCapacity(0);
    EXPECT_NE(cache.imageOfText("11", face(), 44, black), nullptr);
    EXPECT_EQ(cache.imageCount(), 1U);
    EXPECT_NE(cache.imageOfText("12", face(), 44, black), nullptr);
    EXPECT_EQ(cache.imageCount(), 1U);
}

TEST_F(QtTextImageCacheTest, AnImageThatWouldBeTooLargeIsNotMade) {
    EXPECT_EQ(cache.imageOfText("0", face(), 8000, black), nullptr);
    EXPECT_EQ(cache.byteCount(), 0U);
}

} // namespace
