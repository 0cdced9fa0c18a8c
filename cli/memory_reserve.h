#pragma once

#include <cstddef>
#include <new>

/// Memory that is given back as soon as there is too little. What was begun can then be undone:
/// objects of the JSON library want memory to be destroyed, and the process would end if they got
/// none. For one thread, and one at a time.
class MemoryReserve {
 public:
  explicit MemoryReserve(std::size_t bytes);
  ~MemoryReserve();
  MemoryReserve(const MemoryReserve&) = delete;
  MemoryReserve& operator=(const MemoryReserve&) = delete;

 private:
  std::new_handler m_HandlerBefore;
};
