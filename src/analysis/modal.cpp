#include "analysis/modal.h"

#include "common/numbers.h"
#include "frames/elements.h"
#include "plates/areas.h"
#include "plates/solids.h"
#include "target/wrapped_list.h"

#include <algorithm>
#include <numeric>

namespace s2k2ngt {

// ---- Conversion ----

namespace {

/// As many modes as wanted, at most one for each element. Meant so: the directions in which the
/// structure has mass have no say.
std::int32_t ModeLimit(CModel& source, const T_MDL1_D& definition) {
  const std::size_t elements = source.Rows<T_CNAR_D>().Count() + source.Rows<T_CNFR_D>().Count() +
                               source.Rows<T_CNSL_D>().Count();
  return static_cast<std::int32_t>(
      std::min(static_cast<std::int64_t>(elements), std::int64_t{definition.MaxNumModes}));
}

void AddStartingVector(const T_MDL3_D& vector, T_NGT_EGCT_D& control) {
  if (vector.LoadType == "Load case") {
    control.KIND.emplace_back("CASE");
    control.CASE.push_back(vector.LoadName);
  } else if (vector.LoadType == "Accel") {
    control.KIND.emplace_back("GROUND");
    if (vector.LoadName == "Accel UX") {
      control.CASE.emplace_back("ACCX");
    } else if (vector.LoadName == "Accel UY") {
      control.CASE.emplace_back("ACCY");
    } else if (vector.LoadName == "Accel UZ") {
      control.CASE.emplace_back("ACCZ");
    }
  }
  // Meant so: a vector of another kind leaves its number, which moves the numbers behind it.
  control.iNOG.push_back(vector.MaxCycles);
}

/// Vectors that leave their number open share what the others leave of the limit.
void ShareModes(std::int32_t limit, std::vector<std::int32_t>& numbers) {
  const auto openCount = std::ranges::count_if(numbers, [](auto number) { return number <= 0; });
  if (openCount == 0) {
    return;
  }
  const std::int64_t given = std::accumulate(numbers.begin(), numbers.end(), std::int64_t{0});
  const std::int32_t share =
      TruncateToInteger(static_cast<double>(limit - given) / static_cast<double>(openCount));
  if (share > 0) {
    std::ranges::replace(numbers, 0, share);
  }
}

void FillEigenvalueControl(Conversion& run, const T_MDL1_D& definition, T_NGT_EGCT_D& control) {
  control.TYPE = run.Target.Texts().Keep(ToUpper(definition.ModeType));
  const std::int32_t limit = ModeLimit(run.Source, definition);
  if (control.TYPE == "EIGEN") {
    control.iFREQ = limit;
    control.TOL = definition.EigenTol;
  } else if (control.TYPE == "RITZ") {
    const auto& vectors = run.Source.Rows<T_MDL3_D>();
    for (const std::uint32_t position : vectors.AllWith<&T_MDL3_D::Case>(definition.Case)) {
      AddStartingVector(vectors.AtWalk(position).Value, control);
    }
    ShareModes(limit, control.iNOG);
  }
}

}  // namespace

void ConvertModalCase(Conversion& run) {
  auto& control = run.Target.Control<T_NGT_EGCT_D>();
  if (control.bWrite) {
    return;  // another modal case gives the same
  }
  if (const T_MDL1_D* definition = run.Source.Rows<T_MDL1_D>().Find(1)) {
    FillEigenvalueControl(run, *definition, control);
  }
  control.bWrite = true;
  run.Target.NeedAnalCtrl = true;
}

// ---- Output ----

bool WriteEigenvalueControl(Conversion& run, LineWriter& out) {
  const auto& control = run.Target.Control<T_NGT_EGCT_D>();
  if (!control.bWrite) {
    return true;
  }
  out.WriteLine("%s\n", "*EIGEN-CTRL    ; Eigenvalue Analysis Control");
  out.WriteLine("; TYPE, iFREQ, iITER, iDIM, TOL          ; TYPE=EIGEN\n");
  out.WriteLine("; TYPE, bINCNL, iGNUM                    ; TYPE=RITZ(line 1)\n");
  out.WriteLine(";       KIND1, CASE1/GROUND1, iNOG1, ... ; TYPE=RITZ(from line2)\n");
  if (control.TYPE == "EIGEN") {
    out.WriteLine("\t%s, %5d, %5d, %5d, %5g\n", control.TYPE, control.iFREQ, 20, 0, control.TOL);
  } else if (control.TYPE == "RITZ") {
    out.WriteLine("\t%s, %5s, %5d", control.TYPE, "NO", 1);
    for (std::size_t index = 0; index < control.CASE.size(); ++index) {
      out.WriteLine("%s%5s, %5s, %5d", SeparatorBefore(index, 3, "\n\t\t"), control.KIND[index],
                    control.CASE[index], control.iNOG[index]);
    }
  }
  out.WriteLine("\n\n");
  return true;
}

}  // namespace s2k2ngt
