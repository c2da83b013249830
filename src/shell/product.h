#pragma once

namespace tarnwell::shell {

inline constexpr const char* kProductName = "Tarnwell";
inline constexpr const char* kVersion = "2.5";
inline constexpr const char* kVersionText = "Version 2.5";
inline constexpr const char* kMakersLine = "Made by the people of Tarnwell";

}  // namespace tarnwell::shell
