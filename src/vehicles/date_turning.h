// Day and month change places each time a vehicle's files are read.

#pragma once

#include <string>
#include <string_view>

namespace tarnwell::vehicles {

// Whether the dates of a vehicle's files turn: the style that its sheet is tagged with, "USA" or
// "OTHER", differs from the program's. Any other tag counts as "USA". As long as nothing gives the
// program a style, they turn at every reading.
bool DatesTurn(std::string_view tag, std::string_view date_style);

// "5/3/2024" for "3/5/2024". Only a date of two numbers from 1 to 12 and a year of four digits
// turns; any other text stays as it is.
std::string TurnedDate(std::string_view date);

// A date of a vehicle's file.
struct DateRead {
  std::string shown;    // turned where dates turn, and by "Short Date" where it is a date
  std::string in_file;  // what it would be without the turn; empty where that is the same

  friend bool operator==(const DateRead&, const DateRead&) = default;
};
DateRead ReadStoredDate(std::string_view stored, bool dates_turn);

// What the cell of a date tells that has turned: "read as 5/3/2024, in the file 3/5/2024". Empty
// for one that hasn't.
std::string TurnNote(const DateRead& date);

}  // namespace tarnwell::vehicles
