#include "joints/nodes.h"

#include "common/numbers.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace s2k2ngt {

// ---- Source rows ----

std::optional<Refusal> StoreJoints(TableRows rows, CModel& model, Messages& /*shown*/) {
  std::optional<Refusal> refusal = StoreRowsUnless<T_JTCD_D>(
      rows, model, [](const T_JTCD_D& joint) -> std::optional<std::string> {
        if (joint.CoordType == "Cartesian") {
          return std::nullopt;
        }
        return "joint " + std::string(joint.Joint) +
               " has CoordType=" + std::string(joint.CoordType) + ", only Cartesian is read";
      });
  // Whether the system matters of a joint that states where it is in the global one shows by that.
  std::erase_if(model.LostValues, [&](const LostValue& value) {
    return value.Reason == Why("coordinate-system-ignored") &&
           RecordOr(model.Rows<T_JTCD_D>().Find(value.Position), T_JTCD_D{}).StatesGlobal;
  });
  return refusal;
}

namespace {

Point OwnCoordinates(const T_JTCD_D& joint) { return {joint.XorR, joint.Y, joint.Z}; }
Point StatedGlobals(const T_JTCD_D& joint) { return {joint.GlobalX, joint.GlobalY, joint.GlobalZ}; }

/// The coordinates that the joint's node has in the output.
Point NodeCoordinates(const T_JTCD_D& joint) {
  return joint.SpecialJt ? StatedGlobals(joint) : OwnCoordinates(joint);
}

}  // namespace

Point GlobalCoordinates(CModel& model, Text joint) {
  const auto row = model.Rows<T_JTCD_D>().FirstWith<&T_JTCD_D::Joint>(joint);
  if (!row) {
    return {};
  }
  const T_JTCD_D& found = row->Value;
  return found.StatesGlobal ? StatedGlobals(found) : NodeCoordinates(found);
}

// ---- Conversion ----

bool ConvertJoints(Conversion& run) {
  const auto& joints = run.Source.Rows<T_JTCD_D>();
  auto& nodes = run.Target.Table<T_NGT_NODE_D>();
  nodes.Reserve(joints.Count());
  for (const auto [key, joint] : joints.Entries()) {
    if (!IsAllDigits(joint.Joint)) {
      run.Target.NodeLabelsNumeric = false;
    }
    const Point at = NodeCoordinates(joint);
    nodes.Insert(key, {joint.Joint, at.X, at.Y, at.Z});
  }
  return true;
}

bool MapNodes(Conversion& run) {
  if (run.Target.NodeLabelsNumeric) {
    return true;
  }
  const auto& joints = run.Source.Rows<T_JTCD_D>();
  run.Target.m_NodeMap.Reserve(joints.Count());
  // Where joints share a label, a search meets the one that came last into its bucket of the map.
  // A walk over the joints brings it the first row last; so does going through the rows backwards,
  // which is quicker.
  for (auto key = static_cast<std::uint32_t>(joints.Count()); key > 0; --key) {
    run.Target.m_NodeMap.Insert(
        key, {key, static_cast<std::int32_t>(key), RecordOr(joints.Find(key), T_JTCD_D{}).Joint});
  }
  return true;
}

// ---- Output ----

bool WriteNodes(Conversion& run, LineWriter& out) {
  const auto& nodes = run.Target.Table<T_NGT_NODE_D>();
  if (nodes.Empty()) {
    return true;
  }
  const bool renumbered = !run.Target.NodeLabelsNumeric;
  if (renumbered) {
    run.Shown.Show("IDS_S2KV8_NODE_Renumbering");
  }
  out.WriteLine("%s\n", "*NODE    ; Nodes");
  out.WriteLine("; iNO, X, Y, Z\n");
  for (std::uint32_t key = 1; key <= nodes.Count(); ++key) {
    const T_NGT_NODE_D node = RecordOr(nodes.Find(key), T_NGT_NODE_D{});
    const std::int32_t iNode = run.Target.NodeNumber(node.Label);
    if (renumbered) {
      out.WriteLine("\t%d, %5g, %5g, %5g \t\t;Joint=%s\n", iNode, node.X, node.Y, node.Z,
                    node.Label);
    } else {
      out.WriteLine("\t%d, %5g, %5g, %5g\n", iNode, node.X, node.Y, node.Z);
    }
  }
  out.WriteLine("\n");
  return true;
}

// ---- Account ----

namespace {

/// What a number becomes by the six digits of the output.
double Rounded(double value) {
  std::array<char, kRealSize> text{};
  return ParseReal(
      Text(text.data(), static_cast<std::size_t>(FormatReal(text.data(), value) - text.data())));
}

/// Notes joints that the rounding moves by a part of the model's size that may matter.
void NoteRounded(Conversion& run) {
  constexpr double kPartOfSize = 1e-4;
  constexpr double kMostByDigits = 5e-6;  // of the number
  constexpr std::array kAxes = {&Point::X, &Point::Y, &Point::Z};
  double farthest = 0.0;
  Point least = NodeCoordinates(RecordOr(run.Source.Rows<T_JTCD_D>().Find(1), T_JTCD_D{}));
  Point most = least;
  const auto& joints = run.Source.Rows<T_JTCD_D>();
  for (const auto [key, joint] : joints.Entries()) {
    const Point at = NodeCoordinates(joint);
    for (const auto axis : kAxes) {
      least.*axis = std::min(least.*axis, at.*axis);
      most.*axis = std::max(most.*axis, at.*axis);
      farthest = std::max(farthest, std::abs(at.*axis));
    }
  }
  double size = 0.0;
  for (const auto axis : kAxes) {
    size = std::max(size, most.*axis - least.*axis);
  }
  if (!(farthest * kMostByDigits > size * kPartOfSize)) {
    return;  // as of nearly all models
  }
  for (const auto [key, joint] : joints.Entries()) {
    const Point at = NodeCoordinates(joint);
    if (std::ranges::any_of(kAxes, [&](auto axis) {
          return std::abs(Rounded(at.*axis) - at.*axis) > size * kPartOfSize;
        })) {
      run.Accounts.Note<T_JTCD_D>(key, "joint-coordinate-rounded");
    }
  }
}

/// True when the global coordinates were to be written and are not, or are and were not stated.
bool HasDoubtfulCoordinates(const T_JTCD_D& joint) {
  return joint.SpecialJt != joint.StatesGlobal && StatedGlobals(joint) != OwnCoordinates(joint);
}

/// Notes the joints whose numbers are among these more than once.
void NoteSharedNumbers(Conversion& run, std::vector<std::int32_t> numbers) {
  std::ranges::sort(numbers);
  if (std::ranges::adjacent_find(numbers) == numbers.end()) {
    return;
  }
  for (const auto [key, joint] : run.Source.Rows<T_JTCD_D>().Entries()) {
    const auto [first, last] =
        std::equal_range(numbers.begin(), numbers.end(), run.Target.NodeNumber(joint.Joint));
    if (last - first > 1) {
      run.Accounts.Note<T_JTCD_D>(key, "joint-number-shared");
    }
  }
}

}  // namespace

void CloseJoints(Conversion& run) {
  const auto& joints = run.Source.Rows<T_JTCD_D>();
  std::vector<std::int32_t> numbers;
  numbers.reserve(joints.Count());
  for (const auto [key, joint] : joints.Entries()) {
    numbers.push_back(run.Target.NodeNumber(joint.Joint));
    if (HasDoubtfulCoordinates(joint)) {
      run.Accounts.Note<T_JTCD_D>(key, "joint-coordinates-differ");
    }
  }
  NoteSharedNumbers(run, std::move(numbers));
  NoteRounded(run);
}

bool HasJoint(CModel& model, Text label, std::int32_t likelyKey) {
  const auto& joints = model.Rows<T_JTCD_D>();
  const T_JTCD_D* const likely = joints.Find(static_cast<std::uint32_t>(likelyKey));
  if (likely != nullptr && likely->Joint == label) {
    return true;
  }
  return joints.FirstWith<&T_JTCD_D::Joint>(label).has_value();
}

std::optional<Why> WhyNotJoint(Conversion& run, Text joint) {
  const std::int32_t number = ParseInteger(joint);
  if (HasJoint(run.Source, joint, number)) {
    return std::nullopt;
  }
  // A label such as "12A" is read as the number 12, which may be that of another.
  const bool isAnother =
      run.Target.NodeLabelsNumeric && HasJoint(run.Source, std::to_string(number), number);
  return isAnother ? Why("joint-taken-from-another") : Why("joint-not-there");
}

bool IsUserSystem(Text coordinateSystem) {
  return !coordinateSystem.empty() && coordinateSystem != "GLOBAL" && coordinateSystem != "Local";
}

}  // namespace s2k2ngt
