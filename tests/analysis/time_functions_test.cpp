#include "support/conversion_run.h"
#include "support/time_histories.h"

#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

constexpr const char* kFunctionLost = "IDS_S2KV8_TMHT_Func_Not_Convert";

std::string FunctionSection(const ConversionRun& run) {
  return run.Between("*TFUNCTION", "*THLDCASE");
}

/// The lines of the functions: each function's own, and those of its points.
std::vector<std::string> FunctionLines(const ConversionRun& run) {
  return run.LinesBetween("*TFUNCTION", "*THLDCASE");
}

/// A modal history case QUAKE with these load rows, in metres, and further tables behind it.
std::string ModalCase(std::string_view loads, std::string_view functions) {
  return R"(TABLE:  "PROGRAM CONTROL"
   CurrUnits="KN, m, C"

TABLE:  "ANALYSIS CASE DEFINITIONS"
   Case=QUAKE   Type=LinModHist   InitialCond=Zero   ModalCase=MODAL

TABLE:  "CASE - MODAL HISTORY 1 - GENERAL"
   Case=QUAKE   HistoryType=Transient   DampingType=Constant   OutSteps=100   StepSize=0.02

TABLE:  "CASE - MODAL HISTORY 2 - LOAD ASSIGNMENTS"
)" + std::string(loads) +
         std::string(functions);
}

TEST(TimeFunctions, FunctionFromAFileWritesTheWholeSectionAndTheFileIsNotNeeded) {
  const ConversionRun run = Convert(ModalCase(
      R"(   Case=QUAKE   LoadType=Accel   LoadName="Accel U1"   Function=ELCENTRO   TransAccSF=9.81   TimeFactor=1

)",
      R"(TABLE:  "FUNCTION - TIME HISTORY - FROM FILE"
   Name=ELCENTRO   Time=0   Value=0.01   HeaderLines=0   FormatType=Free   FileName="c:\no such\elcentro.th"
   Name=ELCENTRO   Time=0.02   Value=0.04
   Name=ELCENTRO   Time=0.04   Value=-0.05
   Name=ELCENTRO   Time=0.06   Value=0.125
)"));
  EXPECT_EQ(FunctionSection(run),
            "*TFUNCTION    ; Time History Function\n"
            "; FUNC=NAME, 1, iTYPE, SCALE, GRAV, DESC           ; line 1\n"
            ";      TIME1, VALUE1, TIME2, VALUE2, ...           ; from line 2\n"
            "\tFUNC=ELCENTRO,  1,     2,  9.81, 9.806,      \n"
            "\t\t    0,  0.01, 0.02,  0.04, 0.04, -0.05\n"
            "\t\t 0.06, 0.125\n"
            "\n"
            "\n");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(TimeFunctions, EachFunctionEndsWithAnEmptyLineAndTheSectionWithOneMore) {
  // Load rows 1 and 2 are walked 2, 1; the functions of keys 1 and 2 are written 2, 1.
  const ConversionRun run = Convert(ModalCase(
      R"(   Case=QUAKE   LoadType="Load case"   LoadName=LIVE   Function=PULSE   LoadSF=1.5   TimeFactor=1
   Case=QUAKE   LoadType="Load case"   LoadName=LIVE   Function=STEP   LoadSF=-2   TimeFactor=1

)",
      R"(TABLE:  "FUNCTION - TIME HISTORY - USER"
   Name=PULSE   Time=0   Value=1
   Name=STEP   Time=0   Value=1
   Name=STEP   Time=1   Value=0.5
   Name=STEP   Time=2   Value=0.25
)"));
  EXPECT_EQ(FunctionSection(run),
            "*TFUNCTION    ; Time History Function\n"
            "; FUNC=NAME, 1, iTYPE, SCALE, GRAV, DESC           ; line 1\n"
            ";      TIME1, VALUE1, TIME2, VALUE2, ...           ; from line 2\n"
            "\tFUNC=PULSE,  1,     5,   1.5, 9.806,      \n"
            "\t\t    0,     1\n"
            "\n"
            "\tFUNC=STEP,  1,     5,    -2, 9.806,      \n"
            "\t\t    0,     1,    1,   0.5,    2,  0.25\n"
            "\n"
            "\n");
}

TEST(TimeFunctions, PointsStandInLinesOfThree) {
  struct Sample {
    std::size_t Points;
    std::vector<std::string> Lines;
  };
  const std::vector<std::string> rows = {
      "   Name=PULSE   Time=0   Value=1\n", "   Name=PULSE   Time=1   Value=2\n",
      "   Name=PULSE   Time=2   Value=3\n", "   Name=PULSE   Time=3   Value=4\n",
      "   Name=PULSE   Time=4   Value=5\n", "   Name=PULSE   Time=5   Value=6\n",
      "   Name=PULSE   Time=6   Value=7\n"};
  const std::string head = "\tFUNC=PULSE,  1,     5,     1, 9.806,      ";
  const std::vector<Sample> samples = {
      {1, {head, "\t\t    0,     1"}},
      {3, {head, "\t\t    0,     1,    1,     2,    2,     3"}},
      {4, {head, "\t\t    0,     1,    1,     2,    2,     3", "\t\t    3,     4"}},
      {7,
       {head, "\t\t    0,     1,    1,     2,    2,     3",
        "\t\t    3,     4,    4,     5,    5,     6", "\t\t    6,     7"}}};
  for (const auto& [points, lines] : samples) {
    SCOPED_TRACE(points);
    std::string functions = "TABLE:  \"FUNCTION - TIME HISTORY - USER\"\n";
    for (std::size_t index = 0; index < points; ++index) {
      functions += rows[index];
    }
    const ConversionRun run = Convert(ModalCase(
        "   Case=QUAKE   LoadType=\"Load case\"   Function=PULSE   LoadSF=1   TimeFactor=1\n\n",
        functions));
    EXPECT_THAT(FunctionLines(run), ElementsAreArray(lines));
  }
}

TEST(TimeFunctions, PointsComeInTheOrderOfTheFileAndOnlyThoseOfTheVeryName) {
  for (const char* table : {"FROM FILE", "USER"}) {
    SCOPED_TRACE(table);
    const ConversionRun run = Convert(ModalCase(
        "   Case=QUAKE   LoadType=Accel   Function=TAFT   TransAccSF=1   TimeFactor=1\n\n",
        "TABLE:  \"FUNCTION - TIME HISTORY - " + std::string(table) + R"("
   Name=TAFT   Time=0.3   Value=3
   Name=TAFT   Time=0.1   Value=1
   Name=KOBE   Time=0.2   Value=2
   Name=Taft   Time=0.4   Value=4
   Name=TAFT   Time=0.5   Value=5
)"));
    EXPECT_THAT(FunctionLines(run), ElementsAre("\tFUNC=TAFT,  1,     2,     1, 9.806,      ",
                                                "\t\t  0.3,     3,  0.1,     1,  0.5,     5"));
  }
}

TEST(TimeFunctions, TimeFactorStretchesTheTimesAndNotTheValues) {
  struct Sample {
    const char* TimeFactor;
    const char* Points;
  };
  const std::vector<Sample> samples = {{"TimeFactor=2", "\t\t    1,     1,    2,  -0.5"},
                                       {"TimeFactor=0.5", "\t\t 0.25,     1,  0.5,  -0.5"},
                                       {"", "\t\t    0,     1,    0,  -0.5"}};
  for (const auto& [factor, points] : samples) {
    SCOPED_TRACE(factor);
    const ConversionRun run =
        Convert(ModalCase("   Case=QUAKE   LoadType=\"Load case\"   Function=PULSE   LoadSF=3   " +
                              std::string(factor) + "\n\n",
                          R"(TABLE:  "FUNCTION - TIME HISTORY - USER"
   Name=PULSE   Time=0.5   Value=1
   Name=PULSE   Time=1   Value=-0.5
)"));
    EXPECT_THAT(FunctionLines(run),
                ElementsAre("\tFUNC=PULSE,  1,     5,     3, 9.806,      ", points));
  }
}

TEST(TimeFunctions, TimesAndValuesAreAllThatATextOfANumberMayBe) {
  const ConversionRun run = Convert(
      ModalCase("   Case=QUAKE   LoadType=Accel   Function=ODD   TransAccSF=inf   TimeFactor=2\n\n",
                R"(TABLE:  "FUNCTION - TIME HISTORY - USER"
   Name=ODD   Time=-inf   Value=nan
   Name=ODD   Time=0x10   Value=-nan
   Name=ODD   Time=1e5   Value=-INF
)"));
  EXPECT_THAT(FunctionLines(run), ElementsAre("\tFUNC=ODD,  1,     2,   inf, 9.806,      ",
                                              "\t\t -inf,   nan,   32,   nan,200000,  -inf"));
}

TEST(TimeFunctions, BytesAboveAsciiPassThroughTheName) {
  const ConversionRun run = Convert(ModalCase(
      "   Case=QUAKE   LoadType=Accel   Function=S\xC9ISME   TransAccSF=1   TimeFactor=1\n\n",
      "TABLE:  \"FUNCTION - TIME HISTORY - USER\"\n"
      "   Name=S\xE9ISME   Time=0   Value=7\n"
      "   Name=S\xC9ISME   Time=0   Value=1\n"));
  EXPECT_THAT(FunctionLines(run),
              ElementsAre("\tFUNC=S\xC9ISME,  1,     2,     1, 9.806,      ", "\t\t    0,     1"));
}

TEST(TimeFunctions, GravityIsInUnitsOfTheModel) {
  struct Sample {
    const char* Units;
    const char* Line;
  };
  const std::vector<Sample> samples = {
      {"CurrUnits=\"KN, m, C\"", "\tFUNC=PULSE,  1,     2,     1, 9.806,      "},
      {"CurrUnits=\"KN, cm, C\"", "\tFUNC=PULSE,  1,     2,     1, 0.09806,      "},
      {"CurrUnits=\"N, mm, C\"", "\tFUNC=PULSE,  1,     2,     1, 0.009806,      "},
      {"CurrUnits=\"Kip, in, F\"", "\tFUNC=PULSE,  1,     2,     1, 386.063,      "},
      {"CurrUnits=\"Kip, ft, F\"", "\tFUNC=PULSE,  1,     2,     1, 32.1715,      "},
      {"CurrUnits=\"KN, km, C\"", "\tFUNC=PULSE,  1,     2,     1, 9.806,      "}};
  for (const auto& [units, line] : samples) {
    SCOPED_TRACE(units);
    // The last table of a name wins, row by row.
    const ConversionRun run = Convert(ModalCase(
        "   Case=QUAKE   LoadType=Accel   Function=PULSE   TransAccSF=1   TimeFactor=1\n\n",
        R"(TABLE:  "FUNCTION - TIME HISTORY - USER"
   Name=PULSE   Time=0   Value=1

TABLE:  "PROGRAM CONTROL"
   )" + std::string(units) +
            "\n"));
    EXPECT_THAT(FunctionLines(run), ElementsAre(line, "\t\t    0,     1"));
  }
}

TEST(TimeFunctions, KindAndScaleFollowTheLoadTypeOfAModalCase) {
  struct Sample {
    const char* LoadType;
    const char* Line;
  };
  const std::vector<Sample> samples = {
      {"LoadType=\"Load case\"", "\tFUNC=PULSE,  1,     5,     2, 9.806,      "},
      {"LoadType=LoadPattern", "\tFUNC=PULSE,  1,     5,     2, 9.806,      "},
      {"LoadType=Accel", "\tFUNC=PULSE,  1,     2,     3, 9.806,      "},
      {"LoadType=\"Load Case\"", "\tFUNC=PULSE,  1,     1,     0, 9.806,      "},
      {"LoadType=\"Load pattern\"", "\tFUNC=PULSE,  1,     1,     0, 9.806,      "},
      {"LoadType=accel", "\tFUNC=PULSE,  1,     1,     0, 9.806,      "},
      {"", "\tFUNC=PULSE,  1,     1,     0, 9.806,      "}};
  for (const auto& [loadType, line] : samples) {
    SCOPED_TRACE(loadType);
    const ConversionRun run = Convert(ModalCase(
        "   Case=QUAKE   Function=PULSE   LoadSF=2   TransAccSF=3   TimeFactor=1   " +
            std::string(loadType) + "\n\n",
        "TABLE:  \"FUNCTION - TIME HISTORY - USER\"\n   Name=PULSE   Time=0   Value=1\n"));
    EXPECT_THAT(FunctionLines(run), ElementsAre(line, "\t\t    0,     1"));
  }
}

TEST(TimeFunctions, KindsThatTheTargetLacksHaveNoPointsAndShowTheMessageOnceWithAFunction) {
  for (const char* kind : {"COSINE", "RAMP", "SAWTOOTH", "SINE", "TRIANGULAR", "USER PERIODIC"}) {
    SCOPED_TRACE(kind);
    const std::string lost = "TABLE:  \"FUNCTION - TIME HISTORY - " + std::string(kind) +
                             "\"\n   Name=WAVE   Time=0   Value=0   Period=1   Amplitude=1\n"
                             "   Name=WAVE   Time=1   Value=1   Period=1   Amplitude=1\n";
    const std::string user =
        "TABLE:  \"FUNCTION - TIME HISTORY - USER\"\n   Name=PULSE   Time=0   Value=1\n\n";
    const std::string lostLoad =
        "   Case=QUAKE   LoadType=Accel   Function=WAVE   TransAccSF=1   TimeFactor=1\n";

    const ConversionRun alone = Convert(ModalCase(lostLoad + "\n", user + lost));
    EXPECT_EQ(alone.Output.find("*TFUNCTION"), std::string::npos);
    EXPECT_NE(alone.Output.find("*THLDCASE"), std::string::npos);
    EXPECT_THAT(alone.Messages, IsEmpty());

    // Load rows 1 and 2 are walked 2, 1.
    const ConversionRun withAnother = Convert(
        ModalCase(lostLoad + "   Case=QUAKE   LoadType=Accel   Function=PULSE   TransAccSF=1   "
                             "TimeFactor=1\n\n",
                  user + lost));
    EXPECT_THAT(FunctionLines(withAnother),
                ElementsAre("\tFUNC=PULSE,  1,     2,     1, 9.806,      ", "\t\t    0,     1"));
    EXPECT_THAT(withAnother.Messages, ElementsAre(kFunctionLost));
  }
}

TEST(TimeFunctions, MessageIsShownOnceForSeveralCases) {
  // Analysis cases 1, 2, 3 are walked 2, 1, 3: the function comes in between the two lost ones.
  const ConversionRun run = Convert(R"(
TABLE:  "ANALYSIS CASE DEFINITIONS"
   Case=TH1   Type=LinModHist   InitialCond=Zero
   Case=TH2   Type=LinModHist   InitialCond=Zero
   Case=TH3   Type=LinModHist   InitialCond=Zero

TABLE:  "CASE - MODAL HISTORY 1 - GENERAL"
   Case=TH1   DampingType=Constant
   Case=TH2   DampingType=Constant
   Case=TH3   DampingType=Constant

TABLE:  "CASE - MODAL HISTORY 2 - LOAD ASSIGNMENTS"
   Case=TH1   LoadType=Accel   Function=PULSE
   Case=TH2   LoadType=Accel   Function=SINE1
   Case=TH3   LoadType=Accel   Function=SINE2

TABLE:  "FUNCTION - TIME HISTORY - USER"
   Name=PULSE   Time=0   Value=1
)");
  EXPECT_THAT(FunctionLines(run),
              ElementsAre("\tFUNC=PULSE,  1,     2,     0, 9.806,      ", "\t\t    0,     1"));
  EXPECT_THAT(run.Messages, ElementsAre(kFunctionLost));
}

TEST(TimeFunctions, OneRowFromAFileHidesTheFunctionsOfTheUser) {
  const std::string user = R"(TABLE:  "FUNCTION - TIME HISTORY - USER"
   Name=PULSE   Time=0   Value=1
   Name=TAFT   Time=0   Value=2

)";
  const std::string file = "TABLE:  \"FUNCTION - TIME HISTORY - FROM FILE\"\n";
  const std::string row = "   Name=TAFT   Time=0   Value=3   FileName=taft.th\n";
  // Load rows 1 and 2 are walked 2, 1; the functions of keys 1 and 2 are written 2, 1.
  const std::string loads = R"(   Case=QUAKE   LoadType=Accel   Function=PULSE   TransAccSF=1
   Case=QUAKE   LoadType=Accel   Function=TAFT   TransAccSF=1

)";
  const ConversionRun both = Convert(ModalCase(loads, user + file + row));
  EXPECT_THAT(FunctionLines(both),
              ElementsAre("\tFUNC=TAFT,  1,     2,     1, 9.806,      ", "\t\t    0,     3"));
  EXPECT_THAT(both.Messages, ElementsAre(kFunctionLost));

  const ConversionRun empty = Convert(ModalCase(loads, user + file));
  EXPECT_THAT(FunctionLines(empty),
              ElementsAre("\tFUNC=PULSE,  1,     2,     1, 9.806,      ", "\t\t    0,     1",
                          "\tFUNC=TAFT,  1,     2,     1, 9.806,      ", "\t\t    0,     2"));
  EXPECT_THAT(empty.Messages, IsEmpty());
}

TEST(TimeFunctions, FunctionOfTwoModalCasesIsWrittenOnceWithTheScaleOfTheCaseWalkedFirst) {
  // Analysis cases 1 and 2 are walked 2, 1.
  const ConversionRun run = Convert(ModalAndDirectCases(
      R"(   Case=TH1   Type=LinModHist   InitialCond=Zero
   Case=TH3   Type=LinModHist   InitialCond=Zero
)",
      R"(   Case=TH1   LoadType="Load case"   LoadName=LIVE   Function=PULSE   LoadSF=1.5   TimeFactor=1
   Case=TH3   LoadType="Load case"   LoadName=LIVE   Function=PULSE   LoadSF=2.5   TimeFactor=3
)",
      ""));
  EXPECT_THAT(FunctionLines(run), ElementsAre("\tFUNC=PULSE,  1,     5,   2.5, 9.806,      ",
                                              "\t\t    0,     0,    3,     1"));
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(TimeFunctions, FunctionsComeInTheOrderOfTheWalkOverTheirKeys) {
  // Load rows 1 to 6 are walked 5, 2, 4, 1, 6, 3, which are the keys 1 to 6; those are written
  // 3, 6, 2, 5, 1, 4.
  const ConversionRun run = Convert(ModalCase(R"(   Case=QUAKE   LoadType=Accel   Function=F1
   Case=QUAKE   LoadType=Accel   Function=F2
   Case=QUAKE   LoadType=Accel   Function=F3
   Case=QUAKE   LoadType=Accel   Function=F4
   Case=QUAKE   LoadType=Accel   Function=F5
   Case=QUAKE   LoadType=Accel   Function=F6

)",
                                              R"(TABLE:  "FUNCTION - TIME HISTORY - USER"
   Name=F1   Time=0   Value=1
   Name=F2   Time=0   Value=2
   Name=F3   Time=0   Value=3
   Name=F4   Time=0   Value=4
   Name=F5   Time=0   Value=5
   Name=F6   Time=0   Value=6
)"));
  EXPECT_THAT(FunctionLines(run),
              ElementsAre("\tFUNC=F4,  1,     2,     0, 9.806,      ", "\t\t    0,     4",
                          "\tFUNC=F3,  1,     2,     0, 9.806,      ", "\t\t    0,     3",
                          "\tFUNC=F2,  1,     2,     0, 9.806,      ", "\t\t    0,     2",
                          "\tFUNC=F6,  1,     2,     0, 9.806,      ", "\t\t    0,     6",
                          "\tFUNC=F5,  1,     2,     0, 9.806,      ", "\t\t    0,     5",
                          "\tFUNC=F1,  1,     2,     0, 9.806,      ", "\t\t    0,     1"));
}

TEST(TimeFunctions, DirectCaseAloneBringsInNoFunctionAndShowsNoMessage) {
  const ConversionRun run = Convert(
      ModalAndDirectCases("   Case=BLAST   Type=LinDirHis   InitialCond=Zero\n", "",
                          "   Case=BLAST   LoadType=Accel   Function=PULSE   TimeFactor=1\n"));
  EXPECT_EQ(run.Output.find("*TFUNCTION"), std::string::npos);
  EXPECT_NE(run.Output.find("*THLDCASE"), std::string::npos);
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(TimeFunctions, DirectCaseBehindAModalOneAddsASecondRecordOfItsOwnKindScaleAndTimes) {
  struct Sample {
    const char* LoadType;
    const char* Line;
  };
  const std::vector<Sample> samples = {
      {"LoadType=\"Load case\"", "\tFUNC=PULSE,  1,     5,     4, 9.806,      "},
      {"LoadType=Accel", "\tFUNC=PULSE,  1,     2,     6, 9.806,      "},
      {"LoadType=LoadPattern", "\tFUNC=PULSE,  1,     1,     0, 9.806,      "},
      {"", "\tFUNC=PULSE,  1,     1,     0, 9.806,      "}};
  for (const auto& [loadType, line] : samples) {
    SCOPED_TRACE(loadType);
    // Analysis cases 1 and 2 are walked 2, 1; the functions of keys 1 and 2 are written 2, 1.
    const ConversionRun run = Convert(ModalAndDirectCases(
        R"(   Case=BLAST   Type=LinDirHis   InitialCond=Zero
   Case=TH1   Type=LinModHist   InitialCond=Zero
)",
        "   Case=TH1   LoadType=LoadPattern   Function=PULSE   LoadSF=1   TimeFactor=1\n",
        "   Case=BLAST   Function=PULSE   LoadSF=4   TransAccSF=6   TimeFactor=2   " +
            std::string(loadType) + "\n"));
    EXPECT_THAT(FunctionLines(run), ElementsAre(line, "\t\t    0,     0,    2,     1",
                                                "\tFUNC=PULSE,  1,     5,     1, 9.806,      ",
                                                "\t\t    0,     0,    1,     1"));
    EXPECT_THAT(run.Messages, IsEmpty());
  }
}

TEST(TimeFunctions, DirectCaseAheadOfTheModalOneBringsInNothing) {
  // Analysis cases 1 and 2 are walked 2, 1.
  const ConversionRun run = Convert(ModalAndDirectCases(
      R"(   Case=TH1   Type=LinModHist   InitialCond=Zero
   Case=BLAST   Type=LinDirHis   InitialCond=Zero
)",
      "   Case=TH1   LoadType=Accel   Function=PULSE   TransAccSF=1   TimeFactor=1\n",
      "   Case=BLAST   LoadType=Accel   Function=PULSE   TransAccSF=6   TimeFactor=2\n"));
  EXPECT_THAT(FunctionLines(run), ElementsAre("\tFUNC=PULSE,  1,     2,     1, 9.806,      ",
                                              "\t\t    0,     0,    1,     1"));
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(TimeFunctions, EveryLoadOfDirectCasesAddsARecordAndALaterModalCaseDoesNot) {
  // Analysis cases 1 to 4 are walked 2, 4, 1, 3; the functions of keys 1 to 4 are written
  // 3, 2, 1, 4. The loads 1 and 2 of BLAST are walked 2, 1.
  const ConversionRun run = Convert(ModalAndDirectCases(
      R"(   Case=SHOCK   Type=LinDirHis   InitialCond=Zero
   Case=TH1   Type=LinModHist   InitialCond=Zero
   Case=TH3   Type=LinModHist   InitialCond=Zero
   Case=BLAST   Type=NonDirHist   InitialCond=Zero
)",
      R"(   Case=TH1   LoadType=Accel   Function=PULSE   TransAccSF=1   TimeFactor=1
   Case=TH3   LoadType=Accel   Function=PULSE   TransAccSF=9   TimeFactor=1
)",
      R"(   Case=BLAST   LoadType=Accel   Function=PULSE   TransAccSF=3   TimeFactor=1
   Case=BLAST   LoadType=Accel   Function=PULSE   TransAccSF=2   TimeFactor=1
   Case=SHOCK   LoadType=Accel   Function=PULSE   TransAccSF=4   TimeFactor=1
)"));
  const std::string points = "\t\t    0,     0,    1,     1";
  EXPECT_THAT(FunctionLines(run),
              ElementsAre("\tFUNC=PULSE,  1,     2,     3, 9.806,      ", points,
                          "\tFUNC=PULSE,  1,     2,     2, 9.806,      ", points,
                          "\tFUNC=PULSE,  1,     2,     1, 9.806,      ", points,
                          "\tFUNC=PULSE,  1,     2,     4, 9.806,      ", points));
}

TEST(TimeFunctions, UnknownFunctionEndsTheFunctionsOfADirectCaseWithoutAMessage) {
  // Analysis cases 1 and 2 are walked 2, 1, and the direct loads 1, 2, 3 as 2, 1, 3.
  const ConversionRun run = Convert(ModalAndDirectCases(
      R"(   Case=BLAST   Type=LinDirHis   InitialCond=Zero
   Case=TH1   Type=LinModHist   InitialCond=Zero
)",
      "   Case=TH1   LoadType=Accel   Function=PULSE   TransAccSF=1   TimeFactor=1\n",
      R"(   Case=BLAST   LoadType=Accel   Function=LOST   TransAccSF=3   TimeFactor=1
   Case=BLAST   LoadType=Accel   Function=PULSE   TransAccSF=2   TimeFactor=1
   Case=BLAST   LoadType=Accel   Function=PULSE   TransAccSF=4   TimeFactor=1
)"));
  const std::string points = "\t\t    0,     0,    1,     1";
  EXPECT_THAT(FunctionLines(run),
              ElementsAre("\tFUNC=PULSE,  1,     2,     2, 9.806,      ", points,
                          "\tFUNC=PULSE,  1,     2,     1, 9.806,      ", points));
  EXPECT_THAT(run.Messages, IsEmpty());
}

}  // namespace
