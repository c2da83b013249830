#pragma once

#include <QStringList>
#include <memory>

#include "desktop/services/hunspell_speller.h"
#include "forms/services.h"

class MyThes;

namespace tarnwell::desktop {

// The thesaurus "en_US" of the first folder that has one. It is opened when it is first asked. For
// a word that it doesn't have it asks the dictionary of which word that is a form.
class MythesThesaurus : public forms::Thesaurus {
 public:
  MythesThesaurus(QStringList folders, HunspellSpeller& speller);
  ~MythesThesaurus() override;

  bool available() override { return thesaurus() != nullptr; }
  std::vector<forms::Meaning> LookUp(std::string_view word) override;

 private:
  MyThes* thesaurus();  // nullptr for none
  std::vector<forms::Meaning> LookUpEntry(std::string_view word);

  QStringList folders_;
  HunspellSpeller& speller_;
  bool was_sought_ = false;
  std::unique_ptr<MyThes> thesaurus_;
};

}  // namespace tarnwell::desktop
