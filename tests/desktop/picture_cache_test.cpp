#include "desktop/widgets/picture_cache.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QImage>
#include <QTest>
#include <QtEndian>

#include "desktop/widgets/picture_files.h"

namespace tarnwell::desktop {
namespace {

QByteArray PictureFile(QSize size, const char* type) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(Qt::red);
  QByteArray file;
  QBuffer buffer(&file);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, type);
  return file;
}

// A BMP file whose head tells of this size, with nothing behind it.
QByteArray Head(qint32 width, qint32 height) {
  QByteArray size(8, '\0');
  qToLittleEndian(width, size.data());
  qToLittleEndian(height, size.data() + 4);
  return PictureFile({1, 1}, "BMP").replace(18, 8, size);
}

TEST(PictureFiles, AreReadAsWhatTheyAreAndWithinBounds) {
  for (const char* const type : {"PNG", "JPEG", "BMP"}) {
    const QByteArray file = PictureFile({30, 20}, type);
    EXPECT_EQ(PixelsOf(file), QSize(30, 20)) << type;
    EXPECT_EQ(Decoded(file, {15, 10}).size(), QSize(15, 10)) << type;
    EXPECT_EQ(Decoded(file, {3000, 10}).size(), QSize(30, 10)) << type;
  }
  EXPECT_EQ(PixelsOf(Head(10'000, 10'000)), QSize(10'000, 10'000));
  const QByteArray others[] = {{}, "text", PictureFile({3, 2}, "PPM"), Head(10'000, 10'001)};
  for (const QByteArray& file : others) {
    EXPECT_FALSE(PixelsOf(file).isValid());
    EXPECT_TRUE(Decoded(file, {1, 1}).isNull());
  }
}

TEST(PictureCache, DecodesOneLargePictureAfterTheOtherAtTheSizeShown) {
  int ready = 0;
  PictureCache cache([&ready] { ++ready; });
  const QByteArray file = PictureFile({1200, 900}, "PNG");
  for (const char* const name : {"a", "b"}) EXPECT_EQ(cache.At(name, file, {40, 30}).width(), 1);
  ASSERT_TRUE(QTest::qWaitFor([&ready] { return ready == 1; }));
  EXPECT_EQ(cache.At(QStringLiteral("a"), file, {40, 30}).size(), QSize(40, 30));
  EXPECT_EQ(cache.At(QStringLiteral("b"), file, {40, 30}).width(), 1);
  ASSERT_TRUE(QTest::qWaitFor([&ready] { return ready == 2; }));
  EXPECT_EQ(cache.At(QStringLiteral("b"), file, {40, 30}).size(), QSize(40, 30));
}

TEST(PictureCache, KeepsNoMoreThanItsBoundAndTriesNothingTwice) {
  PictureCache cache([] {});
  const QByteArray file = PictureFile({500, 500}, "PNG");
  for (int i = 0; i < 100; ++i) {
    EXPECT_EQ(cache.At(QString::number(i), file, {500, 500}).width(), 500);
    EXPECT_LE(cache.kilobytes(), PictureCache::kMostKilobytes);
  }
  // The first was thrown out; it comes again when others are in sight.
  EXPECT_EQ(cache.At(QStringLiteral("0"), file, {500, 500}).width(), 1);
  cache.Retry();
  EXPECT_EQ(cache.At(QStringLiteral("0"), file, {500, 500}).width(), 500);
  EXPECT_EQ(cache.At(QStringLiteral("no picture"), "text", {30, 30}).width(), 30);
}

}  // namespace
}  // namespace tarnwell::desktop
