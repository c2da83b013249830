#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "print/page_engine.h"

namespace tarnwell::print {

struct TableColumn {
  std::string heading;
  int width = 0;  // twips
  Align align = Align::kLeft;
};

struct Cell {
  Cell(std::string content = {}) : text(std::move(content)) {}  // NOLINT: a text is a plain cell
  Cell(const char* content) : text(content) {}                  // NOLINT

  std::string text;
  std::optional<forms::Color> color;  // empty for the font's own
  bool bold = false;
};

enum class TableLines { kAll, kVertical, kNone };

// A table at the engine's position, from the left edge of its column. Its head comes again at the
// head of each further column and page. A row stays together unless it is taller than a page.
class Table {
 public:
  Table(PageEngine& engine, std::vector<TableColumn> columns, TableLines lines);

  // Cells wrap inside their columns; missing cells are empty.
  void Row(const std::vector<Cell>& cells);
  // The same, with `gap` twips of space above the row unless it comes first below a head.
  void Row(const std::vector<Cell>& cells, int gap);

  // Space between a cell's edges and its text, left and right.
  static constexpr int kPadding = 60;

 private:
  using Lines = std::vector<std::vector<std::string>>;  // of each column

  void Head();
  Lines Wrap(const std::vector<Cell>& cells);
  void Print(const std::vector<Cell>& cells, const Lines& lines, std::size_t first,
             std::size_t count);
  void DrawLines(int top, int bottom);
  int Width() const;

  PageEngine& engine_;
  std::vector<TableColumn> columns_;
  TableLines lines_;
  bool has_head_ = false;
  bool below_head_ = false;
};

// Parts `width` by shares of 1, as grids state their columns.
std::vector<int> Shares(int width, std::initializer_list<double> shares);

}  // namespace tarnwell::print
