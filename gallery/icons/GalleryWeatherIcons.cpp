#include "GalleryWeatherIcons.h"

#include <iterator>

#include "GalleryShapes.h"

using namespace gx;

namespace gallery {

namespace {

struct Palette {
    unsigned sun;
    unsigned cloud;
    unsigned darkCloud;
    unsigned water;
    unsigned ice;
    unsigned bolt;
    unsigned air;
};
constexpr Palette lightPalette = {0xF7A81B, 0xA9BCD3, 0x7F93AE, 0x2B84E8, 0x55B5EE, 0xF7A81B, 0x7E93AD};
constexpr Palette darkPalette = {0xFFCB47, 0xDCE4EE, 0x8C9BB1, 0x5CAEFF, 0xA8DFFF, 0xFFCB47, 0xB4C3D6};

constexpr CGFloat strokeWidth = 3;
/// Clear space between what lies behind and what lies before it.
constexpr CGFloat gap = 2;

/// 35.5 points wide and 24 high, the bottom's middle at the origin. The round parts stay so far above the bottom that no fillet bends it.
GalleryShape cloud() {
    constexpr CGFloat fillet = 1.25;
    return GalleryShape::united({GalleryShape::stroke({{-11.25, -6.75}, {9.5, -6.75}}, 13.5), GalleryShape::circle({9.25, -9.5}, 8.25),
                                 GalleryShape::circle({-2.5, -14}, 10)},
                                fillet);
}

/// With eight rays, of which those from the first angle (0 at the right, clockwise) to the last are drawn.
void drawSun(GallerySketch& sketch, const Palette& palette, CGPoint center, CGFloat radius, int firstDegrees, int lastDegrees) {
    sketch.fill(GalleryShape::circle(center, radius), palette.sun);
    for (int degrees = firstDegrees; degrees <= lastDegrees; degrees += 45) {
        const CGPoint from = galleryArc(center, radius + 4.5, degrees, degrees).front();
        const CGPoint to = galleryArc(center, 1.4 * radius + 4.5, degrees, degrees).front();
        sketch.fill(GalleryShape::stroke({from, to}, strokeWidth), palette.sun);
    }
}

/// The rays that a cloud at the lower left leaves in sight.
void drawSunBehindCloud(GallerySketch& sketch, const Palette& palette, CGPoint center, CGFloat radius) {
    drawSun(sketch, palette, center, radius, -135, 45);
}

/// Before what is there already, with a gap around.
void drawBefore(GallerySketch& sketch, const GalleryShape& shape, unsigned color) {
    sketch.erase(shape.grown(gap));
    sketch.fill(shape, color);
}

void drawCloud(GallerySketch& sketch, unsigned color, CGPoint bottom, CGFloat size = 1) {
    drawBefore(sketch, cloud().scaled(size).moved(bottom.x, bottom.y), color);
}

/// What falls from a cloud, leaning like rain in a light wind.
void drawDrop(GallerySketch& sketch, unsigned color, CGPoint top, CGFloat length) {
    constexpr CGFloat lean = 0.4;
    sketch.fill(GalleryShape::stroke({top, {top.x - lean * length, top.y + length}}, strokeWidth), color);
}

void drawFlake(GallerySketch& sketch, unsigned color, CGPoint center) {
    std::vector<GalleryShape> arms;
    for (const CGFloat angle : {30.0, 90.0, 150.0}) {
        const CGPoint from = galleryArc(center, 3.1, angle, angle).front();
        const CGPoint to = galleryArc(center, 3.1, angle + 180, angle + 180).front();
        arms.push_back(GalleryShape::stroke({from, to}, 1.7));
    }
    sketch.fill(GalleryShape::united(arms, 0), color);
}

void drawLine(GallerySketch& sketch, unsigned color, CGFloat left, CGFloat right, CGFloat y) {
    sketch.fill(GalleryShape::stroke({{left, y}, {right, y}}, strokeWidth), color);
}

/// A breeze from the left that ends in a curl, upward or downward.
void drawBreeze(GallerySketch& sketch, unsigned color, CGPoint from, CGFloat right, CGFloat radius, bool isUpward) {
    const CGFloat side = isUpward ? -1 : 1;
    std::vector<CGPoint> points = {from};
    const auto curl = galleryArc({right, from.y + side * radius}, radius, -90 * side, 125 * side);
    points.insert(points.end(), curl.begin(), curl.end());
    sketch.fill(GalleryShape::stroke(std::move(points), strokeWidth), color);
}

// The kinds

void drawClear(GallerySketch& sketch, const Palette& palette) { drawSun(sketch, palette, {24, 24}, 9.5, 0, 315); }

void drawPartlyCloudy(GallerySketch& sketch, const Palette& palette) {
    drawSunBehindCloud(sketch, palette, {29.5, 19.5}, 7.5);
    drawCloud(sketch, palette.cloud, {20, 43}, 0.9);
}

void drawCloudy(GallerySketch& sketch, const Palette& palette) { drawCloud(sketch, palette.cloud, {24, 36}, 1.1); }

void drawOvercast(GallerySketch& sketch, const Palette& palette) {
    drawCloud(sketch, palette.darkCloud, {30, 30}, 0.85);
    drawCloud(sketch, palette.cloud, {20.5, 41}, 0.85);
}

void drawFog(GallerySketch& sketch, const Palette& palette) {
    drawCloud(sketch, palette.cloud, {24, 28}, 0.95);
    drawLine(sketch, palette.air, 8, 32, 33.5);
    drawLine(sketch, palette.air, 38, 40, 33.5);
    drawLine(sketch, palette.air, 12, 15, 40);
    drawLine(sketch, palette.air, 21, 38, 40);
}

void drawDrizzle(GallerySketch& sketch, const Palette& palette) {
    drawCloud(sketch, palette.cloud, {24, 29}, 0.95);
    for (const CGPoint top : {CGPoint{15.5, 34}, {25, 34}, {34.5, 34}, {19, 40.5}, {28.5, 40.5}}) drawDrop(sketch, palette.water, top, 1.5);
}

void drawRain(GallerySketch& sketch, const Palette& palette) {
    drawCloud(sketch, palette.darkCloud, {24, 29}, 0.95);
    for (const CGFloat x : {17.5, 26.5, 35.5}) drawDrop(sketch, palette.water, {x, 34}, 8.5);
}

void drawShowers(GallerySketch& sketch, const Palette& palette) {
    drawSunBehindCloud(sketch, palette, {30.5, 17.75}, 6.5);
    drawCloud(sketch, palette.cloud, {20.5, 34.5}, 0.8);
    for (const CGFloat x : {14.0, 21.5, 29.0}) drawDrop(sketch, palette.water, {x, 38.5}, 4.5);
}

void drawThunderstorm(GallerySketch& sketch, const Palette& palette) {
    drawCloud(sketch, palette.darkCloud, {24, 30}, 0.95);
    drawBefore(sketch, GalleryShape::polygon({{24.5, 21}, {18, 33.5}, {23.5, 33.5}, {21, 43.5}, {31, 29.5}, {25.5, 29.5}, {29.5, 21}}, 0.8),
               palette.bolt);
}

void drawSleet(GallerySketch& sketch, const Palette& palette) {
    drawCloud(sketch, palette.darkCloud, {24, 29}, 0.95);
    drawDrop(sketch, palette.water, {17, 34}, 8.5);
    drawFlake(sketch, palette.ice, {24.5, 38.5});
    drawDrop(sketch, palette.water, {35, 34}, 8.5);
}

void drawSnow(GallerySketch& sketch, const Palette& palette) {
    drawCloud(sketch, palette.cloud, {24, 29}, 0.95);
    for (const CGPoint center : {CGPoint{14, 35.5}, {24, 40}, {34, 35.5}}) drawFlake(sketch, palette.ice, center);
}

void drawWind(GallerySketch& sketch, const Palette& palette) {
    drawBreeze(sketch, palette.air, {8, 17.5}, 24, 4.5, true);
    drawBreeze(sketch, palette.air, {5, 24.5}, 36, 5.5, true);
    drawBreeze(sketch, palette.air, {12, 31.5}, 28, 4.5, false);
}

struct Kind {
    const char* identifier;
    const char* name;
    void (*draw)(GallerySketch& sketch, const Palette& palette);
};
constexpr Kind kinds[] = {
    {"clear", "clear", drawClear},
    {"partly-cloudy", "partly cloudy", drawPartlyCloudy},
    {"cloudy", "cloudy", drawCloudy},
    {"overcast", "overcast", drawOvercast},
    {"fog", "fog", drawFog},
    {"drizzle", "drizzle", drawDrizzle},
    {"rain", "rain", drawRain},
    {"showers", "showers", drawShowers},
    {"thunderstorm", "thunderstorm", drawThunderstorm},
    {"sleet", "sleet", drawSleet},
    {"snow", "snow", drawSnow},
    {"wind", "wind", drawWind},
};
static_assert(std::size(kinds) == GalleryWeatherIcons::count);

Ref<UIImage> drawn(const Kind& kind, const Palette& palette) {
    constexpr int scale = 3; // As fine as the finest screens of telephones.
    GallerySketch sketch(GalleryWeatherIcons::side, scale);
    kind.draw(sketch, palette);
    return sketch.image();
}

Ref<const std::vector<Ref<UIImage>>> drawnImages() {
    auto images = std::make_shared<std::vector<Ref<UIImage>>>();
    for (const Kind& kind : kinds) {
        const Ref<UIImage> image = UIImage::imageWithLight_dark(drawn(kind, lightPalette), drawn(kind, darkPalette));
        image->setAccessibilityLabel(kind.name);
        images->push_back(image);
    }
    return images;
}

} // namespace

Ref<const std::vector<Ref<UIImage>>> GalleryWeatherIcons::images() {
    static const Ref<const std::vector<Ref<UIImage>>> shared = drawnImages();
    return shared;
}

std::string GalleryWeatherIcons::name(std::size_t index) { return index < count ? kinds[index].name : ""; }

std::string GalleryWeatherIcons::identifier(std::size_t index) { return index < count ? kinds[index].identifier : ""; }

std::optional<std::size_t> GalleryWeatherIcons::indexOfIdentifier(std::string_view identifier) {
    for (std::size_t index = 0; index < count; ++index) {
        if (kinds[index].identifier == identifier) return index;
    }
    return std::nullopt;
}

} // namespace gallery
