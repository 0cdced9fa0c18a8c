#include "support/counted_allocations.h"

#include <cstdlib>
#include <new>

#include <malloc.h>

namespace {

std::size_t s_AllocationsToFailure = 0;  // 0: none fails
bool s_AllBehindFail = false;
LivingMemory s_Living;

}  // namespace

void* operator new(std::size_t size) {
  if (s_AllocationsToFailure > 0 && --s_AllocationsToFailure == 0) {
    s_AllocationsToFailure = s_AllBehindFail ? 1 : 0;
    throw std::bad_alloc();
  }
  void* const memory = std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) {
    throw std::bad_alloc();
  }
  ++s_Living.Allocations;
  s_Living.Bytes += malloc_usable_size(memory);
  return memory;
}

// As the standard library's; the sanitizers would have one of their own, and none that fits ours.
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
  try {
    return operator new(size);
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

void operator delete(void* memory) noexcept {
  if (memory != nullptr) {
    --s_Living.Allocations;
    s_Living.Bytes -= malloc_usable_size(memory);
    std::free(memory);
  }
}

void operator delete(void* memory, std::size_t /*size*/) noexcept { operator delete(memory); }
void operator delete(void* memory, const std::nothrow_t& /*tag*/) noexcept {
  operator delete(memory);
}

LivingMemory CountLivingMemory() { return s_Living; }

void FailAtAllocation(std::size_t allocation, bool andAllBehind) {
  s_AllocationsToFailure = allocation;
  s_AllBehindFail = andAllBehind;
}
