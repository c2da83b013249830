#include "parts/save_question.h"

#include <string>

#include "forms/disk_trouble.h"
#include "forms/message.h"

namespace tarnwell::parts {

forms::Answer SaveQuestion::Ask(const SaveWords& words) {
  return forms::ShowMessage(context_, {std::string(words.title), std::string(words.text),
                                       forms::Icon::kQuestion, words.buttons});
}

SaveResult SaveQuestion::Offer(const SaveWords& words, const Save& save) {
  if (!unsaved_) return SaveResult::kSaved;
  if (Ask(words) != forms::Answer::kYes) return SaveResult::kDeclined;
  return save ? save() : save_();
}

bool SaveQuestion::Settle(const SaveWords& words) {
  if (!unsaved_) return true;
  const forms::Answer answer = Ask(words);
  if (answer != forms::Answer::kYes) return answer == forms::Answer::kNo;
  return save_() != SaveResult::kFailed || forms::AskToLeaveUnsaved(context_);
}

}  // namespace tarnwell::parts
