#include "source/table_catalogue.h"

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace s2k2ngt {
namespace {

struct Table {
  int Id;
  Text Keyword;
  Text Word = {};
  /// The row record of a table that is stored, the message key of one that is refused, nothing for
  /// one that is ignored.
  Text Outcome = {};
  std::uint32_t Buckets = 0;
};

constexpr Table kTables[] = {
    {101, "ACTIVE", "", kActiveDegreesOfFreedom},
    {102, "ANALYSIS", "", "T_ANAL_D", 17},
    {103, "COMBINATION", "", "T_COMB_D", 17},
    {104, "COORDINATE", "", kCoordinateSystem},
    {105, "GENERAL"},
    {106, "GRID"},
    {107, "LOAD", "", "T_LDCS_D", 17},
    {108, "PROGRAM", "", kUnits},
    {109, "PROJECT"},
    {110, "REBAR"},
    {600, "OPTIONS"},
    {111, "AREA", "MASS", "T_ADMA_D", 17},
    {112, "AREA", "MESH", "IDS_S2KV8_AREA_AtMesh_Not_Convert"},
    {113, "AREA", "GRAVITY", "T_ALGR_D", 17},
    {114, "AREA", "PORE", "IDS_S2KV8_AREA_PrPrsr_Not_Convert"},
    {115, "AREA", "ROTATE", "T_ALRT_D", 10'001},
    {116, "AREA", "SURFACE", "T_ALSP_D", 10'001},
    {117, "AREA", "TEMPERATURE", "T_ALTM_D", 10'001},
    {118, "AREA", "UNIFORM TO FRAME", "T_ALUF_D", 10'001},
    {119, "AREA", "UNIFORM", "T_ALUM_D", 10'001},
    {120, "AREA", "WIND", "T_ALWP_D", 17},
    {121, "AREA", "TYPICAL", "IDS_S2KV8_AREA_Local_Not_Convert"},
    {122, "AREA", "ADVANCED"},
    {123, "AREA", "MATERIAL", "T_AMMT_D", 10'001},
    {124, "AREA", "REFERENCE", "T_AMRT_D", 10'001},
    {125, "AREA", "SECTION ASSIGNMENTS", "T_ASCA_D", 10'001},
    {126, "AREA", "SECTION PROPERTIES", "T_ASPR_D", 10'001},
    {127, "AREA", "SPRING", "T_ASPA_D", 17},
    {128, "AREA", "STIFFNESS", "IDS_S2KV8_AREA_Stif_Not_Convert"},
    {131, "AUTO", "SEISMIC - BOCA96", "IDS_S2KV8_SEIS_Data_Not_Convert"},
    {132, "AUTO", "SEISMIC - IBC2000", "IDS_S2KV8_SEIS_Data_Not_Convert"},
    {133, "AUTO", "SEISMIC - NBCC95", "T_SNBC_D", 10'001},
    {134, "AUTO", "SEISMIC - NEHRP97", "IDS_S2KV8_SEIS_Data_Not_Convert"},
    {135, "AUTO", "SEISMIC - UBC94", "IDS_S2KV8_SEIS_Data_Not_Convert"},
    {136, "AUTO", "SEISMIC - UBC97", "T_SUB7_D", 10'001},
    {137, "AUTO", "SEISMIC - UBC97 ISOLATED", "IDS_S2KV8_SEIS_Data_Not_Convert"},
    {138, "AUTO", "SEISMIC - USER COEFFICIENT"},
    {139, "AUTO", "SEISMIC - USER LOADS"},
    {140, "AUTO", "SEISMIC ECCENTRICITY OVERRIDES"},
    {141, "AUTO", "SEISMIC LOADS TO GROUPS"},
    {142, "AUTO", "SEISMIC LOADS TO HORIZONTAL DIAPHRAGMS"},
    {143, "AUTO", "SEISMIC LOADS TO JOINTS"},
    {144, "AUTO", "WIND - ASCE7-88", "IDS_S2KV8_WIND_Data_Not_Convert"},
    {145, "AUTO", "WIND - ASCE7-95", "IDS_S2KV8_WIND_Data_Not_Convert"},
    {146, "AUTO", "WIND - ASCE7-98", "T_WAS8_D", 10'001},
    {147, "AUTO", "WIND - BOCA96", "IDS_S2KV8_WIND_Data_Not_Convert"},
    {148, "AUTO", "WIND - BS6399-95", "IDS_S2KV8_WIND_Data_Not_Convert"},
    {149, "AUTO", "WIND - NBCC95", "T_WNBC_D", 10'001},
    {150, "AUTO", "WIND - UBC94", "IDS_S2KV8_WIND_Data_Not_Convert"},
    {151, "AUTO", "WIND - UBC97", "T_WUB7_D", 17},
    {152, "AUTO", "WIND - USER"},
    {153, "AUTO", "WIND EXPOSURE FOR HORIZONTAL DIAPHRAGMS"},
    {154, "AUTO", "WIND LOADS TO GROUPS"},
    {155, "AUTO", "WIND LOADS TO HORIZONTAL DIAPHRAGMS"},
    {156, "AUTO", "WIND LOADS TO JOINTS"},
    {161, "BRIDGE", "Bridge Loads 1", "T_BLLN_D", 10'001},
    {162, "BRIDGE", "Bridge Loads 2", "T_BLSV_D", 17},
    {163, "BRIDGE", "Bridge Loads 3", "T_BLGV1_D", 17},
    {164, "BRIDGE", "Bridge Loads 4", "T_BLGV2_D", 1'001},
    {165, "BRIDGE", "Bridge Loads 5", "T_BLVC_D", 1'001},
    {166, "BRIDGE", "Bridge Loads 6", "T_BLBR_D", 17},
    {171, "CASE", "BUCKLING 1", "T_BKL1_D", 17},
    {172, "CASE", "BUCKLING 2", "T_BKL2_D", 17},
    {173, "CASE", "DIRECT HISTORY 1", "T_DRH1_D", 17},
    {174, "CASE", "DIRECT HISTORY 2", "T_DRH2_D", 17},
    {175, "CASE", "DIRECT HISTORY 3", "T_DRH3_D", 17},
    {176, "CASE", "DIRECT HISTORY 4", "T_DRH4_D", 17},
    {177, "CASE", "DIRECT HISTORY 5", "T_DRH5_D", 17},
    {178, "CASE", "MODAL 1", "T_MDL1_D", 17},
    {179, "CASE", "MODAL 2", "T_MDL2_D", 17},
    {180, "CASE", "MODAL 3", "T_MDL3_D", 17},
    {181, "CASE", "MODAL HISTORY 1", "T_MDH1_D", 17},
    {182, "CASE", "MODAL HISTORY 2", "T_MDH2_D", 17},
    {183, "CASE", "MODAL HISTORY 3", "T_MDH3_D", 17},
    {184, "CASE", "MODAL HISTORY 4", "T_MDH4_D", 17},
    {185, "CASE", "MODAL HISTORY 5", "T_MDH5_D", 17},
    {186, "CASE", "MODAL HISTORY 6", "T_MDH6_D", 17},
    {187, "CASE", "MOVING LOAD 1", "T_MVL1_D", 1'001},
    {188, "CASE", "MOVING LOAD 2", "T_MVL2_D", 1'001},
    {189, "CASE", "MOVING LOAD 3", "T_MVL3_D", 1'001},
    {190, "CASE", "SPECTRUM 1", "T_RSP1_D", 17},
    {191, "CASE", "SPECTRUM 2", "T_RSP2_D", 17},
    {192, "CASE", "SPECTRUM 3", "T_RSP3_D", 17},
    {193, "CASE", "SPECTRUM 4", "T_RSP4_D", 17},
    {194, "CASE", "SPECTRUM 5", "T_RSP5_D", 17},
    {195, "CASE", "STATIC 1", "T_STC1_D", 17},
    {196, "CASE", "STATIC 2"},
    {197, "CASE", "STATIC 3"},
    {198, "CASE", "STATIC 4"},
    {199, "CASE", "STATE 1"},
    {200, "CASE", "STATE 2"},
    {201, "CONNECTIVITY", "AREA", "T_CNAR_D", 10'001},
    {202, "CONNECTIVITY", "FRAME", "T_CNFR_D", 10'001},
    {203, "CONNECTIVITY", "LINK", "T_CNLK_D", 10'001},
    {204, "CONNECTIVITY", "SOLID", "T_CNSL_D", 10'001},
    {211, "CONSTRAINT", "BEAM", "T_CDBM_D", 17},
    {212, "CONSTRAINT", "BODY", "T_CDBD_D", 17},
    {213, "CONSTRAINT", "DIAPHRAGM", "T_CDDP_D", 17},
    {214, "CONSTRAINT", "EQUAL", "T_CDEL_D", 17},
    {215, "CONSTRAINT", "LINE", "T_CDLN_D", 17},
    {216, "CONSTRAINT", "LOCAL", "T_CDLC_D", 17},
    {217, "CONSTRAINT", "PLATE", "T_CDPL_D", 17},
    {218, "CONSTRAINT", "ROD", "T_CDRD_D", 17},
    {219, "CONSTRAINT", "WELD", "T_CDWL_D", 17},
    {221, "DATABASE", "DOCUMENTATION"},
    {222, "DATABASE", "FIELD"},
    {223, "DATABASE", "FORMAT"},
    {224, "DATABASE", "TABLE"},
    {231, "FRAME", "MASS", "T_FRAD_D", 17},
    {232, "FRAME", "CABLE"},
    {233, "FRAME", "DESIGN"},
    {234, "FRAME", "INSERTION", "T_FRIP_D", 10'001},
    {235, "FRAME", "DISTRIBUTED", "T_FRLD_D", 10'001},
    {236, "FRAME", "GRAVITY", "T_FRLG_D", 10'001},
    {237, "FRAME", "POINT", "T_FRLP_D", 10'001},
    {238, "FRAME", "LOADS - TEMPERATURE", "T_FRLT_D", 10'001},
    {239, "FRAME", "TYPICAL", "T_FRTP_D", 17},
    {240, "FRAME", "ADVANCED", "T_FRAV_D", 17},
    {241, "FRAME", "MATERIAL TEMPERATURES"},
    {242, "FRAME", "NL HINGE"},
    {243, "FRAME", "OFFSET", "T_FROF_D", 10'001},
    {244, "FRAME", "STATION"},
    {245, "FRAME", "P-DELTA", "T_FRPD_D", 10'001},
    {246, "FRAME", "PATTERNS", "T_FRPT_D", 10'001},
    {247, "FRAME", "MULTIPLIERS", "T_FRLM_D", 10'001},
    {248, "FRAME", "MODIFIERS", "T_FRPM_D", 10'001},
    {249, "FRAME", "REFERENCE TEMPERATURES", "T_FRRT_D", 17},
    {250, "FRAME", "ASSIGNMENTS 1 - GENERAL", "T_FRGN_D", 17},
    {251, "FRAME", "FIXITY", "T_FRPF_D", 17},
    {252, "FRAME", "SECTION ASSIGNMENTS", "T_FRSC_D", 10'001},
    {253, "FRAME", "PROPERTIES 1 - GENERAL", "T_FRSG_D", 10'001},
    {254, "FRAME", "COLUMN"},
    {255, "FRAME", "BEAM"},
    {256, "FRAME", "SELECT"},
    {257, "FRAME", "NONPRISMATIC", "T_FSNP_D", 10'001},
    {258, "FRAME", "SPRING", "T_FRSA_D", 17},
    {259, "FRAME", "SUBDIVISION"},
    {260, "FRAME", "TENSION"},
    {271, "FUNCTION", "PLOT FUNCTIONS", "T_FPFN_D", 17},
    {272, "FUNCTION", "BOCA96", "T_FRSB_D", 10'001},
    {273, "FUNCTION", "EUROCODE8", "T_FRSE_D", 10'001},
    {274, "FUNCTION", "SPECTRUM - FROM FILE", "T_FRSF_D", 17},
    {275, "FUNCTION", "IBC2000", "T_FRSI_D", 17},
    {276, "FUNCTION", "NBCC95", "T_FRSN_D", 10'001},
    {277, "FUNCTION", "NEHRP97", "T_FRSH_D", 10'001},
    {278, "FUNCTION", "NZS4203", "T_FRSZ_D", 10'001},
    {279, "FUNCTION", "UBC94", "T_FRC4_D", 10'001},
    {280, "FUNCTION", "UBC97", "T_FRC7_D", 10'001},
    {281, "FUNCTION", "SPECTRUM - USER", "T_FRSU_D", 17},
    {282, "FUNCTION", "COSINE", "T_FTHC_D", 17},
    {283, "FUNCTION", "HISTORY - FROM FILE", "T_FTHF_D", 17},
    {284, "FUNCTION", "RAMP", "T_FTHR_D", 17},
    {285, "FUNCTION", "SAWTOOTH", "T_FTHW_D", 17},
    {286, "FUNCTION", "SINE", "T_FTHS_D", 17},
    {287, "FUNCTION", "TRIANGULAR", "T_FTHT_D", 17},
    {288, "FUNCTION", "HISTORY - USER PERIODIC", "T_FTHP_D", 17},
    {289, "FUNCTION", "HISTORY - USER", "T_FTHU_D", 10'001},
    {301, "GENERALIZED", "Translational"},
    {302, "GENERALIZED", "Rotational"},
    {311, "GROUPS", "1", "T_GRDF_D", 17},
    {312, "GROUPS", "2", "T_GRAN_D", 17},
    {313, "GROUPS", "3", "T_GRWT_D", 17},
    {321, "HINGE", "1"},
    {322, "HINGE", "2"},
    {323, "HINGE", "3"},
    {324, "HINGE", "4"},
    {325, "HINGE", "5"},
    {326, "HINGE", "6"},
    {327, "HINGE", "7"},
    {331, "JOINT", "Mass", "T_JTMA_D", 10'001},
    {332, "JOINT", "Constraint", "T_JTCA_D", 10'001},
    {333, "JOINT", "Coordinates", "T_JTCD_D", 10'001},
    {334, "JOINT", "Force", "T_JTLF_D", 10'001},
    {335, "JOINT", "Ground", "T_JTGD_D", 10'001},
    {336, "JOINT", "Typical", "T_JTTP_D", 10'001},
    {337, "JOINT", "Advanced", "T_JTAV_D", 10'001},
    {338, "JOINT", "Panel"},
    {339, "JOINT", "Pattern Assignments", "T_JTPA_D", 17},
    {340, "JOINT", "Definitions", "T_JTPD_D", 17},
    {341, "JOINT", "Restraint", "T_JTRA_D", 10'001},
    {342, "JOINT", "Uncoupled", "T_JTUC_D", 10'001},
    {343, "JOINT", "Spring Assignments 2 - Coupled", "T_JTSC_D", 10'001},
    {351, "LINK", "Gravity", "T_LLDG_D", 17},
    {352, "LINK", "Typical", "T_LLCT_D", 17},
    {353, "LINK", "Advanced", "T_LLCA_D", 17},
    {354, "LINK", "01", "T_LPGN_D", 17},
    {355, "LINK", "02", "T_LPLN_D", 17},
    {356, "LINK", "03", "T_LPMT_D", 17},
    {357, "LINK", "04", "T_LPDM_D", 17},
    {358, "LINK", "05", "T_LPGP_D", 17},
    {359, "LINK", "06", "T_LPHK_D", 17},
    {360, "LINK", "07", "T_LPRB_D", 17},
    {361, "LINK", "08", "T_LPSL_D", 17},
    {362, "LINK", "09", "T_LPPW_D", 17},
    {363, "LINK", "10", "T_LPPK_D", 17},
    {364, "LINK", "Property", "T_LPAN_D", 17},
    {371, "MASSES", "1", "T_MSMS_D", 17},
    {372, "MASSES", "2", "T_MSJM_D", 17},
    {381, "MATERIAL", "1", "T_MTGN_D", 17},
    {382, "MATERIAL", "2", "T_MTAD_D", 17},
    {383, "MATERIAL", "3"},
    {384, "MATERIAL", "4"},
    {385, "MATERIAL", "5"},
    {386, "MATERIAL", "6"},
    {391, "NAMED", "Results 1 - General"},
    {392, "NAMED", "Selections"},
    {393, "NAMED", "Element"},
    {394, "NAMED", "Model"},
    {395, "NAMED", "Nonlinear"},
    {396, "NAMED", "Traces 1 - General"},
    {397, "NAMED", "Vertical"},
    {398, "NAMED", "Spectrum 1 - General"},
    {399, "NAMED", "Joints"},
    {400, "NAMED", "Damping"},
    {401, "NAMED", "Freq"},
    {411, "OVERWRITES", "AA-ASD 2000"},
    {412, "OVERWRITES", "AA-LRFD 2000"},
    {413, "OVERWRITES", "AASHTO Concrete 97"},
    {414, "OVERWRITES", "ACI 318-99"},
    {415, "OVERWRITES", "BS8110 89"},
    {416, "OVERWRITES", "BS8110 97"},
    {417, "OVERWRITES", "CSA-A233-94"},
    {418, "OVERWRITES", "EUROCODE 2-1992"},
    {419, "OVERWRITES", "Indian IS 456-2000"},
    {420, "OVERWRITES", "Italian DM 14-2-92"},
    {421, "OVERWRITES", "Mexican RCDF 2001"},
    {422, "OVERWRITES", "NZS 3101-95"},
    {423, "OVERWRITES", "Concrete Design - UBC97"},
    {424, "OVERWRITES", "AASHTO Steel 97"},
    {425, "OVERWRITES", "AISC-ASD89"},
    {426, "OVERWRITES", "AISC-LRFD93"},
    {427, "OVERWRITES", "API RP2A-LRFD 97"},
    {428, "OVERWRITES", "API RP2A-WSD2000"},
    {429, "OVERWRITES", "ASCE 10-97"},
    {430, "OVERWRITES", "BS5950 2000"},
    {431, "OVERWRITES", "BS5950 90"},
    {432, "OVERWRITES", "CISC 95"},
    {433, "OVERWRITES", "EUROCODE 3-1993"},
    {434, "OVERWRITES", "Italian UNI 10011"},
    {435, "OVERWRITES", "UBC97-ASD"},
    {436, "OVERWRITES", "UBC97-LRFD"},
    {441, "PREFERENCES", "AA-ASD 2000"},
    {442, "PREFERENCES", "AA-LRFD 2000"},
    {443, "PREFERENCES", "AASHTO Concrete 97"},
    {444, "PREFERENCES", "ACI 318-99"},
    {445, "PREFERENCES", "BS8110 89"},
    {446, "PREFERENCES", "BS8110 97"},
    {447, "PREFERENCES", "CSA-A233-94"},
    {448, "PREFERENCES", "EUROCODE 2-1992"},
    {449, "PREFERENCES", "Indian IS 456-2000"},
    {450, "PREFERENCES", "Italian DM 14-2-92"},
    {451, "PREFERENCES", "Mexican RCDF 2001"},
    {452, "PREFERENCES", "NZS 3101-95"},
    {453, "PREFERENCES", "Concrete Design - UBC97"},
    {454, "PREFERENCES", "DIMENSIONAL"},
    {455, "PREFERENCES", "AASHTO Steel 97"},
    {456, "PREFERENCES", "AISC-ASD89"},
    {457, "PREFERENCES", "AISC-LRFD93"},
    {458, "PREFERENCES", "API RP2A-LRFD 97"},
    {459, "PREFERENCES", "API RP2A-WSD2000"},
    {460, "PREFERENCES", "ASCE 10-97"},
    {461, "PREFERENCES", "BS5950 2000"},
    {462, "PREFERENCES", "BS5950 90"},
    {463, "PREFERENCES", "CISC 95"},
    {464, "PREFERENCES", "EUROCODE 3-1993"},
    {465, "PREFERENCES", "Italian UNI 10011"},
    {466, "PREFERENCES", "UBC97-ASD"},
    {467, "PREFERENCES", "UBC97-LRFD"},
    {471, "SECTION", "1"},
    {472, "SECTION", "2"},
    {481, "SOLID", "Mesh", "T_SLAM_D", 17},
    {482, "SOLID", "Gravity", "T_SLLG_D", 17},
    {483, "SOLID", "Pore", "IDS_S2KV8_SOLD_PrPrsr_Not_Convert"},
    {484, "SOLID", "Surface", "IDS_S2KV8_SOLD_SurfP_Not_Convert"},
    {485, "SOLID", "- Temperature", "T_SLLT_D", 17},
    {486, "SOLID", "Typical", "IDS_S2KV8_SOLD_Local_Not_Convert"},
    {487, "SOLID", "Advanced"},
    {488, "SOLID", "Material", "T_SLPT_D", 17},
    {489, "SOLID", "Property Assignments", "T_SLPA_D", 17},
    {490, "SOLID", "Definitions", "T_SLPD_D", 17},
    {491, "SOLID", "Temperatures", "T_SLRT_D", 17},
    {492, "SOLID", "Spring Assignments", "IDS_S2KV8_SOLD_Spr_Not_Convert"},
    {501, "SUMMARY", "Area", "T_SMAA_D", 10'001},
    {502, "SUMMARY", "Frame"},
    {503, "SUMMARY", "Joint"},
    {504, "SUMMARY", "Link", "T_SMLA_D", 10'001},
    {505, "SUMMARY", "Solid", "T_SMSA_D", 17},
};

/// The line that opens the block of a table, as the scan hands it on.
std::string TitleLine(Text title) { return "TABLE:  \"" + ToUpper(title) + "\"\n"; }

int IdOf(Text title) { return IdOfTitle(TitleLine(title)); }

std::string ShortestTitle(const Table& table) {
  return std::string(table.Keyword) + " " + std::string(table.Word);
}

TEST(TableCatalogue, EveryTableHasItsOutcome) {
  for (const Table& table : kTables) {
    SCOPED_TRACE(ShortestTitle(table));
    const TableOutcome outcome = OutcomeOf(table.Id);
    EXPECT_EQ(outcome.Buckets, table.Buckets);
    if (table.Outcome.empty()) {
      EXPECT_EQ(outcome.Fate, TableFate::Ignored);
      EXPECT_EQ(outcome.Record, "");
      EXPECT_FALSE(outcome.Message.has_value());
    } else if (table.Outcome.starts_with("IDS_")) {
      EXPECT_EQ(outcome.Fate, TableFate::Refused);
      EXPECT_EQ(outcome.Record, "");
      ASSERT_TRUE(outcome.Message.has_value());
      EXPECT_EQ(outcome.Message->Get(), table.Outcome);
    } else {
      EXPECT_EQ(outcome.Fate, TableFate::Stored);
      EXPECT_EQ(outcome.Record, table.Outcome);
      EXPECT_FALSE(outcome.Message.has_value());
    }
  }
}

TEST(TableCatalogue, KeywordAndWordGiveTheId) {
  const std::set<int> hidden = {137, 301, 302};  // behind another word or keyword, see below
  for (const Table& table : kTables) {
    if (!hidden.contains(table.Id)) {
      EXPECT_EQ(IdOf(ShortestTitle(table)), table.Id) << ShortestTitle(table);
    }
  }
}

TEST(TableCatalogue, IdsWithoutATableAreIgnored) {
  std::set<int> known;
  for (const Table& table : kTables) {
    known.insert(table.Id);
  }
  for (int id = -1; id <= 1000; ++id) {
    if (!known.contains(id)) {
      EXPECT_EQ(OutcomeOf(id).Fate, TableFate::Ignored) << id;
    }
  }
}

TEST(TableCatalogue, KeywordsStandInTheirOrderWithTheirFirstIds) {
  struct Keyword {
    Text Word;
    int FirstId;
    std::size_t Words;
  };
  constexpr Keyword kExpected[] = {
      {"ACTIVE", 101, 0},      {"ANALYSIS", 102, 0},     {"AREA", 111, 18},
      {"AUTO", 131, 26},       {"BRIDGE", 161, 6},       {"CASE", 171, 30},
      {"COMBINATION", 103, 0}, {"CONNECTIVITY", 201, 4}, {"CONSTRAINT", 211, 9},
      {"COORDINATE", 104, 0},  {"DATABASE", 221, 4},     {"FRAME", 231, 30},
      {"FUNCTION", 271, 19},   {"GENERAL", 105, 0},      {"GENERALIZED", 301, 2},
      {"GRID", 106, 0},        {"GROUPS", 311, 3},       {"HINGE", 321, 7},
      {"JOINT", 331, 13},      {"LINK", 351, 14},        {"LOAD", 107, 0},
      {"MASSES", 371, 2},      {"MATERIAL", 381, 6},     {"NAMED", 391, 11},
      {"OVERWRITES", 411, 26}, {"PREFERENCES", 441, 27}, {"PROGRAM", 108, 0},
      {"PROJECT", 109, 0},     {"REBAR", 110, 0},        {"SECTION", 471, 2},
      {"SOLID", 481, 12},      {"SUMMARY", 501, 5},      {"OPTIONS", 600, 0},
  };
  ASSERT_EQ(kKeywords.size(), std::size(kExpected));
  for (std::size_t index = 0; index < kKeywords.size(); ++index) {
    SCOPED_TRACE(kExpected[index].Word);
    EXPECT_EQ(kKeywords[index].Word, kExpected[index].Word);
    EXPECT_EQ(kKeywords[index].Id, kExpected[index].FirstId);
    EXPECT_EQ(kKeywords[index].Words.size(), kExpected[index].Words);
  }
}

TEST(TableCatalogue, KeywordWithoutWordsGivesItsIdWhateverTheRestOfTheTitle) {
  EXPECT_EQ(ClassifyTable(TitleLine("PROGRAM CONTROL"), 26), 108);
  EXPECT_EQ(ClassifyTable(TitleLine("AREA MASS"), 32), 600);
}

TEST(TableCatalogue, KeywordWithWordsGivesNothingWithoutOne) {
  EXPECT_EQ(ClassifyTable(TitleLine("AREA MASS"), 2), 111);
  EXPECT_EQ(ClassifyTable(TitleLine("AREA COLORS"), 2), 0);
}

struct Title {
  const char* Words;
  int Id;
};

void ExpectIds(std::initializer_list<Title> titles) {
  for (const Title& title : titles) {
    EXPECT_EQ(IdOf(title.Words), title.Id) << title.Words;
  }
}

TEST(TableCatalogue, TitlesOfUsualTables) {
  ExpectIds({{"ACTIVE DEGREES OF FREEDOM", 101},
             {"ANALYSIS CASE DEFINITIONS", 102},
             {"COMBINATION DEFINITIONS", 103},
             {"COORDINATE SYSTEMS", 104},
             {"GRID LINES", 106},
             {"LOAD CASE DEFINITIONS", 107},
             {"PROGRAM CONTROL", 108},
             {"CONNECTIVITY - FRAME", 202},
             {"JOINT COORDINATES", 333},
             {"JOINT SPRING ASSIGNMENTS 1 - UNCOUPLED", 342},
             {"JOINT SPRING ASSIGNMENTS 2 - COUPLED", 343},
             {"JOINT LOCAL AXES ASSIGNMENTS 1 - TYPICAL", 336},
             {"FRAME SECTION PROPERTIES 1 - GENERAL", 253},
             {"FRAME RELEASE ASSIGNMENTS 1 - GENERAL", 250},
             {"FRAME SECTION ASSIGNMENTS", 252},
             {"FRAME INSERTION POINT ASSIGNMENTS", 234},
             {"FRAME LOADS - TEMPERATURE", 238},
             {"AREA SECTION PROPERTIES", 126},
             {"MATERIAL PROPERTIES 1 - GENERAL", 381},
             {"LINK PROPERTY DEFINITIONS 02 - LINEAR", 355},
             {"LINK PROPERTY ASSIGNMENTS", 364},
             {"FUNCTION - TIME HISTORY - COSINE", 282},
             {"CASE - MODAL HISTORY 2 - LOAD ASSIGNMENTS", 182},
             {"BRIDGE LOADS 1 - LANES", 161},
             {"MASSES 1 - MASS SOURCE", 371}});
}

TEST(TableCatalogue, FirstWordOfTheListWins) {
  ExpectIds({{"AREA LOADS - UNIFORM TO FRAME", 118},
             {"AREA LOADS - UNIFORM", 119},
             {"AREA SECTION ASSIGNMENTS AND MASS", 111},
             {"AREA REFERENCE TEMPERATURES", 117},
             {"AREA MATERIAL TEMPERATURES", 117},
             {"FRAME DESIGN ASSIGNMENTS 1 - GENERAL", 233},
             {"FRAME OFFSET ASSIGNMENTS 1 - GENERAL", 243},
             {"FUNCTION - TIME HISTORY - USER PERIODIC", 288},
             {"FUNCTION - TIME HISTORY - USER", 289},
             {"SOLID SURFACE SPRING ASSIGNMENTS", 484},
             {"SOLID REFERENCE TEMPERATURES", 491},
             {"MATERIAL PROPERTIES 12", 381},
             {"GROUPS 23", 312},
             {"LINK PROPERTY DEFINITIONS 10 - PLASTIC 01", 354}});
}

TEST(TableCatalogue, IsolatedBaseIsHiddenBehindTheShorterWord) {
  EXPECT_EQ(IdOf("AUTO SEISMIC - UBC97 ISOLATED"), 136);
  EXPECT_EQ(OutcomeOf(136).Record, "T_SUB7_D");
}

TEST(TableCatalogue, GeneralizedDisplacementsAreHiddenBehindTheShorterKeyword) {
  ExpectIds({{"GENERALIZED DISPLACEMENTS", 105},
             {"GENERALIZED DISPLACEMENTS 1 - TRANSLATIONAL", 105},
             {"GENERALIZED DISPLACEMENTS 2 - ROTATIONAL", 105}});
  EXPECT_EQ(OutcomeOf(105).Fate, TableFate::Ignored);
}

TEST(TableCatalogue, DatabaseTitleAlwaysHoldsTheWordThatItsLineBeginsWith) {
  EXPECT_EQ(IdOf("DATABASE"), 224);
}

TEST(TableCatalogue, TitleWithoutAWordOfItsKeywordIsUnknown) {
  ExpectIds({{"CASE - PUSHOVER 1", 0},
             {"AREA", 0},
             {"JOINT COLORS", 0},
             {"FUNCTION - STEADY STATE - USER", 0},
             {"GROUPS", 0}});
}

TEST(TableCatalogue, TitleWithoutAKeywordIsUnknown) {
  ExpectIds({{"PAINT COLORS", 0}, {"", 0}, {"MY FRAME SECTION ASSIGNMENTS", 0}});
}

TEST(TableCatalogue, KeywordNeedsNoEndOfItsOwn) {
  ExpectIds({{"FRAMEWORK SECTION ASSIGNMENTS", 252}, {"LOADING", 107}, {"AREAMASS", 111}});
}

TEST(TableCatalogue, KeywordStandsAtTheTenthCharacterOfTheLineAlone) {
  EXPECT_EQ(IdOfTitle("TABLE:  \"PROGRAM CONTROL\""), 108);
  EXPECT_EQ(IdOfTitle("TABLE    PROGRAM CONTROL"), 108);
  EXPECT_EQ(IdOfTitle("TABLE: \"PROGRAM CONTROL\""), 0);
  EXPECT_EQ(IdOfTitle("TABLE:   \"PROGRAM CONTROL\""), 0);
  EXPECT_EQ(IdOfTitle("TABLE"), 0);
}

TEST(TableCatalogue, KeywordThatStandsEarlierInTheLineAsWellDoesNotCount) {
  EXPECT_EQ(IdOfTitle("TABLEGRIDGRID LINES"), 0);
  EXPECT_EQ(IdOfTitle("TABLEGRIDLOAD CASES"), 107);
}

TEST(TableCatalogue, KeywordThatStandsLaterInTheLineAsWellCounts) {
  EXPECT_EQ(IdOf("LOAD LOAD LOAD"), 107);
  EXPECT_EQ(IdOf("AREA MASS OF AN AREA"), 111);
}

TEST(SourceTables, AreTheStoredTablesAndTheElevenThatNoTitleFills) {
  std::vector<SourceTable> expected;
  for (const Table& table : kTables) {
    if (table.Buckets > 0) {
      expected.push_back({table.Outcome, table.Buckets});
    }
  }
  ASSERT_EQ(expected.size(), 147U);
  for (const Text name : {"T_ALAD_D", "T_ALTP_D", "T_ASMD_D", "T_SIBC_D", "T_SLAA_D", "T_SLAT_D",
                          "T_SLLP_D", "T_SLLS_D", "T_SLSA_D", "T_SMFA_D", "T_SMJA_D"}) {
    expected.push_back({name, 17});
  }
  ASSERT_EQ(SourceTables().size(), expected.size());
  for (const SourceTable& table : expected) {
    const auto named = [&](const SourceTable& other) { return other.Name == table.Name; };
    EXPECT_EQ(std::ranges::count_if(SourceTables(), named), 1) << table.Name;
    EXPECT_EQ(BucketsOfSourceTable(table.Name), table.Buckets) << table.Name;
  }
}

TEST(SourceTables, OfARecordThatIsNotAmongThemHaveNoBuckets) {
  EXPECT_THROW(BucketsOfSourceTable("T_NONE_D"), std::logic_error);
}

}  // namespace
}  // namespace s2k2ngt
