// The addresses of web sites that the reference screens open. They are supplied, each table in a
// text file of one row a line, and a user may keep a mended file in their own folder.

#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "storage/program_folder.h"

namespace tarnwell::reference {

// In the order of the screen.
inline constexpr std::array<std::string_view, 52> kStates{
    "Alabama",      "Alaska",         "Arizona",      "Arkansas",       "California",
    "Colorado",     "Connecticut",    "Delaware",     "D. C.",          "Florida",
    "Georgia",      "Hawaii",         "Idaho",        "Illinois",       "Indiana",
    "Iowa",         "Kansas",         "Kentucky",     "Louisiana",      "Maine",
    "Maryland",     "Massachusetts",  "Michigan",     "Minnesota",      "Mississippi",
    "Missouri",     "Montana",        "Nebraska",     "Nevada",         "New Hampshire",
    "New Jersey",   "New Mexico",     "New York",     "North Carolina", "North Dakota",
    "Ohio",         "Oklahoma",       "Oregon",       "Puerto Rico",    "Pennsylvania",
    "Rhode Island", "South Carolina", "South Dakota", "Tennessee",      "Texas",
    "Utah",         "Vermont",        "Virginia",     "Washington",     "West Virginia",
    "Wisconsin",    "Wyoming"};
inline constexpr std::size_t kStatePlaces = 4;
inline constexpr std::size_t kFederalLinkCount = 7;
inline constexpr std::size_t kInternetLinkCount = 7;

// Letters: a longer label is cut, a longer address is none.
inline constexpr std::size_t kLongestLabel = 60;
inline constexpr std::size_t kLongestAddress = 500;

struct Link {
  std::string label;    // empty where the screen has its own
  std::string address;  // begins with "https://"; empty for none
};

using StateLinks = std::array<std::array<Link, kStatePlaces>, kStates.size()>;
using FederalLinks = std::array<Link, kFederalLinkCount>;
using InternetLinks = std::array<Link, kInternetLinkCount>;

// A table as far as it could be read.
template <typename Rows>
struct LinkTable {
  Rows rows;
  std::string trouble;  // what a person is told of it, one or two sentences; empty for nothing
};

LinkTable<StateLinks> ReadStateLinks(storage::ProgramFolder& folder);
LinkTable<FederalLinks> ReadFederalLinks(storage::ProgramFolder& folder);
LinkTable<InternetLinks> ReadInternetLinks(storage::ProgramFolder& folder);

}  // namespace tarnwell::reference
