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

// The same of what doesn't stay there: `instead` is the sentence that says what holds.
void TellRefused(Context& context, std::string_view what, storage::Fault why,
                 std::string_view instead);

// The same of a choice that holds though it wasn't stored, until it is read again.
void TellHoldsForNow(Context& context, std::string_view what, storage::Fault why);

// What stands in the place of a file that is there and can't be read: two sentences, each a line.
// What shows it has to be locked.
std::string UnreadableNote(std::string_view what, storage::Fault why);

// The same in a box, for what has no place of its own.
void TellUnreadable(Context& context, std::string_view what, storage::Fault why);

// Whether to go on after a save that failed, and lose what isn't saved. No is the default.
bool AskToLeaveUnsaved(Context& context);

}  // namespace tarnwell::forms
