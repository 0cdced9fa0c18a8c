#pragma once

#include <list>

// Nothing is known of a key that comes again.

namespace s2k2ngt {

template <class Key, class Value>
class WorkedOut {
 public:
  struct Met {
    Value& Result;
    bool IsNew;
  };

  Met Meet(const Key& /*key*/) { return {m_Values.emplace_back(), true}; }

 private:
  std::list<Value> m_Values;
};

}  // namespace s2k2ngt
