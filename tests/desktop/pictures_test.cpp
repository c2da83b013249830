#include <gtest/gtest.h>

#include <QBuffer>
#include <QImage>
#include <QImageWriter>
#include <QTest>
#include <filesystem>

#include "desktop/services/qt_pictures.h"
#include "desktop/shown_widget.h"
#include "support/temporary_folder.h"

namespace tarnwell::desktop {
namespace {

using forms::LoadedPicture;
using storage::Fault;

// Blue, and red in its upper left quarter.
QByteArray FileOf(const char* type, QSize size = {80, 40}) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(Qt::blue);
  for (int y = 0; y < size.height() / 2; ++y) {
    for (int x = 0; x < size.width() / 2; ++x) image.setPixelColor(x, y, Qt::red);
  }
  QBuffer file;
  file.open(QIODevice::WriteOnly);
  EXPECT_TRUE(QImageWriter(&file, type).write(image)) << type;
  return file.buffer();
}

// What a camera notes that was held a quarter turn to the left.
QByteArray OnItsSide(QByteArray jpeg) {
  const QByteArray note("Exif\0\0II*\0\x08\0\0\0\1\0\x12\1\3\0\1\0\0\0\6\0\0\0\0\0\0\0", 32);
  return jpeg.insert(2, QByteArray("\xFF\xE1\0\x22", 4) + note);
}

class QtPicturesTest : public ::testing::Test {
 protected:
  LoadedPicture Load(const QByteArray& file, int width = 1000, int height = 1000) {
    disk_.Write("Caf\u00E9.dat", file.toStdString());
    return pictures_.Load(disk_.path() + "/Caf\xE9.dat", width, height);
  }
  QImage Shown(const LoadedPicture& loaded) {
    return loaded.png ? QImage::fromData(QByteArray::fromStdString(*loaded.png), "PNG") : QImage();
  }

  testing::TemporaryFolder disk_;
  QtPictures pictures_;
};

TEST_F(QtPicturesTest, EachFormatIsReadAtTheSizeThatIsNeeded) {
  const QByteArray gif =
      QByteArray::fromHex("47494638396101000100800000ff0000ffffff2c00000000010001000002024401003b");
  EXPECT_EQ(Shown(Load(gif)).pixelColor(0, 0), QColor(Qt::red));
  for (const char* type : {"png", "jpeg", "bmp", "ico", "tiff", "webp"}) {
    SCOPED_TRACE(type);
    const LoadedPicture loaded = Load(FileOf(type), 20, 100);
    EXPECT_EQ(QSize(loaded.width, loaded.height), QSize(80, 40));
    const QImage shown = Shown(loaded);
    ASSERT_EQ(shown.size(), QSize(20, 10));
    EXPECT_GT(shown.pixelColor(3, 2).red(), 200);
    EXPECT_GT(shown.pixelColor(16, 2).blue(), 200);
    EXPECT_EQ(Shown(Load(FileOf(type))).size(), QSize(80, 40)) << "never enlarged";
  }
}

TEST_F(QtPicturesTest, AnUprightPictureStandsUpright) {
  const LoadedPicture loaded = Load(OnItsSide(FileOf("jpeg")), 20, 20);
  EXPECT_EQ(QSize(loaded.width, loaded.height), QSize(40, 80));
  const QImage shown = Shown(loaded);
  ASSERT_EQ(shown.size(), QSize(10, 20));
  EXPECT_GT(shown.pixelColor(8, 2).red(), 200);
  EXPECT_GT(shown.pixelColor(2, 2).blue(), 200);
}

TEST_F(QtPicturesTest, WhatIsNoPictureOrTooMuchSaysSo) {
  QByteArray giant = FileOf("bmp", {1, 1});
  giant.replace(18, 8, QByteArray::fromHex("0040000000400000"));  // 16,384 by 16,384
  const struct {
    const char* what;
    QByteArray file;
    Fault fault;
  } cases[] = {
      {"nothing", "", Fault::kNone},
      {"a text", "BMW and others", Fault::kNone},
      {"a drawing", "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>", Fault::kNone},
      {"cut off", FileOf("png").left(60), Fault::kNone},
      {"giant", giant, Fault::kTooLarge},
  };
  for (const auto& c : cases) {
    const LoadedPicture loaded = Load(c.file);
    EXPECT_EQ(loaded.png, nullptr) << c.what;
    EXPECT_EQ(loaded.fault, c.fault) << c.what;
    EXPECT_EQ(loaded.width, 0) << c.what;
  }
  EXPECT_EQ(pictures_.Load(disk_.path() + "/gone.png", 9, 9).fault, Fault::kMissing);
  EXPECT_EQ(pictures_.Load(disk_.path(), 9, 9).fault, Fault::kNotPlain);
  std::filesystem::resize_file(disk_.path() + "/Caf\u00E9.dat", QtPictures::kMostBytes + 1);
  EXPECT_EQ(pictures_.Load(disk_.path() + "/Caf\xE9.dat", 9, 9).fault, Fault::kTooLarge);
}

class PictureWidgetTest : public ShownWidget {};

TEST_F(PictureWidgetTest, APictureInHandTakesThePlaceOfTheFile) {
  forms::Picture picture{form_, "Image1", "any.png"};
  Show<QWidget>(Widget(picture, pictures_));
  EXPECT_EQ(PixelAt(200, 150), QColor(Qt::red));
  QImage blue(4, 4, QImage::Format_RGB32);
  blue.fill(Qt::blue);
  QBuffer png;
  png.open(QIODevice::WriteOnly);
  blue.save(&png, "PNG");
  picture.SetContent(std::make_shared<const std::string>(png.buffer().toStdString()));
  EXPECT_EQ(PixelAt(200, 150), QColor(Qt::blue));
  picture.SetFile("any.png");
  EXPECT_EQ(PixelAt(200, 150), QColor(Qt::red));
}

}  // namespace
}  // namespace tarnwell::desktop
