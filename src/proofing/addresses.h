#pragma once

#include <string_view>

namespace tarnwell::proofing {

// The run of characters without a blank is, or holds, the address of a page or of a mailbox:
// "www.example.com/Rates", "(ann@example.org)". No spelling applies to it.
bool IsAddress(std::string_view run);

}  // namespace tarnwell::proofing
