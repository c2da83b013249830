// Every file name that the program owns.

#pragma once

#include <string_view>

namespace tarnwell::storage::file_names {

// The store's own files beside the user's; no user's file can have a name that begins so.
inline constexpr std::string_view kOwnPrefix = ".tarnwell-";
inline constexpr std::string_view kLock = ".tarnwell-lock";
inline constexpr std::string_view kSavePrefix = ".tarnwell-save-";  // and eight digits

}  // namespace tarnwell::storage::file_names
