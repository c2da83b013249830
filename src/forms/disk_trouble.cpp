#include "forms/disk_trouble.h"

#include "forms/message.h"

namespace tarnwell::forms {

std::string_view ReasonOf(storage::Fault fault) {
  using storage::Fault;
  switch (fault) {
    case Fault::kMissing:
      return "it isn't there any more";
    case Fault::kNotPermitted:
      return "you have no permission for it";
    case Fault::kReadOnly:
      return "the disk is read-only";
    case Fault::kFull:
      return "the disk is full";
    case Fault::kGone:
      return "the program's folder isn't there any more";
    case Fault::kTooLarge:
      return "it is too large";
    case Fault::kNotPlain:
      return "something else has the name of its file";
    case Fault::kInUse:
      return "it is in use, or too many files are open";
    case Fault::kNoAnswer:
      return "its disk or network doesn't answer";
    case Fault::kNone:
    case Fault::kBroken:
      break;
  }
  return "the disk reported an error";
}

void TellNotSaved(Context& context, std::string_view what, storage::Fault why) {
  TellRefused(context, what, why, "It is still on the screen.");
}

void TellRefused(Context& context, std::string_view what, storage::Fault why,
                 std::string_view instead) {
  ShowMessage(context, {"Not Saved",
                        std::string(what)
                            .append(" could not be saved: ")
                            .append(ReasonOf(why))
                            .append(".\n")
                            .append(instead),
                        Icon::kCritical});
}

void TellHoldsForNow(Context& context, std::string_view what, storage::Fault why) {
  TellRefused(context, what, why, "It holds for now.");
}

std::string UnreadableNote(std::string_view what, storage::Fault why) {
  return std::string(what).append(" can't be read: ").append(ReasonOf(why)) +
         ".\nNothing will be written over it.";
}

void TellUnreadable(Context& context, std::string_view what, storage::Fault why) {
  ShowMessage(context, {"Can't Be Read", UnreadableNote(what, why), Icon::kCritical});
}

bool AskToLeaveUnsaved(Context& context) {
  return ShowMessage(context, {"Not Saved", "Leave without saving?", Icon::kExclamation,
                               Buttons::kYesNo, 2}) == Answer::kYes;
}

}  // namespace tarnwell::forms
