#include "WeatherIcons.h"

#include <iterator>

#include "IconCanvas.h"

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
/// Transparent space between a shape in front and those behind it.
constexpr CGFloat gap = 2;

/// 35.5 points wide and 24 high, with the middle of its bottom at the origin. The round parts are
/// so far above the bottom that no fillet bends it.
SmoothShape cloud() {
    constexpr CGFloat fillet = 1.25;
    return SmoothShape::united({SmoothShape::stroke({{-11.25, -6.75}, {9.5, -6.75}}, 13.5), SmoothShape::circle({9.25, -9.5}, 8.25),
                                SmoothShape::circle({-2.5, -14}, 10)},
                               fillet);
}

/// A sun with those of its eight rays that lie between two angles, clockwise from the right.
void drawSun(IconCanvas& canvas, const Palette& palette, CGPoint center, CGFloat radius, int firstDegrees, int lastDegrees) {
    canvas.fill(SmoothShape::circle(center, radius), palette.sun);
    for (int degrees = firstDegrees; degrees <= lastDegrees; degrees += 45) {
        const CGPoint from = arcPoints(center, radius + 4.5, degrees, degrees).front();
        const CGPoint to = arcPoints(center, 1.4 * radius + 4.5, degrees, degrees).front();
        canvas.fill(SmoothShape::stroke({from, to}, strokeWidth), palette.sun);
    }
}

/// A sun with the rays that a cloud at the lower left does not cover.
void drawSunBehindCloud(IconCanvas& canvas, const Palette& palette, CGPoint center, CGFloat radius) {
    drawSun(canvas, palette, center, radius, -135, 45);
}

/// Draws a shape in front of the others, with a gap around it.
void drawBefore(IconCanvas& canvas, const SmoothShape& shape, unsigned color) {
    canvas.erase(shape.grown(gap));
    canvas.fill(shape, color);
}

void drawCloud(IconCanvas& canvas, unsigned color, CGPoint bottom, CGFloat size = 1) {
    drawBefore(canvas, cloud().scaled(size).moved(bottom.x, bottom.y), color);
}

/// A drop below a cloud, inclined like rain in a light wind.
void drawDrop(IconCanvas& canvas, unsigned color, CGPoint top, CGFloat length) {
    constexpr CGFloat lean = 0.4;
    canvas.fill(SmoothShape::stroke({top, {top.x - lean * length, top.y + length}}, strokeWidth), color);
}

void drawFlake(IconCanvas& canvas, unsigned color, CGPoint center) {
    std::vector<SmoothShape> arms;
    for (const CGFloat angle : {30.0, 90.0, 150.0}) {
        const CGPoint from = arcPoints(center, 3.1, angle, angle).front();
        const CGPoint to = arcPoints(center, 3.1, angle + 180, angle + 180).front();
        arms.push_back(SmoothShape::stroke({from, to}, 1.7));
    }
    canvas.fill(SmoothShape::united(arms, 0), color);
}

void drawLine(IconCanvas& canvas, unsigned color, CGFloat left, CGFloat right, CGFloat y) {
    canvas.fill(SmoothShape::stroke({{left, y}, {right, y}}, strokeWidth), color);
}

enum class Curl { Upward, Downward };

/// A breeze from the left that ends in a curl.
void drawBreeze(IconCanvas& canvas, unsigned color, CGPoint from, CGFloat right, CGFloat radius, Curl curl) {
    const CGFloat side = curl == Curl::Upward ? -1 : 1;
    std::vector<CGPoint> points = {from};
    const auto arc = arcPoints({right, from.y + side * radius}, radius, -90 * side, 125 * side);
    points.insert(points.end(), arc.begin(), arc.end());
    canvas.fill(SmoothShape::stroke(std::move(points), strokeWidth), color);
}

// The kinds

void drawClear(IconCanvas& canvas, const Palette& palette) { drawSun(canvas, palette, {24, 24}, 9.5, 0, 315); }

void drawPartlyCloudy(IconCanvas& canvas, const Palette& palette) {
    drawSunBehindCloud(canvas, palette, {29.5, 19.5}, 7.5);
    drawCloud(canvas, palette.cloud, {20, 43}, 0.9);
}

void drawCloudy(IconCanvas& canvas, const Palette& palette) { drawCloud(canvas, palette.cloud, {24, 36}, 1.1); }

void drawOvercast(IconCanvas& canvas, const Palette& palette) {
    drawCloud(canvas, palette.darkCloud, {30, 30}, 0.85);
    drawCloud(canvas, palette.cloud, {20.5, 41}, 0.85);
}

void drawFog(IconCanvas& canvas, const Palette& palette) {
    drawCloud(canvas, palette.cloud, {24, 28}, 0.95);
    drawLine(canvas, palette.air, 8, 32, 33.5);
    drawLine(canvas, palette.air, 38, 40, 33.5);
    drawLine(canvas, palette.air, 12, 15, 40);
    drawLine(canvas, palette.air, 21, 38, 40);
}

void drawDrizzle(IconCanvas& canvas, const Palette& palette) {
    drawCloud(canvas, palette.cloud, {24, 29}, 0.95);
    for (const CGPoint top : {CGPoint{15.5, 34}, {25, 34}, {34.5, 34}, {19, 40.5}, {28.5, 40.5}}) drawDrop(canvas, palette.water, top, 1.5);
}

void drawRain(IconCanvas& canvas, const Palette& palette) {
    drawCloud(canvas, palette.darkCloud, {24, 29}, 0.95);
    for (const CGFloat x : {17.5, 26.5, 35.5}) drawDrop(canvas, palette.water, {x, 34}, 8.5);
}

void drawShowers(IconCanvas& canvas, const Palette& palette) {
    drawSunBehindCloud(canvas, palette, {30.5, 17.75}, 6.5);
    drawCloud(canvas, palette.cloud, {20.5, 34.5}, 0.8);
    for (const CGFloat x : {14.0, 21.5, 29.0}) drawDrop(canvas, palette.water, {x, 38.5}, 4.5);
}

void drawThunderstorm(IconCanvas& canvas, const Palette& palette) {
    drawCloud(canvas, palette.darkCloud, {24, 30}, 0.95);
    drawBefore(canvas, SmoothShape::polygon({{24.5, 21}, {18, 33.5}, {23.5, 33.5}, {21, 43.5}, {31, 29.5}, {25.5, 29.5}, {29.5, 21}}, 0.8),
               palette.bolt);
}

void drawSleet(IconCanvas& canvas, const Palette& palette) {
    drawCloud(canvas, palette.darkCloud, {24, 29}, 0.95);
    drawDrop(canvas, palette.water, {17, 34}, 8.5);
    drawFlake(canvas, palette.ice, {24.5, 38.5});
    drawDrop(canvas, palette.water, {35, 34}, 8.5);
}

void drawSnow(IconCanvas& canvas, const Palette& palette) {
    drawCloud(canvas, palette.cloud, {24, 29}, 0.95);
    for (const CGPoint center : {CGPoint{14, 35.5}, {24, 40}, {34, 35.5}}) drawFlake(canvas, palette.ice, center);
}

void drawWind(IconCanvas& canvas, const Palette& palette) {
    drawBreeze(canvas, palette.air, {8, 17.5}, 24, 4.5, Curl::Upward);
    drawBreeze(canvas, palette.air, {5, 24.5}, 36, 5.5, Curl::Upward);
    drawBreeze(canvas, palette.air, {12, 31.5}, 28, 4.5, Curl::Downward);
}

struct Kind {
    const char* identifier;
    const char* name;
    void (*draw)(IconCanvas& canvas, const Palette& palette);
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
static_assert(std::size(kinds) == WeatherIcons::count);

Ref<UIImage> drawn(const Kind& kind, const Palette& palette) {
    constexpr int scale = 3; // That of the finest screens of phones.
    IconCanvas canvas(WeatherIcons::side, scale);
    kind.draw(canvas, palette);
    return canvas.image();
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

Ref<const std::vector<Ref<UIImage>>> WeatherIcons::images() {
    static const Ref<const std::vector<Ref<UIImage>>> shared = drawnImages();
    return shared;
}

std::string WeatherIcons::name(std::size_t index) { return index < count ? kinds[index].name : ""; }

std::string WeatherIcons::identifier(std::size_t index) { return index < count ? kinds[index].identifier : ""; }

std::optional<std::size_t> WeatherIcons::indexOfIdentifier(std::string_view identifier) {
    for (std::size_t index = 0; index < count; ++index) {
        if (kinds[index].identifier == identifier) return index;
    }
    return std::nullopt;
}

} // namespace gallery
