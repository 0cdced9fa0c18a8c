#include "support/conversion_run.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string kAnalysisControl =
    "*ANAL-CTRL\n"
    "; bARDC, bANRC, iTYPE, iITER, TOL            ; iTYPE=0\n"
    "; bARDC, bANRC, iTYPE, iITER, iSITER, TOL    ; iTYPE=1\n"
    "\tYES,   YES,     0,    30, 0.001\n"
    "\n";

const std::string kHeader =
    "*EIGEN-CTRL    ; Eigenvalue Analysis Control\n"
    "; TYPE, iFREQ, iITER, iDIM, TOL          ; TYPE=EIGEN\n"
    "; TYPE, bINCNL, iGNUM                    ; TYPE=RITZ(line 1)\n"
    ";       KIND1, CASE1/GROUND1, iNOG1, ... ; TYPE=RITZ(from line2)\n";

std::string Table(const std::string& title, const std::vector<std::string>& rows) {
  std::string table = "TABLE:  \"" + title + "\"\n";
  for (const std::string& row : rows) {
    table += "   " + row + "\n";
  }
  return table + "\n";
}

/// An analysis case of modes.
const std::string kModalAnalysis =
    Table("ANALYSIS CASE DEFINITIONS", {"Case=MODAL   Type=LinModal"});

std::string Definitions(const std::vector<std::string>& rows) {
  return Table("CASE - MODAL 1 - GENERAL", rows);
}

/// So many rows of a kind of elements.
std::string Elements(const std::string& kind, int count) {
  std::vector<std::string> rows;
  for (int number = 1; number <= count; ++number) {
    rows.push_back(kind + "=" + std::to_string(number));
  }
  return Table("CONNECTIVITY - " + kind, rows);
}

std::string Frames(int count) { return Elements("Frame", count); }

// ---- Eigenvectors ----

TEST(ModalCases, EigenvectorsGiveTheWholeSection) {
  const ConversionRun run = Convert(
      kModalAnalysis +
      Definitions({"Case=MODAL   ModeType=Eigen   MaxNumModes=12   MinNumModes=1   EigenShift=0   "
                   "EigenCutOff=0   EigenTol=1E-09"}) +
      Frames(5));
  EXPECT_EQ(run.Result, 0);
  EXPECT_EQ(run.Between("*EIGEN-CTRL", "*ENDDATA"), kHeader +
                                                        "\tEIGEN,     5,    20,     0, 1e-09\n"
                                                        "\n\n"
                                                        "\n\n");
}

TEST(ModalCases, ModesAreAtMostAsManyAsFramesAreasAndSolids) {
  struct Limit {
    std::string Elements;
    const char* MaxNumModes;
    const char* Line;
  };
  const std::vector<Limit> limits = {
      {Frames(5), "MaxNumModes=12", "\tEIGEN,     5,    20,     0,  0.01"},
      {Frames(5), "MaxNumModes=5", "\tEIGEN,     5,    20,     0,  0.01"},
      {Frames(5), "MaxNumModes=4", "\tEIGEN,     4,    20,     0,  0.01"},
      {Elements("Area", 2), "MaxNumModes=12", "\tEIGEN,     2,    20,     0,  0.01"},
      {Elements("Solid", 3), "MaxNumModes=12", "\tEIGEN,     3,    20,     0,  0.01"},
      {Frames(5) + Elements("Area", 2) + Elements("Solid", 3), "MaxNumModes=12",
       "\tEIGEN,    10,    20,     0,  0.01"},
      {Elements("Link", 4), "MaxNumModes=12", "\tEIGEN,     0,    20,     0,  0.01"},
      {"", "MaxNumModes=12", "\tEIGEN,     0,    20,     0,  0.01"},
      {Frames(5), "", "\tEIGEN,     0,    20,     0,  0.01"},
      {Frames(5), "MaxNumModes=4.9", "\tEIGEN,     4,    20,     0,  0.01"},
      {Frames(5), "MaxNumModes=-3", "\tEIGEN,    -3,    20,     0,  0.01"},
      {Frames(5), "MaxNumModes=1E+10", "\tEIGEN,     5,    20,     0,  0.01"},
  };
  for (const auto& [elements, maximum, line] : limits) {
    SCOPED_TRACE(elements + maximum);
    const ConversionRun run = Convert(
        kModalAnalysis +
        Definitions({"Case=MODAL   ModeType=Eigen   EigenTol=0.01   " + std::string(maximum)}) +
        elements);
    EXPECT_THAT(run.Lines("*EIGEN-CTRL"), ElementsAre(line));
  }
}

TEST(ModalCases, DirectionsOfSelfMassDoNotRaiseTheLimit) {
  for (const char* freedom : {"UX=Yes   UY=Yes   UZ=Yes", "UX=Yes   UY=Yes   UZ=No"}) {
    SCOPED_TRACE(freedom);
    const ConversionRun run = Convert(
        Table("ANALYSIS CASE DEFINITIONS",
              {"Case=MODAL   Type=LinModal", "Case=MODAL2   Type=LinModal"}) +
        Table("ACTIVE DEGREES OF FREEDOM", {freedom}) +
        Table("MASSES 1 - MASS SOURCE", {"MassFrom=Elements"}) +
        Definitions({"Case=MODAL   ModeType=Eigen   MaxNumModes=12   EigenTol=0.01"}) + Frames(5));
    EXPECT_THAT(run.Lines("*EIGEN-CTRL"), ElementsAre("\tEIGEN,     5,    20,     0,  0.01"));
  }
}

TEST(ModalCases, ToleranceThatIsNotStatedIsZero) {
  const ConversionRun run = Convert(
      kModalAnalysis + Definitions({"Case=MODAL   ModeType=Eigen   MaxNumModes=2"}) + Frames(5));
  EXPECT_THAT(run.Lines("*EIGEN-CTRL"), ElementsAre("\tEIGEN,     2,    20,     0,     0"));
}

TEST(ModalCases, ModeTypeIsReadInWhicheverCase) {
  for (const char* word : {"EIGEN", "eigen", "eIgEn"}) {
    SCOPED_TRACE(word);
    EXPECT_THAT(Convert(kModalAnalysis +
                        Definitions({"Case=MODAL   EigenTol=0.01   ModeType=" + std::string(word)}))
                    .Lines("*EIGEN-CTRL"),
                ElementsAre("\tEIGEN,     0,    20,     0,  0.01"));
  }
  for (const char* word : {"Ritz", "ritz", "RITZ"}) {
    SCOPED_TRACE(word);
    EXPECT_THAT(Convert(kModalAnalysis +
                        Definitions({"Case=MODAL   EigenTol=0.01   ModeType=" + std::string(word)}))
                    .Lines("*EIGEN-CTRL"),
                ElementsAre("\tRITZ,    NO,     1"));
  }
}

// ---- Header without data ----

TEST(ModalCases, WithoutADefinitionTheSectionHasNoDataAndAnalysisIsControlled) {
  const ConversionRun run =
      Convert(kModalAnalysis + Table("CASE - MODAL 3 - LOAD ASSIGNMENTS - RITZ",
                                     {"Case=MODAL   LoadType=Accel   LoadName=\"Accel UX\""}));
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, IsEmpty());
  EXPECT_EQ(run.Body(), kAnalysisControl + kHeader + "\n\n" + "\n\n");
}

TEST(ModalCases, UnknownModeTypeGivesNoDataAndNoMessage) {
  for (const char* word : {"ModeType=Lanczos", "ModeType=Eigenvectors", "ModeType=", ""}) {
    SCOPED_TRACE(word);
    const ConversionRun run = Convert(
        kModalAnalysis + Definitions({"Case=MODAL   MaxNumModes=12   " + std::string(word)}));
    EXPECT_THAT(run.Messages, IsEmpty());
    EXPECT_EQ(run.Body(), kAnalysisControl + kHeader + "\n\n" + "\n\n");
  }
}

// ---- Repeated cases ----

TEST(ModalCases, AllCasesUseTheFirstDefinitionAndShareOneSection) {
  // Keys 1, 2 are walked in the order 2, 1.
  const ConversionRun run =
      Convert(Table("ANALYSIS CASE DEFINITIONS",
                    {"Case=SOFT   Type=LinModal", "Case=STIFF   Type=LinModal"}) +
              Definitions({"Case=SOFT   ModeType=Eigen   MaxNumModes=3   EigenTol=0.01",
                           "Case=STIFF   ModeType=Eigen   MaxNumModes=4   EigenTol=0.02"}) +
              Frames(5));
  EXPECT_EQ(run.Between("*EIGEN-CTRL", "*ENDDATA"), kHeader +
                                                        "\tEIGEN,     3,    20,     0,  0.01\n"
                                                        "\n\n"
                                                        "\n\n");
}

TEST(ModalCases, FirstDefinitionCountsThoughTheAnalysisNamesAnother) {
  const ConversionRun run =
      Convert(Table("ANALYSIS CASE DEFINITIONS", {"Case=STIFF   Type=LinModal   ModalCase=STIFF"}) +
              Definitions({"Case=SOFT   ModeType=Eigen   MaxNumModes=3   EigenTol=0.01",
                           "Case=STIFF   ModeType=Ritz   MaxNumModes=4   EigenTol=0.02"}) +
              Frames(5));
  EXPECT_THAT(run.Lines("*EIGEN-CTRL"), ElementsAre("\tEIGEN,     3,    20,     0,  0.01"));
}

TEST(ModalCases, RepeatedRitzCasesDoNotRepeatTheStartingVectors) {
  const ConversionRun run =
      Convert(Table("ANALYSIS CASE DEFINITIONS",
                    {"Case=MODAL   Type=LinModal", "Case=MODAL2   Type=LinModal"}) +
              Definitions({"Case=MODAL   ModeType=Ritz   MaxNumModes=3"}) +
              Table("CASE - MODAL 3 - LOAD ASSIGNMENTS - RITZ",
                    {"Case=MODAL   LoadType=Accel   LoadName=\"Accel UX\"   MaxCycles=2"}));
  EXPECT_THAT(run.Lines("*EIGEN-CTRL"),
              ElementsAre("\tRITZ,    NO,     1", "\t\tGROUND,  ACCX,     2"));
}

// ---- Participation targets ----

TEST(ModalCases, ParticipationTargetsPlayNoPart) {
  const ConversionRun run =
      Convert(kModalAnalysis + Definitions({"Case=MODAL   ModeType=Ritz   MaxNumModes=3"}) +
              Table("CASE - MODAL 2 - LOAD ASSIGNMENTS - EIGEN",
                    {"Case=MODAL   LoadType=Accel   LoadName=\"Accel UX\"   TargetPar=0.9   "
                     "StatCorrect=Yes"}));
  EXPECT_THAT(run.Lines("*EIGEN-CTRL"), ElementsAre("\tRITZ,    NO,     1"));
}

// ---- Ritz vectors ----

/// A Ritz analysis of at most ten modes with these starting vectors. Keys 1 to 7 are walked in the
/// order 5, 2, 7, 4, 1, 6, 3.
ConversionRun ConvertRitz(const std::vector<std::string>& vectors) {
  return Convert(kModalAnalysis + Definitions({"Case=MODAL   ModeType=Ritz   MaxNumModes=10"}) +
                 Table("CASE - MODAL 3 - LOAD ASSIGNMENTS - RITZ", vectors) + Frames(11));
}

/// The same with vectors of loads L1, L2 and so on with these numbers of cycles.
ConversionRun ConvertRitzCycles(const std::vector<std::string>& cycles) {
  std::vector<std::string> vectors;
  for (const std::string& number : cycles) {
    vectors.push_back("Case=MODAL   LoadType=\"Load case\"   LoadName=L" +
                      std::to_string(vectors.size() + 1) + "   MaxCycles=" + number +
                      "   TargetPar=99");
  }
  return ConvertRitz(vectors);
}

TEST(RitzVectors, GiveTheWholeSection) {
  const ConversionRun run = ConvertRitz(
      {"Case=MODAL   LoadType=Accel   LoadName=\"Accel UX\"   MaxCycles=3   TargetPar=99",
       "Case=MODAL   LoadType=\"Load case\"   LoadName=DEAD   MaxCycles=2   TargetPar=99"});
  EXPECT_EQ(run.Result, 0);
  EXPECT_EQ(run.Between("*EIGEN-CTRL", "*ENDDATA"), kHeader +
                                                        "\tRITZ,    NO,     1\n"
                                                        "\t\t CASE,  DEAD,     2,"
                                                        "GROUND,  ACCX,     3\n"
                                                        "\n"
                                                        "\n\n");
}

TEST(RitzVectors, LoadsAndAccelerationsHaveTheirWords) {
  struct Vector {
    const char* Row;
    const char* Text;
  };
  const std::vector<Vector> vectors = {
      {"LoadType=\"Load case\"   LoadName=LIVE", "\t\t CASE,  LIVE,     7"},
      {"LoadType=\"Load case\"   LoadName=\"Accel UX\"", "\t\t CASE, Accel UX,     7"},
      {"LoadType=\"Load case\"", "\t\t CASE,      ,     7"},
      {"LoadType=Accel   LoadName=\"Accel UX\"", "\t\tGROUND,  ACCX,     7"},
      {"LoadType=Accel   LoadName=\"Accel UY\"", "\t\tGROUND,  ACCY,     7"},
      {"LoadType=Accel   LoadName=\"Accel UZ\"", "\t\tGROUND,  ACCZ,     7"},
  };
  for (const auto& [row, text] : vectors) {
    SCOPED_TRACE(row);
    EXPECT_THAT(
        ConvertRitz({"Case=MODAL   MaxCycles=7   " + std::string(row)}).Lines("*EIGEN-CTRL"),
        ElementsAre("\tRITZ,    NO,     1", text));
  }
}

TEST(RitzVectors, OfOtherKindsAreNotWritten) {
  for (const char* row :
       {"LoadType=Accel   LoadName=\"Accel RX\"", "LoadType=Accel   LoadName=\"accel ux\"",
        "LoadType=Accel", "LoadType=Link   LoadName=LIVE", "LoadType=\"load case\"   LoadName=LIVE",
        "LoadType=accel   LoadName=\"Accel UX\"", "LoadName=LIVE"}) {
    SCOPED_TRACE(row);
    const ConversionRun run = ConvertRitz({"Case=MODAL   MaxCycles=7   " + std::string(row)});
    EXPECT_EQ(run.Between("\tRITZ", "*ENDDATA"), "\tRITZ,    NO,     1\n\n\n\n");
  }
}

TEST(RitzVectors, OfAnotherKindShiftsTheNumbersBehindIt) {
  // Keys 1, 2, 3 are walked in the order 2, 1, 3.
  const ConversionRun run =
      ConvertRitz({"Case=MODAL   LoadType=\"Load case\"   LoadName=DEAD   MaxCycles=2",
                   "Case=MODAL   LoadType=Link   LoadName=ALL   MaxCycles=1",
                   "Case=MODAL   LoadType=Accel   LoadName=\"Accel UX\"   MaxCycles=3"});
  EXPECT_THAT(run.Lines("*EIGEN-CTRL"),
              ElementsAre("\tRITZ,    NO,     1", "\t\t CASE,  DEAD,     1,GROUND,  ACCX,     2"));
}

TEST(RitzVectors, UnknownAccelerationShiftsTheKindsAndTheNumbersBehindIt) {
  const ConversionRun run =
      ConvertRitz({"Case=MODAL   LoadType=\"Load case\"   LoadName=DEAD   MaxCycles=2",
                   "Case=MODAL   LoadType=Accel   LoadName=\"Accel RX\"   MaxCycles=1",
                   "Case=MODAL   LoadType=Accel   LoadName=\"Accel UX\"   MaxCycles=3"});
  EXPECT_THAT(run.Lines("*EIGEN-CTRL"),
              ElementsAre("\tRITZ,    NO,     1", "\t\tGROUND,  DEAD,     1, CASE,  ACCX,     2"));
}

TEST(RitzVectors, StandInThreesOnALine) {
  EXPECT_THAT(ConvertRitzCycles({"1", "2", "3"}).Lines("*EIGEN-CTRL"),
              ElementsAre("\tRITZ,    NO,     1",
                          "\t\t CASE,    L2,     2, CASE,    L1,     1, CASE,    L3,     3"));
  EXPECT_EQ(ConvertRitzCycles({"1", "2", "3", "4", "5", "6", "7"}).Between("\tRITZ", "*ENDDATA"),
            "\tRITZ,    NO,     1\n"
            "\t\t CASE,    L5,     5, CASE,    L2,     2, CASE,    L7,     7\n"
            "\t\t CASE,    L4,     4, CASE,    L1,     1, CASE,    L6,     6\n"
            "\t\t CASE,    L3,     3\n"
            "\n"
            "\n\n");
}

TEST(RitzVectors, OnlyThoseOfTheDefinitionsCaseCount) {
  // The analysis is of case MODAL, the first definition of case BASE. The vector of MODAL has no
  // part in the modes that are shared out either.
  const ConversionRun run =
      Convert(kModalAnalysis +
              Definitions({"Case=BASE   ModeType=Ritz   MaxNumModes=10",
                           "Case=MODAL   ModeType=Ritz   MaxNumModes=10"}) +
              Table("CASE - MODAL 3 - LOAD ASSIGNMENTS - RITZ",
                    {"Case=MODAL   LoadType=\"Load case\"   LoadName=LIVE   MaxCycles=8",
                     "Case=BASE   LoadType=\"Load case\"   LoadName=DEAD   MaxCycles=0",
                     "Case=Base   LoadType=\"Load case\"   LoadName=LIVE   MaxCycles=0"}) +
              Frames(11));
  EXPECT_THAT(run.Lines("*EIGEN-CTRL"),
              ElementsAre("\tRITZ,    NO,     1", "\t\t CASE,  DEAD,    10"));
}

TEST(RitzVectors, OpenNumbersShareWhatTheOthersLeaveOfTheLimit) {
  struct Share {
    std::vector<std::string> Cycles;
    const char* Text;
  };
  const std::vector<Share> shares = {
      // two open ones share 10 - 4
      {{"0", "0", "4"}, "\t\t CASE,    L2,     3, CASE,    L1,     3, CASE,    L3,     4"},
      // 7 / 2, without its fraction
      {{"0", "0", "3"}, "\t\t CASE,    L2,     3, CASE,    L1,     3, CASE,    L3,     3"},
      // 2 / 2 is the least share
      {{"0", "0", "8"}, "\t\t CASE,    L2,     1, CASE,    L1,     1, CASE,    L3,     8"},
      // 1 / 2 has no whole mode
      {{"0", "0", "9"}, "\t\t CASE,    L2,     0, CASE,    L1,     0, CASE,    L3,     9"},
      // nothing left, or less
      {{"0", "10"}, "\t\t CASE,    L2,    10, CASE,    L1,     0"},
      {{"0", "25"}, "\t\t CASE,    L2,    25, CASE,    L1,     0"},
      // none open
      {{"1", "2"}, "\t\t CASE,    L2,     2, CASE,    L1,     1"},
      {{"0"}, "\t\t CASE,    L1,    10"},
      // a fraction is cut off before
      {{"0.9"}, "\t\t CASE,    L1,    10"},
      // a negative number is open, counts in the sum and is not replaced: 12 / 2
      {{"0", "-2"}, "\t\t CASE,    L2,    -2, CASE,    L1,     6"},
      {{"-2"}, "\t\t CASE,    L1,    -2"},
  };
  for (const auto& [cycles, text] : shares) {
    SCOPED_TRACE(text);
    EXPECT_THAT(ConvertRitzCycles(cycles).Lines("*EIGEN-CTRL"),
                ElementsAre("\tRITZ,    NO,     1", text));
  }
}

TEST(RitzVectors, NumberThatIsNotStatedIsOpen) {
  EXPECT_THAT(
      ConvertRitz({"Case=MODAL   LoadType=\"Load case\"   LoadName=DEAD"}).Lines("*EIGEN-CTRL"),
      ElementsAre("\tRITZ,    NO,     1", "\t\t CASE,  DEAD,    10"));
}

TEST(RitzVectors, OfAnotherKindTakesPartInTheSharing) {
  // The two open ones share ten modes; what is written is the number of the first of them.
  const ConversionRun run =
      ConvertRitz({"Case=MODAL   LoadType=\"Load case\"   LoadName=DEAD   MaxCycles=0",
                   "Case=MODAL   LoadType=Link   LoadName=ALL   MaxCycles=0"});
  EXPECT_THAT(run.Lines("*EIGEN-CTRL"),
              ElementsAre("\tRITZ,    NO,     1", "\t\t CASE,  DEAD,     5"));
}

TEST(RitzVectors, LimitOfTheSharingIsTheNumberOfElementsWhereThatIsLess) {
  const ConversionRun run =
      Convert(kModalAnalysis + Definitions({"Case=MODAL   ModeType=Ritz   MaxNumModes=10"}) +
              Table("CASE - MODAL 3 - LOAD ASSIGNMENTS - RITZ",
                    {"Case=MODAL   LoadType=Accel   LoadName=\"Accel UZ\"   MaxCycles=0"}) +
              Frames(4));
  EXPECT_THAT(run.Lines("*EIGEN-CTRL"),
              ElementsAre("\tRITZ,    NO,     1", "\t\tGROUND,  ACCZ,     4"));
}

TEST(RitzVectors, SumsBeyondAnIntegerAreRightAllTheSame) {
  // Each number takes the largest integer, their sum is far above the limit.
  EXPECT_THAT(ConvertRitzCycles({"0", "2147483647", "3000000000"}).Lines("*EIGEN-CTRL"),
              ElementsAre("\tRITZ,    NO,     1",
                          "\t\t CASE,    L2, 2147483647, CASE,    L1,"
                          "     0, CASE,    L3, 2147483647"));
  // (10 + 2 x 2147483648) / 3 = 1431655768.7
  EXPECT_THAT(ConvertRitzCycles({"0", "-2147483648", "-3000000000"}).Lines("*EIGEN-CTRL"),
              ElementsAre("\tRITZ,    NO,     1",
                          "\t\t CASE,    L2, -2147483648, CASE,    L1,"
                          " 1431655768, CASE,    L3, -2147483648"));
}

}  // namespace
