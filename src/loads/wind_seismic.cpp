#include "loads/wind_seismic.h"

#include "common/numbers.h"
#include "loads/load_cases.h"
#include "loads/settled_parameters.h"
#include "target/load_frame.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <type_traits>

namespace s2k2ngt {

// ---- Conversion ----

namespace {

constexpr Text kUsersPeriod = "User";
constexpr Text kAlongX = "X";
constexpr std::size_t kSoilProfileSize = 2;

/// "SC" becomes "Sc". Of a longer word the first two letters are taken.
Text SoilProfile(Text soilType, TextStore& texts) {
  if (soilType.size() < kSoilProfileSize) {
    return soilType;
  }
  const std::array profile = {soilType[0], ToLower(soilType[1])};
  return texts.Keep({profile.data(), profile.size()});
}

T_NGT_SUB7_D Convert(const T_SUB7_D& source, TextStore& texts) {
  T_NGT_SUB7_D target{.LoadCase = source.LoadCase,
                      .SST = source.SourceType,
                      .ZF = ParseReal(source.Z),
                      .CD = source.SourceDist,
                      .IF = source.I};
  if (!source.SoilType.empty()) {
    target.SPT = SoilProfile(source.SoilType, texts);
  }
  // Ct times the height to the power 0: the height plays no part, and this is meant.
  const double period = source.PeriodCalc == kUsersPeriod ? source.UserT : source.Ct;
  if (source.Dir == kAlongX) {
    target.SFY = 0.0;
    target.PX = period;
    target.NCX = source.R;
  } else {
    target.SFX = 0.0;
    target.PY = period;
    target.NCY = source.R;
  }
  return target;
}

T_NGT_SNBC_D Convert(const T_SNBC_D& source, TextStore& /*texts*/) {
  T_NGT_SNBC_D target{.LoadCase = source.LoadCase,
                      .AZ = ParseInteger(source.Za),
                      .VZ = ParseInteger(source.Zv),
                      .ZVR = source.V,
                      .IF = source.I,
                      .FF = source.F};
  // The user's period, whether or not the source goes by it, and this is meant.
  if (source.Dir == kAlongX) {
    target.SFY = 0.0;
    target.PAX = source.UserT;
    target.PCX = source.UserT;
    target.FMFX = source.R;
  } else {
    target.SFX = 0.0;
    target.PAY = source.UserT;
    target.PCY = source.UserT;
    target.FMFY = source.R;
  }
  return target;
}

T_NGT_WUB7_D Convert(const T_WUB7_D& source, TextStore& /*texts*/) {
  return {.LoadCase = source.LoadCase,
          .EC = source.Exposure,
          .BWS = source.WindSpeed,
          .IF = source.I,
          .MRH = source.MaxZ};
}

T_NGT_WIBC_D Convert(const T_WAS8_D& source, TextStore& /*texts*/) {
  return {.LoadCase = source.LoadCase,
          .EC = source.Exposure,
          .BWS = source.WindSpeed,
          .IF = source.I,
          .WDF = source.Kd,
          .MRH = source.MaxZ,
          .GFX = source.GustFactor,
          .GFY = source.GustFactor};
}

T_NGT_WNBC_D Convert(const T_WNBC_D& source, TextStore& /*texts*/) {
  // The velocity pressure is half the density of air times the square of the speed.
  return {.LoadCase = source.LoadCase,
          .EC = {},
          .RWS = std::sqrt(source.VelPressure / 0.00064645),
          .GEF = source.Cg};
}

/// Notes why a load that is computed by a code is written without it.
void NoteLoad(Conversion& run, Text load, Why why) {
  if (!run.Accounts.IsKept()) {
    return;
  }
  if (const auto found = run.Source.Rows<T_LDCS_D>().FirstWith<&T_LDCS_D::LoadCase>(load)) {
    run.Accounts.Note<T_LDCS_D>(found->Key, why);
  }
}

/// True when the parameters made a difference. Each time that a load is met its parameters are
/// appended, though the first are the ones that are written. Those behind them decide by which load
/// a walk ends, until that is settled.
template <class Source>
bool ConvertLoad(Conversion& run, Text load) {
  const auto row = run.Source.Rows<Source>().template FirstWith<&Source::LoadCase>(load);
  if (!row) {
    NoteLoad(run, load, "auto-load-without-parameters");
    return false;
  }
  const auto target = Convert(row->Value, run.Target.Texts());
  using Target = std::remove_cv_t<decltype(target)>;
  auto& table = run.Target.Table<Target>();
  if (AreSettled(table, load)) {
    return false;
  }
  table.Append(target);
  return true;
}

template <class Seismic>
void NoteDirection(Conversion& run, std::uint32_t key, const Seismic& row) {
  if (row.Dir != kAlongX && row.Dir != "Y") {
    run.Accounts.Note<Seismic>(key, "seismic-direction-unknown");
  }
}

/// Notes which values of parameters that are written do not go over as they stand.
void NoteValues(Conversion& run, std::uint32_t key, const T_SUB7_D& row) {
  Ledger& accounts = run.Accounts;
  accounts.Note<T_SUB7_D>(key, "seismic-eccentricity");
  if (row.PeriodCalc != kUsersPeriod) {
    accounts.Note<T_SUB7_D>(key, "seismic-period-not-of-user");
  }
  if (row.Z != row.ZoneFactor) {
    accounts.Note<T_SUB7_D>(key, "zone-factor-from-height");
  }
  if (row.SoilType.size() != kSoilProfileSize) {
    accounts.Note<T_SUB7_D>(key, "soil-type-unknown");
  }
  NoteDirection(run, key, row);
}

void NoteValues(Conversion& run, std::uint32_t key, const T_SNBC_D& row) {
  run.Accounts.Note<T_SNBC_D>(key, "seismic-eccentricity");
  if (!IsAboveTolerance(row.UserT)) {
    run.Accounts.Note<T_SNBC_D>(key, "seismic-period-not-of-user");
  }
  NoteDirection(run, key, row);
}

template <class Wind>
void NoteValues(Conversion& run, std::uint32_t key, const Wind& /*row*/) {
  run.Accounts.Note<Wind>(key, "wind-direction");
}

/// Notes the rows of a code, which load cases of this type may name.
template <class Source>
void NoteRows(Conversion& run, Text type, Text code) {
  const auto& rows = run.Source.Rows<Source>();
  const auto& loadCases = run.Target.Table<T_NGT_STLC_D>();
  for (const auto [key, row] : rows.Entries()) {
    const auto loadCase = loadCases.FirstWith<&T_NGT_STLC_D::LCNAME>(row.LoadCase);
    const auto load = run.Source.Rows<T_LDCS_D>().FirstWith<&T_LDCS_D::LoadCase>(row.LoadCase);
    if (!loadCase) {
      run.Accounts.Note<Source>(key, "load-case-not-static");
    } else if (loadCase->Value.LCTYPE != type || !load || load->Value.AutoLoad != code) {
      run.Accounts.Note<Source>(key, "auto-load-not-asked-for");
    } else if (rows.template FirstWith<&Source::LoadCase>(row.LoadCase)->Key != key) {
      run.Accounts.Note<Source>(key, "row-of-same-name");
    } else {
      NoteValues(run, key, row);
    }
  }
}

/// A code as loads name it. The names of wind codes have a blank, those of earthquake codes none.
struct Code {
  Text Name;
  bool (*ConvertLoad)(Conversion& run, Text load);
  void (*NoteRows)(Conversion& run, Text type, Text code);
};

template <class Source>
constexpr Code CodeOf(Text name) {
  return {name, ConvertLoad<Source>, NoteRows<Source>};
}

constexpr std::array kWindCodes = std::to_array<Code>(
    {CodeOf<T_WUB7_D>("UBC 97"), CodeOf<T_WAS8_D>("ASCE 7-98"), CodeOf<T_WNBC_D>("NBCC 95")});

constexpr std::array kSeismicCodes =
    std::to_array<Code>({CodeOf<T_SUB7_D>("UBC97"), CodeOf<T_SNBC_D>("NBCC95")});

template <std::size_t Count>
bool ConvertByCode(const std::array<Code, Count>& codes, Conversion& run, Text load, Text name) {
  const auto* const code = std::ranges::find(codes, name, &Code::Name);
  if (code != codes.end()) {
    return code->ConvertLoad(run, load);
  }
  if (!name.empty()) {
    NoteLoad(run, load, "auto-load-code-unlike");
  }
  return false;
}

}  // namespace

bool ConvertAutoWind(Conversion& run, Text load, Text code) {
  return ConvertByCode(kWindCodes, run, load, code);
}

bool ConvertAutoSeismic(Conversion& run, Text load, Text code) {
  return ConvertByCode(kSeismicCodes, run, load, code);
}

// ---- Output ----

namespace {

/// Writes the block of one code for a load case. Meant so: a load case of another code gets the
/// closing line of the last load case that has this one, without an opening.
template <class Parameters, class WriteParameters>
void WriteCode(Conversion& run, Text loadCase, LineWriter& out, Text head,
               WriteParameters writeParameters) {
  const auto found =
      run.Target.Table<Parameters>().template FirstOrLastWith<&Parameters::LoadCase>(loadCase);
  if (!found) {
    return;
  }
  const Parameters& parameters = found->Value;
  if (parameters.LoadCase == loadCase) {
    WriteUseOf(out, loadCase);
    out.WriteLine("%s", head);
    writeParameters(parameters);
  }
  WriteEndOf(out, parameters.LoadCase);
}

}  // namespace

void WriteSeismic(Conversion& run, Text loadCase, LineWriter& out) {
  WriteCode<T_NGT_SUB7_D>(run, loadCase, out,
                          "*SEIS    ; Static Seismic Loads\n"
                          "; CODE=CODE, SFX, SFY, ECCX, ECCY, DESC              ; line 1\n"
                          "; [UBC1997] : SPT, ZF, SST, CD, IF, PX, PY, NCX, NCY ; line 2\n",
                          [&](const T_NGT_SUB7_D& p) {
                            out.WriteLine("\tCODE=UBC1997, %5g, %5g, %5s, %5s,%5s\n", p.SFX, p.SFY,
                                          p.ECCX, p.ECCY, "");
                            out.WriteLine("\t\t%s, %5g, %5s, %5g, %5g, %5g, %5g, %5g, %5g\n\n",
                                          p.SPT, p.ZF, p.SST, p.CD, p.IF, p.PX, p.PY, p.NCX, p.NCY);
                          });
  WriteCode<T_NGT_SNBC_D>(
      run, loadCase, out,
      "*SEIS    ; Static Seismic Loads\n"
      "; CODE=CODE, SFX, SFY, ECCX, ECCY, DESC                          ; line 1\n"
      "; [NBC1995] : ZVR, AZ, VZ, IF, FF, PAX, PAY, PCX, PCY, FMFX, FMFY; line 2\n",
      [&](const T_NGT_SNBC_D& p) {
        out.WriteLine("\tCODE=NBC1995, %5g, %5g, %5s, %5s, %5s\n", p.SFX, p.SFY, p.ECCX, p.ECCY,
                      "");
        out.WriteLine("\t\t%g, %5d, %5d, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g\n\n", p.ZVR, p.AZ,
                      p.VZ, p.IF, p.FF, p.PAX, p.PAY, p.PCX, p.PCY, p.FMFX, p.FMFY);
      });
}

void WriteWind(Conversion& run, Text loadCase, LineWriter& out) {
  WriteCode<T_NGT_WUB7_D>(run, loadCase, out,
                          "*WIND    ; Wind Loads\n"
                          "; CODE=CODE, SFX, SFY, DESC                   ; line 1\n"
                          "; [UBC1997]   : iMETHOD, EC, BWS, IF, PC, MRH ; line 2\n"
                          "\n",  // behind this comment alone
                          [&](const T_NGT_WUB7_D& p) {
                            out.WriteLine("\tCODE=UBC1997, %5g, %5g, %5s\n", p.SFX, p.SFY, "");
                            out.WriteLine("\t\t%d, %5s, %5g, %5g, %5g, %5g\n\n", p.iMETHOD, p.EC,
                                          p.BWS, p.IF, p.PC, p.MRH);
                          });
  WriteCode<T_NGT_WIBC_D>(
      run, loadCase, out,
      "*WIND    ; Wind Loads\n"
      "; CODE=CODE, SFX, SFY, DESC                                 ; line 1\n"
      "; [IBC2000]   : iPROC, BWS, IF, EC, WDF, MRH, iST, GFX, GFY ; line 2\n",
      [&](const T_NGT_WIBC_D& p) {
        out.WriteLine("\tCODE=IBC2000, %5g, %5g, %5s\n", p.SFX, p.SFY, "");
        out.WriteLine("\t\t%d, %5g, %5g, %5s, %5g, %5g, %2d, %5g, %5g, NO, , , , , , NO, 1\n\n",
                      p.iPROC, p.BWS, p.IF, p.EC, p.WDF, p.MRH, p.iST, p.GFX, p.GFY);
      });
  WriteCode<T_NGT_WNBC_D>(run, loadCase, out,
                          "*WIND    ; Wind Loads\n"
                          "; CODE=CODE, SFX, SFY, DESC                       ; line 1\n"
                          "; [NBC1995]   : iPROC, RWS, GEF, CGX, CGY, BH, EC ; line 2\n",
                          [&](const T_NGT_WNBC_D& p) {
                            out.WriteLine("\tCODE=NBC1995, %5g, %5g, %5s\n", p.SFX, p.SFY, "");
                            out.WriteLine("\t\t%d, %5g, %5g, , , 0, %5s, NO, , , , , , NO, 1\n\n",
                                          p.iPROC, p.RWS, p.GEF, p.EC);
                          });
}

// ---- Account ----

void CloseAutoLoads(Conversion& run) {
  for (const Code& code : kWindCodes) {
    code.NoteRows(run, kWindType, code.Name);
  }
  for (const Code& code : kSeismicCodes) {
    code.NoteRows(run, kSeismicType, code.Name);
  }
}

}  // namespace s2k2ngt
