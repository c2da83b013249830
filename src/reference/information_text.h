#pragma once

#include <string>
#include <string_view>

#include "forms/rich_text_box.h"
#include "storage/program_folder.h"

namespace tarnwell::reference {

// Shows a supplied text, or the user's own of that name, to be read; without it the box is empty.
// Returns what a person is told about it: one sentence, or nothing.
std::string ShowInformationText(storage::ProgramFolder& folder, std::string_view file,
                                forms::RichTextBox& box);

}  // namespace tarnwell::reference
