#include "planner/row_texts.h"

#include "text/code_page_1252.h"
#include "text/letters.h"

namespace tarnwell::planner {

std::string RowTexts::part(int index) {
  return text::ToUtf8(fields_[static_cast<std::size_t>(index)].text()).bytes();
}

void RowTexts::Show(int index, std::size_t, std::size_t) { on_show(index); }

void RowTexts::Replace(int index, std::size_t offset, std::size_t length, std::string_view utf8) {
  forms::TextField& field = fields_[static_cast<std::size_t>(index)];
  std::string content = part(index);
  content.replace(offset, length, utf8);
  field.SetText(text::Left(text::FromUtf8(text::Utf8(content)), field.max_length()));
  on_replace();
}

}  // namespace tarnwell::planner
