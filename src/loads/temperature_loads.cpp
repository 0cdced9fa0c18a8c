#include "loads/temperature_loads.h"

#include "frames/elements.h"
#include "frames/sections.h"
#include "loads/joint_patterns.h"
#include "loads/load_references.h"
#include "plates/areas.h"
#include "plates/solids.h"
#include "target/load_frame.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <type_traits>
#include <vector>

namespace s2k2ngt {

// ---- Conversion ----

namespace {

enum class Degrees { Celsius, Fahrenheit, Unknown };

Degrees DegreesOf(const Units& units) {
  const Text unit = TrimLeft(TrimRight(units.Temperature));
  if (unit == "C") {
    return Degrees::Celsius;
  }
  return unit == "F" ? Degrees::Fahrenheit : Degrees::Unknown;
}

/// Degrees Celsius of a temperature of the source file. A unit that is neither "C" nor "F" gives 0.
double ToCelsius(const Units& units, double temperature) {
  switch (DegreesOf(units)) {
    case Degrees::Celsius:
      return temperature;
    case Degrees::Fahrenheit:
      return (temperature - 32) * 5 / 9;
    case Degrees::Unknown:
      break;
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

/// The element of a row of temperature loads.
Text ElementOf(const T_FRLT_D& row) { return row.Frame; }
Text ElementOf(const T_ALTM_D& row) { return row.Area; }
Text ElementOf(const T_SLLT_D& row) { return row.Solid; }

/// True for a temperature, and not a gradient or none of both.
bool IsTemperature(const T_FRLT_D& row) { return row.Type == "Temperature"; }
bool IsTemperature(const T_ALTM_D& row) { return row.Type == "Temperature"; }
bool IsTemperature(const T_SLLT_D& /*row*/) { return true; }

/// The places for joints of the element.
std::array<Text, 2> JointsOf(CModel& model, const T_FRLT_D& row) {
  const T_CNFR_D frame = ConnectivityOrLast(model, row.Frame);
  return {frame.JointI, frame.JointJ};
}
std::array<Text, 4> JointsOf(CModel& model, const T_ALTM_D& row) {
  const auto found = model.Rows<T_CNAR_D>().FirstWith<&T_CNAR_D::Area>(row.Area);
  const T_CNAR_D area = found ? found->Value : T_CNAR_D{};
  return {area.Joint1, area.Joint2, area.Joint3, area.Joint4};
}
std::array<Text, 8> JointsOf(CModel& model, const T_SLLT_D& row) {
  const auto found = model.Rows<T_CNSL_D>().FirstWith<&T_CNSL_D::Solid>(row.Solid);
  return JointsOf(found ? found->Value : T_CNSL_D{});
}

/// The temperature loads of one family of elements.
class TemperatureStep {
 public:
  TemperatureStep(Conversion& run, Text family)
      : m_Run(run), m_Family(family), m_Degrees(DegreesOf(run.Source.CurrentUnits())) {}

  /// Takes the reference temperature of the element whose loads come next. Meant so: without one,
  /// that of an earlier element stays.
  template <auto Label, class Row, class Record>
  void TakeReference(std::uint32_t key, const Row& row, const CKeyedTable<Record>& references) {
    if (const auto found = references.template FirstWith<Label>(ElementOf(row))) {
      m_Reference = ToCelsius(m_Run.Source.CurrentUnits(), found->Value.Temp);
    } else if (m_Reference != 0.0) {
      m_Run.Accounts.Note<Row>(key, "reference-of-another-element");
    } else if (m_Degrees == Degrees::Fahrenheit) {
      m_Run.Accounts.Note<Row>(key, "reference-missing");
    }
  }

  /// Adds the temperature of an element. By a joint pattern it is the mean of temperatures at its
  /// joints, which become nodal temperatures.
  template <class Row>
  void AddTemperature(std::uint32_t key, const Row& row) {
    if (m_Degrees == Degrees::Unknown) {
      m_Run.Accounts.Note<Row>(key, "temperature-unit-unknown");
    }
    double temperature = 0.0;
    if (GoesByPattern(row.JtPattern)) {
      const auto joints = JointsOf(m_Run.Source, row);
      NotePattern(key, row, joints);
      temperature = MeanOverJoints(row.LoadCase, row.Temp, row.JtPattern, joints);
    } else {
      temperature = ToCelsius(m_Run.Source.CurrentUnits(), row.Temp) - m_Reference;
    }
    m_Run.Target.Table<T_NGT_ELMT_D>().Append(
        {ElementOf(row), row.LoadCase, m_Family, temperature});
  }

  // Meant so: what one gradient sets stays for those behind it, so that a gradient along axis 2
  // comes again with the next element's along axis 3.

  template <class Row>
  void AddGradientZ(std::uint32_t key, const Row& row, double gradient, double depth) {
    NoteGradient(key, row, gradient, depth, m_Gradient.TY);
    m_Gradient.TZ = gradient * kDegreesOfGradient * depth;
    m_Gradient.bUSEHZ = "YES";
    AddGradient(ElementOf(row), row.LoadCase);
  }
  /// The target's axis y is the source's axis 3 turned around.
  template <class Row>
  void AddGradientY(std::uint32_t key, const Row& row, double gradient, double width) {
    NoteGradient(key, row, gradient, width, m_Gradient.TZ);
    m_Gradient.TY = -(gradient * kDegreesOfGradient * width);
    m_Gradient.bUSEHY = "YES";
    AddGradient(ElementOf(row), row.LoadCase);
  }

 private:
  /// Notes what becomes of a temperature by a joint pattern.
  template <class Row, std::size_t Count>
  void NotePattern(std::uint32_t key, const Row& row, const std::array<Text, Count>& joints) {
    if (!m_Run.Accounts.IsKept()) {
      return;
    }
    m_Run.Accounts.Note<Row>(key, HasPattern(m_Run.Source, row.JtPattern)
                                      ? Why("temperature-by-pattern")
                                      : Why("pattern-unknown"));
    if (std::ranges::count(joints, Text()) > 0) {
      m_Run.Accounts.Note<Row>(key, "pattern-on-fewer-joints");
    }
  }

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

  /// Notes what becomes of a gradient; `other` is the one in the other direction that stands.
  template <class Row>
  void NoteGradient(std::uint32_t key, const Row& row, double gradient, double depth,
                    double other) {
    if (gradient != 0.0 && depth == 0.0) {
      m_Run.Accounts.Note<Row>(key, "gradient-without-depth");
    }
    if (gradient != 0.0 && m_Degrees != Degrees::Fahrenheit) {
      m_Run.Accounts.Note<Row>(key, "gradient-not-per-fahrenheit");
    }
    if (GoesByPattern(row.JtPattern) && !row.JtPattern.empty()) {
      m_Run.Accounts.Note<Row>(key, "gradient-by-pattern");
    }
    if (other != 0.0) {
      m_Run.Accounts.Note<Row>(key, "gradient-of-another-beside-it");
    }
  }

  void AddGradient(Text element, Text loadCase) {
    m_Gradient.Element = element;
    m_Gradient.LoadCase = loadCase;
    m_Gradient.Family = m_Family;
    m_Run.Target.Table<T_NGT_TMPG_D>().Append(m_Gradient);
  }

  Conversion& m_Run;
  Text m_Family;
  Degrees m_Degrees;
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
  for (const auto [key, row] : run.Source.Rows<T_FRLT_D>().Walk()) {
    if (IsTemperature(row)) {
      step.TakeReference<&T_FRRT_D::Frame>(key, row, run.Source.Rows<T_FRRT_D>());
      step.AddTemperature(key, row);
    } else if (row.Type == "Gradient2") {
      step.AddGradientZ(key, row, row.TempGrad2, SectionOf(run.Source, row.Frame).t3);
    } else if (row.Type == "Gradient3") {
      step.AddGradientY(key, row, row.TempGrad3, SectionOf(run.Source, row.Frame).t2);
    } else {
      run.Accounts.Note<T_FRLT_D>(key, "temperature-type-unknown");
    }
  }
  return true;
}

bool ConvertAreaTemperatures(Conversion& run) {
  TemperatureStep step(run, kAreaFamily);
  for (const auto [key, row] : run.Source.Rows<T_ALTM_D>().Walk()) {
    if (IsTemperature(row)) {
      step.TakeReference<&T_AMRT_D::Area>(key, row, run.Source.Rows<T_AMRT_D>());
      step.AddTemperature(key, row);
    } else {
      if (row.Temp != 0.0) {
        run.Accounts.Note<T_ALTM_D>(key, "temperature-taken-as-gradient");
      }
      step.AddGradientZ(key, row, row.TempGrad3, ThicknessOf(run.Source, row.Area));
    }
  }
  return true;
}

bool ConvertSolidTemperatures(Conversion& run) {
  TemperatureStep step(run, kSolidFamily);
  for (const auto [key, row] : run.Source.Rows<T_SLLT_D>().Walk()) {
    step.TakeReference<&T_SLRT_D::Solid>(key, row, run.Source.Rows<T_SLRT_D>());
    step.AddTemperature(key, row);
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

// ---- Account ----

namespace {

/// True for a row that goes by the joints of the last frame, as its own is not there.
/// Areas and solids have no such neighbour.
template <class Row>
bool TakesJointsOfLast(CModel& model, const Row& row) {
  if constexpr (requires { row.Frame; }) {
    return IsTemperature(row) && GoesByPattern(row.JtPattern) && TakesLastFrame(model, row.Frame);
  }
  return false;
}

/// Notes a row that is not written, or for an element that is not there, and tells whether it is
/// written.
template <class Row>
bool NoteReferences(Conversion& run, WrittenLoads& written, std::uint32_t key, const Row& row,
                    Text family) {
  if (std::is_same_v<Row, T_ALTM_D> && row.LoadCase.empty() && !written.Have({})) {
    run.Accounts.Note<Row>(key, "temperature-without-load-case");
    return false;
  }
  if (!written.HaveOrNote<Row>(run.Accounts, key, row.LoadCase)) {
    return false;
  }
  if (const std::optional<Why> why = WhyNotElement(run, ElementOf(row), family)) {
    run.Accounts.Note<Row>(key, *why);
    if (TakesJointsOfLast(run.Source, row)) {
      run.Accounts.Note<Row>(key, "last-frame-for-unknown");
    }
  }
  return true;
}

/// Closes the temperature loads of a family, and the reference temperatures that name its elements
/// in this field.
template <class Row, auto Label, class Reference>
void CloseFamily(Conversion& run, Text family, const CKeyedTable<Reference>& references) {
  WrittenLoads written(run.Target);
  std::vector<bool> isUsed(references.Count() + 1);  // by key
  for (const auto [key, row] : run.Source.Rows<Row>().Entries()) {
    if (NoteReferences(run, written, key, row, family) && IsTemperature(row)) {
      if (const auto reference = references.template FirstWith<Label>(ElementOf(row))) {
        isUsed[reference->Key] = true;
      }
    }
  }
  const bool isUnitKnown = DegreesOf(run.Source.CurrentUnits()) != Degrees::Unknown;
  for (std::uint32_t key = 1; key < isUsed.size(); ++key) {
    if (!isUsed[key]) {
      run.Accounts.Note<Reference>(key, "reference-not-used");
    } else if (!isUnitKnown) {
      run.Accounts.Note<Reference>(key, "temperature-unit-unknown");
    }
  }
}

template <class Row>
void TakePatterns(Conversion& run, PatternUses& uses) {
  WrittenLoads written(run.Target);
  for (const auto [key, row] : run.Source.Rows<Row>().Entries()) {
    if (IsTemperature(row) && GoesByPattern(row.JtPattern) && written.Have(row.LoadCase)) {
      uses.Take(JointsOf(run.Source, row), row.JtPattern);
    }
  }
}

}  // namespace

void CloseTemperatureLoads(Conversion& run) {
  CloseFamily<T_FRLT_D, &T_FRRT_D::Frame>(run, kFrameFamily, run.Source.Rows<T_FRRT_D>());
  CloseFamily<T_ALTM_D, &T_AMRT_D::Area>(run, kAreaFamily, run.Source.Rows<T_AMRT_D>());
  CloseFamily<T_SLLT_D, &T_SLRT_D::Solid>(run, kSolidFamily, run.Source.Rows<T_SLRT_D>());
  run.Accounts.NoteAll<T_AMMT_D>("material-temperature");
}

void TakePatternsOfTemperatures(Conversion& run, PatternUses& uses) {
  if (DegreesOf(run.Source.CurrentUnits()) == Degrees::Unknown) {
    return;  // all temperatures are 0, whatever the patterns
  }
  TakePatterns<T_FRLT_D>(run, uses);
  TakePatterns<T_ALTM_D>(run, uses);
  TakePatterns<T_SLLT_D>(run, uses);
}

}  // namespace s2k2ngt
