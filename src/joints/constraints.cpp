#include "joints/constraints.h"

#include "joints/masses.h"

#include <cstddef>
#include <limits>
#include <optional>
#include <string>
#include <unordered_set>
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

/// Place of the joint whose row of masses a walk meets first.
std::optional<std::size_t> PlaceOfJointWithMass(CModel& model, const std::vector<Text>& joints) {
  const auto& masses = model.Rows<T_JTMA_D>();
  std::optional<std::size_t> place;
  std::size_t firstPosition = std::numeric_limits<std::size_t>::max();
  for (std::size_t index = 0; index < joints.size(); ++index) {
    const auto positions = masses.AllWith<&T_JTMA_D::Joint>(joints[index]);
    if (!positions.empty() && positions.front() < firstPosition) {
      firstPosition = positions.front();
      place = index;
    }
  }
  return place;
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

/// The link of a constraint about an axis.
template <std::derived_from<ConstraintByAxis> Record>
std::optional<T_NGT_RLNK_D> LinkOf(Conversion& run, Text constraint, Master master) {
  const auto& definitions = run.Source.Rows<Record>();
  std::optional<T_NGT_RLNK_D> link = CollectNodes(run, constraint, master);
  if (!link || definitions.Empty()) {
    return std::nullopt;
  }
  const auto definition = definitions.template FirstWith<&ConstraintByAxis::Name>(constraint);
  if (!definition) {
    return link;
  }
  const Text axis = definition->Value.Axis;
  if (axis == "X") {
    link->DOF = "011100";
  } else if (axis == "Y") {
    link->DOF = "101010";
  } else if (axis == "Z") {
    link->DOF = "110001";
  } else {
    run.Target.bConstraintAutoAxis = true;
    return std::nullopt;
  }
  return link;
}

/// The link of a constraint of named directions.
template <std::derived_from<ConstraintByFlags> Record>
std::optional<T_NGT_RLNK_D> LinkOf(Conversion& run, Text constraint, Master master) {
  const auto& definitions = run.Source.Rows<Record>();
  std::optional<T_NGT_RLNK_D> link = CollectNodes(run, constraint, master);
  if (!link || definitions.Empty()) {
    return std::nullopt;
  }
  const auto definition = definitions.template FirstWith<&ConstraintByFlags::Name>(constraint);
  if (!definition) {
    return link;
  }
  const ConstraintByFlags& flags = definition->Value;
  std::string dof;
  for (const bool linked : {flags.UX, flags.UY, flags.UZ, flags.RX, flags.RY, flags.RZ}) {
    dof += linked ? '1' : '0';
  }
  link->DOF = run.Target.Texts().Keep(dof);
  return link;
}

/// What becomes of a kind of constraint.
struct Kind {
  Text Type;
  std::optional<T_NGT_RLNK_D> (*Convert)(Conversion& run, Text constraint, Master master);
  Master MasterJoint;
  bool Repeated;  // Beam and Body: see RepeatedLinks
};

constexpr std::array kKinds = std::to_array<Kind>({
    {"Beam", LinkOf<T_CDBM_D>, Master::FirstJoint, true},
    {"Body", LinkOf<T_CDBD_D>, Master::FirstJoint, true},
    {"Diaphragm", LinkOf<T_CDDP_D>, Master::JointWithMass, false},
    {"Equal", LinkOf<T_CDEL_D>, Master::FirstJoint, false},
    {"Line", LinkOf<T_CDLN_D>, Master::FirstJoint, false},
    {"Plate", LinkOf<T_CDPL_D>, Master::JointWithMass, false},
    {"Rod", LinkOf<T_CDRD_D>, Master::FirstJoint, false},
    {"Weld", LinkOf<T_CDWL_D>, Master::FirstJoint, false},
});

/// How often the link of a Beam or Body constraint is made. Meant so: a constraint is held against
/// each of its kind before it, and a link is made for each that differs. So the first and the
/// second of a kind make one link each, the third two, the fourth three. Both kinds are held
/// against the names of Body constraints.
class RepeatedLinks {
 public:
  std::size_t CountFor(Text type, Text constraint) {
    std::vector<Text>& handled = type == "Body" ? m_Bodies : m_Beams;
    if (handled.empty()) {
      handled.push_back(constraint);
      return 1;
    }
    // Where there is no Body of a number, that of the number before stands, at first no name.
    std::size_t count = 0;
    Text compared;
    for (std::size_t index = 0; index < handled.size(); ++index) {
      compared = index < m_Bodies.size() ? m_Bodies[index] : compared;
      count += constraint != compared ? 1 : 0;
    }
    if (count > 0) {
      handled.push_back(constraint);
    }
    return count;
  }

 private:
  std::vector<Text> m_Beams;
  std::vector<Text> m_Bodies;
};

}  // namespace

bool ConvertConstraints(Conversion& run) {
  auto& links = run.Target.Table<T_NGT_RLNK_D>();
  std::unordered_set<Text> handled;
  RepeatedLinks repeated;
  for (const auto [key, membership] : run.Source.Rows<T_JTCA_D>().Walk()) {
    if (!handled.insert(membership.Constraint).second) {
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
