#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/command.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/list_box.h"
#include "forms/services.h"
#include "forms/text_field.h"

namespace tarnwell::proofing {

// The dialogue of the thesaurus: the senses of a word, the synonyms of one sense, and a way from
// each synonym to its own senses and back. Texts are in code page 1252.
class VSThesaurus1 : public forms::Form {
 public:
  explicit VSThesaurus1(forms::Context& context);

  // Set before the form loads: the word that is to be replaced, and what takes the answer.
  std::string start;
  std::function<void(const std::string& chosen)> on_replace;

  forms::Label word_heading{*this, "Label1", "Synonyms For:"};
  forms::Label word{*this, "Label2", {}, forms::LabelRole::kHeading};
  forms::Label note{*this, "Label3"};
  forms::Label meanings_heading{*this, "Label4", "Meanings:"};
  forms::ListBox meanings{*this, "List1", "Meanings"};
  forms::Label synonyms_heading{*this, "Label5", "Synonyms:"};
  forms::ListBox synonyms{*this, "List2", "Synonyms"};
  forms::Label replace_heading{*this, "Label6", "Replace With:"};
  forms::TextField replace_with{*this, "Text1", {.spoken_name = "Replace With"}};
  forms::Command replace{*this, "Command1", "&Replace"};
  forms::Command look_up{*this, "Command2", "&Look Up"};
  forms::Command previous{*this, "Command3", "&Previous"};
  forms::Command cancel{*this, "Command4", "Cancel", {.cancel = true}};

  void Load() override;

 private:
  void ShowWord();
  void ShowSynonyms();
  void TakeSynonym();
  void EnableCommands();
  void LookUp();
  void GoBack();
  void Replace();

  std::vector<std::string> words_;  // looked up on the way, the one on show last
  std::vector<forms::Meaning> found_;
};

}  // namespace tarnwell::proofing
