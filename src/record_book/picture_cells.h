// Pages of eight records with their pictures: which records, and what stands in their cells.

#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "forms/pictures.h"
#include "print/page_engine.h"
#include "record_book/book_layout.h"
#include "record_book/name_index.h"
#include "text/date.h"

namespace tarnwell::record_book {

inline constexpr int kCellsOnPage = 8;

// A line of a cell, and the check box that brings it.
struct CellLine {
  std::string_view caption;
  int entry;
  std::string_view before = {};  // the entry's text
  bool two_lines = false;        // the next entry stands below it
  bool is_city = false;          // with the next two entries: "Reno, NV, 89501", cut to fit
};

// In inches from the left top corner of the page. Texts stand in the middle of their column.
struct CellPlaces {
  std::array<double, 4> picture_tops;
  std::array<double, 2> picture_lefts;
  std::array<double, 4> text_tops;
  std::array<double, 2> text_middles;
};

struct PictureBook {
  const BookLayout& layout;
  std::span<const CellLine> lines;
  int birthday;  // the entry that is taken for one
  CellPlaces places;
};

// Which records are shown.
struct PictureChoice {
  bool with_pictures_only = false;
  std::optional<std::string> month;  // of the birthday, as MonthTyped has it
};

struct PicturedNames {
  std::vector<NameEntry> names;
  storage::Fault fault = storage::Fault::kNone;  // why the files can't be read
};

// Those of the names that are to be shown, in their order.
PicturedNames ChooseNames(storage::ProgramFolder& folder, const PictureBook& book,
                          const std::vector<NameEntry>& names, const PictureChoice& choice,
                          text::Date today);

// "JAN" for "1", "jan" or "January"; nothing that a month has for "13".
std::string MonthTyped(std::string_view typed);

// At least 1.
int PagesOf(std::size_t names);

// The name and the lines that are ticked, those without a text left out.
std::vector<std::string> LinesOf(const PictureBook& book, const BookRecord& record,
                                 const std::vector<bool>& ticked);

struct PictureCell {
  std::string path;
  forms::PictureHead picture;  // at that path
  std::vector<std::string> lines;
};

// The cell's place is counted from 0, row by row.
void PrintCell(print::PageEngine& engine, const CellPlaces& places, int cell,
               const PictureCell& content);

}  // namespace tarnwell::record_book
