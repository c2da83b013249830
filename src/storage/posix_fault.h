#pragma once

#include "storage/fault.h"

namespace tarnwell::storage {

// What the machine's error number means.
Fault FaultOf(int error);

}  // namespace tarnwell::storage
