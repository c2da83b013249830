#include "leave/leave_report.h"

#include <algorithm>
#include <cstddef>

#include "leave/leave_balance.h"
#include "text/date_mask.h"
#include "text/leading_number.h"
#include "text/letters.h"
#include "text/number_mask.h"

namespace tarnwell::leave {
namespace {

// The left edge of the names and the right edges of the other columns: the page's width through
// these.
constexpr double kDivisors[] = {30,  4.05, 3.4,  2.915, 2.55,  2.275, 2.025, 1.83,
                                1.7, 1.56, 1.45, 1.357, 1.264, 1.192, 1.124, 1.05};
constexpr double kSmallerUpright = 2;  // points
constexpr double kSmallerAcross = 4;
constexpr double kLeastSize = 4;
constexpr int kFoot = 400;       // twips that stay free at the foot of a page
constexpr int kAroundRule = 30;  // twips
constexpr int kNameUnits = 120;
constexpr int kCellUnits = 60;
constexpr int kTwipsPerUnit = 20;

constexpr std::size_t kBalancePlace = std::size(kTitles) - 1;

int EdgeOf(const print::PageEngine& engine, std::size_t column) {
  return static_cast<int>(engine.page_width() / kDivisors[column]);
}

forms::Font Smaller(const print::PageEngine& engine) {
  const bool across = engine.page_width() > engine.page_height();
  forms::Font font = engine.font();
  font.size = std::max(font.size - (across ? kSmallerAcross : kSmallerUpright), kLeastSize);
  return font;
}

void Rule(print::PageEngine& engine) {
  engine.Skip(kAroundRule);
  const int y = engine.y();
  engine.Add(forms::PlacedLine{EdgeOf(engine, 0), y, EdgeOf(engine, kBalancePlace), y});
  engine.Skip(kAroundRule);
}

std::string Filled(const std::string& cell, int units, forms::TextMetrics& metrics) {
  const forms::Font font;
  std::string filled = cell;
  while (metrics.Width(font, filled) < units * kTwipsPerUnit) filled += ' ';
  return filled;
}

}  // namespace

void LeaveHead(print::PageEngine& engine, std::string_view title, text::Date printed, bool rules) {
  const forms::Font font = engine.font();
  forms::Font bold = font;
  bold.bold = true;
  engine.SetFont(bold);
  engine.Line(title, print::Align::kCenter);
  engine.SetFont(font);
  engine.Line(engine.page_count() == 1
                  ? "Printed: " + text::FormatDate(printed, "Long Date")
                  : "   ( Page - " + std::to_string(engine.page_count()) + " )",
              print::Align::kCenter);
  engine.SetFont(Smaller(engine));
  if (rules) Rule(engine);
  for (std::size_t i = 0; i < std::size(kTitles); ++i) {
    engine.TextAt(EdgeOf(engine, i), engine.y(), kTitles[i],
                  i == 0 ? print::Align::kLeft : print::Align::kRight);
  }
  engine.Skip(engine.LineHeight());
  if (rules) Rule(engine);
  engine.SetFont(font);
}

void LeaveRows(print::PageEngine& engine, const year_sheet::Rows& rows) {
  const auto last = std::find_if_not(rows.rbegin(), rows.rend(), year_sheet::IsBlank).base();
  const forms::Font usual = engine.font();
  const forms::Font plain = Smaller(engine);
  engine.SetFont(plain);
  for (auto row = rows.begin(); row != last; ++row) {
    if (engine.y() + engine.LineHeight() > engine.page_height() - kFoot) engine.NewPage();
    engine.TextAt(EdgeOf(engine, 0), engine.y(), (*row)[0]);
    for (std::size_t i = 1; i < row->size(); ++i) {
      if (text::Trim((*row)[i]).empty()) continue;
      const double days = text::LeadingNumber((*row)[i]);
      forms::Font font = plain;
      font.bold |= i == kBalancePlace;
      if (days < 0) font.color = kOverdrawn;
      engine.SetFont(font);
      engine.TextAt(EdgeOf(engine, i), engine.y(), text::FormatNumber(days, kDaysMask),
                    print::Align::kRight);
    }
    engine.SetFont(plain);
    engine.Skip(engine.LineHeight());
  }
  engine.SetFont(usual);
}

std::string LeaveText(const year_sheet::Rows& rows, std::string_view title,
                      forms::TextMetrics& metrics) {
  std::string copied = std::string(title) + "\r\n\r\n";
  const auto add = [&](const auto& cells) {
    for (std::size_t i = 0; i < std::size(cells); ++i) {
      if (i > 0) copied += '\t';
      copied += Filled(std::string(cells[i]), i == 0 ? kNameUnits : kCellUnits, metrics);
    }
    copied += "\r\n";
  };
  add(kTitles);
  for (const year_sheet::Row& row : rows) {
    if (text::Trim(row[0]).empty()) break;
    add(row);
  }
  return copied;
}

}  // namespace tarnwell::leave
