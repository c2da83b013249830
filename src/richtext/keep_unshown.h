// For a view that edits a paragraph and shows only its text.

#pragma once

#include "richtext/rich_document.h"

namespace tarnwell::richtext {

// Gives `after`, the edited form of `before`, the opaque runs that a view didn't show and so
// couldn't bring along: each stands behind the same characters as before; what stood inside changed
// text stands behind it. `after` also gets the section break and what the paragraph's formats hold
// outside the model, unless it has its own. Opaque runs that `after` already holds are taken out
// first.
void KeepUnshown(const Paragraph& before, Paragraph& after);

}  // namespace tarnwell::richtext
