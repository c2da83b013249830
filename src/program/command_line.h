// What the program is told where it is started by its name, and answers there.

#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tarnwell::program {

struct Option {
  std::string_view letter;  // "-h"
  std::string_view word;    // "--help"
  std::string_view meaning;
};
// All that the program takes itself, beside those of Qt, such as "-style". The manual page has them
// too.
std::span<const Option> Options();

// The exit code of a start with what isn't an option.
inline constexpr int kRefused = 2;

// What to write instead of a start; empty for a start. `arguments` are without the program's name.
std::optional<std::string> AnswerTo(std::span<const char* const> arguments);
// What to say to an argument that is no option.
std::string RefusalOf(std::string_view argument);

}  // namespace tarnwell::program
