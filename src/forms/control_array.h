#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "forms/control.h"

namespace tarnwell::forms {

// The name of a control array's member: "Text1(0)".
inline std::string MemberName(std::string_view array, std::size_t index) {
  return std::string(array) + "(" + std::to_string(index) + ")";
}

// N controls of one kind and one name, told apart by an index from 0: name(0) to name(N-1). All are
// made from the same arguments.
template <typename T, std::size_t N>
class ControlArray {
 public:
  template <typename... Arguments>
  ControlArray(Container& parent, std::string_view name, const Arguments&... arguments) {
    for (std::size_t i = 0; i < N; ++i) {
      members_[i] = std::make_unique<T>(parent, MemberName(name, i), arguments...);
    }
  }

  T& operator[](std::size_t index) { return *members_.at(index); }
  static constexpr std::size_t size() { return N; }

 private:
  std::array<std::unique_ptr<T>, N> members_;
};

}  // namespace tarnwell::forms
