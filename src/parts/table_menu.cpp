#include "parts/table_menu.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string>
#include <utility>

#include "forms/message.h"

namespace tarnwell::parts {
namespace {

using richtext::TableEdit;

constexpr std::pair<TableEdit, const char*> kEdits[] = {
    {TableEdit::kRowAbove, "Row &Above"},       {TableEdit::kRowBelow, "Row &Below"},
    {TableEdit::kColumnLeft, "Column &Left"},   {TableEdit::kColumnRight, "Column &Right"},
    {TableEdit::kDeleteRows, "&Delete Rows"},   {TableEdit::kDeleteColumns, "Delete &Columns"},
    {TableEdit::kDeleteTable, "Delete &Table"},
};

constexpr const char* kTitle = "Insert Table";
constexpr std::size_t kLongestSize = 20;  // letters

// "3 x 4": two numbers with anything between them. Empty for what is no size of a table.
std::optional<std::pair<int, int>> RowsAndColumnsOf(const std::string& text) {
  constexpr const char* kDigits = "0123456789";
  int numbers[2] = {0, 0};
  std::size_t at = 0;
  for (int& number : numbers) {
    at = std::min(text.find_first_of(kDigits, at), text.size());
    const auto end = std::from_chars(text.data() + at, text.data() + text.size(), number);
    at = static_cast<std::size_t>(end.ptr - text.data());
  }
  const auto [rows, columns] = numbers;
  const bool is_size = rows >= 1 && rows <= richtext::kMostTableRows && columns >= 1 &&
                       columns <= richtext::kMostTableColumns &&
                       text.find_first_of(kDigits, at) == std::string::npos;
  if (!is_size) return std::nullopt;
  return std::pair(rows, columns);
}

}  // namespace

TableMenu::TableMenu(forms::Context& context, forms::RichTextBox& text)
    : context_(context), text_(text) {
  Fill(popup, "mT");
  Follow(false);
}

void TableMenu::AddTo(forms::MenuItem& menu) {
  Fill(menu.AddSubmenu("mFT", "Ta&ble"), "mFT");
  Follow(text_.SelectionLook().in_table);
}

void TableMenu::Fill(forms::MenuItem& menu, std::string_view name) {
  const std::string begin(name);
  of_text_.push_back(
      &menu.AddEntry(begin + "I", "&Insert Table...", {[this] { Insert(); }, {&text_}}));
  menu.AddSeparator();
  for (const auto& [edit, caption] : kEdits) {
    if (edit == TableEdit::kDeleteRows) menu.AddSeparator();
    const auto run = [this, which = edit] {
      text_.EditTable(which);
      text_.Focus();
    };
    const std::string number = std::to_string(static_cast<int>(edit));
    of_tables_.push_back(
        &menu.AddEntry(begin + "(" + number + ")", caption, forms::MenuAction{run, {&text_}}));
  }
}

void TableMenu::Follow(bool in_table) {
  const bool can_edit = !text_.locked();
  for (forms::MenuItem* entry : of_tables_) entry->SetEnabled(can_edit && in_table);
  for (forms::MenuItem* entry : of_text_) entry->SetEnabled(can_edit && !in_table);
}

void TableMenu::Insert() {
  forms::InputBox box{kTitle, "Rows and columns, such as 3 x 4:"};
  box.text = "3 x 3";
  box.max_length = kLongestSize;
  const auto typed = context_.dialogs.Input(box);
  if (typed) {
    if (const auto size = RowsAndColumnsOf(*typed)) {
      text_.InsertTable(size->first, size->second);
    } else {
      forms::ShowMessage(
          context_, {kTitle, "A table has 1 to " + std::to_string(richtext::kMostTableRows) +
                                 " rows and 1 to " + std::to_string(richtext::kMostTableColumns) +
                                 " columns."});
    }
  }
  text_.Focus();
}

}  // namespace tarnwell::parts
