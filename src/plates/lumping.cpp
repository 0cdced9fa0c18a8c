#include "plates/lumping.h"

#include "joints/masses.h"
#include "joints/supports.h"
#include "plates/areas.h"

#include <cstdint>
#include <string>

namespace s2k2ngt {

// ---- Conversion ----

namespace {

/// Notes the springs that the walk meets behind one that ends it.
void NoteSpringsBehind(Conversion& run, std::uint32_t last) {
  bool isBehind = false;
  for (const auto [key, row] : run.Source.Rows<T_ASPA_D>().Walk()) {
    if (isBehind) {
      run.Accounts.Note<T_ASPA_D>(key, "spring-behind-unknown-area");
    }
    isBehind = isBehind || key == last;
  }
}

/// Notes that what a row spreads over an area comes to nothing if the area is not known to have a
/// size.
template <class Row>
void NoteSize(Conversion& run, std::uint32_t key, const T_CNAR_D& area) {
  if (!IsAboveTolerance(area.AreaArea)) {
    run.Accounts.Note<Row>(key, "area-without-size");
  }
}

void NoteMass(Conversion& run, std::uint32_t key, const T_ADMA_D& row, const T_CNAR_D& area) {
  if (area.Area != row.Area) {
    run.Accounts.Note<T_ADMA_D>(key, "mass-of-unknown-area");
  }
  if (area.Joint4.empty() || area.Joint3 == area.Joint4) {
    run.Accounts.Note<T_ADMA_D>(key, "mass-on-triangle");
  }
  NoteSize<T_ADMA_D>(run, key, area);
}

}  // namespace

bool ConvertAreaSprings(Conversion& run) {
  const auto& rows = run.Source.Rows<T_ASPA_D>();
  if (!rows.Empty()) {
    run.Warnings.bAreaSpringToNodes = true;
  }
  for (const auto [key, row] : rows.Walk()) {
    if (!IsTopOrBottom(row.Face)) {
      run.Warnings.bAreaSpringLost = true;
      run.Accounts.Note<T_ASPA_D>(key, "spring-on-edge");
      continue;
    }
    const auto found = run.Source.Rows<T_CNAR_D>().FirstWith<&T_CNAR_D::Area>(row.Area);
    if (!found) {
      // Meant so: the first spring on an area that is not there ends the conversion of springs.
      run.Accounts.Note<T_ASPA_D>(key, "area-unknown");
      if (run.Accounts.IsKept()) {
        NoteSpringsBehind(run, key);
      }
      return true;
    }
    const T_CNAR_D& area = found->Value;
    const double stiffness = area.AreaArea * row.Stiffness * 0.25;
    std::string joints(area.Joint1);
    for (const Text joint : {area.Joint2, area.Joint3, area.Joint4}) {
      joints.append("  ").append(joint);
    }
    T_NGT_NSPR_D spring{.NODE = run.Target.Texts().Keep(joints)};
    run.Accounts.Note<T_ASPA_D>(
        key, run.Target.NodeLabelsNumeric ? Why("spring-on-face") : Why("spring-at-no-node"));
    NoteSize<T_ASPA_D>(run, key, area);
    // Meant so: axes 2 and 3 keep their places, unlike those of frames.
    if (row.Dir == "1") {
      spring.SDx = stiffness;
    } else if (row.Dir == "2") {
      spring.SDy = stiffness;
    } else if (row.Dir == "3") {
      spring.SDz = stiffness;
    } else {
      run.Accounts.Note<T_ASPA_D>(key, "spring-direction-unknown");
    }
    run.Target.Table<T_NGT_NSPR_D>().Append(spring);
  }
  return true;
}

bool ConvertAreaMasses(Conversion& run) {
  const auto& areas = run.Source.Rows<T_CNAR_D>();
  for (const auto [key, row] : run.Source.Rows<T_ADMA_D>().Walk()) {
    // Meant so: the mass of an area that is not there goes to the last area of the walk.
    const auto found = areas.FirstOrLastWith<&T_CNAR_D::Area>(row.Area);
    const T_CNAR_D area = found ? found->Value : T_CNAR_D{};
    if (found) {
      NoteMass(run, key, row, area);
    } else {
      run.Accounts.Note<T_ADMA_D>(key, "area-unknown");
    }
    const double mass = area.AreaArea * row.MassPerArea * 0.25;
    for (const Text joint : {area.Joint1, area.Joint2, area.Joint3, area.Joint4}) {
      AddMass(run.Target, {.Label = joint, .mX = mass, .mY = mass, .mZ = mass});
    }
  }
  return true;
}

}  // namespace s2k2ngt
