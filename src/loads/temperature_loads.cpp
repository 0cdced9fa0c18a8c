#include "loads/temperature_loads.h"

#include "frames/elements.h"
#include "frames/sections.h"
#include "loads/joint_patterns.h"
#include "plates/areas.h"
#include "plates/solids.h"
#include "target/load_frame.h"

#include <array>
#include <cstddef>
#include <optional>

namespace s2k2ngt {

// ---- Conversion ----

namespace {

/// Degrees Celsius of a temperature of the source file. A unit that is neither "C" nor "F" gives 0.
double ToCelsius(const Units& units, double temperature) {
  const Text unit = TrimLeft(TrimRight(units.Temperature));
  if (unit == "C") {
    return temperature;
  }
  if (unit == "F") {
    return (temperature - 32) * 5 / 9;
  }
  return 0.0;
}

/// Gradients are taken to be per degree Fahrenheit whatever the unit, and this is meant.
constexpr double kDegreesOfGradient = 0.5555555555555556;

/// Adds a temperature to that of its node in the load case: elements that share a joint add up.
void AddNodalTemperature(CNgtModel& target, Text joint, Text loadCase, double temperature) {
  auto& nodes = target.Table<T_NGT_NDTM_D>();
  const auto found = nodes.FirstWith<&T_NGT_NDTM_D::JointInCase>(QualifiedLabel{joint, loadCase});
  if (found) {
    nodes.FindToChange(found->Key)->TEMPER += temperature;
    return;
  }
  // Meant so: the keys are 0, 2, 3, and so on. The order of the lines goes by them.
  const auto key = nodes.Empty() ? 0 : static_cast<std::uint32_t>(nodes.Count()) + 1;
  nodes.Insert(key, {joint, loadCase, temperature});
}

/// The temperature loads of one family of elements.
class TemperatureStep {
 public:
  TemperatureStep(Conversion& run, Text family) : m_Run(run), m_Family(family) {}

  /// Takes the reference temperature of the element whose loads come next. Meant so: without one,
  /// that of an earlier element stays.
  template <auto Label, class Record>
  void TakeReference(const CKeyedTable<Record>& references, Text element) {
    if (const auto found = references.template FirstWith<Label>(element)) {
      m_Reference = ToCelsius(m_Run.Source.CurrentUnits(), found->Value.Temp);
    }
  }

  /// Adds the temperature of an element, of which `jointsOf` gives the joints. By a joint pattern
  /// it is the mean of temperatures at the joints, which become nodal temperatures.
  template <class Row, class JointsOf>
  void AddTemperature(const Row& row, Text element, JointsOf jointsOf) {
    const double temperature =
        GoesByPattern(row.JtPattern)
            ? MeanOverJoints(row.LoadCase, row.Temp, row.JtPattern, jointsOf())
            : ToCelsius(m_Run.Source.CurrentUnits(), row.Temp) - m_Reference;
    m_Run.Target.Table<T_NGT_ELMT_D>().Append({element, row.LoadCase, m_Family, temperature});
  }

  // Meant so: what one gradient sets stays for those behind it, so that a gradient along axis 2
  // comes again with the next element's along axis 3.

  void AddGradientZ(Text element, Text loadCase, double difference) {
    m_Gradient.TZ = difference;
    m_Gradient.bUSEHZ = "YES";
    AddGradient(element, loadCase);
  }
  void AddGradientY(Text element, Text loadCase, double difference) {
    m_Gradient.TY = difference;
    m_Gradient.bUSEHY = "YES";
    AddGradient(element, loadCase);
  }

 private:
  /// The mean is over all places for joints, so that a triangle counts a fourth joint, whose label
  /// is empty.
  template <std::size_t Count>
  double MeanOverJoints(Text loadCase, double temp, Text pattern,
                        const std::array<Text, Count>& joints) {
    double sum = 0.0;
    for (const Text joint : joints) {
      const double scaled = temp * PatternValue(m_Run.Source, joint, pattern);
      const double temperature = ToCelsius(m_Run.Source.CurrentUnits(), scaled) - m_Reference;
      sum += temperature;
      AddNodalTemperature(m_Run.Target, joint, loadCase, temperature);
    }
    return sum / Count;
  }

  void AddGradient(Text element, Text loadCase) {
    m_Gradient.Element = element;
    m_Gradient.LoadCase = loadCase;
    m_Gradient.Family = m_Family;
    m_Run.Target.Table<T_NGT_TMPG_D>().Append(m_Gradient);
  }

  Conversion& m_Run;
  Text m_Family;
  double m_Reference = 0.0;
  T_NGT_TMPG_D m_Gradient;
};

/// The section of a frame; one without depths when it is not there.
T_FRSG_D SectionOf(CModel& model, Text frame) {
  const std::optional<Text> name = SectionNameOf(model, frame);
  if (!name) {
    return {};
  }
  const auto section = model.Rows<T_FRSG_D>().FirstWith<&T_FRSG_D::SectionName>(*name);
  return section ? section->Value : T_FRSG_D{};
}

/// The thickness of an area; 0 when its section is not there.
double ThicknessOf(CModel& model, Text area) {
  const auto assignment = model.Rows<T_ASCA_D>().FirstWith<&T_ASCA_D::Area>(area);
  if (!assignment) {
    return 0.0;
  }
  const auto section =
      model.Rows<T_ASPR_D>().FirstWith<&T_ASPR_D::Section>(assignment->Value.Section);
  return section ? section->Value.Thickness : 0.0;
}

}  // namespace

bool ConvertFrameTemperatures(Conversion& run) {
  TemperatureStep step(run, kFrameFamily);
  for (const auto entry : run.Source.Rows<T_FRLT_D>().Walk()) {
    const T_FRLT_D& row = entry.Value;
    if (row.Type == "Temperature") {
      step.TakeReference<&T_FRRT_D::Frame>(run.Source.Rows<T_FRRT_D>(), row.Frame);
      step.AddTemperature(row, row.Frame, [&] {
        const T_CNFR_D frame = ConnectivityOrLast(run.Source, row.Frame);
        return std::array{frame.JointI, frame.JointJ};
      });
    } else if (row.Type == "Gradient2") {
      const double depth = SectionOf(run.Source, row.Frame).t3;
      step.AddGradientZ(row.Frame, row.LoadCase, row.TempGrad2 * kDegreesOfGradient * depth);
    } else if (row.Type == "Gradient3") {
      // The target's axis y is the source's axis 3 turned around.
      const double width = SectionOf(run.Source, row.Frame).t2;
      step.AddGradientY(row.Frame, row.LoadCase, -(row.TempGrad3 * kDegreesOfGradient * width));
    }
  }
  return true;
}

bool ConvertAreaTemperatures(Conversion& run) {
  TemperatureStep step(run, kAreaFamily);
  for (const auto entry : run.Source.Rows<T_ALTM_D>().Walk()) {
    const T_ALTM_D& row = entry.Value;
    if (row.Type == "Temperature") {
      step.TakeReference<&T_AMRT_D::Area>(run.Source.Rows<T_AMRT_D>(), row.Area);
      step.AddTemperature(row, row.Area, [&] {
        const auto found = run.Source.Rows<T_CNAR_D>().FirstWith<&T_CNAR_D::Area>(row.Area);
        const T_CNAR_D area = found ? found->Value : T_CNAR_D{};
        return std::array{area.Joint1, area.Joint2, area.Joint3, area.Joint4};
      });
    } else {
      const double thickness = ThicknessOf(run.Source, row.Area);
      step.AddGradientZ(row.Area, row.LoadCase, row.TempGrad3 * kDegreesOfGradient * thickness);
    }
  }
  return true;
}

bool ConvertSolidTemperatures(Conversion& run) {
  TemperatureStep step(run, kSolidFamily);
  for (const auto entry : run.Source.Rows<T_SLLT_D>().Walk()) {
    const T_SLLT_D& row = entry.Value;
    step.TakeReference<&T_SLRT_D::Solid>(run.Source.Rows<T_SLRT_D>(), row.Solid);
    step.AddTemperature(row, row.Solid, [&] {
      const auto found = run.Source.Rows<T_CNSL_D>().FirstWith<&T_CNSL_D::Solid>(row.Solid);
      return JointsOf(found ? found->Value : T_CNSL_D{});
    });
  }
  return true;
}

// ---- Output ----

void WriteElementTemperatures(Conversion& run, Text loadCase, LineWriter& out) {
  ElementReferences elements(run.Elements);
  WriteLoadsByKey<&T_NGT_ELMT_D::LoadCase>(
      out, loadCase,
      "*ELTEMPER    ; Element Temperatures\n"
      "; ELEM_LIST, TEMPER, GROUP\n",
      run.Target.Table<T_NGT_ELMT_D>(), [&](const T_NGT_ELMT_D& load) {
        const std::int32_t iEl = elements.NumberOf(load.Element, load.Family);
        if (IsAboveTolerance(load.TEMPER)) {
          out.WriteLine("\t%d, %5g,\n", iEl, load.TEMPER);
        }
      });
}

void WriteNodalTemperatures(Conversion& run, Text loadCase, LineWriter& out) {
  WriteLoadsInWalkOrder<&T_NGT_NDTM_D::LoadCase>(
      out, loadCase,
      "*NDTEMPER    ; Nodal Temperatures\n"
      "; NODE_LIST, TEMPER, GROUP\n",
      run.Target.Table<T_NGT_NDTM_D>(), [&](const T_NGT_NDTM_D& load) {
        if (IsAboveTolerance(load.TEMPER)) {
          out.WriteLine("\t%d, %5g,\n", run.Target.NodeNumber(load.Joint), load.TEMPER);
        }
      });
}

void WriteTemperatureGradients(Conversion& run, Text loadCase, LineWriter& out) {
  ElementReferences elements(run.Elements);
  WriteLoadsByKey<&T_NGT_TMPG_D::LoadCase>(
      out, loadCase,
      "*THERGRAD    ; Temperature Gradient\n"
      "; ELEM_LIST, iETYP, TZ, bUSEHZ, HZ, TY, bUSEHY, HY, GROUP\n",
      run.Target.Table<T_NGT_TMPG_D>(), [&](const T_NGT_TMPG_D& load) {
        constexpr std::int32_t iETYP = 1;
        constexpr double kNoDepth = 0.0;
        out.WriteLine("\t%d, %5d, %5g, %5s, %5g, %5g, %5s, %5g,\n",
                      elements.NumberOf(load.Element, load.Family), iETYP, load.TZ, load.bUSEHZ,
                      kNoDepth, load.TY, load.bUSEHY, kNoDepth);
      });
}

}  // namespace s2k2ngt
