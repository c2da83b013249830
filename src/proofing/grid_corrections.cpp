#include "proofing/grid_corrections.h"

#include "proofing/capitals.h"
#include "proofing/spelling.h"
#include "text/code_page_1252.h"
#include "text/letters.h"

namespace tarnwell::proofing {
namespace {

constexpr std::string_view kStop = "TheEnd1";

// `wrong` is in capitals with a blank at either end, like `right`, and so is the row but for the
// capitals.
void CorrectRow(std::string& row, const std::string& wrong, const std::string& right,
                const std::set<std::string>& kept) {
  std::size_t place = 0;
  while ((place = text::UpperCase(row).find(wrong, place)) != std::string::npos) {
    const std::string found = row.substr(place, wrong.size());
    const std::string word = text::Trim(found);
    if (kept.contains(word)) {
      place += wrong.size() - 1;  // the blank behind it may be the next word's
      continue;
    }
    const std::string written = " " + WithCapitalsOf(word, text::Trim(right)) + " ";
    row.replace(place, wrong.size(), written);
    place += written.size();
  }
}

// The column as a text of its own, so that the grid's cells are changed by CorrectRows alone.
class ColumnCopy : public CheckedText {
 public:
  ColumnCopy(forms::Grid& grid, int column) : grid_(grid), column_(column) {
    for (int row = 1; row < grid.rows(); ++row) {
      cells_.push_back(text::ToUtf8(grid.text(row, column)).bytes());
    }
  }

  int parts() override { return static_cast<int>(cells_.size()); }
  std::string part(int index) override { return cells_[static_cast<std::size_t>(index)]; }
  void Show(int index, std::size_t, std::size_t) override {
    grid_.SetCurrent({index + 1, column_});
  }
  void Replace(int index, std::size_t offset, std::size_t length, std::string_view utf8) override {
    cells_[static_cast<std::size_t>(index)].replace(offset, length, utf8);
  }

 private:
  forms::Grid& grid_;
  int column_;
  std::vector<std::string> cells_;
};

}  // namespace

void CorrectRows(std::vector<std::string>& rows, std::vector<SpellingChange> changes,
                 std::size_t longest, const std::set<std::string>& kept) {
  const std::string stop(kStop);
  changes.push_back({stop, stop});
  for (const SpellingChange& change : changes) {
    if (text::EqualIgnoringCase(change.wrong, kStop)) return;
    const std::string wrong = " " + text::UpperCase(change.wrong) + " ";
    for (std::string& row : rows) {
      if (text::Trim(row).empty()) continue;
      std::string padded = " " + row + " ";
      CorrectRow(padded, wrong, change.right, kept);
      row = text::Left(text::Trim(padded), longest);
    }
  }
}

std::size_t CheckSpellingOfColumn(forms::Context& context, forms::Grid& grid, int column,
                                  std::size_t longest) {
  ColumnCopy copy(grid, column);
  const SpellingResult result = CheckSpelling(context, copy);
  std::vector<std::string> rows;
  for (int row = 1; row < grid.rows(); ++row) rows.push_back(grid.text(row, column));
  CorrectRows(rows, result.changes, longest, result.kept);
  const forms::Grid::Batch batch(grid);
  for (int row = 1; row < grid.rows(); ++row) {
    const std::string& corrected = rows[static_cast<std::size_t>(row - 1)];
    if (grid.text(row, column) != corrected) grid.SetText(row, column, corrected);
  }
  return result.changes.size();
}

}  // namespace tarnwell::proofing
