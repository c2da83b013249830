#include "workarea/todo_list.h"

#include <algorithm>

#include "storage/file_names.h"
#include "storage/sequential_file.h"
#include "text/letters.h"

namespace tarnwell::workarea {
namespace {

namespace file_names = storage::file_names;

storage::Outcome Write(storage::ProgramFolder& folder, std::string_view file,
                       const std::vector<ToDoRow>& rows) {
  storage::SequentialWriter list;
  for (const ToDoRow& row : rows) {
    for (const std::string_view value :
         {std::string_view(row.item), std::string_view(row.to_do), std::string_view(row.actual),
          std::string_view(), std::string_view(row.review)}) {
      list.WriteText(value);
    }
  }
  return list.Save(folder, file);
}

}  // namespace

bool IsBlank(const ToDoRow& row) {
  return std::ranges::all_of(
      std::initializer_list<const std::string*>{&row.item, &row.to_do, &row.actual, &row.review},
      [](const std::string* cell) { return text::Trim(*cell).empty(); });
}

ToDoList ReadToDoList(storage::ProgramFolder& folder) {
  ToDoList list;
  storage::SequentialReader reader(folder, file_names::kToDoList);
  if (reader.is_unreadable()) {
    list.fault = reader.fault();
    return list;
  }
  while (!reader.AtEnd()) {
    ToDoRow& row = list.rows.emplace_back();
    row.item = reader.Next();
    row.to_do = reader.Next();
    row.actual = reader.Next();
    reader.Next();  // the spacer of the grid
    row.review = reader.Next();
  }
  list.rows.resize(std::max<std::size_t>(list.rows.size(), kToDoRows));
  return list;
}

storage::Outcome WriteToDoList(storage::ProgramFolder& folder, const std::vector<ToDoRow>& rows) {
  return Write(folder, file_names::kToDoList, rows);
}

storage::Outcome WriteGeneralSave(storage::ProgramFolder& folder,
                                  const std::vector<ToDoRow>& rows) {
  return Write(folder, file_names::kToDoListGeneralSave, rows);
}

std::string ToDoText(const std::vector<ToDoRow>& rows) {
  std::string text;
  const auto add = [&text](std::string_view item, std::string_view to_do, std::string_view actual,
                           std::string_view review) {
    text.append(item).append("\t").append(to_do).append("\t").append(actual).append("\t");
    text.append(review).append("\r\n");
  };
  for (const ToDoRow& row : rows) {
    if (IsBlank(row)) continue;
    if (text.empty()) add(kToDoTitles[0], kToDoTitles[1], kToDoTitles[2], kToDoTitles[3]);
    add(row.item, row.to_do, row.actual, row.review);
  }
  return text;
}

}  // namespace tarnwell::workarea
