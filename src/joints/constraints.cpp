#include "joints/constraints.h"

#include "common/value_map.h"
#include "joints/joint_with_mass.h"
#include "joints/masses.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace s2k2ngt {

// ---- Conversion ----

namespace {

enum class Master { FirstJoint, JointWithMass };

/// The joints of a constraint as they stand in a link, in the order of their rows.
std::vector<Text> JointsOf(Conversion& run, Text constraint) {
  const auto& memberships = run.Source.Rows<T_JTCA_D>();
  std::vector<Text> joints;
  for (const std::uint32_t key : memberships.KeysWith<&T_JTCA_D::Constraint>(constraint)) {
    // Meant so: links of joints whose labels are not all numbers are made before the joints have
    // numbers, and name none.
    joints.push_back(run.Target.NodeLabelsNumeric ? memberships.Find(key)->Joint : "(null)");
  }
  return joints;
}

Text JoinWithBlanks(const std::vector<Text>& words, TextStore& texts) {
  std::string joined;
  for (const Text word : words) {
    joined.append(word).append(" ");
  }
  joined.erase(joined.find_last_not_of(' ') + 1);
  return texts.Keep(joined);
}

/// The link of a constraint, still without its directions; nothing for less than two joints.
std::optional<T_NGT_RLNK_D> CollectNodes(Conversion& run, Text constraint, Master master) {
  std::vector<Text> slaves = JointsOf(run, constraint);
  if (slaves.size() < 2) {
    return std::nullopt;
  }
  T_NGT_RLNK_D link;
  std::optional<std::size_t> place = 0;
  if (master == Master::JointWithMass && !run.Source.Rows<T_JTMA_D>().Empty()) {
    place = PlaceOfJointWithMass(run.Source, slaves);
  }
  if (place) {
    link.MNODE = slaves[*place];
  }
  // Meant so: where no joint has a mass there is no master, and the first joint is lost with it.
  slaves.erase(slaves.begin() + static_cast<std::ptrdiff_t>(place.value_or(0)));
  link.SNODES = JoinWithBlanks(slaves, run.Target.Texts());
  return link;
}

/// The directions that a definition about an axis links; nothing for another axis.
std::optional<Text> DirectionsOf(Conversion& run, const ConstraintByAxis& definition) {
  if (definition.Axis == "X") {
    return "011100";
  }
  if (definition.Axis == "Y") {
    return "101010";
  }
  if (definition.Axis == "Z") {
    return "110001";
  }
  run.Target.bConstraintAutoAxis = true;
  return std::nullopt;
}

/// The directions that a definition names.
std::optional<Text> DirectionsOf(Conversion& run, const ConstraintByFlags& definition) {
  std::string directions;
  for (const bool linked :
       {definition.UX, definition.UY, definition.UZ, definition.RX, definition.RY, definition.RZ}) {
    directions += linked ? '1' : '0';
  }
  return run.Target.Texts().Keep(directions);
}

/// The link of a constraint whose definitions are of this record. Without a definition of its name
/// it links no direction; without any definition there is no link.
template <class Definition>
std::optional<T_NGT_RLNK_D> LinkOf(Conversion& run, Text constraint, Master master) {
  std::optional<T_NGT_RLNK_D> link = CollectNodes(run, constraint, master);
  const auto& definitions = run.Source.Rows<Definition>();
  if (!link || definitions.Empty()) {
    return std::nullopt;
  }
  if (const auto found = definitions.template FirstWith<&Definition::Name>(constraint)) {
    const std::optional<Text> directions = DirectionsOf(run, found->Value);
    if (!directions) {
      return std::nullopt;
    }
    link->DOF = *directions;
  }
  return link;
}

/// What becomes of a kind of constraint.
struct Kind {
  Text Type;
  std::optional<T_NGT_RLNK_D> (*Convert)(Conversion& run, Text constraint, Master master);
  Master MasterJoint;
  bool Repeated;  // Beam and Body: see RepeatedLinks
};

constexpr Text kBody = "Body";

constexpr std::array kKinds = std::to_array<Kind>({
    {"Beam", LinkOf<T_CDBM_D>, Master::FirstJoint, true},
    {kBody, LinkOf<T_CDBD_D>, Master::FirstJoint, true},
    {"Diaphragm", LinkOf<T_CDDP_D>, Master::JointWithMass, false},
    {"Equal", LinkOf<T_CDEL_D>, Master::FirstJoint, false},
    {"Line", LinkOf<T_CDLN_D>, Master::FirstJoint, false},
    {"Plate", LinkOf<T_CDPL_D>, Master::JointWithMass, false},
    {"Rod", LinkOf<T_CDRD_D>, Master::FirstJoint, false},
    {"Weld", LinkOf<T_CDWL_D>, Master::FirstJoint, false},
});

/// How often the link of a Beam or Body constraint is made: the first and the second of a kind make
/// one link each, the third two, the fourth three, and this is meant. A constraint without a name
/// makes none as the second of its kind; nor does a Beam without a name that is not the first, in a
/// model without Body constraints before it.
class RepeatedLinks {
 public:
  std::size_t CountFor(Text type, Text constraint) {
    std::size_t& handled = type == kBody ? m_Bodies : m_Beams;
    if (handled == 0) {
      handled = 1;
      return 1;
    }
    if (constraint.empty() && (handled == 1 || m_Bodies == 0)) {
      return 0;
    }
    return handled++;
  }

 private:
  std::size_t m_Beams = 0;
  std::size_t m_Bodies = 0;
};

}  // namespace

bool ConvertConstraints(Conversion& run) {
  auto& links = run.Target.Table<T_NGT_RLNK_D>();
  ValueMap<Text, std::monostate> handled;
  RepeatedLinks repeated;
  for (const auto [key, membership] : run.Source.Rows<T_JTCA_D>().Walk()) {
    if (!handled.Meet(membership.Constraint).IsNew) {
      continue;
    }
    if (membership.Type == "Local") {
      run.Target.bConstraintLocal = true;
      continue;
    }
    const auto* const kind = std::ranges::find(kKinds, membership.Type, &Kind::Type);
    if (kind == kKinds.end()) {
      continue;
    }
    const std::size_t count =
        kind->Repeated ? repeated.CountFor(kind->Type, membership.Constraint) : 1;
    if (count == 0) {
      continue;
    }
    if (const auto link = kind->Convert(run, membership.Constraint, kind->MasterJoint)) {
      for (std::size_t index = 0; index < count; ++index) {
        links.Append(*link);
      }
    }
  }
  return true;
}

// ---- Output ----

bool WriteRigidLinks(Conversion& run, LineWriter& out) {
  const auto& links = run.Target.Table<T_NGT_RLNK_D>();
  if (links.Empty()) {
    return true;
  }
  if (run.Target.bConstraintAutoAxis) {
    run.Shown.Show("IDS_S2KV8_REST_AutoAX_Not_Convert");
  }
  if (run.Target.bConstraintLocal) {
    run.Shown.Show("IDS_S2KV8_REST_Local_Not_Convert");
  }
  out.WriteLine("%s\n", "*RIGIDLINK    ; Rigid Link");
  out.WriteLine("; M-NODE, DOF, S-NODE LIST, GROUP\n");
  for (const auto [key, link] : links.Walk()) {
    out.WriteLine("\t%s, %5s, %5s, %5s\n", link.MNODE, link.DOF, link.SNODES, "");
  }
  out.WriteLine("\n");
  return true;
}

}  // namespace s2k2ngt
