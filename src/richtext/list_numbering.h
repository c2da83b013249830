// Counting in lists whose markers are stored as texts.

#pragma once

#include <map>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "richtext/rich_document.h"

namespace tarnwell::richtext {

// The marker `by` numbers further on, such as "4." or "(c)". Markers that don't count, and Roman
// numbers, stay as they are.
std::string CountedOn(const std::string& marker, int by);

// Makes items count on from those before them in `blocks`; the first of each kind stays.
void NumberAnew(std::vector<Block>& blocks);

// How many numbers an item that stands behind what was replaced has to be moved by.
class ItemShifts {
 public:
  ItemShifts(const std::vector<Block>& before, const std::vector<Block>& after);
  int Of(const ListItem& item) const;

 private:
  // Of items of one list, on one level, that count in the same way.
  std::map<std::tuple<int, int, std::string>, int> shifts_;
};

}  // namespace tarnwell::richtext
