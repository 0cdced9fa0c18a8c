#include "platform/message_catalogue.h"
#include "support/conversion_run.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

ConversionRun ConvertStandard(const std::string& rows) {
  return Convert("TABLE:  \"BRIDGE LOADS 2 - VEHICLES - STANDARD\"\n" + rows);
}

std::string Row(std::string_view type, std::string_view further) {
  return "   VehName=TRUCK   Type=\"" + std::string(type) + "\"   " + std::string(further) + "\n";
}

constexpr const char* kAml = "   VehName=OTHER   Type=AML\n";

/// Runs with the message catalogue loaded.
class LostVehicles : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(s2k2ngt::CMsgDll::Load());
    m_Text = s2k2ngt::LoadStr("IDS_S2KV8_NOCONVERT_VEHICLE");
    ASSERT_NE(m_Text.find("%s"), std::string::npos);
  }
  void TearDown() override { s2k2ngt::CMsgDll::Free(); }

  /// The text of the message about these vehicles.
  std::string TextWith(const std::string& names) const {
    const std::size_t place = m_Text.find("%s");
    return m_Text.substr(0, place) + names + m_Text.substr(place + 2);
  }

 private:
  std::string m_Text;
};

TEST(Vehicles, StandardAndGeneralVehiclesGiveTheWholeSection) {
  // Standard vehicles have keys 1 and 2 in the order of rows 2, 1, the general one has key 3; keys
  // 1, 2, 3 are written in the order 3, 2, 1.
  const ConversionRun run = Convert(R"(
TABLE:  "BRIDGE LOADS 2 - VEHICLES - STANDARD"
   VehName=HS20   Type=HSn-44   ScaleFactor=20   DynAllow=0.33
   VehName=TANDEM   Type=HL-93M   ScaleFactor=1   DynAllow=0.33

TABLE:  "BRIDGE LOADS 3 - VEHICLES - GENERAL 1"
   VehName=LORRY   SupprotMom=Yes   IntSupport=Yes   OtherResp=Yes   NumInter=9   LeadUnif=3   TrailUnif=0   FirstAxle=35   AxleMom=80   AxleOther=115

TABLE:  "BRIDGE LOADS 4 - VEHICLES - GENERAL 2 - INTERMEDIATE"
   VehName=LORRY   InterUnif=9.3   InterAxle=145.25   InterMinD=4.3   InterMaxD=9.1
   VehName=LORRY   InterUnif=9.5   InterAxle=130   InterMinD=4.4   InterMaxD=9.2
   VehName=LORRY   InterUnif=9.7   InterAxle=120   InterMinD=4.5   InterMaxD=9.4
)");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, IsEmpty());
  EXPECT_EQ(run.Body(),
            "*VEHICLE    ; Vehicles\n"
            "; NAME=NAME, 1\n"
            "; NAME=NAME, 2, bTRAIN, W(W1), PL(D1), PLM(W2), PLV(D2)  ; line 1\n"
            ";      LOAD1, DIST1, LOAD2, DIST2, ...                   ; from line 2\n"
            "\t\tNAME=LORRY,  2,    NO,   9.3,   115,    80,   115\n"
            "\t\t\t145.25,   4.4,  130,   9.2\n"
            "\tNAME=HS20-44,  1\n"
            "\tNAME=HL-93TDM,  1\n"
            "\n"
            "\n\n");
}

TEST(Vehicles, TypeGivesTheNameOfTheTarget) {
  const struct {
    const char* Type;
    const char* Further;
    const char* Name;
  } kRows[] = {
      // the known names, as far as a number can stand in them
      {"Hn-44", "ScaleFactor=15", "H15-44"},
      {"HSn-44", "ScaleFactor=15", "HS15-44"},
      {"Hn-44L", "ScaleFactor=15", "H15-44L"},
      {"HSn-44L", "ScaleFactor=15", "HS15-44L"},
      {"Hn-44", "ScaleFactor=20", "H20-44"},
      {"HSn-44", "ScaleFactor=20", "HS20-44"},
      {"Hn-44L", "ScaleFactor=20", "H20-44L"},
      {"HSn-44L", "ScaleFactor=20", "HS20-44L"},
      {"HS-n", "ScaleFactor=25", "HS-25"},
      {"HS-nL", "ScaleFactor=25", "HS-25L"},
      // the whole of the scale factor
      {"HSn-44", "ScaleFactor=20.9", "HS20-44"},
      {"HSn-44", "ScaleFactor=2e1", "HS20-44"},
      // types without a number
      {"AML", "ScaleFactor=2", "AML"},
      {"HL-93K", "ScaleFactor=1", "HL-93TRK"},
      {"HL-93M", "", "HL-93TDM"},
      {"Cooper E 80", "DynAllow=0.3", "L-25"},
      // and any other as it stands
      {"HS30-44", "ScaleFactor=20", "HS30-44"},
      {"hl-93k", "", "hl-93k"},
      {"HL-93KM", "", "HL-93KM"},
      {"COOPER E 80", "", "COOPER E 80"},
      {"HL", "", "HL"},
      {"rl", "", "rl"},
      {"HL-93S2", "", "HL-93S2"},
      {"HSN-44", "ScaleFactor=20", "HSN-44"},
      {"", "", ""},
      // only the first "n" counts, and not in front
      {"n-44", "ScaleFactor=20", "n-44"},
      {"nHSn-44", "ScaleFactor=20", "nHSn-44"},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.Type);
    const ConversionRun run = ConvertStandard(Row(row.Type, row.Further));
    EXPECT_THAT(run.Lines("*VEHICLE"), ElementsAre("\tNAME=" + std::string(row.Name) + ",  1"));
    EXPECT_THAT(run.Messages, IsEmpty());
  }
}

TEST_F(LostVehicles, RefusedTypeMakesNoVehicleAndStandsInTheMessage) {
  const struct {
    const char* Type;
    const char* Further;
    const char* Named;
  } kRows[] = {
      {"HSn-44", "ScaleFactor=30", "HS30-44"},
      {"HSn-44", "ScaleFactor=2000000000", "HS2000000000-44"},
      {"HSn-44", "ScaleFactor=3e9", "HS2147483647-44"},
      {"HSn-44", "", "HS0-44"},
      {"HSn-44", "ScaleFactor=twenty", "HS0-44"},
      {"Hn-44", "ScaleFactor=25", "H25-44"},
      {"HS-n", "ScaleFactor=20", "HS-20"},
      {"hsn-44", "ScaleFactor=20", "hs20-44"},
      {"HSn-44n", "ScaleFactor=20", "HS20-44n"},
      {"HSnn", "ScaleFactor=20", "HS20n"},
      {"AMLn", "ScaleFactor=1", "AML1"},
      {"UICn", "ScaleFactor=80", "UIC80"},
      {"Train", "ScaleFactor=1", "Trai1"},
      {"Hn%s%d", "ScaleFactor=20", "H20%s%d"},
      {"RL", "ScaleFactor=20", "RL"},
      {"HL-93S", "ScaleFactor=1", "HL-93S"},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.Named);
    const ConversionRun run = ConvertStandard(Row(row.Type, row.Further) + kAml);
    EXPECT_EQ(run.Result, 0);
    EXPECT_THAT(run.Lines("*VEHICLE"), ElementsAre("\tNAME=AML,  1"));
    EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_NOCONVERT_VEHICLE"));
    EXPECT_THAT(run.MessageTexts, ElementsAre(TextWith(row.Named)));
  }
}

TEST_F(LostVehicles, AllStandInOneMessageInTheOrderOfTheWalk) {
  // Rows 1 to 5 are walked in the order 5, 2, 4, 1, 3.
  const ConversionRun run = ConvertStandard(
      "   VehName=A   Type=RL\n"
      "   VehName=B   Type=HSn-44   ScaleFactor=30\n"
      "   VehName=C   Type=HL-93S\n"
      "   VehName=D   Type=HL-93K\n"
      "   VehName=E   Type=RL\n");
  EXPECT_THAT(run.Lines("*VEHICLE"), ElementsAre("\tNAME=HL-93TRK,  1"));
  EXPECT_THAT(run.MessageTexts, ElementsAre(TextWith("RL, HS30-44, RL, HL-93S")));
}

TEST_F(LostVehicles, WithoutAnyOtherWriteAndShowNothing) {
  const ConversionRun run = ConvertStandard(
      "   VehName=A   Type=RL\n"
      "   VehName=B   Type=UICn   ScaleFactor=80\n");
  EXPECT_EQ(run.Result, 0);
  EXPECT_EQ(run.Body(), "\n\n");
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST_F(LostVehicles, MessageIsShownWithAGeneralVehicleAlone) {
  const ConversionRun run = Convert(R"(
TABLE:  "BRIDGE LOADS 2 - VEHICLES - STANDARD"
   VehName=A   Type=RL

TABLE:  "BRIDGE LOADS 3 - VEHICLES - GENERAL 1"
   VehName=G

TABLE:  "BRIDGE LOADS 4 - VEHICLES - GENERAL 2 - INTERMEDIATE"
   VehName=G
)");
  EXPECT_THAT(run.Lines("*VEHICLE"),
              ElementsAre("\t\tNAME=G,  2,    NO,     0,     0,     0,     0"));
  EXPECT_THAT(run.MessageTexts, ElementsAre(TextWith("RL")));
}

TEST(Vehicles, RefusedVehicleTakesNoKey) {
  // Rows are walked in the order 2, 4, 1, 3 and vehicles 1, 2, 3 written in the order 3, 2, 1.
  const ConversionRun run = ConvertStandard(
      "   VehName=A   Type=P1\n"
      "   VehName=B   Type=P2\n"
      "   VehName=C   Type=P3\n"
      "   VehName=D   Type=RL\n");
  EXPECT_THAT(run.Lines("*VEHICLE"),
              ElementsAre("\tNAME=P3,  1", "\tNAME=P1,  1", "\tNAME=P2,  1"));
}

/// Runs over a general vehicle and the first so many of eight rows of its axles. A row of another
/// vehicle stands in front of them.
ConversionRun ConvertWithAxles(const std::string& trailUnif, int axles) {
  std::string rows = "   VehName=OTHER   InterUnif=91   InterAxle=92   InterMinD=93\n";
  for (int number = 1; number <= axles; ++number) {
    const std::string digit = std::to_string(number);
    rows += "   VehName=LORRY   InterUnif=" + digit + "   InterAxle=" + digit +
            "0   InterMinD=" + digit + "00   InterMaxD=" + digit + "000\n";
  }
  return Convert(
      "TABLE:  \"BRIDGE LOADS 3 - VEHICLES - GENERAL 1\"\n"
      "   VehName=LORRY   LeadUnif=0.5   TrailUnif=" +
      trailUnif +
      "   FirstAxle=35   AxleMom=80   AxleOther=115\n"
      "\n"
      "TABLE:  \"BRIDGE LOADS 4 - VEHICLES - GENERAL 2 - INTERMEDIATE\"\n" +
      rows);
}

using TextLines = std::vector<std::string>;

TEST(GeneralVehicles, LoadsAndDistancesOfAVehicleThatIsNoTrain) {
  const struct {
    int Axles;
    TextLines Lines;
  } kRows[] = {
      {0, {"\t\tNAME=LORRY,  2,    NO,     0,   115,    80,   115"}},
      {1, {"\t\tNAME=LORRY,  2,    NO,     1,   115,    80,   115"}},
      {2,
       {"\t\tNAME=LORRY,  2,    NO,     1,   115,    80,   115",  //
        "\t\t\t   10,  1000"}},
      {3,
       {"\t\tNAME=LORRY,  2,    NO,     1,   115,    80,   115",  //
        "\t\t\t   10,   200,   20,  2000"}},
      {8,
       {"\t\tNAME=LORRY,  2,    NO,     1,   115,    80,   115",  //
        "\t\t\t   10,   200,   20,   300",                        //
        "\t\t\t   30,   400,   40,   500",                        //
        "\t\t\t   50,   600,   60,   700",                        //
        "\t\t\t   70,  7000"}},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.Axles);
    EXPECT_EQ(ConvertWithAxles("0", row.Axles).Lines("*VEHICLE"), row.Lines);
  }
}

TEST(GeneralVehicles, LoadsAndDistancesOfATrain) {
  const struct {
    int Axles;
    TextLines Lines;
  } kRows[] = {
      {0, {"\t\tNAME=LORRY,  2,   YES,   0.5,    35,   0.7,     0"}},
      {1, {"\t\tNAME=LORRY,  2,   YES,   0.5,    35,   0.7,   100"}},
      {2,
       {"\t\tNAME=LORRY,  2,   YES,   0.5,    35,   0.7,   200",  //
        "\t\t\t   20,   200"}},
      {3,
       {"\t\tNAME=LORRY,  2,   YES,   0.5,    35,   0.7,   300",  //
        "\t\t\t   20,   200,   30,   300"}},
      {8,
       {"\t\tNAME=LORRY,  2,   YES,   0.5,    35,   0.7,   800",  //
        "\t\t\t   20,   200,   30,   300",                        //
        "\t\t\t   40,   400,   50,   500",                        //
        "\t\t\t   60,   600,   70,   700",                        //
        "\t\t\t   80,   800"}},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.Axles);
    EXPECT_EQ(ConvertWithAxles("0.7", row.Axles).Lines("*VEHICLE"), row.Lines);
  }
}

TEST(GeneralVehicles, UniformLoadBehindMakesATrain) {
  const struct {
    const char* TrailUnif;
    const char* Line;
  } kRows[] = {
      {"1e-15", "\t\tNAME=LORRY,  2,   YES,   0.5,    35, 1e-15,   100"},
      {"9.99e-16", "\t\tNAME=LORRY,  2,    NO,     1,   115,    80,   115"},
      {"-1", "\t\tNAME=LORRY,  2,    NO,     1,   115,    80,   115"},
      {"none", "\t\tNAME=LORRY,  2,    NO,     1,   115,    80,   115"},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.TrailUnif);
    EXPECT_THAT(ConvertWithAxles(row.TrailUnif, 1).Lines("*VEHICLE"), ElementsAre(row.Line));
  }
}

TEST(GeneralVehicles, OneTableWithoutTheOtherMakesNoVehicle) {
  EXPECT_EQ(Convert(R"(
TABLE:  "BRIDGE LOADS 3 - VEHICLES - GENERAL 1"
   VehName=LORRY   LeadUnif=0.5   FirstAxle=35
)")
                .Body(),
            "\n\n");
  EXPECT_EQ(Convert(R"(
TABLE:  "BRIDGE LOADS 4 - VEHICLES - GENERAL 2 - INTERMEDIATE"
   VehName=LORRY   InterUnif=1   InterAxle=10
)")
                .Body(),
            "\n\n");
}

TEST(GeneralVehicles, KeysGoOnBehindTheStandardVehicles) {
  // General vehicles 1, 2, 3 are walked in the order 2, 1, 3 and get keys 2, 3, 4; keys 1 to 4 are
  // written in the order 3, 2, 1, 4.
  const ConversionRun run = Convert(R"(
TABLE:  "BRIDGE LOADS 2 - VEHICLES - STANDARD"
   VehName=S   Type=AML

TABLE:  "BRIDGE LOADS 3 - VEHICLES - GENERAL 1"
   VehName=G1   AxleMom=1
   VehName=G2   AxleMom=2
   VehName=G3   AxleMom=3

TABLE:  "BRIDGE LOADS 4 - VEHICLES - GENERAL 2 - INTERMEDIATE"
   VehName=G1   InterUnif=11   InterAxle=12   InterMaxD=13
   VehName=G2   InterUnif=21   InterAxle=22   InterMaxD=23
   VehName=G1   InterUnif=31   InterAxle=32   InterMaxD=33
   VehName=g1   InterUnif=41   InterAxle=42   InterMaxD=43
)");
  EXPECT_THAT(run.Lines("*VEHICLE"),
              ElementsAre("\t\tNAME=G1,  2,    NO,    11,     0,     1,     0",
                          "\t\t\t   12,    13",  //
                          "\t\tNAME=G2,  2,    NO,    21,     0,     2,     0",
                          "\tNAME=AML,  1",  //
                          "\t\tNAME=G3,  2,    NO,     0,     0,     3,     0"));
}

}  // namespace
