// The words for what a document keeps and can't show.

#pragma once

#include <string>
#include <string_view>

#include "richtext/kept_things.h"

namespace tarnwell::forms {

// A word or two that stand in the text.
std::string_view SignOf(const richtext::KeptThing& thing);

// The same as a sentence, with what stands in it: "Text box, kept: Call us". UTF-8.
std::string TipOf(const richtext::KeptThing& thing);

}  // namespace tarnwell::forms
