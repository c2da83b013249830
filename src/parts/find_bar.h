#pragma once

#include <optional>
#include <string>
#include <vector>

#include "forms/choice.h"
#include "forms/command.h"
#include "forms/label.h"
#include "forms/menu.h"
#include "forms/panel.h"
#include "forms/rich_text_box.h"
#include "forms/words_field.h"

namespace tarnwell::parts {

// Finds and replaces words in a document, in a bar that comes and goes. What came of it stands in
// the status bar.
class FindBar {
 public:
  FindBar(forms::Container& parent, forms::RichTextBox& text);

  forms::Panel panel;
  forms::Label find_label{panel, "Findbar1Label(0)", "Find:"};
  forms::WordsField find{
      panel, "Findbar1Text(0)", {.spoken_name = "Find", .select_on_entry = true}};
  forms::Command previous{panel, "Findbar1Button(0)", "Previous", {"Find Previous (Shift+F3)"}};
  forms::Command next{panel, "Findbar1Button(1)", "Next", {"Find Next (F3)"}};
  forms::CheckBox whole_words{panel, "Findbar1Check(0)", "Whole words"};
  forms::CheckBox match_capitals{panel, "Findbar1Check(1)", "Match capitals"};
  forms::Label replace_label{panel, "Findbar1Label(1)", "Replace with:"};
  forms::WordsField replace{panel, "Findbar1Text(1)", {.spoken_name = "Replace with"}};
  forms::Command replace_one{panel, "Findbar1Button(2)", "Replace"};
  forms::Command replace_all{panel, "Findbar1Button(3)", "Replace All"};
  forms::Command close{panel, "Findbar1Button(4)", "Close", {.tool_tip = "Esc", .cancel = true}};

  // A text is there to be searched. Without one the bar goes.
  void Enable(bool enabled);
  void Open();
  void Close();
  // "Find and Replace" and what goes with it, with their keys.
  void AddTo(forms::MenuItem& menu);

 private:
  richtext::Search Wanted() const;
  void Next();
  void Previous();
  void Replace();
  void ReplaceAll();
  // Marks the place; without one says that there is none.
  void Show(const std::optional<richtext::Range>& place, bool began_again);
  void Note(const std::string& note);
  void NoteNothing();

  forms::RichTextBox& text_;
  bool has_noted_ = false;
  std::vector<forms::MenuItem*> entries_;
  forms::Subscription subscription_;
};

}  // namespace tarnwell::parts
