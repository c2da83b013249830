#pragma once

#include <QStringList>
#include <memory>

#include "forms/services.h"

class Hunspell;

namespace tarnwell::desktop {

// The dictionary "en_US" of the first folder that has one. It is loaded when it is first asked.
class HunspellSpeller : public forms::Speller {
 public:
  explicit HunspellSpeller(QStringList folders);
  ~HunspellSpeller() override;

  bool available() override { return dictionary() != nullptr; }
  bool IsCorrect(std::string_view word) override;
  std::vector<std::string> Suggest(std::string_view word) override;
  // The words that it may be a form of: "house" for "houses".
  std::vector<std::string> Stems(std::string_view word);

 private:
  Hunspell* dictionary();  // nullptr for none

  QStringList folders_;
  bool was_sought_ = false;
  std::unique_ptr<Hunspell> dictionary_;
};

}  // namespace tarnwell::desktop
