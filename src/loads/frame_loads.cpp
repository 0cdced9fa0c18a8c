#include "loads/frame_loads.h"

#include "common/worked_out.h"
#include "frames/elements.h"
#include "frames/materials.h"
#include "frames/sections.h"
#include "loads/load_direction.h"
#include "target/load_frame.h"

#include <array>
#include <cmath>
#include <optional>
#include <utility>

namespace s2k2ngt {

// ---- Conversion ----

namespace {

/// The target's axes y and z are the source's axes 3 and 2, the former turned around.
LoadDirection LocalDirection(Text dir) {
  if (dir == "1") {
    return {"LX", "NO", 1.0};
  }
  if (dir == "2") {
    return {"LZ", "NO", 1.0};
  }
  if (dir == "3") {
    return {"LY", "NO", -1.0};
  }
  return {};
}

/// A direction that the target does not have leaves DIR and bPROJ empty.
LoadDirection DirectionOf(Text coordSys, Text dir) {
  if (coordSys == "GLOBAL") {
    return GlobalDirection(dir).value_or(LoadDirection{});
  }
  return coordSys == "Local" ? LocalDirection(dir) : LoadDirection{};
}

/// A point has no length to be projected: such directions have no like.
LoadDirection DirectionOfPoint(Text coordSys, Text dir) {
  const LoadDirection direction = DirectionOf(coordSys, dir);
  return direction.bPROJ == "YES" ? LoadDirection{} : direction;
}

constexpr Text kForce = "Force";
constexpr Text kMoment = "Moment";
constexpr Text kRelative = "RelDist";
constexpr Text kAbsolute = "AbsDist";

/// The length by which the row's absolute distances are divided. Nothing, and noted, for a frame
/// without a length.
template <class Row>
std::optional<double> LengthToDivideBy(Conversion& run, const Row& row) {
  const double length = ConnectivityOrLast(run.Source, row.Frame).Length;
  if (length < kTolerance) {
    run.Warnings.bElemLengthZero = true;
    return std::nullopt;
  }
  return length;
}

/// A beam load, still without its kind, its places and its values.
template <class Row>
T_NGT_ELMB_D BeamLoad(const Row& row, const LoadDirection& direction) {
  return {.Element = row.Frame,
          .TYPE = {},
          .DIR = direction.DIR,
          .LoadCase = row.LoadCase,
          .bPROJ = direction.bPROJ};
}

}  // namespace

bool ConvertDistributedLoads(Conversion& run) {
  ReserveForRows<T_NGT_ELMB_D, T_FRLD_D>(run);
  for (const auto [key, row] : run.Source.Rows<T_FRLD_D>().Walk()) {
    const LoadDirection direction = DirectionOf(row.CoordSys, row.Dir);
    T_NGT_ELMB_D load = BeamLoad(row, direction);
    if (row.Type == kForce) {
      load.TYPE = "UNILOAD";
      load.P1 = direction.Sign * row.FOverLA;
      load.P2 = direction.Sign * row.FOverLB;
    } else if (row.Type == kMoment) {
      load.TYPE = "UNIMOMENT";
      load.P1 = direction.Sign * row.MOverLA;
      load.P2 = direction.Sign * row.MOverLB;
    }
    if (row.DistType == kRelative) {
      if (std::abs(row.RelDistA - row.RelDistB) < 1e-6) {
        continue;  // a span of nothing; absolute distances are not tested for it
      }
      load.D1 = row.RelDistA;
      load.D2 = row.RelDistB;
    } else if (row.DistType == kAbsolute) {
      const std::optional<double> length = LengthToDivideBy(run, row);
      if (!length) {
        return true;
      }
      load.D1 = row.AbsDistA / *length;
      load.D2 = row.AbsDistB / *length;
    }
    run.Target.Table<T_NGT_ELMB_D>().Append(load);
  }
  return true;
}

bool ConvertPointLoads(Conversion& run) {
  ReserveForRows<T_NGT_ELMB_D, T_FRLP_D>(run);
  for (const auto [key, row] : run.Source.Rows<T_FRLP_D>().Walk()) {
    const LoadDirection direction = DirectionOfPoint(row.CoordSys, row.Dir);
    T_NGT_ELMB_D load = BeamLoad(row, direction);
    if (row.Type == kForce) {
      load.TYPE = "CONLOAD";
      load.P1 = direction.Sign * row.Force;
    } else if (row.Type == kMoment) {
      load.TYPE = "CONMOMENT";
      load.P1 = direction.Sign * row.Moment;
    }
    if (row.DistType == kRelative) {
      load.D1 = row.RelDist;
    } else if (row.DistType == kAbsolute) {
      const std::optional<double> length = LengthToDivideBy(run, row);
      if (!length) {
        return true;
      }
      load.D1 = row.AbsDist / *length;
    }
    run.Target.Table<T_NGT_ELMB_D>().Append(load);
  }
  return true;
}

namespace {

/// Weight per length at both ends of a section.
struct SectionWeight {
  double AtI = 0.0;
  double AtJ = 0.0;
};

/// Looks up the weights of sections, each worked out once.
class SectionWeights {
 public:
  explicit SectionWeights(CModel& model) : m_Model(model) {}

  SectionWeight Of(Text sectionName) {
    const auto [weight, isNew] = m_Known.Meet(sectionName);
    if (isNew) {
      weight = Compute(sectionName);
    }
    return weight;
  }

 private:
  SectionWeight Compute(Text sectionName) const {
    const auto section = m_Model.Rows<T_FRSG_D>().FirstWith<&T_FRSG_D::SectionName>(sectionName);
    if (!section) {
      return {};
    }
    if (section->Value.Shape != kNonprismatic) {
      const double weight = WeightOf(section->Value);
      return {weight, weight};
    }
    const NonprismaticEnds ends = EndsOfNonprismatic(m_Model, sectionName);
    return {ends.Start ? WeightOf(*ends.Start) : 0.0, ends.End ? WeightOf(*ends.End) : 0.0};
  }

  double WeightOf(Text sectionName) const {
    const auto section = m_Model.Rows<T_FRSG_D>().FirstWith<&T_FRSG_D::SectionName>(sectionName);
    return section ? WeightOf(section->Value) : 0.0;
  }

  double WeightOf(const T_FRSG_D& section) const {
    const auto material = m_Model.Rows<T_MTGN_D>().FirstWith<&T_MTGN_D::Material>(section.Material);
    return material ? section.Area * material->Value.UnitWeight : 0.0;
  }

  CModel& m_Model;
  WorkedOut<Text, SectionWeight> m_Known;
};

}  // namespace

bool ConvertFrameGravity(Conversion& run) {
  SectionWeights weights(run.Source);
  for (const auto [key, row] : run.Source.Rows<T_FRLG_D>().Walk()) {
    const std::optional<Text> section = SectionNameOf(run.Source, row.Frame);
    if (!section) {
      continue;
    }
    const SectionWeight weight = weights.Of(*section);
    const std::array<std::pair<Text, double>, 3> axes = {
        {{"GX", row.MultiplierX}, {"GY", row.MultiplierY}, {"GZ", row.MultiplierZ}}};
    for (const auto& [direction, multiplier] : axes) {
      if (!IsAboveTolerance(multiplier)) {
        continue;
      }
      // The multiplier keeps its sign: it says itself which way the weight pulls.
      run.Target.Table<T_NGT_ELMB_D>().Append({.Element = row.Frame,
                                               .TYPE = "UNILOAD",
                                               .DIR = direction,
                                               .LoadCase = row.LoadCase,
                                               .bPROJ = "NO",
                                               .D1 = 0.0,
                                               .P1 = multiplier * weight.AtI,
                                               .D2 = 1.0,
                                               .P2 = multiplier * weight.AtJ});
    }
  }
  return true;
}

// ---- Output ----

void WriteBeamLoads(Conversion& run, Text loadCase, LineWriter& out) {
  ElementReferences elements(run.Elements);
  WriteLoadsByKey<&T_NGT_ELMB_D::LoadCase>(
      out, loadCase,
      "*BEAMLOAD    ; Element Beam Loads\n"
      "; ELEM_LIST, CMD, TYPE, DIR, bPROJ, D1, P1, D2, P2, D3, P3, D4, P4, GROUP\n",
      run.Target.Table<T_NGT_ELMB_D>(), [&](const T_NGT_ELMB_D& load) {
        constexpr double kUnused = 0.0;
        out.WriteLine("\t%d, %5s, %5s, %5s, %5s, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g,\n",
                      elements.NumberOf(load.Element, kFrameFamily), "BEAM", load.TYPE, load.DIR,
                      load.bPROJ, load.D1, load.P1, load.D2, load.P2, kUnused, kUnused, kUnused,
                      kUnused);
      });
}

}  // namespace s2k2ngt
