// Keeps what is typed and not saved, and gives it back at the start after a crash.

#pragma once

#include <chrono>
#include <map>
#include <string>

#include "forms/context.h"
#include "forms/form.h"
#include "program/draft_file.h"

namespace tarnwell::program {

// A draft lies in a file of its own for each form. It goes when the form's changes are saved or
// given up, and with the regular end of the program: one that is there at a start was left by a
// program that was killed.
class Drafts {
 public:
  static constexpr std::chrono::minutes kEvery{1};

  explicit Drafts(forms::Context& context) : context_(context) {}

  // Brings the drafts of all forms up to date. Not while a long run lives. A disk that refuses
  // isn't told of: the save will.
  void Keep();
  // Asks for each that was left whether it is to be shown again. One whose files have been saved
  // since isn't asked about, and goes.
  void Offer();
  void Forget();

 private:
  void KeepOf(const std::string& form, const forms::Draft& draft);
  void Remove(const std::string& form);
  void Offer(const std::string& form, const KeptDraft& kept);

  forms::Context& context_;
  std::map<std::string, std::string> kept_;  // by form: what its file holds, but for the time
};

}  // namespace tarnwell::program
