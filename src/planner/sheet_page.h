// The calendar sheet as one page that it fills, whatever the paper.

#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "forms/pages.h"
#include "planner/month_sheet.h"
#include "print/page_engine.h"

namespace tarnwell::planner {

enum class NumberSide { kLeft = 0, kRight = 1 };

// Lays sheets out, and remembers how lines break: a sheet is laid out anew with each letter typed.
class SheetPage {
 public:
  explicit SheetPage(forms::TextMetrics& metrics) : metrics_(metrics), engine_(metrics) {}

  // The month on a page of that paper: title, the weekdays' names, a box for each day. Lines are
  // printed in the sheet's font, smaller where a day's wouldn't go into its box otherwise. A line
  // that is wider than the box goes on below, as long as the box has room; where it hasn't even in
  // the smallest letters, the longest lines end with "…".
  void Build(const forms::PageSetup& setup, const MonthSheet& sheet, text::Date month,
             NumberSide side);
  const forms::Document& document() const { return engine_.document(); }

  // As much of the text as one line of a full box takes, on the paper and in the font of the last
  // Build.
  std::string FitToBox(const std::string& text);

 private:
  struct Box {
    int x;
    int y;
  };

  void Measure(const forms::PageSetup& setup, const MonthSheet& sheet, text::Date month);
  void DrawFrame(text::Date month);
  void DrawDay(int day, NumberSide side, const DayLines& lines);
  Box BoxOf(int day) const;
  forms::Font FontFor(int rows) const;
  bool FitsIn(const std::vector<std::string>& rows, const forms::Font& font) const;
  std::vector<std::string> RowsOf(const DayLines& lines, int count, const forms::Font& font);
  std::vector<std::string> CutRowsOf(const DayLines& lines, int count, const forms::Font& font);
  const std::vector<std::string>& Wrapped(const std::string& line, const forms::Font& font);
  std::string Cut(const std::string& line, const forms::Font& font, std::string_view mark);

  forms::TextMetrics& metrics_;
  print::PageEngine engine_;
  forms::Font font_;      // of the lines, before they are made to fit
  int first_column_ = 0;  // of the 1st
  int weeks_ = 0;
  int left_ = 0;
  int top_ = 0;  // of the boxes
  int box_width_ = 0;
  int box_height_ = 0;
  int number_height_ = 0;
  int text_width_ = 0;
  int text_height_ = 0;
  std::map<std::pair<double, std::string>, std::vector<std::string>> wrapped_;
  std::pair<forms::Font, int> wrapped_for_;  // font and width
};

}  // namespace tarnwell::planner
