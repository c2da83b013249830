// What display grids print: the list on show, and all there is in one report. And the list as text
// for the clipboard.

#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/program_variables.h"
#include "print/page_engine.h"
#include "record_book/display_rows.h"
#include "text/date.h"

namespace tarnwell::record_book {

struct ListLayout {
  std::vector<std::string> headings;  // of the name and the values
  bool two_columns = false;           // two names on a line
  bool telephones = false;            // beside each name
  bool grid_lines = false;
};

// Told how many rows are done; false ends the work.
using Progress = std::function<bool(int done)>;

// The head of each page: the title, and the date unless NoAsOfDate, which `mask` formats.
void ListHead(print::PageEngine& engine, const forms::ProgramVariables& variables,
              std::string_view title, text::Date today, std::string_view mask);
void ListRows(print::PageEngine& engine, const std::vector<DisplayRow>& rows,
              const ListLayout& layout, const Progress& progress);

// Tabs between name and values, CR LF behind each row.
std::string ListText(const std::vector<DisplayRow>& rows);

// A section for each display option, with a head of its own on each page.
class CompleteReport {
 public:
  // `title` is "Complete Employee Data Report".
  CompleteReport(print::PageEngine& engine, const forms::ProgramVariables& variables,
                 std::string_view title, text::Date today)
      : engine_(engine), variables_(variables), title_(title), today_(today) {}

  // Begins a page. Nothing for one without rows. False where the work was ended.
  bool AddSection(std::string_view caption, const std::vector<DisplayRow>& rows,
                  const Progress& progress);

 private:
  void Head(std::string_view section);

  print::PageEngine& engine_;
  const forms::ProgramVariables& variables_;
  std::string title_;
  text::Date today_;
  bool has_sections_ = false;
};

}  // namespace tarnwell::record_book
