#pragma once

#include "common/text.h"

#include <s2k2ngt/account.h>

#include <array>
#include <cstddef>
#include <cstdint>

namespace s2k2ngt {

namespace reasons {

consteval Reason Changed(const char* code, const char* text, const char* advice) {
  return {code, RowFate::Changed, true, text, advice};
}
/// A change by which no part of the model is altered.
consteval Reason Reworded(const char* code, const char* text, const char* advice) {
  return {code, RowFate::Changed, false, text, advice};
}
consteval Reason Dropped(const char* code, const char* text, const char* advice) {
  return {code, RowFate::Dropped, true, text, advice};
}
/// A row left out that says nothing which the output does not say.
consteval Reason Redundant(const char* code, const char* text, const char* advice) {
  return {code, RowFate::Dropped, false, text, advice};
}
consteval Reason Refused(const char* code, const char* text, const char* advice) {
  return {code, RowFate::Refused, true, text, advice};
}
consteval Reason NotLookedAt(const char* code, const char* text, const char* advice) {
  return {code, RowFate::NotLookedAt, true, text, advice};
}

}  // namespace reasons

/// The one list of reasons. A code says what was found, not what the code does about it.
inline constexpr auto kReasons = std::to_array<Reason>({
    // The file and its tables

    reasons::NotLookedAt("table-unknown", "No table of this title is known.",
                         "Enter what it states in the host."),
    reasons::NotLookedAt("table-not-read", "Tables of this kind are not read.",
                         "Enter what it states in the host."),
    {"table-without-model-data", RowFate::NotLookedAt, false,
     "The table holds no part of the structural model: settings, groups, grids, or design.",
     "There is nothing to do for the analysis."},
    reasons::Refused("table-refused", "The host has no like of this table.",
                     "Read the message that was shown for it."),
    reasons::NotLookedAt("run-ended", "The run ended before the row was converted.",
                         "Mend what the run ended by, and convert again."),
    reasons::Refused("row-refused", "The row cannot be read, and with it the file.",
                     "Mend the row: the failure says what is wrong with it."),
    reasons::Dropped("first-row-counts", "Of this table the first row alone is read.",
                     "Look whether the rows below it say anything else."),
    reasons::Dropped("overwritten-by-later-block",
                     "A later block of the same table has written over the row.",
                     "Give each table one block."),
    reasons::Dropped("title-without-empty-line",
                     "A further title follows without an empty line, which drops the rows above.",
                     "Put an empty line before each title."),
    reasons::Changed("read-under-title-before",
                     "No empty line stands above the title: the rows are read as those of the "
                     "title before.",
                     "Put an empty line before each title."),
    reasons::Dropped("row-without-end", "The row ends in a mark by which it would go on.",
                     "Take the \" _\" off its end."),

    reasons::Dropped("joint-unknown", "It names a joint that the file does not have.",
                     "Look for the joint in the source model."),
    reasons::Dropped("frame-unknown", "It names a frame that the file does not have.",
                     "Look for the frame in the source model."),
    reasons::Dropped("area-unknown", "It names an area that the file does not have.",
                     "Look for the area in the source model."),
    reasons::Dropped("solid-unknown", "It names a solid that the file does not have.",
                     "Look for the solid in the source model."),
    reasons::Dropped("link-unknown", "It names a link that the file does not have.",
                     "Look for the link in the source model."),
    reasons::Changed("joint-taken-from-another",
                     "It names a joint that the file does not have: another number is written.",
                     "Look for the joint in the source model."),
    reasons::Changed("element-taken-from-another",
                     "It names an element that the file does not have: another number is written.",
                     "Look for the element in the source model."),
    reasons::Dropped("load-case-not-static", "No linear static analysis case names its load case.",
                     "Add a linear static analysis case that applies the load case."),
    reasons::Changed("coordinate-system-ignored",
                     "It stands in a coordinate system of the user's and is taken as if it did "
                     "not.",
                     "Turn the values into the global or local system."),

    // Joints

    // Frames

    // Areas, solids and links

    // Loads

    // Analysis cases, functions and combinations

    // Bridges
});

/// A reason of the list, by its code; any other does not compile.
class Why {
 public:
  consteval Why(const char* code) : m_Number(NumberOf(code)) {}

  /// Position in the list.
  constexpr std::uint8_t Number() const { return m_Number; }
  bool operator==(const Why&) const = default;

 private:
  static consteval std::uint8_t NumberOf(Text code) {
    static_assert(kReasons.size() < 255);
    for (std::size_t number = 0; number < kReasons.size(); ++number) {
      if (code == kReasons[number].Code) {
        return static_cast<std::uint8_t>(number);
      }
    }
    throw "no such reason";
  }

  std::uint8_t m_Number;
};

}  // namespace s2k2ngt
