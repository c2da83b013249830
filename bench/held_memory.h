// How much memory the C++ code of this program holds. Include it in one source file only: it
// replaces the program's operators new and delete.

#pragma once

#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace tarnwell::bench {

inline std::atomic<std::size_t> held_memory = 0;

// In bytes, as they were asked for.
inline std::size_t HeldMemory() { return held_memory; }

}  // namespace tarnwell::bench

namespace {

constexpr std::size_t kSizePlace = alignof(std::max_align_t);

}  // namespace

void* operator new(std::size_t size) {
  auto* place = static_cast<std::byte*>(std::malloc(size + kSizePlace));
  if (!place) throw std::bad_alloc();
  *reinterpret_cast<std::size_t*>(place) = size;
  tarnwell::bench::held_memory += size;
  return place + kSizePlace;
}

void operator delete(void* memory) noexcept {
  if (!memory) return;
  auto* place = static_cast<std::byte*>(memory) - kSizePlace;
  tarnwell::bench::held_memory -= *reinterpret_cast<std::size_t*>(place);
  std::free(place);
}

void operator delete(void* memory, std::size_t) noexcept { operator delete(memory); }
