#pragma once

#include "forms/command.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/list_box.h"
#include "forms/text_field.h"
#include "proofing/spelling_session.h"

namespace tarnwell::proofing {

// The dialogue of the spelling check. It asks about one word after the other and closes itself
// behind the last one.
class VSSpell1 : public forms::Form {
 public:
  explicit VSSpell1(forms::Context& context);

  // Set before the form loads, with a word in hand; outlives the form's stay. Without one the form
  // is empty.
  SpellingSession* session = nullptr;

  forms::Label word_heading{*this, "Label1", "Not in Dictionary:"};
  // The sentence in three pieces, the word in the middle.
  forms::Label before{*this, "Label2"};
  forms::Label word{*this, "Label3", {}, forms::LabelRole::kHeading};
  forms::Label after{*this, "Label4"};
  forms::Label change_heading{*this, "Label5", "Change To:"};
  forms::TextField change_to{*this, "Text1", {.spoken_name = "Change To"}};
  forms::Label suggestions_heading{*this, "Label6", "Suggestions:"};
  forms::ListBox suggestions{*this, "List1", "Suggestions"};
  forms::Command change{*this, "Command1", "&Change"};
  forms::Command change_all{*this, "Command2", "Change A&ll"};
  forms::Command ignore{*this, "Command3", "&Ignore"};
  forms::Command ignore_all{*this, "Command4", "I&gnore All"};
  forms::Command add{*this, "Command5", "&Add"};
  forms::Command help{*this, "Command6", "&Help"};
  forms::Command cancel{*this, "Command7", "Cancel", {.cancel = true}};

  void Load() override;
  bool QueryUnload(forms::UnloadCause cause) override;

 private:
  void ShowWord();
  void EnableChanges();
  void Change(bool everywhere);
  void Next();
};

}  // namespace tarnwell::proofing
