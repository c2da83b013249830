// The tools that work on the text of a document.

#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "forms/choice.h"
#include "forms/command.h"
#include "forms/context.h"
#include "forms/panel.h"
#include "forms/rich_text_box.h"

namespace tarnwell::workarea {

// Stands in templates where the user is to fill something in.
inline constexpr std::string_view kInsertionMark = "&&&&&&&&&&&&&&&&&&&&&&&&&&&&&&&&&&&&&&&&&&&&&";

class TextTools {
 public:
  TextTools(forms::Container& parent, forms::Context& context, forms::RichTextBox& text);

  forms::Command font;
  forms::Command spelling;
  forms::Command thesaurus;
  forms::Command find_mark;
  forms::Panel alignment_frame;
  forms::OptionGroup alignment;

  // The search begins at the top again, for this mark.
  void StartSearch(std::string_view mark);
  // What changes the text can't be used on one that is only read.
  void Enable(bool search, bool change);

  std::function<void()> on_change;  // a tool changed the text

 private:
  void ChooseFont();
  void Align(int option);
  void ShowAlignment();
  void CheckSpelling();
  void LookUp();
  void FindMark();
  void Changed();

  forms::Context& context_;
  forms::RichTextBox& text_;
  std::string mark_{kInsertionMark};
  richtext::Position position_;  // where the search goes on
};

}  // namespace tarnwell::workarea
