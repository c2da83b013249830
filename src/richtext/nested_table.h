#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarnwell::richtext {

// Where the nested tables end whose first paragraph begins with the \pard at `begin`: before the
// \pard of the next paragraph that isn't nested, the end of the cell or the end of the group.
// Always at the same depth of groups as `begin`; `begin` itself if the source breaks off before.
std::size_t FindNestedTableEnd(std::string_view source, std::size_t begin);

// The RTF of tables that stand inside a cell as that of tables outside any.
std::string Unnested(std::string_view rtf);

}  // namespace tarnwell::richtext
