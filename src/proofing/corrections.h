// The slips of the typing that are put right without asking.

#pragma once

#include <string_view>

namespace tarnwell::proofing {

// The table's rows are numbered from 1 in a fixed order; two of them are the same.
inline constexpr int kCorrectionCount = 243;

struct Correction {
  std::string_view wrong;  // a word, or two with a blank between
  std::string_view right;
};

const Correction& CorrectionAt(int row);

// What the table says for the word, capitals or not, as it stands in the table; empty for nothing.
std::string_view FindCorrection(std::string_view word);
// Of two words in a row, where the table has them together ("their are").
std::string_view FindCorrection(std::string_view first, std::string_view second);

}  // namespace tarnwell::proofing
