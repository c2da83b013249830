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

  // The search begins at the top again, for this mark. It does so with each text that is loaded.
  void StartSearch(std::string_view mark);
  // The text was edited: the search goes on behind what was typed over a mark.
  void FollowEdit();
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
  void SearchFrom(richtext::Position position);

  std::string mark_{kInsertionMark};
  richtext::Position position_;  // where the search goes on
  // What stands before and behind it in its paragraph, and the document that it is a place of.
  std::string head_;
  std::string rest_;
  int paragraphs_ = 0;
  forms::Subscription subscription_;
  bool has_noted_ = false;  // the status bar says how many words were corrected
  std::size_t spans_known_ = 0;
};

}  // namespace tarnwell::workarea
