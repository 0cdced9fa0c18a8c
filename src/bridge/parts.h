#pragma once

#include "common/text.h"
#include "common/value_map.h"

#include <variant>

namespace s2k2ngt {

/// Tells, of rows in the order in which they are written, which belong to a second or a further
/// part of what their name stands for.
class Parts {
 public:
  bool IsFurther(Text name) {
    if (name != m_Name) {
      m_Name = name;
      m_IsFurther = !m_Begun.Meet(name).IsNew;
    }
    return m_IsFurther;
  }

 private:
  ValueMap<Text, std::monostate> m_Begun;
  Text m_Name;
  bool m_IsFurther = false;
};

}  // namespace s2k2ngt
