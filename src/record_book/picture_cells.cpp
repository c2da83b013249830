#include "record_book/picture_cells.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "print/picture_size.h"
#include "print/text_wrap.h"
#include "record_book/display_rows.h"
#include "record_book/record_store.h"
#include "text/date_mask.h"
#include "text/date_names.h"
#include "text/date_reading.h"
#include "text/leading_number.h"
#include "text/letters.h"

namespace tarnwell::record_book {
namespace {

constexpr double kPictureSide = 2.3;  // inches
constexpr double kTextWidth = 1.75;   // likewise
constexpr const char* kNoPicture = "                       No Picture";
constexpr std::string_view kNoPath = "**";
constexpr std::size_t kLettersOfCity = 14;
constexpr std::size_t kLettersOfState = 2;
constexpr std::size_t kLettersOfMonth = 3;

int Twips(double inches) { return static_cast<int>(std::lround(inches * forms::kTwipsPerInch)); }

// The month of a text that is no date is what it begins with.
std::string MonthOfBirthday(std::string_view birthday, text::Date today) {
  const auto date = text::ReadDate(birthday, today);
  const std::string formatted =
      date ? text::FormatDate(*date, "mmm-dd-yyyy") : std::string(birthday);
  return text::UpperCase(text::Left(formatted, kLettersOfMonth));
}

bool HasPicture(std::string_view path) { return !path.empty() && path != kNoPath; }

std::string CityLine(const BookRecord& record, std::size_t city) {
  const std::string& name = record.entries[city];
  const std::string& state = record.entries[city + 1];
  const std::string& zip = record.entries[city + 2];
  if (name.empty() && state.empty() && zip.empty()) return {};
  return std::string(text::Left(name, kLettersOfCity)) + ", " +
         std::string(text::Left(state, kLettersOfState)) + ", " + zip;
}

}  // namespace

PicturedNames ChooseNames(storage::ProgramFolder& folder, const PictureBook& book,
                          const std::vector<NameEntry>& names, const PictureChoice& choice,
                          text::Date today) {
  PicturedNames chosen;
  RecordReader reader(folder, book.layout);
  for (const NameEntry& name : names) {
    if (!choice.with_pictures_only && !choice.month) {
      chosen.names.push_back(name);
      continue;
    }
    const auto record = reader.Read(name.record);
    if (!record) {
      chosen.fault = reader.fault();
      return chosen;
    }
    if (choice.with_pictures_only && !HasPicture(record->picture)) continue;
    const std::string& birthday = record->entries[static_cast<std::size_t>(book.birthday)];
    if (choice.month && MonthOfBirthday(birthday, today) != *choice.month) continue;
    chosen.names.push_back(name);
  }
  return chosen;
}

std::string MonthTyped(std::string_view typed) {
  const double number = text::LeadingNumber(typed);
  if (number < 1) return text::UpperCase(text::Left(text::Trim(typed), kLettersOfMonth));
  const auto month = static_cast<std::size_t>(std::min(number, 100.0));
  if (month > std::size(text::kMonthNames)) return std::string(typed);
  return text::UpperCase(text::Left(text::kMonthNames[month - 1], kLettersOfMonth));
}

int PagesOf(std::size_t names) {
  return std::max(static_cast<int>((names + kCellsOnPage - 1) / kCellsOnPage), 1);
}

std::vector<std::string> LinesOf(const PictureBook& book, const BookRecord& record,
                                 const std::vector<bool>& ticked) {
  std::vector<std::string> lines{DisplayName(record.entries[0], record.entries[1])};
  const auto add = [&lines](std::string line) {
    if (!line.empty()) lines.push_back(std::move(line));
  };
  for (std::size_t i = 0; i < book.lines.size(); ++i) {
    if (!ticked[i]) continue;
    const CellLine& line = book.lines[i];
    const auto entry = static_cast<std::size_t>(line.entry);
    const std::string& text = record.entries[entry];
    if (line.is_city) {
      add(CityLine(record, entry));
    } else if (!text.empty()) {
      add(std::string(line.before) + text);
    }
    if (line.two_lines) add(record.entries[entry + 1]);
  }
  return lines;
}

void PrintCell(print::PageEngine& engine, const CellPlaces& places, int cell,
               const PictureCell& content) {
  const auto row = static_cast<std::size_t>(cell / 2);
  const auto column = static_cast<std::size_t>(cell % 2);
  const int x = Twips(places.picture_lefts[column]);
  const int y = Twips(places.picture_tops[row]);
  if (content.picture.is_picture()) {
    const int side = Twips(kPictureSide);
    const print::PictureSize size =
        print::FittedInto({side, side}, {content.picture.width, content.picture.height});
    engine.Add(forms::PlacedPicture{x, y, size.width, size.height, content.path});
  } else {
    engine.TextAt(x, y, kNoPicture);
  }
  int line_y = Twips(places.text_tops[row]);
  for (const std::string& text : content.lines) {
    for (const std::string& line :
         print::WrapText(engine.metrics(), engine.font(), text, Twips(kTextWidth))) {
      engine.TextAt(Twips(places.text_middles[column]), line_y, line, print::Align::kCenter);
      line_y += engine.LineHeight();
    }
  }
}

}  // namespace tarnwell::record_book
