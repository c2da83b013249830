// What a screen holds that isn't on the disk yet, and the question before something takes its
// place.

#pragma once

#include <functional>
#include <string_view>

#include "forms/context.h"

namespace tarnwell::parts {

enum class SaveResult {
  kSaved,
  kDeclined,  // a person didn't want it after all
  kFailed,    // the disk refused, and the person was told
};

// The words of the question. With Cancel among the buttons the screen can be kept.
struct SaveWords {
  std::string_view title = "Save Changes?";
  std::string_view text = "Save changes/entries before next action?";
  forms::Buttons buttons = forms::Buttons::kYesNo;
};

class SaveQuestion {
 public:
  using Save = std::function<SaveResult()>;

  SaveQuestion(forms::Context& context, Save save) : context_(context), save_(std::move(save)) {}

  // A person's changes are on the screen and not on the disk. The screen says so.
  bool unsaved() const { return unsaved_; }
  void SetUnsaved(bool unsaved) {
    if (unsaved_ == unsaved) return;
    unsaved_ = unsaved;
    if (on_change) on_change();
  }
  std::function<void()> on_change;  // of unsaved()

  // Offers to save what is unsaved, and says what came of it: kSaved where nothing is unsaved.
  // `save`, where there is one, is this offer's own way to do it.
  SaveResult Offer(const SaveWords& words = {}, const Save& save = {});
  // Likewise before the changes are left. False when the screen has to stay as it is: by Cancel, or
  // because a save failed and the person doesn't want to lose them.
  bool Settle(const SaveWords& words = {});

 private:
  forms::Answer Ask(const SaveWords& words);

  forms::Context& context_;
  Save save_;
  bool unsaved_ = false;
};

}  // namespace tarnwell::parts
