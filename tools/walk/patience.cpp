#include "walk/patience.h"

#include <chrono>
#include <cstdlib>
#include <iostream>

namespace tarnwell::testing {
namespace {

constexpr std::chrono::milliseconds kTick{200};

}  // namespace

Patience::~Patience() {
  done_ = true;
  watch_.join();
}

void Patience::Watch() {
  while (!done_) {
    std::this_thread::sleep_for(kTick);
    if (--left_ > 0) continue;
    std::cerr << "the program hangs\n";
    std::abort();
  }
}

}  // namespace tarnwell::testing
