#include "images/image_pages.h"

namespace tarnwell::images {
namespace {

constexpr double kTenth[] = {0.1};
constexpr double kTopOfOne[] = {0.025};
constexpr double kMiddle[] = {0.5};
constexpr double kMiddleOfOne[] = {0.55};
constexpr CellLayout kOne{kTenth, kTopOfOne, 0.9, 0.9, kMiddleOfOne, 18};

constexpr double kTwoLeft[] = {0.15};
constexpr double kTwoTops[] = {0.01, 0.51};
constexpr CellLayout kTwoUpright{kTwoLeft, kTwoTops, 0.7, 0.42, kMiddle, 16};
constexpr double kTwoLefts[] = {0.01, 0.51};
constexpr double kTwoTop[] = {0.15};
constexpr double kQuarters[] = {0.25, 0.75};
constexpr CellLayout kTwoLying{kTwoLefts, kTwoTop, 0.48, 0.7, kQuarters, 16};

constexpr double kFourLefts[] = {0.01, 0.51};
constexpr double kFourTops[] = {0.01, 0.51};
constexpr double kFourCenters[] = {0.249, 0.747};
constexpr CellLayout kFourUpright{kFourLefts, kFourTops, 0.475, 0.425, kFourCenters, 14};
constexpr double kFourLeftsLying[] = {0.01, 0.52};
constexpr double kFourCentersLying[] = {0.235, 0.745};
constexpr CellLayout kFourLying{kFourLeftsLying, kFourTops, 0.45, 0.41, kFourCentersLying, 14};

constexpr double kEightLefts[] = {0.01, 0.52};
constexpr double kEightTops[] = {0.01, 0.26, 0.51, 0.76};
constexpr double kEightCenters[] = {0.26, 0.76};
constexpr CellLayout kEightUpright{kEightLefts, kEightTops, 0.475, 0.21, kEightCenters, 10};
constexpr double kEightLeftsLying[] = {0.01, 0.26, 0.51, 0.76};
constexpr double kEightTopsLying[] = {0.01, 0.51};
constexpr double kEightCentersLying[] = {0.125, 0.375, 0.625, 0.875};
constexpr CellLayout kEightLying{
    kEightLeftsLying, kEightTopsLying, 0.23, 0.45, kEightCentersLying, 10};

// What lies between the margins.
struct Area {
  explicit Area(const print::PageEngine& engine)
      : left(engine.left()),
        top(engine.top()),
        width(engine.ColumnWidth()),
        height(engine.bottom() - engine.top()) {}
  int X(double fraction) const { return left + Width(fraction); }
  int Y(double fraction) const { return top + Height(fraction); }
  int Width(double fraction) const { return static_cast<int>(width * fraction); }
  int Height(double fraction) const { return static_cast<int>(height * fraction); }

  int left, top, width, height;  // twips
};

}  // namespace

const CellLayout& LayoutOf(int images, bool landscape) {
  switch (images) {
    case 2:
      return landscape ? kTwoLying : kTwoUpright;
    case 4:
      return landscape ? kFourLying : kFourUpright;
    case 8:
      return landscape ? kEightLying : kEightUpright;
    default:
      return kOne;
  }
}

void PrintImages(print::PageEngine& engine, int images_on_page,
                 std::span<const PrintedImage> images) {
  const CellLayout& layout = LayoutOf(images_on_page, engine.paper().landscape);
  const Area area(engine);
  const forms::Font usual = engine.font();
  forms::Font font = usual;
  font.size = layout.font_size;
  engine.SetFont(font);
  const auto cells = static_cast<std::size_t>(layout.cells());
  for (std::size_t i = 0; i < images.size(); ++i) {
    const std::size_t cell = i % cells;
    if (i > 0 && cell == 0) engine.NewPage();
    const std::size_t column = cell % layout.lefts.size();
    const std::size_t row = cell / layout.lefts.size();
    const int top = area.Y(layout.tops[row]);
    const int height = area.Height(layout.height);
    if (!images[i].path.empty()) {
      engine.Add(forms::PlacedPicture{area.X(layout.lefts[column]), top, area.Width(layout.width),
                                      height, images[i].path});
    }
    int y = top + height;
    for (const std::string& text : images[i].texts) {
      engine.TextAt(area.X(layout.text_centers[column]), y, text, print::Align::kCenter);
      y += engine.LineHeight();
    }
  }
  engine.SetFont(usual);
}

}  // namespace tarnwell::images
