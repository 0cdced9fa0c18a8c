#include "joints/constraints.h"

#include "common/value_map.h"
#include "joints/joint_with_mass.h"
#include "joints/masses.h"
#include "joints/nodes.h"

#include <algorithm>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace s2k2ngt {

// ---- Conversion ----

namespace {

enum class Master { FirstJoint, JointWithMass };

/// Notes all joints of a constraint.
void NoteMembers(Conversion& run, Text constraint, Why why) {
  if (run.Accounts.IsKept()) {
    for (const std::uint32_t key :
         run.Source.Rows<T_JTCA_D>().KeysWith<&T_JTCA_D::Constraint>(constraint)) {
      run.Accounts.Note<T_JTCA_D>(key, why);
    }
  }
}

/// Notes of a definition that is written what its link says otherwise.
template <class Definition>
void NoteDefinition(Conversion& run, std::uint32_t key) {
  if constexpr (std::same_as<Definition, T_CDDP_D> || std::same_as<Definition, T_CDBD_D>) {
    return;
  } else if constexpr (std::derived_from<Definition, ConstraintByAxis>) {
    run.Accounts.Note<Definition>(key, "constraint-as-diaphragm");
  } else {
    run.Accounts.Note<Definition>(key, "constraint-as-rigid-body");
  }
}

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
    NoteMembers(run, constraint, "constraint-of-one-joint");
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
  if (!link) {
    return std::nullopt;
  }
  if (definitions.Empty()) {
    NoteMembers(run, constraint, "constraint-undefined");
    return std::nullopt;
  }
  if (const auto found = definitions.template FirstWith<&Definition::Name>(constraint)) {
    const std::optional<Text> directions = DirectionsOf(run, found->Value);
    if (!directions) {
      NoteMembers(run, constraint, "constraint-automatic-axis");
      run.Accounts.Note<Definition>(found->Key, "constraint-automatic-axis");
      return std::nullopt;
    }
    link->DOF = *directions;
    NoteDefinition<Definition>(run, found->Key);
  }
  return link;
}

/// Notes the definitions of a kind that no rigid link comes from.
template <class Definition>
void CloseDefinitions(Conversion& run, Text type) {
  const auto& memberships = run.Source.Rows<T_JTCA_D>();
  const auto& definitions = run.Source.Rows<Definition>();
  for (const auto [key, definition] : definitions.Entries()) {
    const auto member = memberships.FirstWith<&T_JTCA_D::Constraint>(definition.Name);
    if (!member) {
      run.Accounts.Note<Definition>(key, "constraint-without-joints");
    } else if (member->Value.Type != type) {
      run.Accounts.Note<Definition>(key, "constraint-of-other-kind");
    } else if (definitions.template FirstWith<&Definition::Name>(definition.Name)->Key != key) {
      run.Accounts.Note<Definition>(key, "row-of-same-name");
    } else if (memberships.KeysWith<&T_JTCA_D::Constraint>(definition.Name).size() < 2) {
      run.Accounts.Note<Definition>(key, "constraint-of-one-joint");
    }
  }
}

/// What becomes of a kind of constraint.
struct Kind {
  Text Type;
  std::optional<T_NGT_RLNK_D> (*Convert)(Conversion& run, Text constraint, Master master);
  void (*Close)(Conversion& run, Text type);
  Master MasterJoint;
  bool Repeated;  // Beam and Body: see RepeatedLinks
};

constexpr Text kBody = "Body";

constexpr std::array kKinds = std::to_array<Kind>({
    {"Beam", LinkOf<T_CDBM_D>, CloseDefinitions<T_CDBM_D>, Master::FirstJoint, true},
    {kBody, LinkOf<T_CDBD_D>, CloseDefinitions<T_CDBD_D>, Master::FirstJoint, true},
    {"Diaphragm", LinkOf<T_CDDP_D>, CloseDefinitions<T_CDDP_D>, Master::JointWithMass, false},
    {"Equal", LinkOf<T_CDEL_D>, CloseDefinitions<T_CDEL_D>, Master::FirstJoint, false},
    {"Line", LinkOf<T_CDLN_D>, CloseDefinitions<T_CDLN_D>, Master::FirstJoint, false},
    {"Plate", LinkOf<T_CDPL_D>, CloseDefinitions<T_CDPL_D>, Master::JointWithMass, false},
    {"Rod", LinkOf<T_CDRD_D>, CloseDefinitions<T_CDRD_D>, Master::FirstJoint, false},
    {"Weld", LinkOf<T_CDWL_D>, CloseDefinitions<T_CDWL_D>, Master::FirstJoint, false},
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

namespace {

/// Notes of the joints of a rigid link what it does not say of them as they say it.
void NoteLinked(Conversion& run, const Kind& kind, Text constraint, const T_NGT_RLNK_D& link,
                std::size_t count) {
  const auto& memberships = run.Source.Rows<T_JTCA_D>();
  bool isFirst = true;
  for (const std::uint32_t key : memberships.KeysWith<&T_JTCA_D::Constraint>(constraint)) {
    const T_JTCA_D& row = *memberships.Find(key);
    if (!run.Target.NodeLabelsNumeric) {
      run.Accounts.Note<T_JTCA_D>(key, "constraint-names-no-joint");
    } else if (const std::optional<Why> why = WhyNotJoint(run, row.Joint)) {
      run.Accounts.Note<T_JTCA_D>(key, *why);
    }
    if (row.Type != kind.Type) {
      run.Accounts.Note<T_JTCA_D>(key, "constraint-kind-of-another-row");
    }
    if (link.DOF.empty()) {
      run.Accounts.Note<T_JTCA_D>(key, "constraint-definition-missing");
    }
    if (link.MNODE.empty()) {
      run.Accounts.Note<T_JTCA_D>(
          key, isFirst ? Why("constraint-first-joint-lost") : Why("constraint-without-master"));
    }
    if (count > 1) {
      run.Accounts.Note<T_JTCA_D>(key, "constraint-repeated");
    }
    isFirst = false;
  }
}

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
      NoteMembers(run, membership.Constraint, "constraint-local");
      continue;
    }
    const auto* const kind = std::ranges::find(kKinds, membership.Type, &Kind::Type);
    if (kind == kKinds.end()) {
      NoteMembers(run, membership.Constraint, "constraint-kind-unknown");
      continue;
    }
    const std::size_t count =
        kind->Repeated ? repeated.CountFor(kind->Type, membership.Constraint) : 1;
    if (count == 0) {
      NoteMembers(run, membership.Constraint, "constraint-without-name");
      continue;
    }
    if (const auto link = kind->Convert(run, membership.Constraint, kind->MasterJoint)) {
      for (std::size_t index = 0; index < count; ++index) {
        links.Append(*link);
      }
      if (run.Accounts.IsKept()) {
        NoteLinked(run, *kind, membership.Constraint, *link, count);
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

// ---- Account ----

void CloseConstraints(Conversion& run) {
  for (const Kind& kind : kKinds) {
    kind.Close(run, kind.Type);
  }
  run.Accounts.NoteAll<T_CDLC_D>("constraint-local");
}

}  // namespace s2k2ngt
