// The rows of the rule that safeguards are worked through by, and where the supplied texts treat
// them.

#pragma once

#include <span>
#include <string>
#include <string_view>

namespace tarnwell::workarea {

struct RuleRow {
  std::string_view standard;
  std::string_view section;
  std::string_view specification;
  int safeguard;  // number of the word that heads the row's section in the texts
};

std::span<const RuleRow> RuleRows();
inline constexpr std::string_view kRuleNote = "*  R = Required;  A = Addressable";

// The word of a safeguard, by its number from 1 to 47; empty for one that leads to no text.
std::string_view SafeguardWord(int number);

// The paragraph of the section that this word heads: the first that is the word, else the first
// that has it, capitals or not. -1 for none.
int FindSection(std::span<const std::string> paragraphs, std::string_view word);

}  // namespace tarnwell::workarea
