#include "forms/spoken.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <string_view>
#include <vector>

#include "forms/chart.h"
#include "forms/choice.h"
#include "forms/command.h"
#include "forms/date_picker.h"
#include "forms/label.h"
#include "forms/list_box.h"
#include "forms/mnemonics.h"
#include "forms/page_preview.h"
#include "forms/picture_view.h"
#include "forms/rich_text_box.h"
#include "forms/text_box.h"
#include "forms/text_field.h"
#include "forms/typed_combo.h"
#include "text/letters.h"

namespace tarnwell::forms {
namespace {

constexpr const char* kReadOnly = "To be read only.";
constexpr std::size_t kMostPoints = 60;  // of a chart that are told one by one

std::string Letters(std::size_t most) {
  return "at most " + std::to_string(most) + (most == 1 ? " character" : " characters");
}

std::string WithoutMark(std::string caption) {
  std::erase(caption, '&');
  return text::Trim(caption);
}

// The keys that work it from elsewhere, or how it is worked once one is there.
std::string KeysOf(const Control& control, std::string_view otherwise) {
  std::vector<std::string> keys;
  if (const char letter = MnemonicOf(CaptionOf(control))) {
    keys.push_back(std::string("Alt+") +
                   static_cast<char>(std::toupper(static_cast<unsigned char>(letter))));
  }
  if (const auto* command = dynamic_cast<const Command*>(&control)) {
    if (command->is_default()) keys.emplace_back("Enter");
    if (command->cancel()) keys.emplace_back("Esc");
  }
  if (keys.empty()) return std::string(otherwise);
  std::string all = keys.size() == 1 ? "Key: " : "Keys: ";
  for (std::size_t i = 0; i < keys.size(); ++i) all += (i == 0 ? "" : ", ") + keys[i];
  return all + ".";
}

std::string PointsOf(const Chart& chart) {
  const ChartPicture& picture = chart.picture();
  if (picture.points.empty()) return "Without amounts.";
  const std::vector<double> shares = ChartShares(picture);
  std::string told;
  for (std::size_t i = 0; i < picture.points.size() && i < kMostPoints; ++i) {
    const ChartPoint& point = picture.points[i];
    const bool has_amounts = picture.kind == ChartKind::kBar;
    told += (i == 0 ? "" : "; ") + point.label + " " +
            (has_amounts ? ChartAmount(point.value) : ChartPercent(point, shares[i]));
  }
  const std::size_t rest = picture.points.size() - std::min(picture.points.size(), kMostPoints);
  if (rest > 0) told += "; and " + std::to_string(rest) + " more";
  return told + ".";
}

std::string KeysOfGrid(const Grid& grid) {
  bool can_edit = false;
  for (int i = grid.fixed_columns(); i < grid.columns(); ++i) {
    can_edit = can_edit || grid.column(i).editable;
  }
  return std::string("The arrows go from cell to cell") +
         (can_edit ? ", F2 changes one, Ctrl+Z takes a change back" : "") +
         ", Tab leaves the table.";
}

std::string HintOfText(const Control& control) {
  if (const auto* field = dynamic_cast<const TextField*>(&control)) {
    return field->locked() ? kReadOnly : "One line of " + Letters(field->max_length()) + ".";
  }
  if (const auto* box = dynamic_cast<const TextBox*>(&control)) {
    return box->locked() ? kReadOnly
                         : "Lines of " + Letters(box->max_length()) + "; Tab leaves them.";
  }
  if (const auto* combo = dynamic_cast<const TypedCombo*>(&control)) {
    return "One line of " + Letters(combo->max_length()) +
           ", which Enter takes; Alt+Down opens a list.";
  }
  if (const auto* text = dynamic_cast<const RichTextBox*>(&control)) {
    return text->locked() ? std::string(kReadOnly) : "A text; Ctrl+Tab leaves it.";
  }
  return {};
}

std::string HintOfPicture(const Control& control) {
  if (const auto* picture = dynamic_cast<const Picture*>(&control)) {
    return picture->on_click || picture->on_open ? "Enter presses it." : "";
  }
  if (dynamic_cast<const PictureView*>(&control)) {
    return "Plus and minus change its size, the arrows move it.";
  }
  if (const auto* preview = dynamic_cast<const PagePreview*>(&control)) {
    if (preview->page_count() == 0) return "No pages.";
    return "Page " + std::to_string(preview->page() + 1) + " of " +
           std::to_string(preview->page_count()) + "; Page Up and Page Down turn them.";
  }
  if (const auto* chart = dynamic_cast<const Chart*>(&control)) return PointsOf(*chart);
  return {};
}

std::string HintOfChoice(const Control& control) {
  if (dynamic_cast<const ComboBox*>(&control)) {
    return "Up and Down choose, Alt+Down opens the list.";
  }
  if (const auto* list = dynamic_cast<const ListBox*>(&control)) {
    return list->on_open ? "Up and Down choose, Enter opens." : "Up and Down choose.";
  }
  if (dynamic_cast<const DatePicker*>(&control)) {
    return "The arrows choose a day, Page Up and Page Down a month, with Ctrl a year.";
  }
  if (const auto* grid = dynamic_cast<const Grid*>(&control)) return KeysOfGrid(*grid);
  return {};
}

std::string HintOf(const Control& control) {
  if (const auto* command = dynamic_cast<const Command*>(&control)) {
    return (command->selected() ? "Selected. " : "") + KeysOf(control, "Enter presses it.");
  }
  if (dynamic_cast<const Option*>(&control)) return KeysOf(control, "Space chooses it.");
  if (dynamic_cast<const CheckBox*>(&control)) return KeysOf(control, "Space changes it.");
  if (const auto* label = dynamic_cast<const Label*>(&control)) {
    return label->on_click ? "Enter presses it." : "";
  }
  for (const auto hint : {HintOfText, HintOfPicture, HintOfChoice}) {
    if (const std::string told = hint(control); !told.empty()) return told;
  }
  return {};
}

}  // namespace

std::string DescriptionOf(const Control& control) {
  std::string tip = text::Trim(control.tool_tip());
  if (tip == WithoutMark(CaptionOf(control))) tip.clear();  // that is its name
  const std::string hint = HintOf(control);
  if (tip.empty() || hint.empty()) return tip + hint;
  if (std::ispunct(static_cast<unsigned char>(tip.back())) == 0) tip += '.';
  return tip + " " + hint;
}

std::string SpokenCell(const Grid& grid, int row, int column) {
  if (column >= grid.columns()) return {};
  const bool has_head = column > 0 && (grid.held_columns() > 0 || grid.fixed_columns() > 0);
  std::string head = has_head ? grid.text(row, 0) : std::string();
  if (text::Trim(head).empty()) head = "Row " + std::to_string(row);
  const std::string& title = grid.column(column).title;
  const std::string& cell = grid.text(row, column);
  return head + (title.empty() ? "" : ", " + title) + ": " + (cell.empty() ? "empty" : cell);
}

}  // namespace tarnwell::forms
