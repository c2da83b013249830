#include "richtext/row_definition.h"

#include <algorithm>
#include <utility>

#include "richtext/kept_words.h"

namespace tarnwell::richtext {
namespace {

constexpr std::size_t kMostCells = 256;
constexpr int kInch = 1440;

Border* BorderOf(std::string_view word, Cell& cell) {
  if (word == "clbrdrt") return &cell.top;
  if (word == "clbrdrl") return &cell.left;
  if (word == "clbrdrb") return &cell.bottom;
  if (word == "clbrdrr") return &cell.right;
  return nullptr;
}

bool IsEmpty(const std::vector<Paragraph>& text) {
  return text.size() == 1 && text.front().runs.empty() && !text.front().format.list;
}

int LengthOf(const Token& token) {
  return std::clamp(token.NumberOr(0), -kLongestLength, kLongestLength);
}

}  // namespace

void RowDefinition::Start() {
  row_ = TableRow{};
  next_ = Cell{};
  border_ = nullptr;
  kept_ = &row_.other;
  in_border_ = true;
}

void RowDefinition::Apply(const Token& token, std::string_view source, const FormatTables& tables) {
  const std::string_view name = token.text;
  if (name.starts_with("brdr") || name == "brsp") return ApplyToBorder(token, source, tables);
  border_ = BorderOf(name, next_);
  kept_ = name.starts_with("cl") ? &next_.other : &row_.other;
  in_border_ = name != "cellx";
  if (border_ != nullptr) return;
  if (name == "cellx") {
    EndCell(LengthOf(token));
  } else if (name == "clcbpat") {
    next_.fill = tables.ColorAt(token.NumberOr(0));
  } else if (name == "trleft") {
    row_.left_edge = LengthOf(token);
  } else if (name == "trgaph") {
    row_.half_gap = LengthOf(token);
  } else {
    KeepWord(source, *kept_);
  }
}

void RowDefinition::EndCell(int right_edge) {
  next_.right_edge = right_edge;
  if (row_.cells.size() < kMostCells) row_.cells.push_back(std::move(next_));
  next_ = Cell{};
}

void RowDefinition::ApplyToBorder(const Token& token, std::string_view source,
                                  const FormatTables& tables) {
  // Written first of a cell's words it would be the row's, or the paragraph's.
  if (border_ == nullptr && kept_ == &next_.other && kept_->empty()) return;
  if (border_ == nullptr) return KeepWord(source, *kept_);
  if (token.text == "brdrw") {
    border_->width = LengthOf(token);
  } else if (token.text == "brdrcf") {
    border_->color = tables.ColorAt(token.NumberOr(0));
  } else if (token.has_number || token.text == "brsp" || !border_->style.empty()) {
    KeepWord(source, border_->other);
  } else {
    border_->style = token.text;
  }
}

TableRow RowDefinition::MakeRow(std::vector<std::vector<Paragraph>> texts,
                                const CharacterFormat& blank) const {
  TableRow row = row_;
  // Behind a row with a table in it some writers end the table's cells once more.
  while (!row.cells.empty() && texts.size() > row.cells.size() && IsEmpty(texts.back())) {
    texts.pop_back();
  }
  while (row.cells.size() < texts.size()) {
    Cell cell;
    const int left_edge = row.cells.empty() ? row.left_edge : row.cells.back().right_edge;
    cell.right_edge = std::min(left_edge + kInch, kLongestLength);
    row.cells.push_back(std::move(cell));
  }
  for (std::size_t i = 0; i < row.cells.size(); ++i) {
    if (i < texts.size()) {
      row.cells[i].paragraphs = std::move(texts[i]);
    } else {
      row.cells[i].paragraphs.emplace_back().mark = blank;
    }
  }
  return row;
}

}  // namespace tarnwell::richtext
