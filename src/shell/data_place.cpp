#include "shell/data_place.h"

namespace tarnwell::shell {

std::string DataPlaceText(std::string_view path) {
  constexpr std::size_t kLongestLine = 44;  // characters
  std::string text = "All that you enter is kept in this folder:\n";
  while (path.size() > kLongestLine) {
    const std::size_t slash = path.substr(0, kLongestLine).rfind('/');
    const bool breaks_between_names = slash != std::string_view::npos && slash > 0;
    const std::size_t length = breaks_between_names ? slash + 1 : kLongestLine;
    text.append(path.substr(0, length)) += '\n';
    path.remove_prefix(length);
  }
  return text.append(path);
}

}  // namespace tarnwell::shell
