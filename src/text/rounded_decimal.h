#pragma once

#include <cstddef>
#include <string>

namespace tarnwell::text {

// A magnitude as decimal digits.
struct RoundedDecimal {
  std::string integer;   // without leading zeros: empty below 1
  std::string fraction;  // exactly as many digits as were asked for

  bool IsZero() const;
};

// The digits of |value| x 10^shift, rounded half up at the given number of decimal places. What is
// rounded is the shortest decimal form that stands for the value, so 2.675 gives 2.68 although its
// binary form lies a little below. The value must be finite.
RoundedDecimal RoundDecimal(double value, std::size_t shift, std::size_t places);

// The double that is written with the same digits: 0.1 for 0.1f. A float that isn't finite stays.
double WidenByDigits(float value);

}  // namespace tarnwell::text
