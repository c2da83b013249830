// A page of eight photographs of twelve megapixels, laid out and painted, against decoding the same
// files at the size at which they are seen there. Runs where QT_QPA_PLATFORM says, "offscreen" if
// nothing does.

#include <QImage>
#include <QImageReader>
#include <QPainter>
#include <string>
#include <vector>

#include "bench_folder.h"
#include "desktop/desktop.h"
#include "desktop/services/page_output.h"
#include "desktop/widgets/page_fonts.h"
#include "desktop/widgets/text.h"
#include "forms/form_names.h"
#include "forms/navigator.h"
#include "images/image_book.h"
#include "images/image_pages.h"
#include "ratio_table.h"
#include "record_book/entry_screen.h"
#include "record_book/record_store.h"
#include "windows.h"

namespace tarnwell::bench {
namespace {

constexpr int kImages = 8;
constexpr QSize kPhotograph{4000, 3000};
constexpr int kDotsPerInch = 150;  // of a page on the clipboard
constexpr double kAim = 1.2;

// Noise on slopes of colour, which compresses about as well as what a camera sees.
QImage Photograph(int number) {
  QImage image(kPhotograph, QImage::Format_RGB32);
  std::uint32_t noise = static_cast<std::uint32_t>(number) + 1;
  for (int y = 0; y < image.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < image.width(); ++x) {
      noise = noise * 1664525 + 1013904223;
      const int grain = static_cast<int>(noise >> 28);
      line[x] = qRgb(x * 200 / kPhotograph.width() + grain, y * 200 / kPhotograph.height() + grain,
                     80 + grain);
    }
  }
  return image;
}

void Decode(const std::vector<std::string>& files, QSize size) {
  for (const std::string& file : files) {
    QImageReader reader(QString::fromStdString(file), "jpeg");
    reader.setScaledSize(size);
    Check(!reader.read().isNull(), "decode");
  }
}

// An arrow key held down over the list of 1,000 images, and one after the other looked at.
bool MeasureMoving(const std::string& folder, const std::vector<std::string>& files) {
  constexpr int kEntries = 1000;
  constexpr int kLooked = 40;
  constexpr double kLongestMove = 50;  // milliseconds
  storage::ProgramFolder user(storage::RealFileSystem(), folder);
  for (int i = 0; i < kEntries; ++i) {
    const std::string& file = files[static_cast<std::size_t>(i) % files.size()];
    Check(static_cast<bool>(WriteNew(user, images::ImageBook(), record_book::kFirstRecord + i,
                                     {{"Title " + std::to_string(i), "2026"}, file})),
          "write the images");
  }
  desktop::Desktop desktop({QString::fromStdString(folder), QString()});
  desktop.navigator().Show(forms::form_names::kPhotoView);
  auto& form = static_cast<record_book::EntryScreen&>(*desktop.navigator().top());
  form.mode.Click();
  QApplication::processEvents();
  std::vector<double> moves;
  std::vector<double> looks;
  for (int i = 0; i < kEntries; ++i) {
    moves.push_back(Milliseconds([&] {
      form.names.Pick(i);
      QApplication::processEvents();
    }));
    if (i % (kEntries / kLooked) != 0) continue;
    looks.push_back(Milliseconds([&] {
      form.view.Click();
      QApplication::processEvents();
    }));
  }
  const bool is_good = TellWorst("An arrow key over 1,000 images, painted", moves, kLongestMove);
  return TellWorst("An image of 12 megapixels looked at, painted", looks, kLongestMove) && is_good;
}

int Run(const std::string& folder) {
  const BenchFolder place(folder);
  std::vector<std::string> files;
  std::vector<images::PrintedImage> images;
  for (int i = 0; i < kImages; ++i) {
    files.push_back(place.path() + "/" + std::to_string(i) + ".jpg");
    Check(Photograph(i).save(QString::fromStdString(files.back()), "JPEG", 90), "write");
    images.push_back({files.back(), {"Title", "2026"}});
  }
  desktop::PageMetrics metrics;
  print::PageEngine engine(metrics);
  const auto page = [&] {
    engine.Start({}, {});
    images::PrintImages(engine, kImages, images);
    Check(!desktop::ImageOf(engine.document(), 0).isNull(), "paint");
  };
  // A cell of the upright page, in which a photograph is as high as the cell.
  const int height = static_cast<int>(15640 * 0.21 * kDotsPerInch / 1440);
  RatioTable table;
  table.Measure("a page of 8 photographs of 12 megapixels", kAim, 5, page, [&] {
    Decode(files, {height * 4 / 3, height});
  });
  const bool is_good = MeasureMoving(place.path(), files);
  return table.Print() && is_good ? 0 : 1;
}

}  // namespace
}  // namespace tarnwell::bench

int main(int count, char** arguments) {
  return tarnwell::bench::RunInWindows(count, arguments, tarnwell::bench::Run);
}
