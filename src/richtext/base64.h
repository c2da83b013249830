#pragma once

#include <string>
#include <string_view>

namespace tarnwell::richtext {

std::string Base64(std::string_view bytes);

}  // namespace tarnwell::richtext
