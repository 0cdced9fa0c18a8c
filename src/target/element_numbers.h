#pragma once

#include "common/keyed_table.h"
#include "common/text.h"
#include "target/ngt_model.h"

#include <cstdint>

namespace s2k2ngt {

/// Ties an element to its number, for models whose elements are renumbered.
struct MAP_ELEM {
  std::uint32_t iKey = 0;
  std::int32_t iEl = 0;
  QualifiedLabel Name;  // its label and its family
};

inline constexpr Text kFrameFamily = "FRAME";
inline constexpr Text kAreaFamily = "AREA";
inline constexpr Text kSolidFamily = "SOLID";

/// How the labels of frames, areas and solids become the element numbers of the output, which has
/// one range of numbers for all families.
///
/// An element keeps its label as its number when all labels are numbers and no two families share
/// one. Otherwise all elements are numbered by position while *ELEMENT is written; all references
/// to elements are written behind it.
class ElementNumbers {
 public:
  /// Notes a label that the conversion has met.
  void NoteLabel(Text label) { ElemLabelsNumeric = ElemLabelsNumeric && IsAllDigits(label); }

  bool Renumbered() const { return !ElemLabelsNumeric || ElemFamiliesOverlap; }

  /// Makes room for so many renumbered elements.
  void Reserve(std::size_t count) { m_ElemMap.Reserve(count); }

  /// The number of the element that is written at this position, from 1, among all elements.
  std::int32_t NumberOf(std::uint32_t position, Text label) const;

  /// The same; with a renumbered model it is noted for the references to come.
  std::int32_t NumberAt(std::uint32_t position, Text label, Text family);

  /// Renumbered number of an element. Found: `iEl` is set; not found: it is left and the result is
  /// false. An empty map counts as found and leaves `iEl`.
  bool FindElemByLabel(Text label, Text family, std::int32_t& iEl) const;

  bool ElemLabelsNumeric = true;
  bool ElemFamiliesOverlap = false;

 private:
  CKeyedTable<MAP_ELEM> m_ElemMap{kTargetBuckets};
};

/// The element numbers of the references that one call of a writer prints. Meant so: in a
/// renumbered model a reference to an element that is not there prints the number of the reference
/// before it, 0 before the first.
class ElementReferences {
 public:
  explicit ElementReferences(const ElementNumbers& numbers) : m_Numbers(numbers) {}

  std::int32_t NumberOf(Text label, Text family);

 private:
  const ElementNumbers& m_Numbers;
  std::int32_t m_Number = 0;
};

}  // namespace s2k2ngt
