#include "planner/sheet_page.h"

#include <algorithm>

#include "planner/month_view.h"
#include "print/text_wrap.h"
#include "text/date_names.h"
#include "text/letters.h"

namespace tarnwell::planner {
namespace {

constexpr int kColumns = 7;
constexpr int kPadding = 40;       // twips, between a box and its text
constexpr double kTitleSize = 20;  // points
constexpr double kHeadingSize = 11;
constexpr double kNumberSize = 9;
constexpr double kSmallestWrapped = 6;  // points: rather than smaller, lines are cut
constexpr double kSmallest = 1;
constexpr double kStep = 0.5;
constexpr std::size_t kMostRemembered = 5000;
constexpr std::string_view kGoesOn = "\x85";  // "…"

forms::Font HeadFont(double size) {
  return {.name = "Times New Roman", .size = size, .bold = true};
}

forms::PlacedBox BoxAt(int x, int y, int width, int height) {
  return {x, y, width, height, forms::kBlack, std::nullopt};
}

int UsedLines(const DayLines& lines) {
  int used = 0;
  for (int i = 0; i < kLinesPerDay; ++i) {
    if (!text::Trim(lines[static_cast<std::size_t>(i)]).empty()) used = i + 1;
  }
  return used;
}

}  // namespace

void SheetPage::Build(const forms::PageSetup& setup, const MonthSheet& sheet, text::Date month,
                      NumberSide side) {
  Measure(setup, sheet, month);
  engine_.Start(setup, font_);
  engine_.SetTitle("Calendar " + MonthTitle(text::YearOf(month), text::MonthOf(month)));
  DrawFrame(month);
  for (int day = 1; day <= DaysInMonth(month); ++day) {
    DrawDay(day, side, sheet.days[static_cast<std::size_t>(day - 1)]);
  }
}

void SheetPage::Measure(const forms::PageSetup& setup, const MonthSheet& sheet, text::Date month) {
  font_ = sheet.font;
  first_column_ = static_cast<int>(text::WeekdayOf(MonthOfSheet(month)));
  weeks_ = (first_column_ + DaysInMonth(month) + kColumns - 1) / kColumns;
  const forms::Margins& margins = setup.margins;
  left_ = margins.left;
  top_ = margins.top + metrics_.LineHeight(HeadFont(kTitleSize)) +
         metrics_.LineHeight(HeadFont(kHeadingSize));
  box_width_ = std::max((setup.width() - margins.left - margins.right) / kColumns, 1);
  box_height_ = std::max((setup.height() - margins.bottom - top_) / weeks_, 1);
  number_height_ = metrics_.LineHeight(HeadFont(kNumberSize));
  text_width_ = std::max(box_width_ - 2 * kPadding, 1);
  text_height_ = std::max(box_height_ - number_height_ - kPadding, 1);
  const std::pair wrapped_for{font_, text_width_};
  if (wrapped_for_ == wrapped_for && wrapped_.size() < kMostRemembered) return;
  wrapped_for_ = wrapped_for;
  wrapped_.clear();
}

void SheetPage::DrawFrame(text::Date month) {
  const int width = kColumns * box_width_;
  const int heading_height = metrics_.LineHeight(HeadFont(kHeadingSize));
  engine_.SetFont(HeadFont(kTitleSize));
  engine_.TextAt(left_ + width / 2, engine_.paper().margins.top,
                 MonthTitle(text::YearOf(month), text::MonthOf(month)), print::Align::kCenter);
  engine_.SetFont(HeadFont(kHeadingSize));
  for (int column = 0; column < kColumns; ++column) {
    const int x = left_ + column * box_width_;
    engine_.Add(BoxAt(x, top_ - heading_height, box_width_, heading_height));
    engine_.TextAt(
        x + box_width_ / 2, top_ - heading_height,
        text::kWeekdayNames[static_cast<std::size_t>(column)].substr(0, text::kShortNameLength),
        print::Align::kCenter);
    for (int week = 0; week < weeks_; ++week) {
      engine_.Add(BoxAt(x, top_ + week * box_height_, box_width_, box_height_));
    }
  }
}

SheetPage::Box SheetPage::BoxOf(int day) const {
  const int place = first_column_ + day - 1;
  return {left_ + place % kColumns * box_width_, top_ + place / kColumns * box_height_};
}

void SheetPage::DrawDay(int day, NumberSide side, const DayLines& lines) {
  const Box box = BoxOf(day);
  const bool is_right = side == NumberSide::kRight;
  engine_.SetFont(HeadFont(kNumberSize));
  engine_.TextAt(is_right ? box.x + box_width_ - kPadding : box.x + kPadding, box.y,
                 std::to_string(day), is_right ? print::Align::kRight : print::Align::kLeft);
  const int used = UsedLines(lines);
  if (used == 0) return;
  forms::Font font = FontFor(used);
  std::vector<std::string> rows = RowsOf(lines, used, font);
  while (!FitsIn(rows, font) && font.size - kStep >= kSmallestWrapped) {
    font.size -= kStep;
    rows = RowsOf(lines, used, font);
  }
  if (!FitsIn(rows, font)) rows = CutRowsOf(lines, used, font);
  engine_.SetFont(font);
  const int pitch = metrics_.LineHeight(font);
  int y = box.y + number_height_;
  for (const std::string& row : rows) {
    if (!row.empty()) engine_.TextAt(box.x + kPadding, y, row);
    y += pitch;
  }
}

// The sheet's font where so many rows of it go into a box, else the largest one that does.
forms::Font SheetPage::FontFor(int rows) const {
  forms::Font font = font_;
  while (font.size > kSmallest && rows * metrics_.LineHeight(font) > text_height_) {
    font.size = std::max(font.size - kStep, kSmallest);
  }
  return font;
}

bool SheetPage::FitsIn(const std::vector<std::string>& rows, const forms::Font& font) const {
  return static_cast<int>(rows.size()) * metrics_.LineHeight(font) <= text_height_;
}

std::vector<std::string> SheetPage::RowsOf(const DayLines& lines, int count,
                                           const forms::Font& font) {
  std::vector<std::string> rows;
  for (int i = 0; i < count; ++i) {
    const std::vector<std::string>& parts = Wrapped(lines[static_cast<std::size_t>(i)], font);
    rows.insert(rows.end(), parts.begin(), parts.end());
  }
  return rows;
}

// The longest lines give up their ends, until each has one row at least.
std::vector<std::string> SheetPage::CutRowsOf(const DayLines& lines, int count,
                                              const forms::Font& font) {
  std::vector<std::vector<std::string>> parts;
  std::size_t rows = 0;
  for (int i = 0; i < count; ++i) {
    parts.push_back(Wrapped(lines[static_cast<std::size_t>(i)], font));
    rows += parts.back().size();
  }
  const auto room = static_cast<std::size_t>(text_height_ / metrics_.LineHeight(font));
  for (; rows > room; --rows) {
    auto& longest = *std::ranges::max_element(parts, {}, &std::vector<std::string>::size);
    if (longest.size() < 2) break;
    longest.pop_back();
    if (!longest.back().ends_with(kGoesOn)) longest.back().append(kGoesOn);
  }
  std::vector<std::string> cut;
  for (const auto& line : parts) {
    for (const std::string& row : line) cut.push_back(Cut(row, font, kGoesOn));
  }
  return cut;
}

const std::vector<std::string>& SheetPage::Wrapped(const std::string& line,
                                                   const forms::Font& font) {
  const auto [place, is_new] = wrapped_.try_emplace({font.size, line});
  if (is_new) place->second = print::WrapText(metrics_, font, line, text_width_);
  return place->second;
}

std::string SheetPage::Cut(const std::string& line, const forms::Font& font,
                           std::string_view mark) {
  if (metrics_.Width(font, line) <= text_width_) return line;
  const int room = text_width_ - metrics_.Width(font, mark);
  std::size_t fits = 1;
  std::size_t too_long = line.size();
  while (too_long - fits > 1) {
    const std::size_t middle = (fits + too_long) / 2;
    (metrics_.Width(font, line.substr(0, middle)) <= room ? fits : too_long) = middle;
  }
  return text::TrimRight(line.substr(0, fits)).append(mark);
}

std::string SheetPage::FitToBox(const std::string& text) {
  return Cut(text, FontFor(kLinesPerDay), {});
}

}  // namespace tarnwell::planner
