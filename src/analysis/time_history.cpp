#include "analysis/time_history.h"

#include "analysis/converted_rows.h"
#include "common/numbers.h"

#include <cmath>

namespace s2k2ngt {

// ---- Conversion ----

namespace {

/// What a case begins with.
template <class Definition>
void SetCase(const Definition& definition, Linearity linearity, Text initialCondition,
             T_NGT_THLC_D& history) {
  history.NAME = definition.Case;
  history.EndTime = definition.OutSteps * definition.StepSize;
  history.INC = definition.StepSize;
  history.iOUT = 1;
  history.iATYPE = linearity;
  if (initialCondition == "Zero") {
    history.iICOND = 1;
  } else {
    history.iICOND = 2;
    history.FSPLC = initialCondition;
  }
}

/// True when results come as far apart as wanted.
bool KeepsInterval(const T_NGT_THLC_D& history, double interval) {
  return std::abs(history.iOUT * history.INC - interval) <= std::abs(interval) * 1e-9;
}

/// Adds the case of the definition under this key.
template <class Definition>
void AddHistory(Conversion& run, std::uint32_t key, const Definition& definition,
                const T_NGT_THLC_D& history) {
  run.Target.Table<T_NGT_THLC_D>().Append(history);
  run.Target.NeedAnalCtrl = true;
  MarkConverted<Definition>(run, key, key);
  if (!KeepsInterval(history, definition.StepSize)) {
    run.Accounts.Note<Definition>(key, "history-output-interval");
  }
}

}  // namespace

std::optional<ProportionalKind> ProportionalKindOf(Text dampingType) {
  if (dampingType == "Pro-Direct") {
    return ProportionalKind::Factors;
  }
  if (dampingType == "Pro-Period") {
    return ProportionalKind::Periods;
  }
  if (dampingType == "Pro-Freq") {
    return ProportionalKind::Frequencies;
  }
  return std::nullopt;
}

namespace {

/// False when a proportional damping has no values.
bool ConvertDamping(CModel& source, const T_MDH1_D& definition, HistoryDamping& damping) {
  if (const auto kind = ProportionalKindOf(definition.DampingType)) {
    return ConvertModalDamping(source, definition.Case, *kind, damping);
  }
  ConvertConstantDamping(source, definition.Case, definition.ConstDamp, damping);
  return true;
}

/// The nonlinear parameters of a modal case. Meant so: iOUT is a product, where a direct case has a
/// quotient.
void ConvertModalParameters(CModel& source, const T_MDH1_D& definition, T_NGT_THLC_D& history) {
  if (const auto row = source.Rows<T_MDH6_D>().FirstWith<&T_MDH6_D::Case>(definition.Case)) {
    const T_MDH6_D& parameters = row->Value;
    history.MINSSS = parameters.DTMin;
    history.iMAXITER = parameters.ForceItMax;
    history.CONVTOL = parameters.FConvTol;
    history.INC = parameters.DTMax;
  }
  history.iOUT = TruncateToInteger(definition.OutSteps * history.INC);
}

}  // namespace

bool T_MDH1_D::HasTargetDamping() const {
  return DampingType == kConstantDamping || ProportionalKindOf(DampingType).has_value();
}

void ConvertModalHistory(Conversion& run, Text name, Linearity linearity, Text initialCondition,
                         ModalHistoryLoads& loads) {
  const auto& definitions = run.Source.Rows<T_MDH1_D>();
  const auto lost =
      definitions.AllWith<&T_MDH1_D::CaseByDamping>(QualifiedLabel{name, T_MDH1_D::kLost});
  // Goes on from one definition of the name to the next, its list of modes included.
  T_NGT_THLC_D history;
  history.iAMETHOD = HistoryMethod::Modal;
  for (const std::uint32_t position :
       definitions.AllWith<&T_MDH1_D::CaseByDamping>(QualifiedLabel{name, T_MDH1_D::kKept})) {
    const auto [key, definition] = definitions.AtWalk(position);
    SetCase(definition, linearity, initialCondition, history);
    history.iTHTYPE = T_MDH1_D::IsTransient(definition.HistoryType) ? 1 : 2;
    if (!ConvertDamping(run.Source, definition, history.Damping)) {
      run.Warnings.bHistoryDataLost = true;
      // The definitions behind this one are not met.
      run.Warnings.bHistoryDampingLost |= !lost.empty() && lost.front() < position;
      return;
    }
    if (linearity == Linearity::Nonlinear) {
      ConvertModalParameters(run.Source, definition, history);
    }
    loads.Convert(run, name);
    AddHistory(run, key, definition, history);
  }
  run.Warnings.bHistoryDampingLost |= !lost.empty();
}

namespace {

/// The method by which a direct case is integrated; one without a row has none. False when the
/// target does not have it.
bool ConvertMethod(CModel& source, Text name, T_NGT_THLC_D& history) {
  const auto row = source.Rows<T_DRH4_D>().FirstWith<&T_DRH4_D::Case>(name);
  if (!row) {
    return true;
  }
  if (!row->Value.IsTargetMethod()) {
    return false;
  }
  history.GAMMA = row->Value.Gamma;
  history.BETA = row->Value.Beta;
  history.iNMM = 3;
  return true;
}

/// Quotient without its remainder; 0 for a step of less than 1.
std::int32_t WholeQuotient(std::int32_t dividend, std::int32_t divisor) {
  return divisor == 0 ? 0 : TruncateToInteger(static_cast<double>(dividend) / divisor);
}

/// The nonlinear parameters of a direct case.
void ConvertDirectParameters(CModel& source, const T_DRH1_D& definition, T_NGT_THLC_D& history) {
  if (const auto row = source.Rows<T_DRH5_D>().FirstWith<&T_DRH5_D::Case>(definition.Case)) {
    const T_DRH5_D& parameters = row->Value;
    history.MINSSS = parameters.DTMin;
    history.iMAXITER = parameters.MaxIter;
    history.CONVTOL = parameters.ItConvTol;
    history.INC = parameters.DTMax;
  }
  history.iOUT = WholeQuotient(definition.OutSteps, TruncateToInteger(history.INC));
}

}  // namespace

void ConvertDirectHistory(Conversion& run, Text name, Linearity linearity, Text initialCondition) {
  const auto& definitions = run.Source.Rows<T_DRH1_D>();
  T_NGT_THLC_D history;
  history.iAMETHOD = HistoryMethod::Direct;
  history.iTHTYPE = 1;
  for (const std::uint32_t position : definitions.AllWith<&T_DRH1_D::Case>(name)) {
    const auto [key, definition] = definitions.AtWalk(position);
    SetCase(definition, linearity, initialCondition, history);
    if (!ConvertDirectDamping(run.Source, name, history.Damping)) {
      run.Warnings.bHistoryDataLost = true;
      return;
    }
    if (!ConvertMethod(run.Source, name, history)) {
      run.Warnings.bHistoryMethodLost = true;
      return;
    }
    if (linearity == Linearity::Nonlinear) {
      ConvertDirectParameters(run.Source, definition, history);
    }
    ConvertDirectLoads(run, name);
    AddHistory(run, key, definition, history);
  }
}

// ---- Output ----

namespace {

void WriteTimeHistory(LineWriter& out, const T_NGT_THLC_D& history) {
  out.WriteLine("\tNAME=%s, %5s\n", history.NAME, "");
  out.WriteLine("\t\t%g, %5g, %5d, %5d, %5s, %5d, %5d, %5d\n", history.EndTime, history.INC,
                history.iOUT, history.iICOND, history.FSPLC,
                static_cast<std::int32_t>(history.iATYPE),
                static_cast<std::int32_t>(history.iAMETHOD), history.iTHTYPE);
  out.WriteLine("\t\t%d,", history.Damping.iMDTYPE);
  WriteHistoryDamping(out, history.Damping);
  if (history.iAMETHOD == HistoryMethod::Direct) {
    out.WriteLine("%5d, %5g, %5g,", history.iNMM, history.GAMMA, history.BETA);
  } else {
    out.WriteLine(" 1, , ,");
  }
  if (history.iATYPE == Linearity::Nonlinear) {
    out.WriteLine("%5g, %5d, %5g", history.MINSSS, history.iMAXITER, history.CONVTOL);
  } else {
    out.WriteLine(" , ,");
  }
  WriteModeDampings(out, history.Damping);
  out.WriteLine("\n");
}

/// What was lost of the time histories.
void ShowLostHistories(Conversion& run) {
  if (run.Warnings.bHistoryDampingLost) {
    run.Shown.Show("IDS_S2KV8_MDHT_IntpDamp_Not_Convert");
  }
  if (run.Warnings.bHistoryDataLost) {
    run.Shown.Show("IDS_S2KV8_THLC_Data_Not_Convert");
  }
  if (run.Warnings.bHistoryMethodLost) {
    run.Shown.Show("IDS_S2KV8_TMHT_NewMark_Only_Convert");
  }
}

}  // namespace

bool WriteTimeHistories(Conversion& run, LineWriter& out) {
  const auto& histories = run.Target.Table<T_NGT_THLC_D>();
  if (histories.Empty()) {
    return true;
  }
  ShowLostHistories(run);
  out.WriteLine("%s\n", "*THLDCASE   ; Time History Load Cases");
  out.WriteLine("; NAME=NAME, DESC                                                  ; line 1\n");
  out.WriteLine(";      ETIME, INC, iOUT, iICOND, FSPLC, iATYPE, iAMETHOD, iTHTYPE  ; line 2\n");
  out.WriteLine(";      iMDTYPE, [DR-DC], [TIP], [NACP]                             ; line 3\n");
  out.WriteLine(
      ";      iMODE1, DAMPING1, iMODE2, DAMPING2, ...                     ; from line 4\n");
  out.WriteLine("; [DR-DC] : DALL                                                   ; iMDTYPE=1\n");
  out.WriteLine(
      ";         : iCOEF, bMASSP, MASSC, bSTIFFP, STIFFC                  ; iMDTYPE=2, iCOEF=1\n");
  out.WriteLine(
      ";         : iCOEF, iCALC, bMASSP, FP1, DR1, bSTIFFP, FP2, DR2      ; iMDTYPE=2, iCOEF=2\n");
  out.WriteLine(
      "; [TIP]   : iNMM, GAMMA, BETA                                      ; iAMETHOD=2\n");
  out.WriteLine("; [NACP]  : MINSSS, iMAXITER, CONVTOL                              ; iATYPE=2\n");
  for (const auto [key, history] : histories.Walk()) {
    WriteTimeHistory(out, history);
  }
  out.WriteLine("\n\n");
  return true;
}

}  // namespace s2k2ngt
