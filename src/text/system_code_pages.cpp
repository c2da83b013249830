#include "text/system_code_pages.h"

#include <iconv.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <map>

namespace tarnwell::text {
namespace {

// No others, so that a document can't name a converter that lies somewhere on the machine.
constexpr int kCodePages[] = {737, 775, 852, 855, 857, 860, 861, 862, 863,  864,
                              865, 866, 869, 874, 932, 936, 949, 950, 1258, 1361};

constexpr std::size_t kLongestCharacter = 16;  // bytes of UTF-8, with marks of its own

class Converter {
 public:
  explicit Converter(int code_page)
      : handle_(iconv_open("UTF-8", ("CP" + std::to_string(code_page)).c_str())) {}
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;
  ~Converter() {
    if (is_open()) iconv_close(handle_);
  }

  bool Append(std::string_view bytes, std::string& utf8) {
    if (!is_open()) return false;
    std::string source(bytes);
    std::array<char, kLongestCharacter> target{};
    char* from = source.data();
    char* to = target.data();
    std::size_t from_left = source.size();
    std::size_t to_left = target.size();
    const bool converts = iconv(handle_, &from, &from_left, &to, &to_left) == 0;
    // A letter may wait for a mark to come, which is told to come alone.
    const bool ends = iconv(handle_, nullptr, nullptr, &to, &to_left) == 0;
    if (!converts || !ends || from_left > 0) return false;
    utf8.append(target.data(), target.size() - to_left);
    return true;
  }

 private:
  bool is_open() const { return handle_ != reinterpret_cast<iconv_t>(-1); }

  iconv_t handle_;
};

}  // namespace

bool AppendCharacter(int code_page, std::string_view bytes, std::string& utf8) {
  if (std::ranges::find(kCodePages, code_page) == std::end(kCodePages)) return false;
  static std::map<int, Converter> converters;
  return converters.try_emplace(code_page, code_page).first->second.Append(bytes, utf8);
}

}  // namespace tarnwell::text
