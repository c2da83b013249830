#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarnwell::proofing {

// A text of several parts (paragraphs, rows) that is checked where it stands. Parts are numbered
// from 0, texts are UTF-8, places are bytes in a part. No word reaches from one part into the next.
class CheckedText {
 public:
  virtual ~CheckedText() = default;
  virtual int parts() = 0;
  virtual std::string part(int index) = 0;
  // Marks the word that is asked about and brings it on the screen.
  virtual void Show(int index, std::size_t offset, std::size_t length) = 0;
  virtual void Replace(int index, std::size_t offset, std::size_t length,
                       std::string_view utf8) = 0;
};

}  // namespace tarnwell::proofing
