// Paints the supplied wallpapers, WP1.jpg to WP16.jpg, into a folder: paint-wallpapers data
//
// Each is a light tile that repeats without a seam and stays bright enough for black text. The
// files are checked in; this program is how they came about.

#include <QColor>
#include <QImage>
#include <QString>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <numbers>

namespace {

constexpr int kSide = 96;  // pixels; a multiple of the 8 by 8 blocks of a JPEG
constexpr int kQuality = 88;

// How much lighter than its paper a place is, -1 to 1. All of them repeat after kSide.
using Pattern = double (*)(int x, int y);

double Wave(double place, int periods) {
  return std::cos(2 * std::numbers::pi * periods * place / kSide);
}

// The same pepper on every machine.
double Grain(int x, int y) {
  auto hash = static_cast<std::uint32_t>(x * 374761393 + y * 668265263);
  hash = (hash ^ (hash >> 13)) * 1274126177u;
  return static_cast<double>((hash ^ (hash >> 16)) & 0xFF) / 127.5 - 1;
}

double Paper(int x, int y) { return 0.5 * Grain(x, y); }
double Laid(int x, int y) { return 0.6 * Wave(y, 24) + 0.2 * Grain(x, y); }
double Linen(int x, int y) {
  return 0.5 * (x % 4 < 2 ? Grain(0, y) : Grain(x, 0)) + 0.2 * Grain(x, y);
}
double Diagonals(int x, int y) { return 0.7 * Wave(x + y, 12); }
double Canvas(int x, int y) { return 0.6 * Wave(x, 12) * Wave(y, 12); }
double Herringbone(int x, int y) {
  const bool rising = (x / 12) % 2 == 0;
  return 0.6 * Wave(rising ? x + y : x - y, 16);
}
double Clouds(int x, int y) {
  return 0.4 * Wave(x, 1) * Wave(y, 2) + 0.35 * Wave(x + 2 * y, 1) + 0.25 * Wave(3 * x - y, 1);
}
double Ripples(int x, int y) { return 0.7 * Wave(y + 5 * Wave(x, 2), 6); }
double Dots(int x, int y) {
  const int dx = x % 12 - 6;
  const int dy = (y + (x / 12 % 2) * 6) % 12 - 6;
  return dx * dx + dy * dy <= 3 ? -1 : 0;
}
double Squares(int x, int y) { return x % 16 == 0 || y % 16 == 0 ? -1 : 0; }
double Ledger(int, int y) { return y % 12 == 11 ? -1 : 0.2; }
double Checks(int x, int y) { return ((x / 24 + y / 24) % 2 == 0) ? 0.35 : -0.35; }
double Diamonds(int x, int y) { return (x + y) % 24 == 0 || (x - y + kSide) % 24 == 0 ? -0.9 : 0; }
double Scallops(int x, int y) {
  const int row = y / 12;
  const int dx = (x + row % 2 * 12) % 24 - 12;
  const int dy = y % 12;
  const double rim = std::sqrt(dx * dx + dy * dy) - 12;
  return std::abs(rim) < 0.8 ? -0.9 : 0;
}
double Stripes(int x, int) { return 0.5 * (x / 8 % 2 == 0 ? 1 : -1); }
double Marble(int x, int y) { return 0.7 * Wave(x + 9 * Wave(y, 1) + 4 * Wave(x + y, 2), 3); }

struct Wallpaper {
  Pattern pattern;
  int hue;          // degrees
  int saturation;   // of 255
  double contrast;  // of 255, between the paper and the pattern's extremes
};

constexpr int kLightness = 238;

constexpr std::array<Wallpaper, 16> kWallpapers = {{
    {Paper, 42, 90, 7},
    {Laid, 40, 140, 6},
    {Linen, 205, 110, 7},
    {Diagonals, 150, 70, 5},
    {Canvas, 30, 60, 8},
    {Herringbone, 215, 80, 6},
    {Clouds, 205, 160, 7},
    {Ripples, 180, 90, 6},
    {Dots, 265, 90, 16},
    {Squares, 210, 90, 12},
    {Ledger, 120, 90, 14},
    {Checks, 48, 120, 8},
    {Diamonds, 330, 90, 14},
    {Scallops, 165, 80, 14},
    {Stripes, 240, 80, 6},
    {Marble, 0, 0, 7},
}};

QImage Paint(const Wallpaper& wallpaper) {
  QImage image(kSide, kSide, QImage::Format_RGB32);
  for (int y = 0; y < kSide; ++y) {
    for (int x = 0; x < kSide; ++x) {
      const double lightness = kLightness + wallpaper.contrast * wallpaper.pattern(x, y);
      image.setPixelColor(x, y,
                          QColor::fromHsl(wallpaper.hue, wallpaper.saturation,
                                          std::min(static_cast<int>(std::lround(lightness)), 255)));
    }
  }
  return image;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: paint-wallpapers FOLDER\n");
    return 2;
  }
  for (std::size_t i = 0; i < kWallpapers.size(); ++i) {
    const QString name =
        QStringLiteral("%1/WP%2.jpg").arg(QString::fromLocal8Bit(argv[1])).arg(i + 1);
    if (!Paint(kWallpapers[i]).save(name, "jpg", kQuality)) {
      std::fprintf(stderr, "paint-wallpapers: can't write %s\n", name.toLocal8Bit().constData());
      return 1;
    }
  }
  return 0;
}
