#pragma once

#include <string_view>

#include "forms/context.h"
#include "forms/form.h"

namespace tarnwell::reference {

// Opens an address of a table in the system's browser, and says so where there is none.
void OpenWebSite(forms::Form& form, forms::Context& context, std::string_view address);

// Likewise what a person has typed or pasted; nothing for blanks.
void OpenTypedAddress(forms::Form& form, forms::Context& context, std::string_view typed);

}  // namespace tarnwell::reference
