#include "shell/hinfo1.h"

namespace tarnwell::shell {
namespace {

int SecondsOf(forms::Clock& clock) {
  return static_cast<int>(clock.Now().time_of_day.count() % 60);
}

}  // namespace

// Only the seconds of the minute are looked at, so that a wait across midnight ends as well.
void Pause2(forms::Clock& clock, forms::EventLoop& loop) {
  const int start = SecondsOf(clock);
  while ((SecondsOf(clock) - start + 60) % 60 < 2) loop.WaitALittle();
}

}  // namespace tarnwell::shell
