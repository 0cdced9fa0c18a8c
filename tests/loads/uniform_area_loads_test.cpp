#include "support/conversion_run.h"
#include "support/load_tables.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Rows 1 to 6 of uniform loads are walked in the order 3, 6, 2, 5, 1, 4, and the lines follow it.

TEST(UniformAreaLoads, WholeCommandOfALoadCase) {
  const ConversionRun run = Convert(StaticCases({"LIVE"}) + R"(
TABLE:  "AREA LOADS - UNIFORM"
   Area=1   LoadCase=LIVE   CoordSys=GLOBAL   Dir=Gravity   UnifLoad=3
   Area=2   LoadCase=LIVE   CoordSys=Local   Dir=3   UnifLoad=-1.5
)");
  EXPECT_EQ(
      run.LoadBlock("LIVE", "*PRESSURE"),
      "*USE-STLD,       LIVE\n"
      "\n"
      "*PRESSURE    ; Pressure Loads\n"
      "; ELEM_LIST, CMD, ETYP, LTYP, DIR, VX, VY, VZ, bPROJ, PU, P1, P2, P3, P4, GROUP  ; "
      "ETYP=PLATE, LTYP=FACE\n"
      "; ELEM_LIST, CMD, ETYP, LTYP, iEDGE, DIR, VX, VY, VZ, PU, P1, P2, GROUP          ; "
      "ETYP=PLATE, LTYP=EDGE\n"
      "; ELEM_LIST, CMD, ETYP, iEDGE, DIR, VX, VY, VZ, PU, P1, P2, GROUP                ; "
      "ETYP=PLANE\n"
      "; ELEM_LIST, CMD, ETYP, iFACE, DIR, VX, VY, VZ, bPROJ, PU, P1, P2, P3, P4, GROUP ; "
      "ETYP=SOLID\n"
      "\t2, PRES, PLATE,  FACE,    LZ,     0,     0,     0,    NO,  -1.5,     0,     0,     0,"
      "     0,\n"
      "\t1, PRES, PLATE,  FACE,    GZ,     0,     0,     0,    NO,    -3,     0,     0,     0,"
      "     0,\n"
      ";End of data for load case [LIVE]\n"
      "\n");
  EXPECT_THAT(run.Messages, IsEmpty());
  EXPECT_EQ(run.Result, 0);
}

struct DirectionRow {
  const char* Dir;
  const char* Line;
};

constexpr DirectionRow kGlobalDirections[] = {
    {"X",
     "\t1, PRES, PLATE,  FACE,    GX,     0,     0,     0,    NO,     3,     0,     0,     0,     "
     "0,"},
    {"Y",
     "\t1, PRES, PLATE,  FACE,    GY,     0,     0,     0,    NO,     3,     0,     0,     0,     "
     "0,"},
    {"Z",
     "\t1, PRES, PLATE,  FACE,    GZ,     0,     0,     0,    NO,     3,     0,     0,     0,     "
     "0,"},
    {"\"X Proj\"",
     "\t1, PRES, PLATE,  FACE,    GX,     0,     0,     0,   YES,     3,     0,     0,     0,     "
     "0,"},
    {"\"Y Proj\"",
     "\t1, PRES, PLATE,  FACE,    GY,     0,     0,     0,   YES,     3,     0,     0,     0,     "
     "0,"},
    {"\"Z Proj\"",
     "\t1, PRES, PLATE,  FACE,    GZ,     0,     0,     0,   YES,     3,     0,     0,     0,     "
     "0,"},
    {"Gravity",
     "\t1, PRES, PLATE,  FACE,    GZ,     0,     0,     0,    NO,    -3,     0,     0,     0,     "
     "0,"},
    {"\"Grav Proj\"",
     "\t1, PRES, PLATE,  FACE,    GZ,     0,     0,     0,   YES,    -3,     0,     0,     0,     "
     "0,"},
    // any other word is Z as it stands, also a word in other letters
    {"1",
     "\t1, PRES, PLATE,  FACE,    GZ,     0,     0,     0,    NO,     3,     0,     0,     0,     "
     "0,"},
    {"3",
     "\t1, PRES, PLATE,  FACE,    GZ,     0,     0,     0,    NO,     3,     0,     0,     0,     "
     "0,"},
    {"x",
     "\t1, PRES, PLATE,  FACE,    GZ,     0,     0,     0,    NO,     3,     0,     0,     0,     "
     "0,"},
    {"gravity",
     "\t1, PRES, PLATE,  FACE,    GZ,     0,     0,     0,    NO,     3,     0,     0,     0,     "
     "0,"},
    {"\"Gravity Proj\"",
     "\t1, PRES, PLATE,  FACE,    GZ,     0,     0,     0,    NO,     3,     0,     0,     0,     "
     "0,"},
    {"",
     "\t1, PRES, PLATE,  FACE,    GZ,     0,     0,     0,    NO,     3,     0,     0,     0,     "
     "0,"},
};

TEST(UniformAreaLoads, DirectionsInTheGlobalSystem) {
  for (const DirectionRow& row : kGlobalDirections) {
    SCOPED_TRACE(row.Dir);
    const ConversionRun run = Convert(StaticCases({"LIVE"}) +
                                      "TABLE:  \"AREA LOADS - UNIFORM\"\n"
                                      "   Area=1   LoadCase=LIVE   CoordSys=GLOBAL   Dir=" +
                                      row.Dir + "   UnifLoad=3\n");
    EXPECT_THAT(run.LoadLines("LIVE", "*PRESSURE"), ElementsAre(row.Line));
  }
}

TEST(UniformAreaLoads, RowWithoutADirectionInTheGlobalSystemIsAlongZ) {
  const ConversionRun run = Convert(StaticCases({"LIVE"}) + R"(
TABLE:  "AREA LOADS - UNIFORM"
   Area=1   LoadCase=LIVE   CoordSys=GLOBAL   UnifLoad=3
)");
  EXPECT_THAT(run.LoadLines("LIVE", "*PRESSURE"),
              ElementsAre("\t1, PRES, PLATE,  FACE,    GZ,     0,     0,     0,    NO,     3,"
                          "     0,     0,     0,     0,"));
}

TEST(UniformAreaLoads, GravityOfZeroIsMinusZero) {
  const ConversionRun run = Convert(StaticCases({"LIVE"}) + R"(
TABLE:  "AREA LOADS - UNIFORM"
   Area=1   LoadCase=LIVE   CoordSys=GLOBAL   Dir=Gravity   UnifLoad=0
   Area=2   LoadCase=LIVE   CoordSys=GLOBAL   Dir=Z   UnifLoad=0
)");
  EXPECT_THAT(run.LoadLines("LIVE", "*PRESSURE"),
              ElementsAre("\t2, PRES, PLATE,  FACE,    GZ,     0,     0,     0,    NO,     0,"
                          "     0,     0,     0,     0,",
                          "\t1, PRES, PLATE,  FACE,    GZ,     0,     0,     0,    NO,    -0,"
                          "     0,     0,     0,     0,"));
}

TEST(UniformAreaLoads, LocalDirection3KeepsItsSign) {
  const ConversionRun run = Convert(StaticCases({"LIVE"}) + R"(
TABLE:  "AREA LOADS - UNIFORM"
   Area=1   LoadCase=LIVE   CoordSys=Local   Dir=3   UnifLoad=2.5
   Area=2   LoadCase=LIVE   CoordSys=GLOBAL   Dir="X Proj"   UnifLoad=8
)");
  EXPECT_THAT(run.LoadLines("LIVE", "*PRESSURE"),
              ElementsAre("\t2, PRES, PLATE,  FACE,    GX,     0,     0,     0,   YES,     8,"
                          "     0,     0,     0,     0,",
                          "\t1, PRES, PLATE,  FACE,    LZ,     0,     0,     0,    NO,   2.5,"
                          "     0,     0,     0,     0,"));
}

TEST(UniformAreaLoads, LocalDirection1RepeatsTheLoadBeforeItInTheWalk) {
  // Row 2 comes before row 1.
  const ConversionRun run = Convert(StaticCases({"LIVE", "WALL"}) + R"(
TABLE:  "AREA LOADS - UNIFORM"
   Area=1   LoadCase=WALL   CoordSys=Local   Dir=1   UnifLoad=7
   Area=2   LoadCase=LIVE   CoordSys=GLOBAL   Dir="Grav Proj"   UnifLoad=3
)");
  EXPECT_THAT(run.LoadLines("LIVE", "*PRESSURE"),
              ElementsAre("\t2, PRES, PLATE,  FACE,    GZ,     0,     0,     0,   YES,    -3,"
                          "     0,     0,     0,     0,",
                          "\t2, PRES, PLATE,  FACE,    GZ,     0,     0,     0,   YES,    -3,"
                          "     0,     0,     0,     0,"));
  EXPECT_EQ(run.LoadBlock("WALL", "*PRESSURE"), "");
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(UniformAreaLoads, SystemsAndDirectionsThatAreNotKnownRepeatTheLoadBefore) {
  for (const char* place :
       {"CoordSys=Local   Dir=1", "CoordSys=Local   Dir=2", "CoordSys=Local   Dir=Gravity",
        "CoordSys=Local", "CoordSys=LOCAL   Dir=3", "CoordSys=local   Dir=3",
        "CoordSys=Global   Dir=Z", "CoordSys=CSYS1   Dir=Z", "CoordSys=  Dir=Z", "Dir=Z"}) {
    SCOPED_TRACE(place);
    const ConversionRun run = Convert(StaticCases({"LIVE"}) +
                                      "TABLE:  \"AREA LOADS - UNIFORM\"\n"
                                      "   Area=1   LoadCase=LIVE   UnifLoad=7   " +
                                      place +
                                      "\n"
                                      "   Area=2   LoadCase=LIVE   CoordSys=Local   Dir=3   "
                                      "UnifLoad=3\n");
    EXPECT_THAT(run.LoadLines("LIVE", "*PRESSURE"),
                ElementsAre("\t2, PRES, PLATE,  FACE,    LZ,     0,     0,     0,    NO,     3,"
                            "     0,     0,     0,     0,",
                            "\t2, PRES, PLATE,  FACE,    LZ,     0,     0,     0,    NO,     3,"
                            "     0,     0,     0,     0,"));
  }
}

TEST(UniformAreaLoads, UnknownDirectionAtTheHeadOfTheWalkIsNotWritten) {
  // Row 2 comes first and has no load before it to repeat.
  const ConversionRun run = Convert(StaticCases({"LIVE"}) + R"(
TABLE:  "AREA LOADS - UNIFORM"
   Area=1   LoadCase=LIVE   CoordSys=GLOBAL   Dir=Z   UnifLoad=3
   Area=2   LoadCase=LIVE   CoordSys=Local   Dir=1   UnifLoad=7
)");
  EXPECT_THAT(run.LoadLines("LIVE", "*PRESSURE"),
              ElementsAre("\t1, PRES, PLATE,  FACE,    GZ,     0,     0,     0,    NO,     3,"
                          "     0,     0,     0,     0,"));
}

TEST(UniformAreaLoads, UnknownDirectionAtTheHeadOfTheWalkIsEmptyInTheCaseWithoutAName) {
  const ConversionRun run = Convert(R"(
TABLE:  "ANALYSIS CASE DEFINITIONS"
   Case=STATIC   Type=LinStatic

TABLE:  "CASE - STATIC 1 - LOAD ASSIGNMENTS"
   Case=STATIC   LoadType="Load case"

TABLE:  "AREA LOADS - UNIFORM"
   Area=1   LoadCase=LIVE   CoordSys=Local   Dir=1   UnifLoad=3
)");
  EXPECT_THAT(run.LoadLines("", "*PRESSURE"),
              ElementsAre("\t0, PRES,      ,      ,      ,     0,     0,     0,      ,     0,"
                          "     0,     0,     0,     0,"));
}

TEST(UniformAreaLoads, OnlyUnknownDirectionsWriteNothing) {
  const ConversionRun run = Convert(StaticCases({"LIVE"}) + R"(
TABLE:  "AREA LOADS - UNIFORM"
   Area=1   LoadCase=LIVE   CoordSys=Local   Dir=1   UnifLoad=7
   Area=2   LoadCase=LIVE   CoordSys=Local   Dir=2   UnifLoad=7
)");
  EXPECT_EQ(run.LoadBlock("LIVE", "*PRESSURE"), "");
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(UniformAreaLoads, LinesComeInTheWalkOfTheSourceRows) {
  const ConversionRun run = Convert(StaticCases({"LIVE"}) + R"(
TABLE:  "AREA LOADS - UNIFORM"
   Area=11   LoadCase=LIVE   CoordSys=GLOBAL   Dir=X   UnifLoad=1
   Area=12   LoadCase=LIVE   CoordSys=GLOBAL   Dir=X   UnifLoad=2
   Area=13   LoadCase=LIVE   CoordSys=GLOBAL   Dir=X   UnifLoad=3
   Area=14   LoadCase=LIVE   CoordSys=GLOBAL   Dir=X   UnifLoad=4
   Area=15   LoadCase=LIVE   CoordSys=GLOBAL   Dir=X   UnifLoad=5
   Area=16   LoadCase=LIVE   CoordSys=GLOBAL   Dir=X   UnifLoad=6
)");
  EXPECT_THAT(run.LoadLines("LIVE", "*PRESSURE"),
              ElementsAre("\t13, PRES, PLATE,  FACE,    GX,     0,     0,     0,    NO,     3,"
                          "     0,     0,     0,     0,",
                          "\t16, PRES, PLATE,  FACE,    GX,     0,     0,     0,    NO,     6,"
                          "     0,     0,     0,     0,",
                          "\t12, PRES, PLATE,  FACE,    GX,     0,     0,     0,    NO,     2,"
                          "     0,     0,     0,     0,",
                          "\t15, PRES, PLATE,  FACE,    GX,     0,     0,     0,    NO,     5,"
                          "     0,     0,     0,     0,",
                          "\t11, PRES, PLATE,  FACE,    GX,     0,     0,     0,    NO,     1,"
                          "     0,     0,     0,     0,",
                          "\t14, PRES, PLATE,  FACE,    GX,     0,     0,     0,    NO,     4,"
                          "     0,     0,     0,     0,"));
}

TEST(UniformAreaLoads, EachLoadCaseHasItsOwn) {
  const ConversionRun run = Convert(StaticCases({"LIVE", "SNOW", "WALL"}) + R"(
TABLE:  "AREA LOADS - UNIFORM"
   Area=1   LoadCase=LIVE   CoordSys=GLOBAL   Dir=Z   UnifLoad=1
   Area=1   LoadCase=SNOW   CoordSys=GLOBAL   Dir=Z   UnifLoad=2
   Area=1   LoadCase=ROOF   CoordSys=GLOBAL   Dir=Z   UnifLoad=3
   Area=1   LoadCase=live   CoordSys=GLOBAL   Dir=Z   UnifLoad=4
)");
  EXPECT_THAT(run.LoadLines("LIVE", "*PRESSURE"),
              ElementsAre("\t1, PRES, PLATE,  FACE,    GZ,     0,     0,     0,    NO,     1,"
                          "     0,     0,     0,     0,"));
  EXPECT_THAT(run.LoadLines("SNOW", "*PRESSURE"),
              ElementsAre("\t1, PRES, PLATE,  FACE,    GZ,     0,     0,     0,    NO,     2,"
                          "     0,     0,     0,     0,"));
  EXPECT_EQ(run.LoadBlock("WALL", "*PRESSURE"), "");
  EXPECT_EQ(run.LoadBlock("ROOF", "*PRESSURE"), "");
  EXPECT_EQ(run.LoadBlock("live", "*PRESSURE"), "");
}

TEST(UniformAreaLoads, NumberIsTheLabelWhetherOrNotTheModelHasTheArea) {
  // Without areas no label tells that it is not a number: it counts as 0.
  const ConversionRun run = Convert(StaticCases({"LIVE"}) + R"(
TABLE:  "AREA LOADS - UNIFORM"
   Area=007   LoadCase=LIVE   CoordSys=GLOBAL   Dir=Z   UnifLoad=1
   Area=A7   LoadCase=LIVE   CoordSys=GLOBAL   Dir=Z   UnifLoad=2
)");
  EXPECT_THAT(run.LoadLines("LIVE", "*PRESSURE"),
              ElementsAre("\t0, PRES, PLATE,  FACE,    GZ,     0,     0,     0,    NO,     2,"
                          "     0,     0,     0,     0,",
                          "\t7, PRES, PLATE,  FACE,    GZ,     0,     0,     0,    NO,     1,"
                          "     0,     0,     0,     0,"));
}

TEST(UniformAreaLoads, RenumberedAreasComeBehindTheFrames) {
  const ConversionRun run = Convert(StaticCases({"LIVE"}) + R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2
   Frame=2   JointI=2   JointJ=3

TABLE:  "CONNECTIVITY - AREA"
   Area=A1   Joint1=1   Joint2=2   Joint3=3   Joint4=4
   Area=1   Joint1=3   Joint2=4   Joint3=5   Joint4=6

TABLE:  "AREA LOADS - UNIFORM"
   Area=A1   LoadCase=LIVE   CoordSys=GLOBAL   Dir=Z   UnifLoad=1
   Area=1   LoadCase=LIVE   CoordSys=GLOBAL   Dir=Z   UnifLoad=2
)");
  EXPECT_THAT(run.LoadLines("LIVE", "*PRESSURE"),
              ElementsAre("\t4, PRES, PLATE,  FACE,    GZ,     0,     0,     0,    NO,     2,"
                          "     0,     0,     0,     0,",
                          "\t3, PRES, PLATE,  FACE,    GZ,     0,     0,     0,    NO,     1,"
                          "     0,     0,     0,     0,"));
}

TEST(UniformAreaLoads, RenumberedAreaThatIsNotThereTakesTheNumberOfTheLineBefore) {
  // Written in the order of rows 3, 2, 1; each load case begins at 0 again. A frame of the name
  // does not count.
  const ConversionRun run = Convert(StaticCases({"LIVE", "SNOW"}) + R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=F   JointI=1   JointJ=2

TABLE:  "CONNECTIVITY - AREA"
   Area=A   Joint1=1   Joint2=2   Joint3=3   Joint4=4

TABLE:  "AREA LOADS - UNIFORM"
   Area=F   LoadCase=LIVE   CoordSys=GLOBAL   Dir=Z   UnifLoad=1
   Area=A   LoadCase=LIVE   CoordSys=GLOBAL   Dir=Z   UnifLoad=2
   Area=99   LoadCase=LIVE   CoordSys=GLOBAL   Dir=Z   UnifLoad=3
   Area=99   LoadCase=SNOW   CoordSys=GLOBAL   Dir=Z   UnifLoad=4
)");
  EXPECT_THAT(run.LoadLines("LIVE", "*PRESSURE"),
              ElementsAre("\t0, PRES, PLATE,  FACE,    GZ,     0,     0,     0,    NO,     3,"
                          "     0,     0,     0,     0,",
                          "\t2, PRES, PLATE,  FACE,    GZ,     0,     0,     0,    NO,     2,"
                          "     0,     0,     0,     0,",
                          "\t2, PRES, PLATE,  FACE,    GZ,     0,     0,     0,    NO,     1,"
                          "     0,     0,     0,     0,"));
  EXPECT_THAT(run.LoadLines("SNOW", "*PRESSURE"),
              ElementsAre("\t0, PRES, PLATE,  FACE,    GZ,     0,     0,     0,    NO,     4,"
                          "     0,     0,     0,     0,"));
}

TEST(UniformAreaLoads, LoadThatIsInNoStaticCaseIsNotWritten) {
  const ConversionRun run = Convert(R"(
TABLE:  "LOAD CASE DEFINITIONS"
   LoadCase=LIVE   DesignType=LIVE   SelfWtMult=0

TABLE:  "AREA LOADS - UNIFORM"
   Area=1   LoadCase=LIVE   CoordSys=GLOBAL   Dir=Z   UnifLoad=1
)");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Output, testing::Not(testing::HasSubstr("PRES")));
}

TEST(AreaLoadsWithoutAPlace, AreReadAndDroppedWithoutAMessage) {
  for (const char* title : {"AREA LOADS - ROTATE", "AREA LOADS - UNIFORM TO FRAME",
                            "AREA LOADS - WIND PRESSURE COEFFICIENTS", "SOLID LOADS - GRAVITY"}) {
    SCOPED_TRACE(title);
    const ConversionRun run =
        Convert(StaticCases({"LIVE"}) + "TABLE:  \"" + title +
                "\"\n   Area=1   Solid=1   LoadCase=LIVE   CoordSys=GLOBAL   Dir=Z   UnifLoad=3   "
                "AngularBel=2   Windward=Yes   Cp=0.8   MultiplierZ=1   DistType=\"One way\"\n");
    EXPECT_EQ(run.Result, 0);
    EXPECT_EQ(run.Output.find("*USE-STLD"), std::string::npos);
    EXPECT_THAT(run.Messages, IsEmpty());
  }
}

}  // namespace
