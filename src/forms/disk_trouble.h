// What a person is told when the disk refuses. A save that failed is never passed over, and nothing
// is called saved that isn't.

#pragma once

#include <string>
#include <string_view>

#include "forms/context.h"
#include "storage/fault.h"

namespace tarnwell::forms {

// The end of a sentence: "the disk is full".
std::string_view ReasonOf(storage::Fault fault);

// `what` begins a sentence: "The document". What wasn't saved has to stay on the screen, marked as
// unsaved.
void TellNotSaved(Context& context, std::string_view what, storage::Fault why);

// Of a file that is there and can't be read. What is shown in its place has to be locked.
void TellUnreadable(Context& context, std::string_view what, storage::Fault why);

// Whether to go on after a save that failed, and lose what isn't saved. No is the default.
bool AskToLeaveUnsaved(Context& context);

}  // namespace tarnwell::forms
