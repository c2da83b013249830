#include <gtest/gtest.h>

#include <QApplication>
#include <QBuffer>
#include <QDragEnterEvent>
#include <QGraphicsView>
#include <QImage>
#include <QImageWriter>
#include <QMimeData>
#include <QPainter>
#include <QTest>
#include <QUrl>
#include <QWheelEvent>
#include <filesystem>
#include <fstream>
#include <future>
#include <iterator>

#include "desktop/services/page_output.h"
#include "desktop/services/qt_pictures.h"
#include "desktop/shown_widget.h"
#include "desktop/widgets/machine_pictures.h"
#include "desktop/widgets/patient_reading.h"
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

// Scanners write black and white, and sixteen bits for each colour.
TEST_F(QtPicturesTest, DeepAndFlatScansAreRead) {
  QImage scan({80, 40}, QImage::Format_RGB32);
  scan.fill(Qt::white);
  QPainter(&scan).fillRect(0, 0, 40, 20, Qt::black);
  const struct {
    const char* type;
    QImage::Format format;
  } cases[] = {{"png", QImage::Format_RGBA64},   {"tiff", QImage::Format_RGBA64},
               {"png", QImage::Format_Mono},     {"tiff", QImage::Format_Mono},
               {"bmp", QImage::Format_Indexed8}, {"jpeg", QImage::Format_Grayscale8}};
  for (const auto& c : cases) {
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    ASSERT_TRUE(QImageWriter(&file, c.type).write(scan.convertToFormat(c.format)));
    const QImage shown = Shown(Load(file.buffer(), 20, 20));
    EXPECT_EQ(shown.size(), QSize(20, 10)) << c.type << " " << c.format;
    EXPECT_LT(shown.pixelColor(3, 2).lightness(), 20) << c.type << " " << c.format;
    EXPECT_GT(shown.pixelColor(16, 8).lightness(), 235) << c.type << " " << c.format;
  }
}

// One in the four colours of a printer, and two pages as a fax machine packs them.
TEST_F(QtPicturesTest, OtherProgramsScansAreReadAndOfSeveralPagesTheFirst) {
  const auto load = [&](const char* name) {
    std::ifstream file(std::string(TARNWELL_TEST_DATA "/pictures/") + name, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator(file), {}};
    return Shown(Load(QByteArray::fromStdString(bytes)));
  };
  const QImage four_colors = load("cmyk.jpg");
  ASSERT_EQ(four_colors.size(), QSize(32, 16));
  const QColor red = four_colors.pixelColor(4, 2);
  EXPECT_TRUE(red.red() > 180 && red.blue() < 60) << red.name().toStdString();
  const QColor blue = four_colors.pixelColor(28, 12);
  EXPECT_TRUE(blue.blue() > 180 && blue.red() < 60) << blue.name().toStdString();
  const QImage first_page = load("two-pages.tif");
  ASSERT_EQ(first_page.size(), QSize(24, 12));
  EXPECT_EQ(first_page.pixelColor(2, 2).lightness(), 0);
  EXPECT_EQ(first_page.pixelColor(20, 9).lightness(), 255);
}

TEST(PatientReading, ASilentFolderIsWaitedForOnceAndNoLongerThanItsTime) {
  std::promise<void> server;
  const std::shared_future<void> back = server.get_future().share();
  const auto read = [&](const char* folder, const char* content) {
    return ReadPatiently(
        folder,
        [=] {
          return FileRead{content, Fault::kNone};
        },
        std::chrono::minutes(1));
  };
  const FileRead silent = ReadPatiently(
      "/net", [back] { return back.wait(), FileRead{}; }, std::chrono::milliseconds(1));
  EXPECT_EQ(silent.fault, Fault::kNoAnswer);
  EXPECT_EQ(read("/net", "late").fault, Fault::kNoAnswer);
  EXPECT_EQ(read("/home", "here").content, "here");
  server.set_value();
  EXPECT_TRUE(QTest::qWaitFor([&] { return read("/net", "back").content == "back"; }));
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
  std::filesystem::resize_file(disk_.path() + "/Caf\u00E9.dat", kMostPictureBytes + 1);
  EXPECT_EQ(pictures_.Load(disk_.path() + "/Caf\xE9.dat", 9, 9).fault, Fault::kTooLarge);
}

// Sizes are known before anything is decoded, as one sees the picture.
TEST_F(QtPicturesTest, ALookTellsTheSizeOrWhyThereIsNone) {
  const auto look = [this](const QByteArray& file) {
    disk_.Write("a", file.toStdString());
    return pictures_.Look(disk_.path() + "/a");
  };
  const forms::PictureHead upright = look(OnItsSide(FileOf("jpeg")));
  EXPECT_EQ(QSize(upright.width, upright.height), QSize(40, 80));
  const QByteArray png = FileOf("png");
  EXPECT_TRUE(look(png.left(png.size() - 4)).is_picture()) << "only its end is missing";
  EXPECT_FALSE(look("a text").is_picture());
  EXPECT_EQ(pictures_.Look(disk_.path() + "/gone").fault, Fault::kMissing);
}

// Its box is the page's, its proportions its own: 80 by 40 stands in the middle of a square.
TEST_F(QtPicturesTest, OnAPageAPictureIsReadFromItsFileAndStandsInTheMiddleOfItsBox) {
  disk_.Write("a.png", FileOf("png").toStdString());
  forms::Document document;
  document.setup = {2880, 2880, false, {}};
  document.pages = {{forms::PlacedPicture{720, 720, 1440, 1440, disk_.path() + "/a.png"},
                     forms::PlacedPicture{0, 0, 720, 720, disk_.path() + "/gone.png"}}};
  const QImage page = ImageOf(document, 0);  // 150 dots an inch
  EXPECT_EQ(page.pixelColor(30, 30), QColor(Qt::white));
  EXPECT_EQ(page.pixelColor(150, 110), QColor(Qt::white));
  EXPECT_EQ(page.pixelColor(150, 190), QColor(Qt::white));
  EXPECT_EQ(page.pixelColor(80, 117), QColor(Qt::red));
  EXPECT_EQ(page.pixelColor(220, 183), QColor(Qt::blue));
  EXPECT_EQ(page.pixelColor(72, 150), QColor(Qt::white));
  EXPECT_EQ(page.pixelColor(228, 150), QColor(Qt::white));
}

class PictureWidgetTest : public ShownWidget {};

TEST_F(PictureWidgetTest, ADroppedFileOfThisMachineIsTakenByItsPath) {
  forms::Picture picture{form_, "Image1", {}};
  std::vector<std::string> dropped;
  picture.on_drop = [&](const std::string& path) { dropped.push_back(path); };
  auto* widget = Show<QWidget>(Widget(picture, pictures_));
  const auto drop = [widget](const QList<QUrl>& urls) {
    QMimeData content;
    content.setUrls(urls);
    QDragEnterEvent enter({9, 9}, Qt::CopyAction, &content, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &enter);
    QDropEvent event({9, 9}, Qt::CopyAction, &content, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
  };
  const QUrl file = QUrl::fromLocalFile(QStringLiteral("/home/ann/Caf\u00E9.jpg"));
  drop({file});
  drop({QUrl::fromLocalFile(QStringLiteral("/home/ann/\u65E5.jpg"))});
  drop({file, file});
  drop({QUrl(QStringLiteral("https://example.com/a.jpg"))});
  EXPECT_EQ(dropped, (std::vector<std::string>{"/home/ann/Caf\xE9.jpg", ""}));
}

TEST_F(PictureWidgetTest, TheWheelAndPlusMakeAPictureLargerAndNeverSmallerThanWhole) {
  testing::TemporaryFolder disk;
  disk.Write("a.png", FileOf("png", {800, 400}).toStdString());
  forms::PictureView picture{form_, "Image2"};
  auto* view = Show<QGraphicsView>(Widget(picture));
  picture.Show(disk.path() + "/a.png");
  const double whole = view->transform().m11();
  EXPECT_LE(800 * whole, view->viewport()->width());
  const auto wheel = [view](int eighths) {
    QWheelEvent event({5, 5}, view->mapToGlobal(QPointF(5, 5)), {}, {0, eighths}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(view->viewport(), &event);
  };
  wheel(-120);
  EXPECT_EQ(picture.steps(), 0);
  wheel(60);
  EXPECT_EQ(picture.steps(), 0);
  wheel(60);
  QTest::keyClick(view, Qt::Key_Plus);
  EXPECT_EQ(picture.steps(), 2);
  EXPECT_NEAR(view->transform().m11(), whole * 1.25 * 1.25, 0.001);
}

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
