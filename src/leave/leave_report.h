// A year of a leave tracker as a report, and as text for the clipboard.

#pragma once

#include <string>
#include <string_view>

#include "print/page_engine.h"
#include "text/date.h"
#include "year_sheet/rows.h"

namespace tarnwell::leave {

inline constexpr std::string_view kTitles[] = {"Employee Name", "Jan",  "Feb",  "Mar", "Apr", "May",
                                               "Jun",           "Jul",  "Aug",  "Sep", "Oct", "Nov",
                                               "Dec",           "Used", "Auth", "Bal"};

// The head of each page. With `rules` a line above and below the columns' titles.
void LeaveHead(print::PageEngine& engine, std::string_view title, text::Date printed, bool rules);

// The rows down to the last that isn't blank, on pages with that head. The letters are smaller than
// the font: by two points upright, by four across.
void LeaveRows(print::PageEngine& engine, const year_sheet::Rows& rows);

// `title` and a blank line, the columns' titles, and the rows down to the first without a name:
// tabs between cells, each filled with blanks to a common width, CR LF behind each line.
std::string LeaveText(const year_sheet::Rows& rows, std::string_view title,
                      forms::TextMetrics& metrics);

}  // namespace tarnwell::leave
