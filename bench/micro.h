#pragma once

#include "common/text.h"

#include <bit>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <random>
#include <stdexcept>
#include <string>
#include <utility>

#include <benchmark/benchmark.h>

namespace s2k2ngt::micro {

/// One way to do what several do. `Do(use)` does it once over all items of its data, and hands
/// every result to `use`. It is copied, and shares its data with its copies.
template <class Does>
struct Way {
  const char* Name;
  Does Do;
};

template <class Does>
Way(const char*, Does) -> Way<Does>;

/// What one run of a way goes over.
struct Load {
  std::size_t Items = 0;
  std::size_t Bytes = 0;  // 0 where they tell nothing
};

// The hashes by which results are compared. A number counts with all its bits.
inline std::uint64_t HashOf(std::unsigned_integral auto value) {
  return (value + 1) * 0x9E3779B97F4A7C15U;
}
inline std::uint64_t HashOf(double value) { return HashOf(std::bit_cast<std::uint64_t>(value)); }
inline std::uint64_t HashOf(Text text) { return std::hash<Text>()(text); }
/// Of fields, each with a weight by its place.
template <class... Fields>
std::uint64_t HashOfFields(const Fields&... fields) {
  std::uint64_t hash = 0;
  ((hash = hash * 31 + HashOf(fields)), ...);
  return hash;
}

/// Registers a benchmark of a way, which tells the time for an item.
template <class Does>
void Measure(const std::string& subject, Load load, Way<Does> way) {
  const auto run = [load, way](benchmark::State& state) {
    while (state.KeepRunning()) {
      way.Do([](const auto& result) { benchmark::DoNotOptimize(result); });
    }
    const auto items = state.iterations() * static_cast<std::int64_t>(load.Items);
    state.SetItemsProcessed(items);
    if (load.Bytes > 0) {
      state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(load.Bytes));
    }
    state.counters["per_item"] = benchmark::Counter(
        static_cast<double>(items), benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
  };
  benchmark::RegisterBenchmark((subject + '/' + way.Name).c_str(), run);
}

/// Registers ways that have to give the same results, in whatever order. Throws if they do not.
template <class First, class... Others>
void Compare(const std::string& subject, Load load, Way<First> first, Way<Others>... others) {
  const auto hashOfResults = [](const auto& way) {
    std::uint64_t sum = 0;
    way.Do([&](const auto& result) { sum += HashOf(result); });
    return sum;
  };
  const std::uint64_t wanted = hashOfResults(first);
  const auto check = [&](const auto& other) {
    if (hashOfResults(other) != wanted) {
      throw std::runtime_error(subject + ": " + first.Name + " and " + other.Name +
                               " do not give the same");
    }
  };
  (check(others), ...);
  Measure(subject, load, first);
  (Measure(subject, load, others), ...);
}

/// The same numbers in every run and on every machine.
class Random {
 public:
  /// From 0 and below `end`.
  std::uint32_t Below(std::uint32_t end) { return static_cast<std::uint32_t>(m_Engine()) % end; }

  template <class Items>
  void Shuffle(Items& items) {
    for (auto last = static_cast<std::uint32_t>(items.size()); last > 1; --last) {
      std::swap(items[last - 1], items[Below(last)]);
    }
  }

 private:
  std::mt19937 m_Engine{1};
};

/// Counts of records, from a small model to one that no processor's own memory holds.
inline constexpr std::uint32_t kCounts[] = {1'000, 30'000, 400'000};

// What is measured, by subject.
void AddRows();
void AddNumbers();
void AddLines();
void AddTables();
void AddLabels();

}  // namespace s2k2ngt::micro
