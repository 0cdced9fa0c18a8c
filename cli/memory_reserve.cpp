#include "memory_reserve.h"

#include <memory>
#include <new>

namespace {

std::unique_ptr<char[]> s_Reserve;

[[noreturn]] void GiveBack() {
  s_Reserve.reset();
  throw std::bad_alloc();
}

}  // namespace

MemoryReserve::MemoryReserve(std::size_t bytes) : m_HandlerBefore(std::get_new_handler()) {
  constexpr std::size_t kLeast = 1U << 16U;
  s_Reserve = std::make_unique_for_overwrite<char[]>(bytes + kLeast);
  std::set_new_handler(GiveBack);
}

MemoryReserve::~MemoryReserve() {
  std::set_new_handler(m_HandlerBefore);
  s_Reserve.reset();
}
