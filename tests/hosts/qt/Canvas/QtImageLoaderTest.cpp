#include <gtest/gtest.h>

#include <QColor>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include "QtImageLoader.h"

using namespace gx;
using gx::qt::QtImageLoader;

namespace {

TEST(QtImageLoader, ReadsPixelsFromTheTopWithTheirAlpha) {
    const QTemporaryDir folder;
    QImage file(3, 2, QImage::Format_ARGB32);
    file.fill(QColor(0, 0, 0, 0));
    file.setPixelColor(2, 0, QColor(10, 20, 30, 128));
    file.setPixelColor(0, 1, QColor(200, 100, 50, 255));
    const QString path = folder.filePath("sønne@2x.png");
    ASSERT_TRUE(file.save(path));

    const Ref<UIImage> image = UIImage::imageWithContentsOfFile(path.toStdString());
    ASSERT_TRUE(image);
    EXPECT_EQ(image->pixelWidth(), 3);
    EXPECT_EQ(image->pixelHeight(), 2);
    EXPECT_EQ(image->scale(), 2);
    EXPECT_EQ(image->size(), CGSizeMake(1.5, 1));
    const std::vector<std::uint8_t> topRight(image->pixels().begin() + 8, image->pixels().begin() + 12);
    EXPECT_EQ(topRight, (std::vector<std::uint8_t>{10, 20, 30, 128}));
    const std::vector<std::uint8_t> bottomLeft(image->pixels().begin() + 12, image->pixels().begin() + 16);
    EXPECT_EQ(bottomLeft, (std::vector<std::uint8_t>{200, 100, 50, 255}));
}

TEST(QtImageLoader, ReturnsNothingForOtherFiles) {
    const QTemporaryDir folder;
    EXPECT_FALSE(UIImage::imageWithContentsOfFile(folder.filePath("absent.png").toStdString()));
    QFile file(folder.filePath("text.png"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("no picture");
    file.close();
    EXPECT_FALSE(UIImage::imageWithContentsOfFile(file.fileName().toStdString()));
}

TEST(QtImageLoader, ReadsTheScaleFromTheName) {
    EXPECT_EQ(QtImageLoader::scaleOfFileName("icons/sun.png"), 1);
    EXPECT_EQ(QtImageLoader::scaleOfFileName("icons/sun@2x.png"), 2);
    EXPECT_EQ(QtImageLoader::scaleOfFileName("sun@3x"), 3);
    EXPECT_EQ(QtImageLoader::scaleOfFileName(":/icons/a.b@9x.jpeg"), 9);
    EXPECT_EQ(QtImageLoader::scaleOfFileName("sun@0x.png"), 1);
    EXPECT_EQ(QtImageLoader::scaleOfFileName("sun@2.png"), 1);
    EXPECT_EQ(QtImageLoader::scaleOfFileName("at@2x/sun.png"), 1);
    EXPECT_EQ(QtImageLoader::scaleOfFileName("2x.png"), 1);
    EXPECT_EQ(QtImageLoader::scaleOfFileName(""), 1);
}

} // namespace
