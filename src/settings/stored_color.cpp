#include "settings/stored_color.h"

#include <charconv>

#include "text/letters.h"

namespace tarnwell::settings {
namespace {

constexpr std::string_view kDefault = "Default";
constexpr std::string_view kWallpaper = "WP";
constexpr std::int32_t kWhite = 0xFFFFFF;

// The whole text as a number of digits alone.
std::optional<std::int32_t> DigitsOf(std::string_view text) {
  std::int32_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size() || number < 0) return std::nullopt;
  return number;
}

}  // namespace

StoredColor StoredColor::Wallpaper(int number) {
  if (number < 1 || number > kWallpapers) return {};
  return StoredColor(WallpaperNumber{number});
}

StoredColor StoredColor::FromText(std::string_view text) {
  const std::string trimmed = text::Trim(text);
  if (text::EqualIgnoringCase(trimmed, kDefault)) return Default();
  const std::string_view rest = trimmed;
  if (text::EqualIgnoringCase(text::Left(rest, kWallpaper.size()), kWallpaper)) {
    return Wallpaper(DigitsOf(rest.substr(kWallpaper.size())).value_or(0));
  }
  const auto number = DigitsOf(rest);
  return number && *number <= kWhite ? Number(*number) : StoredColor();
}

std::string StoredColor::Text() const {
  if (is_default()) return std::string(kDefault);
  if (const auto number = color()) return std::to_string(*number);
  if (const auto number = wallpaper()) return std::string(kWallpaper) + std::to_string(*number);
  return {};
}

std::optional<int> StoredColor::wallpaper() const {
  const auto wallpaper = Get<WallpaperNumber>();
  return wallpaper ? std::optional<int>(wallpaper->number) : std::nullopt;
}

}  // namespace tarnwell::settings
