#include "joints/nodes.h"

#include "common/numbers.h"

namespace s2k2ngt {

// ---- Source rows ----

std::optional<Refusal> StoreJoints(TableRows rows, CModel& model, Messages& /*shown*/) {
  return StoreRowsUnless<T_JTCD_D>(
      rows, model, [](const T_JTCD_D& joint) -> std::optional<std::string> {
        if (joint.CoordType == "Cartesian") {
          return std::nullopt;
        }
        return "joint " + std::string(joint.Joint) +
               " has CoordType=" + std::string(joint.CoordType) + ", only Cartesian is read";
      });
}

namespace {

/// The coordinates that the joint's node has in the output.
Point NodeCoordinates(const T_JTCD_D& joint) {
  return joint.SpecialJt ? Point{joint.GlobalX, joint.GlobalY, joint.GlobalZ}
                         : Point{joint.XorR, joint.Y, joint.Z};
}

}  // namespace

Point GlobalCoordinates(CModel& model, Text joint) {
  const auto row = model.Rows<T_JTCD_D>().FirstWith<&T_JTCD_D::Joint>(joint);
  if (!row) {
    return {};
  }
  const T_JTCD_D& found = row->Value;
  return found.StatesGlobal ? Point{found.GlobalX, found.GlobalY, found.GlobalZ}
                            : NodeCoordinates(found);
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

}  // namespace s2k2ngt
