#pragma once

#include <string>
#include <string_view>

namespace tarnwell::shell {

// Tells a person that the folder of this path has all that they enter. No line is longer than 44
// characters: a long path is broken behind a "/", and where it has none inside a name.
std::string DataPlaceText(std::string_view path);

}  // namespace tarnwell::shell
