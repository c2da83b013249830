// Counting in lists whose markers are stored as texts.

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "richtext/rich_document.h"

namespace tarnwell::richtext {

// The marker `by` numbers further on, such as "4." or "(c)". Markers that don't count, and Roman
// numbers, stay as they are.
std::string CountedOn(const std::string& marker, int by);

// Items of one list, on one level, that count in the same way.
bool CountTogether(const ListItem& a, const ListItem& b);

// Makes items count on from those before them in `blocks`; the first of each kind stays.
void NumberAnew(std::vector<Block>& blocks);

// How many numbers `item`, which stands behind what was replaced, has to be moved by.
int ShiftOf(const ListItem& item, const std::vector<Block>& before,
            const std::vector<Block>& after);

}  // namespace tarnwell::richtext
