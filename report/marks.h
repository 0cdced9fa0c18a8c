#pragma once

#include <s2k2ngt/account.h>
#include <s2k2ngt/drawing.h>

#include <cstdint>
#include <string>
#include <vector>

/// An element or a node that rows with a loss name.
struct Mark {
  bool IsJoint = false;
  std::uint32_t Number = 0;  // of the drawing's elements, or nodes
  std::vector<const s2k2ngt::Reason*> Whys;
};

/// The marks of what can be drawn, elements first, in the order of the drawing.
std::vector<Mark> MarksOf(const s2k2ngt::Drawing& drawing, const s2k2ngt::Account& account);

/// What is marked and why, for a tooltip.
std::string TextOf(const Mark& mark, const s2k2ngt::Drawing& drawing);
