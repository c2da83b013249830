#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace tarnwell::settings {

inline constexpr int kWallpapers = 16;

// A colour or a background as the settings files spell it: the decimal number of a colour, the word
// "Default", "WP" and the number of a wallpaper, or nothing at all.
class StoredColor {
 public:
  // Nothing stored.
  StoredColor() = default;
  static StoredColor Default() { return StoredColor(DefaultColor{}); }
  // 32 bits in blue-green-red order.
  static StoredColor Number(std::int32_t color) { return StoredColor(color); }
  // 1 to 16; any other number is nothing.
  static StoredColor Wallpaper(int number);
  // Whatever capitals and blanks it is written with; a text that is none of the forms is nothing.
  static StoredColor FromText(std::string_view text);

  std::string Text() const;

  bool empty() const { return std::holds_alternative<std::monostate>(value_); }
  bool is_default() const { return std::holds_alternative<DefaultColor>(value_); }
  std::optional<std::int32_t> color() const { return Get<std::int32_t>(); }
  std::optional<int> wallpaper() const;

  friend bool operator==(const StoredColor&, const StoredColor&) = default;

 private:
  struct DefaultColor {
    friend bool operator==(const DefaultColor&, const DefaultColor&) = default;
  };
  struct WallpaperNumber {
    int number;
    friend bool operator==(const WallpaperNumber&, const WallpaperNumber&) = default;
  };
  using Value = std::variant<std::monostate, DefaultColor, std::int32_t, WallpaperNumber>;

  explicit StoredColor(Value value) : value_(value) {}
  template <typename T>
  std::optional<T> Get() const {
    const T* value = std::get_if<T>(&value_);
    return value ? std::optional<T>(*value) : std::nullopt;
  }

  Value value_;
};

}  // namespace tarnwell::settings
