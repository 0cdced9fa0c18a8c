#include "plates/links.h"

#include "common/worked_out.h"
#include "frames/elements.h"

#include <algorithm>
#include <optional>

namespace s2k2ngt {

// ---- Source rows ----

bool IsLostKind(Text linkType) {
  return linkType == "MultiLinear" || linkType == "Plastic (Kinematic)";
}

// ---- Conversion ----

namespace {

double AngleOfLink(CModel& model, Text link) {
  return AngleByAxes<T_LLCT_D, &T_LLCT_D::Link, T_LLCA_D, &T_LLCA_D::Link>(model, link);
}

// Places of a property's directions.
constexpr std::size_t kDY = 1;
constexpr std::size_t kDZ = 2;

bool IsRotation(std::size_t place) { return place > kDZ; }

/// The place of a source direction. The target's axes y and z are the source's axes 3 and 2.
std::optional<std::size_t> PlaceOf(Text dof) {
  constexpr std::array<Text, 6> kPlaces = {"U1", "U3", "U2", "R1", "R3", "R2"};
  const auto* const found = std::ranges::find(kPlaces, dof);
  return found == kPlaces.end() ? std::nullopt
                                : std::optional(static_cast<std::size_t>(found - kPlaces.begin()));
}

/// The rows that the values of a property's directions come from.
template <class Row>
class TakenRows {
 public:
  explicit TakenRows(Ledger& accounts) : m_Accounts(accounts) {}

  /// A row writes over the values of the one before it in its place.
  void Take(std::size_t place, std::uint32_t key) {
    if (m_Keys[place] != 0) {
      m_Accounts.Note<Row>(m_Keys[place], "row-of-same-name");
    }
    m_Keys[place] = key;
  }

 private:
  Ledger& m_Accounts;
  std::array<std::uint32_t, 6> m_Keys{};
};

/// Takes a direction of a linear property into the link. The target's axes y and z are the source's
/// axes 3 and 2.
void TakeLinearDirection(const T_LPLN_D& row, T_NGT_ELNK_D& link) {
  const auto takeShear = [&](double& distance) {
    if (row.DJ > 0) {
      link.bSHEAR = "YES";
      distance = row.DJ;
    }
  };
  if (row.DOF == "U1") {
    link.SDx = row.TransKE;
  } else if (row.DOF == "U2") {
    link.SDz = row.TransKE;
    takeShear(link.DRz);
  } else if (row.DOF == "U3") {
    link.SDy = row.TransKE;
    takeShear(link.DRy);
  } else if (row.DOF == "R1") {
    link.SRx = row.RotKE;
  } else if (row.DOF == "R2") {
    link.SRz = row.RotKE;
  } else if (row.DOF == "R3") {
    link.SRy = row.RotKE;
  }
}

void NoteLinearDirection(Conversion& run, std::uint32_t key, const T_LPLN_D& row,
                         TakenRows<T_LPLN_D>& taken) {
  const auto place = PlaceOf(row.DOF);
  if (!place) {
    run.Accounts.Note<T_LPLN_D>(key, "link-direction-unknown");
    return;
  }
  taken.Take(*place, key);
  const bool hasShear = *place == kDY || *place == kDZ;
  if (hasShear ? row.DJ < 0 : IsAboveTolerance(row.DJ)) {
    run.Accounts.Note<T_LPLN_D>(key, "link-shear-distance");
  }
}

/// Sets the label, the joints and, where the link has axes of its own, the angle; false in a model
/// without connectivity of links. Meant so: a link that is not there has the joints of the last
/// link of the walk.
template <class Link>
bool SetEnds(CModel& model, const T_SMLA_D& summary, Link& link) {
  const auto joints = model.Rows<T_CNLK_D>().FirstOrLastWith<&T_CNLK_D::Link>(summary.Link);
  if (!joints) {
    return false;
  }
  link.Label = summary.Link;
  link.iNODE1 = joints->Value.JointI;
  link.iNODE2 = joints->Value.JointJ;
  if (summary.LocalAxes) {
    link.ANGLE = AngleOfLink(model, summary.Link);
  }
  return true;
}

/// An elastic link with the values of a linear property, still without its ends.
T_NGT_ELNK_D ElasticLinkOf(Conversion& run, Text property) {
  T_NGT_ELNK_D link;
  const auto& directions = run.Source.Rows<T_LPLN_D>();
  TakenRows<T_LPLN_D> taken(run.Accounts);
  for (const std::uint32_t position : directions.AllWith<&T_LPLN_D::Link>(property)) {
    const auto [key, row] = directions.AtWalk(position);
    TakeLinearDirection(row, link);
    NoteLinearDirection(run, key, row, taken);
  }
  return link;
}

/// The elastic links of linear properties, each worked out once.
using ElasticLinks = WorkedOut<Text, T_NGT_ELNK_D>;

void ConvertElasticLink(Conversion& run, const T_SMLA_D& summary, ElasticLinks& ofProperties) {
  const auto [known, isNew] = ofProperties.Meet(summary.LinkProp);
  if (isNew) {
    known = ElasticLinkOf(run, summary.LinkProp);
  }
  T_NGT_ELNK_D link = known;
  if (SetEnds(run.Source, summary, link)) {
    run.Target.Table<T_NGT_ELNK_D>().Append(link);
  }
}

void ConvertNonlinearLink(Conversion& run, const T_SMLA_D& summary) {
  T_NGT_NLNK_D link;
  link.PROP = summary.LinkProp;
  if (SetEnds(run.Source, summary, link)) {
    run.Target.Table<T_NGT_NLNK_D>().Append(link);
  }
}

// The values of a direction that is nonlinear, for each kind of link.

void TakeNonlinear(const T_LPDM_D& row, std::size_t place, LinkDirection& direction) {
  direction.DSTIFF = IsRotation(place) ? row.RotK : row.TransK;
  direction.DAMP = IsRotation(place) ? row.RotC : row.TransC;
  direction.DEXP = row.CExp;
}

void TakeNonlinear(const Opening& row, std::size_t place, LinkDirection& direction) {
  direction.STIFF = IsRotation(place) ? row.RotK : row.TransK;
  direction.OPEN = IsRotation(place) ? row.RotOpen : row.TransOpen;
}

void TakeNonlinear(const T_LPPW_D& row, std::size_t place, LinkDirection& direction) {
  direction.STIFF = IsRotation(place) ? row.RotK : row.TransK;
  direction.YSTR = IsRotation(place) ? row.RotYield : row.TransYield;
  direction.PYS_RATIO = row.Ratio;
  direction.YEXP = row.YieldExp;
  direction.PA = 0.5;
  direction.PB = 0.5;
}

void TakeNonlinear(const T_LPRB_D& row, std::size_t place, LinkDirection& direction) {
  if (IsRotation(place)) {
    return;
  }
  direction.STIFF = row.TransK;
  if (place == kDY || place == kDZ) {
    direction.YSTR = row.TransYield;
    direction.PYS_RATIO = row.Ratio;
    direction.PA = 0.5;
    direction.PB = 0.5;
  }
}

void TakeNonlinear(const T_LPSL_D& row, std::size_t place, LinkDirection& direction) {
  if (IsRotation(place)) {
    return;
  }
  direction.STIFF = row.TransK;
  if (place == kDY || place == kDZ) {
    direction.FCS = row.Slow;
    direction.FCF = row.Fast;
    direction.RP = row.Rate;
    direction.RADIUS = row.Radius;
    direction.PA = 0.5;
    direction.PB = 0.5;
  }
}

/// The distance of a shear spring, which must lie in the link.
void TakeShearDistance(double distance, T_NGT_NLPR_D& property, double& target) {
  if (distance > kTolerance) {
    property.bSSL = "YES";
    target = std::min(distance, 1.0);
  }
}

/// Notes which values of a direction do not go over as they stand.
template <std::derived_from<NonlinearDirection> Record>
void NoteNonlinearDirection(Conversion& run, std::uint32_t key, const Record& row,
                            std::size_t place) {
  constexpr bool kIsIsolator = std::same_as<Record, T_LPRB_D> || std::same_as<Record, T_LPSL_D>;
  const double damping = IsRotation(place) ? row.RotCE : row.TransCE;
  if (!row.NonLinear && IsAboveTolerance(damping)) {
    run.Accounts.Note<Record>(key, "damping-of-linear-direction");
  }
  if (kIsIsolator && row.NonLinear && place == kDY) {
    run.Accounts.Note<Record>(key, "isolator-yield-in-u3");
  }
  if (IsAboveTolerance(row.DJ)) {
    run.Accounts.Note<Record>(key, "link-shear-distance");
  }
}

/// Notes the rows that belong to no property of this kind.
template <std::derived_from<NonlinearDirection> Record>
void NoteRowsOfNoProperty(Conversion& run, Text linkType) {
  const auto& properties = run.Source.Rows<T_LPGN_D>();
  for (const auto [key, row] : run.Source.Rows<Record>().Entries()) {
    if (!properties.FirstWith<&NameAndKind>(QualifiedLabel{row.Link, linkType})) {
      run.Accounts.Note<Record>(key, "direction-of-unknown-property");
    }
  }
}

/// The directions of a property from the table of its kind. An empty table leaves the property
/// without name and type.
template <std::derived_from<NonlinearDirection> Record>
void TakeDirections(Conversion& run, Text name, Text type, T_NGT_NLPR_D& property) {
  const auto& rows = run.Source.Rows<Record>();
  if (rows.Empty()) {
    return;
  }
  std::optional<std::size_t> place;
  TakenRows<Record> taken(run.Accounts);
  for (const std::uint32_t position : rows.template AllWith<&NonlinearDirection::Link>(name)) {
    const auto [key, row] = rows.AtWalk(position);
    // Meant so: a row of a direction that there is not falls on that of the row before it.
    if (const auto ownPlace = PlaceOf(row.DOF)) {
      place = ownPlace;
    } else {
      run.Accounts.Note<Record>(
          key, place ? Why("link-direction-misplaced") : Why("link-direction-unknown"));
    }
    if (!place) {
      continue;
    }
    taken.Take(*place, key);
    NoteNonlinearDirection(run, key, row, *place);
    LinkDirection& direction = property.Directions[*place];
    direction.bL = "YES";
    direction.D = IsRotation(*place) ? row.RotKE : row.TransKE;
    if (row.NonLinear) {
      direction.bN = "YES";
      TakeNonlinear(row, *place, direction);
      direction.EFFDAMP = IsRotation(*place) ? row.RotCE : row.TransCE;
    }
    // Meant so: the distance of the DY spring is stored as DZ, and that of DZ as DY.
    if (*place == kDY) {
      TakeShearDistance(row.DJ, property, property.DZ);
    } else if (*place == kDZ) {
      TakeShearDistance(row.DJ, property, property.DY);
    }
  }
  property.NAME = name;
  property.TYPE = type;
}

/// A kind of nonlinear link property.
struct PropertyKind {
  Text LinkType;
  Text TYPE;
  void (*TakeDirections)(Conversion& run, Text name, Text type, T_NGT_NLPR_D& property);
  void (*NoteRowsOfNoProperty)(Conversion& run, Text linkType);
};

template <std::derived_from<NonlinearDirection> Record>
constexpr PropertyKind KindOf(Text linkType, Text type) {
  return {linkType, type, TakeDirections<Record>, NoteRowsOfNoProperty<Record>};
}

constexpr Text kDamper = "VD";

constexpr std::array kPropertyKinds = std::to_array<PropertyKind>({
    KindOf<T_LPDM_D>("Damper", kDamper),
    KindOf<T_LPGP_D>("Gap", "GAP"),
    KindOf<T_LPHK_D>("Hook", "HOOK"),
    KindOf<T_LPRB_D>("Rubber Isolator", "LRBI"),
    KindOf<T_LPSL_D>("Friction Isolator", "FPSI"),
    KindOf<T_LPPW_D>("Plastic (Wen)", "HS"),
});

T_NGT_NLPR_D PropertyOf(Conversion& run, Text name, Text linkType) {
  T_NGT_NLPR_D property;
  const auto* const kind = std::ranges::find(kPropertyKinds, linkType, &PropertyKind::LinkType);
  if (kind != kPropertyKinds.end()) {
    kind->TakeDirections(run, name, kind->TYPE, property);
  }
  if (property.TYPE == kDamper) {
    property.bRIGDBR = "YES";
  }
  return property;
}

void ConvertProperties(Conversion& run) {
  auto& properties = run.Target.Table<T_NGT_NLPR_D>();
  // Of rows that repeat a property the first works it out.
  WorkedOut<QualifiedLabel, std::uint32_t> keys;
  for (const auto [key, row] : run.Source.Rows<T_LPGN_D>().Walk()) {
    if (row.LinkType == kLinearLink || IsLostKind(row.LinkType)) {
      continue;
    }
    const auto [known, isNew] = keys.Meet({row.Link, row.LinkType});
    T_NGT_NLPR_D property =
        isNew ? PropertyOf(run, row.Link, row.LinkType) : *properties.Find(known);
    if (isNew) {
      known = static_cast<std::uint32_t>(properties.Count()) + 1;
    }
    if (property.TYPE.empty()) {
      run.Accounts.Note<T_LPGN_D>(key, "link-property-without-values");
    }
    property.TW = row.Weight;
    properties.Append(property);
  }
}

}  // namespace

bool ConvertLinks(Conversion& run) {
  const auto& links = run.Source.Rows<T_SMLA_D>();
  if (links.Empty()) {
    return true;
  }
  ElasticLinks ofProperties;
  for (const auto [key, link] : links.Walk()) {
    if (link.LinkJoint == kSingleJoint) {
      run.Warnings.bSingleJointLink = true;
    } else if (link.LinkType == kLinearLink) {
      ConvertElasticLink(run, link, ofProperties);
    } else if (!IsLostKind(link.LinkType)) {
      ConvertNonlinearLink(run, link);
    }
  }
  ConvertProperties(run);
  return true;
}

void CheckMultiLinearProperties(Conversion& run) {
  if (!run.Source.Rows<T_LPMT_D>().Empty()) {
    run.Target.bLinkMultiLinearLost = true;
  }
}

void CheckKinematicProperties(Conversion& run) {
  if (!run.Source.Rows<T_LPPK_D>().Empty()) {
    run.Target.bLinkKinematicLost = true;
  }
}

// ---- Output ----

bool WriteElasticLinks(Conversion& run, LineWriter& out) {
  const auto& links = run.Target.Table<T_NGT_ELNK_D>();
  if (links.Empty()) {
    return true;
  }
  if (run.Warnings.bSingleJointLink) {
    run.Shown.Show("IDS_S2KV8_LINK_Sinlge_Joint");
  }
  out.WriteLine("%s\n", "*ELASTICLINK");
  out.WriteLine(
      "; iNODE1, iNODE2, LINK, ANGLE, SDx, SDy, SDz, SRx, SRy, SRz, bSHEAR, DRy, DRz, GROUP   ; "
      "GEN\n");
  out.WriteLine(
      "; iNODE1, iNODE2, LINK, ANGLE, bSHEAR, DRy, DRz, GROUP                                 ; "
      "RIGID\n");
  out.WriteLine(
      "; iNODE1, iNODE2, LINK, ANGLE, SDx, bSHEAR, DRy, DRz, GROUP                            ; "
      "TENS,COMP\n");
  for (const auto [key, link] : links.Walk()) {
    out.WriteLine("\t%d, %5d, %5s, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5s, %5g, %5g, %5s\n",
                  run.Target.NodeNumber(link.iNODE1), run.Target.NodeNumber(link.iNODE2), "GEN",
                  link.ANGLE, link.SDx, link.SDy, link.SDz, link.SRx, link.SRy, link.SRz,
                  link.bSHEAR, link.DRy, link.DRz, "");
  }
  out.WriteLine("\n");
  return true;
}

namespace {

/// What stands behind a direction that is nonlinear.
void WriteNonlinearValues(const T_NGT_NLPR_D& property, std::size_t place, LineWriter& out) {
  const LinkDirection& v = property.Directions[place];
  // Meant so, and one place behind the directions that hold the values: the long form of isolators
  // stands on the lines of DZ and RX, so that the yield values of DY are not written.
  const bool hasLongForm = place == 2 || place == 3;
  if (property.TYPE == kDamper) {
    out.WriteLine(", %5g, %5g, %5g, %5s, %5g, %5g\n", v.DSTIFF, v.DAMP, v.DEXP, property.bRIGDBR,
                  property.BSTIFF, v.EFFDAMP);
  } else if (property.TYPE == "GAP" || property.TYPE == "HOOK") {
    out.WriteLine(", %5g, %5g, %5g\n", v.STIFF, v.OPEN, v.EFFDAMP);
  } else if (property.TYPE == "HS") {
    out.WriteLine(", %5g, %5g, %5g, %5g, %5g, %5g, %5g\n", v.STIFF, v.YSTR, v.PYS_RATIO, v.YEXP,
                  v.PA, v.PB, v.EFFDAMP);
  } else if (!hasLongForm) {
    out.WriteLine(", %5g, %5g\n", v.STIFF, v.EFFDAMP);
  } else if (property.TYPE == "LRBI") {
    out.WriteLine(", %5g, %5g, %5g, %5g, %5g, %5g\n", v.STIFF, v.YSTR, v.PYS_RATIO, v.PA, v.PB,
                  v.EFFDAMP);
  } else {
    out.WriteLine(", %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g\n", v.STIFF, v.FCS, v.FCF, v.RP,
                  v.RADIUS, v.PA, v.PB, v.EFFDAMP);
  }
}

}  // namespace

bool WriteLinkProperties(Conversion& run, LineWriter& out) {
  const auto& properties = run.Target.Table<T_NGT_NLPR_D>();
  if (properties.Empty()) {
    return true;
  }
  if (run.Target.bLinkMultiLinearLost) {
    run.Shown.Show("IDS_S2KV8_LINK_Mult_Lin_Not_Convert");
  }
  if (run.Target.bLinkKinematicLost) {
    run.Shown.Show("IDS_S2KV8_LINK_Mult_Kine_Not_Convert");
  }
  out.WriteLine("%s\n", "*NL-PROP    ; Nonlinear Link Property");
  out.WriteLine("; NAME, TYPE, TW, bSSL, DY, DZ, DESC\n");
  for (const Text direction : {"DX", "DY", "DZ", "RX", "RY", "RZ"}) {
    out.WriteLine("; bL%s, %s, bN%s, [NL_PROP]\n", direction, direction, direction);
  }
  out.WriteLine(
      "; [NL_PROP] : DSTIFF, DAMP, DEXP, bRIGDBR, BSTIFF, EFFDAMP    ; Visco-elastic Damper "
      "Type\n");
  out.WriteLine(
      "; [NL_PROP] : STIFF, OPEN, EFFDAMP                            ; Gap Type or Hook Type\n");
  out.WriteLine(
      "; [NL_PROP] : STIFF, YSTR, PYS_RATIO, YEXP, PA, PB, EFFDAMP   ; Hysteretic System Type\n");
  out.WriteLine(
      "; [NL_PROP] : STIFF, YSTR, PYS_RATIO, PA, PB, EFFDAMP         ; Lead Rubber Bearing Type\n");
  out.WriteLine(
      "; [NL_PROP] : STIFF, FCS, FCF, RP, RADIUS, PA, PB, EFFDAMP    ; Friction Pendulum System "
      "Type\n");
  for (const auto [key, property] : properties.Walk()) {
    out.WriteLine("\t%s, %5s, %5g, %5s, %5g, %5g, %5s\n", property.NAME, property.TYPE, property.TW,
                  property.bSSL, property.DY, property.DZ, "");
    for (std::size_t place = 0; place < property.Directions.size(); ++place) {
      const LinkDirection& direction = property.Directions[place];
      out.WriteLine("\t\t%s, %5g, %5s", direction.bL, direction.D, direction.bN);
      if (direction.bN == "YES") {
        WriteNonlinearValues(property, place, out);
      } else {
        out.WriteLine("\n");
      }
    }
  }
  out.WriteLine("\n");
  return true;
}

bool WriteNonlinearLinks(Conversion& run, LineWriter& out) {
  const auto& links = run.Target.Table<T_NGT_NLNK_D>();
  if (links.Empty()) {
    return true;
  }
  out.WriteLine("%s\n", "*NL-LINK  ; Nonlinear Link");
  out.WriteLine("; iNODE1, iNODE2, PROP, ANGLE, GROUP\n");
  for (const auto [key, link] : links.Walk()) {
    out.WriteLine("\t%d, %5d, %5s, %5g, %5s\n", run.Target.NodeNumber(link.iNODE1),
                  run.Target.NodeNumber(link.iNODE2), link.PROP, link.ANGLE, "");
  }
  out.WriteLine("\n");
  return true;
}

// ---- Account ----

void NoteDirectionsOfNoProperty(Conversion& run) {
  for (const PropertyKind& kind : kPropertyKinds) {
    kind.NoteRowsOfNoProperty(run, kind.LinkType);
  }
}

}  // namespace s2k2ngt
