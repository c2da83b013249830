#pragma once

#include "forms/color.h"

namespace tarnwell::vehicles {

inline constexpr forms::Color kDueColor = 0x0000FF;  // light red: an action that is due
inline constexpr const char* kActionRequired = "Action Req.";

}  // namespace tarnwell::vehicles
