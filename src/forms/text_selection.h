#pragma once

#include <algorithm>
#include <cstddef>

namespace tarnwell::forms {

// What a form last marked in a text, in characters from 0. The caret stands at `end`. A person may
// have gone elsewhere since; a view follows each request once, which it knows by its number.
class TextSelection {
 public:
  std::size_t begin() const { return begin_; }
  std::size_t end() const { return end_; }
  int number() const { return number_; }  // 0 before the first

  // Of a text of `size` characters; what lies outside it is cut off.
  void Ask(std::size_t begin, std::size_t end, std::size_t size) {
    begin_ = std::min(begin, size);
    end_ = std::min(end, size);
    ++number_;
  }

 private:
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
  int number_ = 0;
};

}  // namespace tarnwell::forms
