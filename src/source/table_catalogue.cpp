#include "source/table_catalogue.h"

#include "common/messages.h"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

namespace s2k2ngt {
namespace {

constexpr TableOutcome kIgnored;

constexpr TableOutcome Stored(Text record, std::uint32_t buckets) {
  return {TableFate::Stored, record, buckets};
}

constexpr TableOutcome StoredOnce(Text record) { return {TableFate::Stored, record, 0}; }

consteval TableOutcome Refused(MessageKey key) { return {TableFate::Refused, {}, 0, key}; }

constexpr auto kAreaWords = std::to_array<TableWord>({
    {"MASS", Stored("T_ADMA_D", 17)},
    {"MESH", Refused("IDS_S2KV8_AREA_AtMesh_Not_Convert")},
    {"GRAVITY", Stored("T_ALGR_D", 17)},
    {"PORE", Refused("IDS_S2KV8_AREA_PrPrsr_Not_Convert")},
    {"ROTATE", Stored("T_ALRT_D", 10'001)},
    {"SURFACE", Stored("T_ALSP_D", 10'001)},
    {"TEMPERATURE", Stored("T_ALTM_D", 10'001)},
    {"UNIFORM TO FRAME", Stored("T_ALUF_D", 10'001)},
    {"UNIFORM", Stored("T_ALUM_D", 10'001)},
    {"WIND", Stored("T_ALWP_D", 17)},
    {"TYPICAL", Refused("IDS_S2KV8_AREA_Local_Not_Convert")},
    {"ADVANCED", kIgnored},
    {"MATERIAL", Stored("T_AMMT_D", 10'001)},
    {"REFERENCE", Stored("T_AMRT_D", 10'001)},
    {"SECTION ASSIGNMENTS", Stored("T_ASCA_D", 10'001)},
    {"SECTION PROPERTIES", Stored("T_ASPR_D", 10'001)},
    {"SPRING", Stored("T_ASPA_D", 17)},
    {"STIFFNESS", Refused("IDS_S2KV8_AREA_Stif_Not_Convert")},
});

constexpr auto kAutoWords = std::to_array<TableWord>({
    {"SEISMIC - BOCA96", Refused("IDS_S2KV8_SEIS_Data_Not_Convert")},
    {"SEISMIC - IBC2000", Refused("IDS_S2KV8_SEIS_Data_Not_Convert")},
    {"SEISMIC - NBCC95", Stored("T_SNBC_D", 10'001)},
    {"SEISMIC - NEHRP97", Refused("IDS_S2KV8_SEIS_Data_Not_Convert")},
    {"SEISMIC - UBC94", Refused("IDS_S2KV8_SEIS_Data_Not_Convert")},
    {"SEISMIC - UBC97", Stored("T_SUB7_D", 10'001)},
    {"SEISMIC - UBC97 ISOLATED", Refused("IDS_S2KV8_SEIS_Data_Not_Convert")},
    {"SEISMIC - USER COEFFICIENT", kIgnored},
    {"SEISMIC - USER LOADS", kIgnored},
    {"SEISMIC ECCENTRICITY OVERRIDES", kIgnored},
    {"SEISMIC LOADS TO GROUPS", kIgnored},
    {"SEISMIC LOADS TO HORIZONTAL DIAPHRAGMS", kIgnored},
    {"SEISMIC LOADS TO JOINTS", kIgnored},
    {"WIND - ASCE7-88", Refused("IDS_S2KV8_WIND_Data_Not_Convert")},
    {"WIND - ASCE7-95", Refused("IDS_S2KV8_WIND_Data_Not_Convert")},
    {"WIND - ASCE7-98", Stored("T_WAS8_D", 10'001)},
    {"WIND - BOCA96", Refused("IDS_S2KV8_WIND_Data_Not_Convert")},
    {"WIND - BS6399-95", Refused("IDS_S2KV8_WIND_Data_Not_Convert")},
    {"WIND - NBCC95", Stored("T_WNBC_D", 10'001)},
    {"WIND - UBC94", Refused("IDS_S2KV8_WIND_Data_Not_Convert")},
    {"WIND - UBC97", Stored("T_WUB7_D", 17)},
    {"WIND - USER", kIgnored},
    {"WIND EXPOSURE FOR HORIZONTAL DIAPHRAGMS", kIgnored},
    {"WIND LOADS TO GROUPS", kIgnored},
    {"WIND LOADS TO HORIZONTAL DIAPHRAGMS", kIgnored},
    {"WIND LOADS TO JOINTS", kIgnored},
});

constexpr auto kBridgeWords = std::to_array<TableWord>({
    {"Bridge Loads 1", Stored("T_BLLN_D", 10'001)},
    {"Bridge Loads 2", Stored("T_BLSV_D", 17)},
    {"Bridge Loads 3", Stored("T_BLGV1_D", 17)},
    {"Bridge Loads 4", Stored("T_BLGV2_D", 1'001)},
    {"Bridge Loads 5", Stored("T_BLVC_D", 1'001)},
    {"Bridge Loads 6", Stored("T_BLBR_D", 17)},
});

constexpr auto kCaseWords = std::to_array<TableWord>({
    {"BUCKLING 1", Stored("T_BKL1_D", 17)},
    {"BUCKLING 2", Stored("T_BKL2_D", 17)},
    {"DIRECT HISTORY 1", Stored("T_DRH1_D", 17)},
    {"DIRECT HISTORY 2", Stored("T_DRH2_D", 17)},
    {"DIRECT HISTORY 3", Stored("T_DRH3_D", 17)},
    {"DIRECT HISTORY 4", Stored("T_DRH4_D", 17)},
    {"DIRECT HISTORY 5", Stored("T_DRH5_D", 17)},
    {"MODAL 1", Stored("T_MDL1_D", 17)},
    {"MODAL 2", Stored("T_MDL2_D", 17)},
    {"MODAL 3", Stored("T_MDL3_D", 17)},
    {"MODAL HISTORY 1", Stored("T_MDH1_D", 17)},
    {"MODAL HISTORY 2", Stored("T_MDH2_D", 17)},
    {"MODAL HISTORY 3", Stored("T_MDH3_D", 17)},
    {"MODAL HISTORY 4", Stored("T_MDH4_D", 17)},
    {"MODAL HISTORY 5", Stored("T_MDH5_D", 17)},
    {"MODAL HISTORY 6", Stored("T_MDH6_D", 17)},
    {"MOVING LOAD 1", Stored("T_MVL1_D", 1'001)},
    {"MOVING LOAD 2", Stored("T_MVL2_D", 1'001)},
    {"MOVING LOAD 3", Stored("T_MVL3_D", 1'001)},
    {"SPECTRUM 1", Stored("T_RSP1_D", 17)},
    {"SPECTRUM 2", Stored("T_RSP2_D", 17)},
    {"SPECTRUM 3", Stored("T_RSP3_D", 17)},
    {"SPECTRUM 4", Stored("T_RSP4_D", 17)},
    {"SPECTRUM 5", Stored("T_RSP5_D", 17)},
    {"STATIC 1", Stored("T_STC1_D", 17)},
    {"STATIC 2", kIgnored},
    {"STATIC 3", kIgnored},
    {"STATIC 4", kIgnored},
    {"STATE 1", kIgnored},
    {"STATE 2", kIgnored},
});

constexpr auto kConnectivityWords = std::to_array<TableWord>({
    {"AREA", Stored("T_CNAR_D", 10'001)},
    {"FRAME", Stored("T_CNFR_D", 10'001)},
    {"LINK", Stored("T_CNLK_D", 10'001)},
    {"SOLID", Stored("T_CNSL_D", 10'001)},
});

constexpr auto kConstraintWords = std::to_array<TableWord>({
    {"BEAM", Stored("T_CDBM_D", 17)},
    {"BODY", Stored("T_CDBD_D", 17)},
    {"DIAPHRAGM", Stored("T_CDDP_D", 17)},
    {"EQUAL", Stored("T_CDEL_D", 17)},
    {"LINE", Stored("T_CDLN_D", 17)},
    {"LOCAL", Stored("T_CDLC_D", 17)},
    {"PLATE", Stored("T_CDPL_D", 17)},
    {"ROD", Stored("T_CDRD_D", 17)},
    {"WELD", Stored("T_CDWL_D", 17)},
});

constexpr auto kDatabaseWords = std::to_array<TableWord>({
    {"DOCUMENTATION", kIgnored},
    {"FIELD", kIgnored},
    {"FORMAT", kIgnored},
    {"TABLE", kIgnored},
});

constexpr auto kFrameWords = std::to_array<TableWord>({
    {"MASS", Stored("T_FRAD_D", 17)},
    {"CABLE", kIgnored},
    {"DESIGN", kIgnored},
    {"INSERTION", Stored("T_FRIP_D", 10'001)},
    {"DISTRIBUTED", Stored("T_FRLD_D", 10'001)},
    {"GRAVITY", Stored("T_FRLG_D", 10'001)},
    {"POINT", Stored("T_FRLP_D", 10'001)},
    {"LOADS - TEMPERATURE", Stored("T_FRLT_D", 10'001)},
    {"TYPICAL", Stored("T_FRTP_D", 17)},
    {"ADVANCED", Stored("T_FRAV_D", 17)},
    {"MATERIAL TEMPERATURES", kIgnored},
    {"NL HINGE", kIgnored},
    {"OFFSET", Stored("T_FROF_D", 10'001)},
    {"STATION", kIgnored},
    {"P-DELTA", Stored("T_FRPD_D", 10'001)},
    {"PATTERNS", Stored("T_FRPT_D", 10'001)},
    {"MULTIPLIERS", Stored("T_FRLM_D", 10'001)},
    {"MODIFIERS", Stored("T_FRPM_D", 10'001)},
    {"REFERENCE TEMPERATURES", Stored("T_FRRT_D", 17)},
    {"ASSIGNMENTS 1 - GENERAL", Stored("T_FRGN_D", 17)},
    {"FIXITY", Stored("T_FRPF_D", 17)},
    {"SECTION ASSIGNMENTS", Stored("T_FRSC_D", 10'001)},
    {"PROPERTIES 1 - GENERAL", Stored("T_FRSG_D", 10'001)},
    {"COLUMN", kIgnored},
    {"BEAM", kIgnored},
    {"SELECT", kIgnored},
    {"NONPRISMATIC", Stored("T_FSNP_D", 10'001)},
    {"SPRING", Stored("T_FRSA_D", 17)},
    {"SUBDIVISION", kIgnored},
    {"TENSION", kIgnored},
});

constexpr auto kFunctionWords = std::to_array<TableWord>({
    {"PLOT FUNCTIONS", Stored("T_FPFN_D", 17)},
    {"BOCA96", Stored("T_FRSB_D", 10'001)},
    {"EUROCODE8", Stored("T_FRSE_D", 10'001)},
    {"SPECTRUM - FROM FILE", Stored("T_FRSF_D", 17)},
    {"IBC2000", Stored("T_FRSI_D", 17)},
    {"NBCC95", Stored("T_FRSN_D", 10'001)},
    {"NEHRP97", Stored("T_FRSH_D", 10'001)},
    {"NZS4203", Stored("T_FRSZ_D", 10'001)},
    {"UBC94", Stored("T_FRC4_D", 10'001)},
    {"UBC97", Stored("T_FRC7_D", 10'001)},
    {"SPECTRUM - USER", Stored("T_FRSU_D", 17)},
    {"COSINE", Stored("T_FTHC_D", 17)},
    {"HISTORY - FROM FILE", Stored("T_FTHF_D", 17)},
    {"RAMP", Stored("T_FTHR_D", 17)},
    {"SAWTOOTH", Stored("T_FTHW_D", 17)},
    {"SINE", Stored("T_FTHS_D", 17)},
    {"TRIANGULAR", Stored("T_FTHT_D", 17)},
    {"HISTORY - USER PERIODIC", Stored("T_FTHP_D", 17)},
    {"HISTORY - USER", Stored("T_FTHU_D", 10'001)},
});

constexpr auto kGeneralizedWords = std::to_array<TableWord>({
    {"Translational", kIgnored},
    {"Rotational", kIgnored},
});

constexpr auto kGroupsWords = std::to_array<TableWord>({
    {"1", Stored("T_GRDF_D", 17)},
    {"2", Stored("T_GRAN_D", 17)},
    {"3", Stored("T_GRWT_D", 17)},
});

constexpr auto kHingeWords = std::to_array<TableWord>({
    {"1", kIgnored},
    {"2", kIgnored},
    {"3", kIgnored},
    {"4", kIgnored},
    {"5", kIgnored},
    {"6", kIgnored},
    {"7", kIgnored},
});

constexpr auto kJointWords = std::to_array<TableWord>({
    {"Mass", Stored("T_JTMA_D", 10'001)},
    {"Constraint", Stored("T_JTCA_D", 10'001)},
    {"Coordinates", Stored("T_JTCD_D", 10'001)},
    {"Force", Stored("T_JTLF_D", 10'001)},
    {"Ground", Stored("T_JTGD_D", 10'001)},
    {"Typical", Stored("T_JTTP_D", 10'001)},
    {"Advanced", Stored("T_JTAV_D", 10'001)},
    {"Panel", kIgnored},
    {"Pattern Assignments", Stored("T_JTPA_D", 17)},
    {"Definitions", Stored("T_JTPD_D", 17)},
    {"Restraint", Stored("T_JTRA_D", 10'001)},
    {"Uncoupled", Stored("T_JTUC_D", 10'001)},
    {"Spring Assignments 2 - Coupled", Stored("T_JTSC_D", 10'001)},
});

constexpr auto kLinkWords = std::to_array<TableWord>({
    {"Gravity", Stored("T_LLDG_D", 17)},
    {"Typical", Stored("T_LLCT_D", 17)},
    {"Advanced", Stored("T_LLCA_D", 17)},
    {"01", Stored("T_LPGN_D", 17)},
    {"02", Stored("T_LPLN_D", 17)},
    {"03", Stored("T_LPMT_D", 17)},
    {"04", Stored("T_LPDM_D", 17)},
    {"05", Stored("T_LPGP_D", 17)},
    {"06", Stored("T_LPHK_D", 17)},
    {"07", Stored("T_LPRB_D", 17)},
    {"08", Stored("T_LPSL_D", 17)},
    {"09", Stored("T_LPPW_D", 17)},
    {"10", Stored("T_LPPK_D", 17)},
    {"Property", Stored("T_LPAN_D", 17)},
});

constexpr auto kMassesWords = std::to_array<TableWord>({
    {"1", Stored("T_MSMS_D", 17)},
    {"2", Stored("T_MSJM_D", 17)},
});

constexpr auto kMaterialWords = std::to_array<TableWord>({
    {"1", Stored("T_MTGN_D", 17)},
    {"2", Stored("T_MTAD_D", 17)},
    {"3", kIgnored},
    {"4", kIgnored},
    {"5", kIgnored},
    {"6", kIgnored},
});

constexpr auto kNamedWords = std::to_array<TableWord>({
    {"Results 1 - General", kIgnored},
    {"Selections", kIgnored},
    {"Element", kIgnored},
    {"Model", kIgnored},
    {"Nonlinear", kIgnored},
    {"Traces 1 - General", kIgnored},
    {"Vertical", kIgnored},
    {"Spectrum 1 - General", kIgnored},
    {"Joints", kIgnored},
    {"Damping", kIgnored},
    {"Freq", kIgnored},
});

constexpr auto kOverwritesWords = std::to_array<TableWord>({
    {"AA-ASD 2000", kIgnored},
    {"AA-LRFD 2000", kIgnored},
    {"AASHTO Concrete 97", kIgnored},
    {"ACI 318-99", kIgnored},
    {"BS8110 89", kIgnored},
    {"BS8110 97", kIgnored},
    {"CSA-A233-94", kIgnored},
    {"EUROCODE 2-1992", kIgnored},
    {"Indian IS 456-2000", kIgnored},
    {"Italian DM 14-2-92", kIgnored},
    {"Mexican RCDF 2001", kIgnored},
    {"NZS 3101-95", kIgnored},
    {"Concrete Design - UBC97", kIgnored},
    {"AASHTO Steel 97", kIgnored},
    {"AISC-ASD89", kIgnored},
    {"AISC-LRFD93", kIgnored},
    {"API RP2A-LRFD 97", kIgnored},
    {"API RP2A-WSD2000", kIgnored},
    {"ASCE 10-97", kIgnored},
    {"BS5950 2000", kIgnored},
    {"BS5950 90", kIgnored},
    {"CISC 95", kIgnored},
    {"EUROCODE 3-1993", kIgnored},
    {"Italian UNI 10011", kIgnored},
    {"UBC97-ASD", kIgnored},
    {"UBC97-LRFD", kIgnored},
});

constexpr auto kPreferencesWords = std::to_array<TableWord>({
    {"AA-ASD 2000", kIgnored},
    {"AA-LRFD 2000", kIgnored},
    {"AASHTO Concrete 97", kIgnored},
    {"ACI 318-99", kIgnored},
    {"BS8110 89", kIgnored},
    {"BS8110 97", kIgnored},
    {"CSA-A233-94", kIgnored},
    {"EUROCODE 2-1992", kIgnored},
    {"Indian IS 456-2000", kIgnored},
    {"Italian DM 14-2-92", kIgnored},
    {"Mexican RCDF 2001", kIgnored},
    {"NZS 3101-95", kIgnored},
    {"Concrete Design - UBC97", kIgnored},
    {"DIMENSIONAL", kIgnored},
    {"AASHTO Steel 97", kIgnored},
    {"AISC-ASD89", kIgnored},
    {"AISC-LRFD93", kIgnored},
    {"API RP2A-LRFD 97", kIgnored},
    {"API RP2A-WSD2000", kIgnored},
    {"ASCE 10-97", kIgnored},
    {"BS5950 2000", kIgnored},
    {"BS5950 90", kIgnored},
    {"CISC 95", kIgnored},
    {"EUROCODE 3-1993", kIgnored},
    {"Italian UNI 10011", kIgnored},
    {"UBC97-ASD", kIgnored},
    {"UBC97-LRFD", kIgnored},
});

constexpr auto kSectionWords = std::to_array<TableWord>({
    {"1", kIgnored},
    {"2", kIgnored},
});

constexpr auto kSolidWords = std::to_array<TableWord>({
    {"Mesh", Stored("T_SLAM_D", 17)},
    {"Gravity", Stored("T_SLLG_D", 17)},
    {"Pore", Refused("IDS_S2KV8_SOLD_PrPrsr_Not_Convert")},
    {"Surface", Refused("IDS_S2KV8_SOLD_SurfP_Not_Convert")},
    {"- Temperature", Stored("T_SLLT_D", 17)},
    {"Typical", Refused("IDS_S2KV8_SOLD_Local_Not_Convert")},
    {"Advanced", kIgnored},
    {"Material", Stored("T_SLPT_D", 17)},
    {"Property Assignments", Stored("T_SLPA_D", 17)},
    {"Definitions", Stored("T_SLPD_D", 17)},
    {"Temperatures", Stored("T_SLRT_D", 17)},
    {"Spring Assignments", Refused("IDS_S2KV8_SOLD_Spr_Not_Convert")},
});

constexpr auto kSummaryWords = std::to_array<TableWord>({
    {"Area", Stored("T_SMAA_D", 10'001)},
    {"Frame", kIgnored},
    {"Joint", kIgnored},
    {"Link", Stored("T_SMLA_D", 10'001)},
    {"Solid", Stored("T_SMSA_D", 17)},
});

/// Tables that no title fills. The stages ask for some of them and find them empty.
constexpr auto kNeverFilled =
    std::to_array<Text>({"T_ALAD_D", "T_ALTP_D", "T_ASMD_D", "T_SIBC_D", "T_SLAA_D", "T_SLAT_D",
                         "T_SLLP_D", "T_SLLS_D", "T_SLSA_D", "T_SMFA_D", "T_SMJA_D"});

std::vector<SourceTable> ListSourceTables() {
  std::vector<SourceTable> tables;
  const auto add = [&](const TableOutcome& outcome) {
    if (outcome.Fate == TableFate::Stored && outcome.Buckets > 0) {
      tables.push_back({outcome.Record, outcome.Buckets});
    }
  };
  for (const TableKeyword& keyword : kKeywords) {
    add(keyword.Outcome);
    for (const TableWord& word : keyword.Words) {
      add(word.Outcome);
    }
  }
  for (const Text name : kNeverFilled) {
    tables.push_back({name, kInitialBuckets});
  }
  return tables;
}

}  // namespace

constexpr std::array<TableKeyword, 33> kKeywords = {{
    {"ACTIVE", 101, StoredOnce(kActiveDegreesOfFreedom), {}},
    {"ANALYSIS", 102, Stored("T_ANAL_D", 17), {}},
    {"AREA", 111, kIgnored, kAreaWords},
    {"AUTO", 131, kIgnored, kAutoWords},
    {"BRIDGE", 161, kIgnored, kBridgeWords},
    {"CASE", 171, kIgnored, kCaseWords},
    {"COMBINATION", 103, Stored("T_COMB_D", 17), {}},
    {"CONNECTIVITY", 201, kIgnored, kConnectivityWords},
    {"CONSTRAINT", 211, kIgnored, kConstraintWords},
    {"COORDINATE", 104, StoredOnce(kCoordinateSystem), {}},
    {"DATABASE", 221, kIgnored, kDatabaseWords},
    {"FRAME", 231, kIgnored, kFrameWords},
    {"FUNCTION", 271, kIgnored, kFunctionWords},
    {"GENERAL", 105, kIgnored, {}},
    {"GENERALIZED", 301, kIgnored, kGeneralizedWords},
    {"GRID", 106, kIgnored, {}},
    {"GROUPS", 311, kIgnored, kGroupsWords},
    {"HINGE", 321, kIgnored, kHingeWords},
    {"JOINT", 331, kIgnored, kJointWords},
    {"LINK", 351, kIgnored, kLinkWords},
    {"LOAD", 107, Stored("T_LDCS_D", 17), {}},
    {"MASSES", 371, kIgnored, kMassesWords},
    {"MATERIAL", 381, kIgnored, kMaterialWords},
    {"NAMED", 391, kIgnored, kNamedWords},
    {"OVERWRITES", 411, kIgnored, kOverwritesWords},
    {"PREFERENCES", 441, kIgnored, kPreferencesWords},
    {"PROGRAM", 108, StoredOnce(kUnits), {}},
    {"PROJECT", 109, kIgnored, {}},
    {"REBAR", 110, kIgnored, {}},
    {"SECTION", 471, kIgnored, kSectionWords},
    {"SOLID", 481, kIgnored, kSolidWords},
    {"SUMMARY", 501, kIgnored, kSummaryWords},
    {"OPTIONS", 600, kIgnored, {}},
}};

int ClassifyTable(Text title, std::size_t keywordIndex) {
  const TableKeyword& keyword = kKeywords[keywordIndex];
  if (keyword.Words.empty()) {
    return keyword.Id;
  }
  for (std::size_t index = 0; index < keyword.Words.size(); ++index) {
    if (title.find(ToUpper(keyword.Words[index].Word)) != Text::npos) {
      return keyword.Id + static_cast<int>(index);
    }
  }
  return 0;
}

int IdOfTitle(Text title) {
  for (std::size_t index = 0; index < kKeywords.size(); ++index) {
    // A keyword that stands earlier in the line as well does not count: only its first place is
    // looked at.
    if (title.find(kKeywords[index].Word) == kKeywordColumn) {
      return ClassifyTable(title, index);
    }
  }
  return 0;
}

TableOutcome OutcomeOf(int tableId) {
  for (const TableKeyword& keyword : kKeywords) {
    if (keyword.Words.empty()) {
      if (keyword.Id == tableId) {
        return keyword.Outcome;
      }
      continue;
    }
    const auto index = static_cast<std::size_t>(tableId - keyword.Id);
    if (tableId >= keyword.Id && index < keyword.Words.size()) {
      return keyword.Words[index].Outcome;
    }
  }
  return kIgnored;
}

std::span<const SourceTable> SourceTables() {
  static const std::vector<SourceTable> tables = ListSourceTables();
  return tables;
}

std::uint32_t BucketsOfSourceTable(Text recordName) {
  const auto tables = SourceTables();
  const auto found = std::ranges::find(tables, recordName, &SourceTable::Name);
  if (found == tables.end()) {
    throw std::logic_error("the catalogue has no table of " + std::string(recordName));
  }
  return found->Buckets;
}

}  // namespace s2k2ngt
