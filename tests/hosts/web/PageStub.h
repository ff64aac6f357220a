#pragma once

#include <functional>
#include <string>
#include <vector>

/// Stands in for the page: notes what the host tells it, and measures ten points a byte.
struct PageStub {
    struct Text {
        bool isRow = false;
        int font = 0;
        double size = 0;
        std::string text;
        double scaleX = 1;
        double scaleY = 1;
        double x = 0;
        double y = 0;
        double alpha = 1;
        double home = 0;
    };
    struct Rect {
        int shape = 0;
        double x = 0;
        double y = 0;
        double width = 0;
        double height = 0;
        double alpha = 0;
    };
    struct Image {
        int handle = 0;
        double x = 0;
        double y = 0;
        double width = 0;
        double height = 0;
    };

    /// The one that the imports go to, empty at the start of each test.
    static PageStub& page();
    static void reset() { page() = PageStub(); }

    /// The row that is drawn in full size and without fading, in the order of drawing.
    std::vector<std::string> middleRows() const;
    std::vector<std::string> textsOutsideRows() const;

    std::vector<Text> texts;
    std::vector<Rect> rects;
    std::vector<Image> images;
    std::vector<std::string> measured;
    int frames = 0;
    int passedRows = 0;
    int changes = 0;
    double widthOfByte = 10;
    std::function<std::string(int column, double row)> title = [](int, double row) { return std::to_string(static_cast<long>(row)); };
};
