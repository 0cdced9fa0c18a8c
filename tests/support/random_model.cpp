#include "support/random_model.h"

#include "common/text.h"
#include "run/row_parsers.h"
#include "source/table_catalogue.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <random>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using s2k2ngt::KeyUse;
using s2k2ngt::TableFate;
using s2k2ngt::TableOutcome;
using Text = std::string_view;

// What values are made of: words with "|" between them, of which one is taken, or one of these.
// The labels of a family, and those that name the row's own element one after the other.
constexpr Text kJoint = "%joint";
// one of the first, of which there are then several rows
constexpr Text kFewJoints = "%few joint";
constexpr Text kFrame = "%frame";
constexpr Text kArea = "%area";
constexpr Text kSolid = "%solid";
constexpr Text kLink = "%link";
constexpr Text kOwnJoint = "%own joint";
constexpr Text kOwnFrame = "%own frame";
constexpr Text kOwnArea = "%own area";
constexpr Text kOwnSolid = "%own solid";
constexpr Text kOwnLink = "%own link";
constexpr Text kNumber = "%number";
// "&" and a key: a word that goes with the value of that key. "=" and a key: mostly the same value.

constexpr Text kFlag = "Yes|No";
constexpr Text kMaterials = "M1|M2|M3|M4|M5";
constexpr Text kSections = "S1|S2|S3|S4|S5|S6|NP1|NP2|NP3|X9";
constexpr Text kAreaSections = "T1|T2|T3|T4|T5";
constexpr Text kSolidProperties = "SP1|SP2|SP3";
constexpr Text kProperties = "P1|P2|P3|P4|P5|P6|P7|P8|P9";
constexpr Text kLoads = "DEAD|LIVE|W1|W2|W3|Q1|Q2|Q3|SNOW LOAD|X1";
constexpr Text kPatterns = "SUN|RAIN|None";
constexpr Text kModalHistories = "H1|H2";
constexpr Text kDirectHistories = "T1|T2";
constexpr Text kSystems = "GLOBAL|GLOBAL|Local|CSYS1";
constexpr Text kDirections = "X|Y|Z|-X|-Y|-Z";
constexpr Text kOptions = "Coord Dir|Two Joints|User Vector";
constexpr Text kPlanes = "12|13|21|23|31|32";
constexpr Text kSpectra = "SP1|SP2|SP3";
constexpr Text kTimeFunctions = "TH1|TH2|TH3";
constexpr Text kVehicles = "V1|V2|V3|V4";
constexpr Text kLoadTypes = "Load case|Load case|Accel|LoadPattern|Link";

struct KeyValues {
  Text Record;  // the beginning of the names of the records that are meant
  Text Key;
  Text Values;
};

/// The first that fits a record and a key holds; a key that is not here has a number.
constexpr std::array kKeyValues = std::to_array<KeyValues>({
    {"units", "CurrUnits", "KN, m, C|Ton, m, C|lb, in, F|N, mm, C|Kip, ft, F|kgf, cm, K"},
    {"coordinate", "Type", "Cartesian"},
    {"active", "UX", "Yes|Yes|No"},
    {"active", "UZ", "Yes|Yes|No"},

    {"T_JTCD_D", "Joint", kOwnJoint},
    {"T_JTTP_D", "Joint", kFewJoints},
    {"T_JTAV_D", "Joint", kFewJoints},
    {"T_JTLF_D", "Joint", kFewJoints},
    {"T_JTMA_D", "Joint", kFewJoints},
    {"T_JTCA_D", "Type", "&Constraint"},
    {"T_JTCA_D", "Constraint", "BM1|BM2|BM3|BY1|BY2|BY3|DI1|DI2|EQ1|LN1|PL1|RD1|WD1|LC1"},
    {"T_JTRA_D", "U1", kFlag},
    {"T_JTRA_D", "U2", kFlag},
    {"T_JTRA_D", "U3", kFlag},
    {"T_JTRA_D", "R1", kFlag},
    {"T_JTRA_D", "R2", kFlag},
    {"T_JTRA_D", "R3", kFlag},
    {"", "Joint", kJoint},
    {"", "CoordType", "Cartesian"},
    {"", "SpecialJt", kFlag},
    {"", "AxVecJt1", kJoint},
    {"", "AxVecJt2", kJoint},
    {"", "PlVecJt1", kJoint},
    {"", "PlVecJt2", kJoint},
    {"", "AxOption1", kOptions},
    {"", "PlOption1", kOptions},
    {"", "AxCoordDir", kDirections},
    {"", "CoordDir1", kDirections},
    {"", "CoordDir2", kDirections},
    {"", "LocalPlane", kPlanes},
    {"", "LocalPlan", kPlanes},
    {"", "AdvanceAxes", kFlag},
    {"", "CoordSys", kSystems},
    {"T_CDBM_D", "Name", "BM1|BM2|BM3"},
    {"T_CDBD_D", "Name", "BY1|BY2|BY3"},
    {"T_CDDP_D", "Name", "DI1|DI2"},
    {"T_CDEL_D", "Name", "EQ1"},
    {"T_CDLN_D", "Name", "LN1"},
    {"T_CDPL_D", "Name", "PL1"},
    {"T_CDRD_D", "Name", "RD1"},
    {"T_CDWL_D", "Name", "WD1"},
    {"", "Axis", "X|Y|Z|AutoAxis"},
    {"", "UX", kFlag},
    {"", "UY", kFlag},
    {"", "UZ", kFlag},
    {"", "RX", kFlag},
    {"", "RY", kFlag},
    {"", "RZ", kFlag},

    {"T_CNFR_D", "Frame", kOwnFrame},
    {"T_FRSC_D", "Frame", kOwnFrame},
    {"T_FRPT_D", "Frame", kOwnFrame},
    {"T_FRLM_D", "Frame", kOwnFrame},
    {"T_FRGN_D", "Frame", kOwnFrame},
    {"T_FRPF_D", "Frame", kOwnFrame},
    {"", "Frame", kFrame},
    {"", "JointI", kJoint},
    {"", "JointJ", kJoint},
    {"", "AnalSect", kSections},
    {"T_FRSG_D", "SectionName", kSections},
    {"T_FSNP_D", "SectionName", "NP1|NP2|NP3|S1"},
    {"", "StartSect", kSections},
    {"", "EndSect", kSections},
    {"", "NumSegments", "1|1|2|3"},
    {"", "SegmentNum", "1|1|2|3"},
    {"", "EI33Var", "Linear|Prabolic|Cubic|Odd"},
    {"", "EI22Var", "Linear|Prabolic|Cubic|Odd"},
    {"", "Shape", "&SectionName"},
    {"T_FRSG_D", "Area", kNumber},
    {"T_FRPF_D", "PI", kNumber},
    {"", "PI", kFlag},
    {"", "PJ", kFlag},
    {"", "V2I", kFlag},
    {"", "V3I", kFlag},
    {"", "V2J", kFlag},
    {"", "TI", kFlag},
    {"T_FRGN_D", "M2I", kFlag},
    {"T_FRGN_D", "M3I", kFlag},
    {"T_FRGN_D", "M2J", kFlag},
    {"T_FRGN_D", "M3J", kFlag},
    {"", "PartialFix", kFlag},
    {"", "CardinalPt",
     "1 (Bottom Left)|2 (Bottom Center)|3 (Bottom Right)|4 (Middle Left)|5 (Middle Center)|"
     "6 (Middle Right)|7 (Top Left)|8 (Top Center)|9 (Top Right)|10 (Centroid)|"
     "11 (Shear Center)|Odd"},
    {"T_MTGN_D", "Type", "Isotropic|Isotropic|Orthotropic|Anisotropic|Uniaxial"},
    {"T_MTGN_D", "DesignType", "Steel|Concrete|None"},
    {"", "Material", kMaterials},
    {"", "Direction", "Local 1|X Proj|Y Proj|Z Proj|Local 2"},
    {"T_FRSA_D", "Dir", "1|2|3|4"},

    {"T_CNAR_D", "Area", kOwnArea},
    {"T_ASCA_D", "Area", kOwnArea},
    {"", "Area", kArea},
    {"T_CNSL_D", "Solid", kOwnSolid},
    {"T_SLPA_D", "Solid", kOwnSolid},
    {"", "Solid", kSolid},
    {"", "Joint1", kJoint},
    {"", "Joint2", kJoint},
    {"", "Joint3", kJoint},
    {"", "Joint4", kJoint},
    {"", "Joint5", kJoint},
    {"", "Joint6", kJoint},
    {"", "Joint7", kJoint},
    {"", "Joint8", kJoint},
    {"", "Section", kAreaSections},
    {"", "AreaType", "Shell|Shell|Shell|Plane|Plane|Asolid|Odd"},
    {"T_ASPR_D", "Type",
     "Shell-Thick|Shell-Thin|Thick|Plate-Thin|Membrane|Plane-Stress|Plane-Strain|Odd"},
    {"", "Face", "5|6|5|6|1"},
    {"T_ASPA_D", "Dir", "1|2|3|4"},
    {"", "SolidProp", kSolidProperties},

    {"T_CNLK_D", "Link", kOwnLink},
    {"T_SMLA_D", "Link", kOwnLink},
    {"T_LP", "Link", kProperties},
    {"", "Link", kLink},
    {"", "LinkProp", kProperties},
    {"T_SMLA_D", "LinkType", "&LinkProp"},
    {"T_LPGN_D", "LinkType", "&Link"},
    {"", "LinkJoint", "TwoJoint|TwoJoint|TwoJoint|SingleJoint"},
    {"", "LocalAxes", kFlag},
    {"", "DOF", "U1|U2|U3|R1|R2|R3|R4"},
    {"", "NonLinear", "Yes|Yes|No"},

    {"T_LDCS_D", "DesignType", "&LoadCase"},
    {"T_LDCS_D", "AutoLoad", "&LoadCase"},
    {"", "SelfWtMult", "0|0|0|1|-1"},
    {"T_SUB7_D", "LoadCase", "Q1|Q2|Q3"},
    {"T_SNBC_D", "LoadCase", "Q1|Q2|Q3"},
    {"T_W", "LoadCase", "W1|W2|W3"},
    {"", "LoadCase", kLoads},
    {"T_FRLT_D", "Type", "Temperature|Gradient2|Gradient3"},
    {"T_ALTM_D", "Type", "Temperature|Gradient3"},
    {"T_FRL", "Type", "Force|Force|Moment|Odd"},
    {"T_FRL", "Dir", "X|Y|Z|X Proj|Y Proj|Z Proj|Gravity|1|2|3|4"},
    {"T_AL", "Dir", "X|Y|Z|X Proj|Gravity|Grav Proj|1|3"},
    {"", "DistType", "RelDist|AbsDist|RelDist|Odd"},
    {"", "JtPattern", kPatterns},
    {"", "Pattern", kPatterns},
    {"T_S", "Dir", "X|Y"},
    {"", "PeriodCalc", "User|Prog Calc"},
    {"", "SoilType", "SC|SD|S|SE1"},
    {"", "SourceType", "A|B"},
    {"", "Exposure", "B|C|D"},

    {"T_ANAL_D", "Case", "DEAD|LIVE|W1|W2|W3|Q1|Q2|Q3|SNOW LOAD|MODAL|RS1|H1|H2|T1|T2|MV1|BK1"},
    {"T_ANAL_D", "Type", "&Case"},
    {"", "InitialCond", "Zero|Zero|DEAD"},
    {"T_STC1_D", "Case", kLoads},
    {"T_STC1_D", "LoadName", "=Case"},
    {"T_BKL", "Case", "BK1|BK2"},
    {"T_BKL2_D", "LoadType", "Load case|Load case|Load case|Accel"},
    {"T_MDL", "Case", "MODAL|RITZ1"},
    {"", "ModeType", "Eigen|Ritz"},
    {"T_MDL", "LoadName", "DEAD|LIVE|Accel UX|Accel UY|Accel UZ"},
    {"", "MaxCycles", "0|1|3"},
    {"", "MaxNumModes", "3|12|20"},
    {"T_MDH", "Case", kModalHistories},
    {"T_DRH", "Case", kDirectHistories},
    {"T_MDH2_D", "LoadName", "DEAD|LIVE|Accel U1|Accel U2|Accel U3"},
    {"T_DRH2_D", "LoadName", "DEAD|LIVE|Accel U1|Accel U2|Accel U3"},
    {"", "LoadType", kLoadTypes},
    {"T_RSP2_D", "LoadName", "U1|U2|U3"},
    {"T_RSP2_D", "Function", kSpectra},
    {"T_RSP", "Case", "RS1|RS2"},
    {"", "ModalCombo", "CQC|SRSS|ABS|GMC"},
    {"", "LoadName", kLoads},
    {"", "Function", kTimeFunctions},
    {"", "HistoryType", "Transient|Periodic"},
    {"", "DampingType", "Constant|Pro-Direct|Pro-Period|Pro-Freq|Interpolated"},
    {"", "SpecifyType", "Direct|Period|Frequency|Direct|Odd"},
    {"", "Mode", "1|2|3"},
    {"", "IntMethod", "Newmark|Newmark|Newmark|Wilson"},
    {"", "MassFrom", "Elements|Loads|Elements and Loads"},
    {"T_FTH", "Name", kTimeFunctions},
    {"T_F", "Name", kSpectra},
    {"", "ComboName", "C1|C2|C3|C4"},
    {"", "ComboType", "Linear Add|Envelope|Abs Add|SRSS|Odd"},
    {"", "CaseType",
     "Linear Static|NonLin Static|Response Spectrum|Linear Modal Hist|NonLin Modal Hist|"
     "Moving Load|Response Combo|Linear Direct Hist"},
    {"", "CaseName", "DEAD|LIVE|W1|Q1|DEAD|LIVE|RS1"},

    {"T_MVL", "Case", "MV1|MV2|MV3"},
    {"T_MVL", "AssignNum", "1|2|3"},
    {"", "NumberLanes", "1|2|3|4"},
    {"", "MinLoaded", "0|1"},
    {"", "MaxLoaded", "0|1|2"},
    {"", "LaneName", "LANE1|LANE2|LANE3"},
    {"", "Lane", "LANE1|LANE2|LANE3|All Lanes"},
    {"T_BLSV_D", "Type", "HSn-44|Hn-44L|HS-n|UICn|HL-93K|HL-93M|HL-93S|AML|Cooper E 80|RL|P5|n5"},
    {"T_BLSV_D", "ScaleFactor", "15|20|25|40"},
    {"", "VehName", kVehicles},
    {"", "VehClass", "MV1|MV2|C1"},
    {"", "TrailUnif", "0|3.5"},
    {"T_BLBR_D", "Displs", "ALL|None|GROUP1"},
    {"T_BLBR_D", "Reactions", "ALL|None|GROUP1"},
    {"T_BLBR_D", "Frames", "ALL|None|GROUP1"},
    {"T_BLBR_D", "CalcMethod", "EXACT|QUICK"},
    {"", "Correspond", kFlag},
});

struct MatchingValues {
  Text Key;
  Text Beginning;  // of the value of the key that it goes with
  Text Values;
};

constexpr std::array kMatchingValues = std::to_array<MatchingValues>({
    {"Type", "BM", "Beam"},
    {"Type", "BY", "Body"},
    {"Type", "DI", "Diaphragm"},
    {"Type", "EQ", "Equal"},
    {"Type", "LN", "Line"},
    {"Type", "PL", "Plate"},
    {"Type", "RD", "Rod"},
    {"Type", "WD", "Weld"},
    {"Type", "LC", "Local"},
    {"Type", "MODAL", "LinModal"},
    {"Type", "RS", "LinRespSpec"},
    {"Type", "H", "LinModHist|NonModHist"},
    {"Type", "T", "LinDirHis|NonDirHist"},
    {"Type", "MV", "LinMoving"},
    {"Type", "BK", "LinBuckling"},
    {"Type", "", "LinStatic"},
    {"Shape", "NP", "Nonprismatic"},
    {"Shape", "",
     "I/Wide Flange|Channel|Tee|Angle|Double Angle|Box/Tube|Pipe|Rectangular|Circle|General|Odd"},
    {"LinkType", "P1", "Linear"},
    {"LinkType", "P2", "Damper"},
    {"LinkType", "P3", "Gap"},
    {"LinkType", "P4", "Hook"},
    {"LinkType", "P5", "Rubber Isolator"},
    {"LinkType", "P6", "Friction Isolator"},
    {"LinkType", "P7", "Plastic (Wen)"},
    {"LinkType", "P8", "MultiLinear"},
    {"LinkType", "", "Plastic (Kinematic)"},
    {"DesignType", "DEAD", "DEAD"},
    {"DesignType", "LIVE", "LIVE"},
    {"DesignType", "W", "WIND"},
    {"DesignType", "Q", "QUAKE"},
    {"DesignType", "SNOW", "SNOW"},
    {"DesignType", "", "OTHER"},
    {"AutoLoad", "W", "UBC 97|UBC 97|UBC 97|ASCE 7-98|NBCC 95|BOCA 96|None"},
    {"AutoLoad", "Q", "UBC97|UBC97|UBC97|NBCC95|IBC2000|None"},
    {"AutoLoad", "", "None"},
});

struct Column {
  Text Key;
  Text Values;
  bool IsRead = false;
};

/// A table that a model may have. One that is refused has no columns.
struct TitledTable {
  std::string Title;
  TableOutcome Outcome;
  std::vector<Column> Columns;
};

Text ValuesOf(Text record, Text key) {
  const auto* const found = std::ranges::find_if(kKeyValues, [&](const KeyValues& values) {
    return values.Key == key && record.starts_with(values.Record);
  });
  return found == kKeyValues.end() ? kNumber : found->Values;
}

std::vector<Column> ColumnsOf(Text record) {
  if (record == s2k2ngt::kUnits) {
    return {{"CurrUnits", ValuesOf(record, "CurrUnits"), true}};
  }
  std::vector<Column> columns;
  const auto use = s2k2ngt::UseOfTable(record);
  for (const KeyUse& key : use ? use->Keys : std::span<const KeyUse>()) {
    // without the sign behind it, and the blank that some have before it
    const Text name = s2k2ngt::TrimLeft(key.Name.substr(0, key.Name.size() - 1));
    if (std::ranges::find(columns, name, &Column::Key) == columns.end()) {
      columns.push_back({name, ValuesOf(record, name), key.IsRead});
    }
  }
  return columns;
}

std::vector<TitledTable> ListTables() {
  std::vector<TitledTable> tables;
  const auto add = [&](const std::string& title, int id, const TableOutcome& outcome) {
    // Of some words another stands before them that they hold.
    const bool isMet = s2k2ngt::IdOfTitle("TABLE:  \"" + s2k2ngt::ToUpper(title)) == id;
    std::vector<Column> columns = ColumnsOf(outcome.Record);
    if (isMet && (outcome.Fate == TableFate::Refused || !columns.empty())) {
      tables.push_back({title, outcome, std::move(columns)});
    }
  };
  for (const s2k2ngt::TableKeyword& keyword : s2k2ngt::kKeywords) {
    const std::string title(keyword.Word);
    add(title, keyword.Id, keyword.Outcome);
    int id = keyword.Id;
    for (const s2k2ngt::TableWord& word : keyword.Words) {
      add(title + " - " + std::string(word.Word), id++, word.Outcome);
    }
  }
  return tables;
}

struct Pair {
  Text Key;
  std::string Value;
};

/// A line is cut behind 498 characters; longer rows go on on another.
constexpr std::size_t kLongestLine = 300;

class ModelWriter {
 public:
  explicit ModelWriter(std::uint32_t seed) : m_Random(seed) {
    m_OddJoints = OneIn(4);
    m_OddElements = OneIn(6);
    m_SharedLabels = OneIn(4);
    m_Shown = 1 + Below(4);
  }

  std::string Write() {
    m_Text = OneIn(30) ? "A line that is not a table\n" : "File model.s2k was saved\n";
    static const std::vector<TitledTable> tables = ListTables();
    for (const TitledTable& table : tables) {
      MayWrite(table);
    }
    m_Text += "END TABLE DATA\n";
    return std::move(m_Text);
  }

 private:
  // Distributions of the standard library differ between machines.
  std::uint32_t Below(std::size_t count) {
    return static_cast<std::uint32_t>(m_Random() % static_cast<std::uint32_t>(count));
  }
  bool OneIn(std::size_t count) { return Below(count) == 0; }

  Text OneOf(Text words) {
    const auto count = static_cast<std::size_t>(std::ranges::count(words, '|')) + 1;
    for (std::uint32_t skipped = Below(count); skipped > 0; --skipped) {
      words.remove_prefix(words.find('|') + 1);
    }
    return words.substr(0, words.find('|'));
  }

  /// Writes a table as often as models of this kind have it.
  void MayWrite(const TitledTable& table) {
    const bool isRefused = table.Outcome.Fate == TableFate::Refused;
    if (isRefused ? OneIn(20) : IsWanted(table.Outcome.Record)) {
      WriteTable(table);
      if (OneIn(8)) {
        WriteTable(table);
      }
    }
  }

  bool IsWanted(Text record) {
    constexpr std::array<Text, 30> kCore = {
        "T_JTCD_D", "T_CNFR_D", "T_FRSC_D", "T_FRSG_D", "T_MTGN_D", "T_CNAR_D",
        "T_LDCS_D", "T_STC1_D", "T_ANAL_D", "T_ASPR_D", "T_FTHU_D", "T_FSNP_D",
        "T_MDH1_D", "T_MDH2_D", "T_DRH1_D", "T_DRH2_D", "T_DRH3_D", "T_COMB_D",
        "T_BLBR_D", "T_WUB7_D", "T_WAS8_D", "T_WNBC_D", "T_SUB7_D", "T_SNBC_D",
        "T_JTTP_D", "T_JTAV_D", "T_JTLF_D", "T_JTMA_D", "T_JTCA_D", "T_CDDP_D"};
    // With a function from a file, those of the user's own are not looked at.
    constexpr std::array<Text, 2> kRare = {"T_FTHF_D", "T_ALGR_D"};
    if (std::ranges::find(kCore, record) != kCore.end()) {
      return !OneIn(10);
    }
    if (std::ranges::find(kRare, record) != kRare.end()) {
      return OneIn(8);
    }
    return Below(8) < m_Shown + 1;
  }

  void WriteTable(const TitledTable& table) {
    m_Text += "TABLE:  \"" + table.Title + "\"\n";
    m_InOrder = !OneIn(4);
    const std::uint32_t count = table.Outcome.Buckets == 0 ? 1
                                                           : Below(OneIn(8)   ? 80
                                                                   : OneIn(3) ? 30
                                                                              : 12);
    for (m_Row = 1; m_Row <= count; ++m_Row) {
      WriteRow(table.Columns);
    }
    m_Text += " \n";
  }

  void WriteRow(const std::vector<Column>& columns) {
    std::vector<Pair> pairs;
    for (const Column& column : columns) {
      if (!OneIn(column.IsRead ? 16 : 2)) {
        pairs.push_back({column.Key, ValueOf(column.Values)});
      }
    }
    for (Pair& pair : pairs) {
      if (pair.Value.starts_with('&') || pair.Value.starts_with('=')) {
        pair.Value = MatchingValue(pair, pairs);
      }
    }
    if (OneIn(12)) {
      for (std::size_t left = pairs.size(); left > 1; --left) {
        std::swap(pairs[left - 1], pairs[Below(left)]);
      }
    }
    WritePairs(pairs);
  }

  void WritePairs(const std::vector<Pair>& pairs) {
    std::string line = "  ";
    for (const Pair& pair : pairs) {
      if (line.size() > kLongestLine || OneIn(300)) {
        m_Text += line + "   _\n";
        line = "       ";
      }
      const bool isQuoted = pair.Value.find_first_of(" ,") != std::string::npos || OneIn(100);
      const std::string quote = isQuoted ? "\"" : "";
      line += " " + std::string(OneIn(50) ? "" : "  ") + std::string(pair.Key) + "=" + quote +
              pair.Value + quote;
    }
    m_Text += line + "\n";
  }

  std::string ValueOf(Text values) {
    if (values == kNumber) {
      return Number();
    }
    if (values.starts_with('%')) {
      return Label(values);
    }
    if (OneIn(200)) {
      return values == "Cartesian" ? "Cylindrical" : "None";
    }
    return std::string(OneOf(values));
  }

  std::string MatchingValue(const Pair& pair, const std::vector<Pair>& pairs) {
    const auto other = std::ranges::find(pairs, Text(pair.Value).substr(1), &Pair::Key);
    const Text otherValue = other == pairs.end() ? Text() : Text(other->Value);
    const bool isOdd = OneIn(8);
    if (pair.Value.starts_with('=')) {
      return std::string(isOdd ? OneOf(kLoads) : otherValue);
    }
    const auto* const found =
        std::ranges::find_if(kMatchingValues, [&](const MatchingValues& values) {
          return values.Key == pair.Key && (isOdd || otherValue.starts_with(values.Beginning));
        });
    return std::string(OneOf(found->Values));
  }

  std::string Number() {
    constexpr std::array<Text, 8> kUsual = {"0", "0", "1", "-1", "0.5", "1E-05", "2.5E+07", "90"};
    if (OneIn(2)) {
      return std::string(kUsual[Below(kUsual.size())]);
    }
    // One after the other, as compilers differ in the order of operands.
    std::string number = OneIn(5) ? "-" : "";
    number += std::to_string(Below(40));
    number += "." + std::to_string(1 + Below(99));
    return number;
  }

  std::string Label(Text family) {
    constexpr Text kOwn = "%own ";
    std::uint32_t number = 1 + Below(family == kFewJoints ? 3 : 12);
    if (family.starts_with(kOwn)) {
      number = m_InOrder && !OneIn(16) ? m_Row : number;
      family.remove_prefix(kOwn.size() - 1);
    } else {
      family.remove_prefix(1);
    }
    if (family.ends_with("joint")) {
      return (m_OddJoints && number % 5 == 1 ? "A" : "") + std::to_string(number);
    }
    if (!m_SharedLabels) {
      number += family.ends_with("area") ? 100 : family.ends_with("solid") ? 200 : 0;
    }
    return (m_OddElements && number % 5 == 2 ? "E" : "") + std::to_string(number);
  }

  std::mt19937 m_Random;
  // what sets the model apart from others
  bool m_OddJoints = false;
  bool m_OddElements = false;
  bool m_SharedLabels = false;
  std::uint32_t m_Shown = 0;
  // the table in hand
  Text m_Record;
  bool m_InOrder = true;
  std::uint32_t m_Row = 0;
  std::string m_Text;
};

}  // namespace

std::string RandomModel(std::uint32_t seed) { return ModelWriter(seed).Write(); }
