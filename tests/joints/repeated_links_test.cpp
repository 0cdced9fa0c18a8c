// Beam and Body constraints make more links than there are, and each kind of constraint makes them
// in the walk over the joints' rows: rows 1 to 8 are walked 3, 6, 2, 5, 8, 1, 4, 7.
#include "support/conversion_run.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;

TEST(RepeatedLinks, LinksFollowTheWalkOverNumbersGivenInTheWalkOverTheRows) {
  // Made are LOW, MID and TOP as links 1 to 3; printed are 3, 2, 1.
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT CONSTRAINT ASSIGNMENTS"
   Joint=5   Constraint=TOP   Type=Diaphragm
   Joint=6   Constraint=TOP   Type=Diaphragm
   Joint=1   Constraint=LOW   Type=Diaphragm
   Joint=2   Constraint=LOW   Type=Diaphragm
   Joint=3   Constraint=MID   Type=Diaphragm
   Joint=4   Constraint=MID   Type=Diaphragm

TABLE:  "CONSTRAINT DEFINITIONS - DIAPHRAGM"
   Name=LOW   Axis=X
   Name=MID   Axis=Y
   Name=TOP   Axis=Z
)");
  EXPECT_THAT(run.Lines("*RIGIDLINK"),
              ElementsAre("\t5, 110001,     6,      ", "\t3, 101010,     4,      ",
                          "\t1, 011100,     2,      "));
}

TEST(RepeatedLinks, ThirdBodyIsLinkedTwice) {
  // Made are A, B, C, C as links 1 to 4; printed are 3, 2, 1, 4.
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT CONSTRAINT ASSIGNMENTS"
   Joint=5   Constraint=C   Type=Body
   Joint=6   Constraint=C   Type=Body
   Joint=1   Constraint=A   Type=Body
   Joint=2   Constraint=A   Type=Body
   Joint=3   Constraint=B   Type=Body
   Joint=4   Constraint=B   Type=Body

TABLE:  "CONSTRAINT DEFINITIONS - BODY"
   Name=A   UX=Yes
   Name=B   UY=Yes
   Name=C   UZ=Yes
)");
  EXPECT_THAT(run.Lines("*RIGIDLINK"),
              ElementsAre("\t5, 001000,     6,      ", "\t3, 010000,     4,      ",
                          "\t1, 100000,     2,      ", "\t5, 001000,     6,      "));
}

TEST(RepeatedLinks, ThirdBeamIsLinkedTwice) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT CONSTRAINT ASSIGNMENTS"
   Joint=5   Constraint=C   Type=Beam
   Joint=6   Constraint=C   Type=Beam
   Joint=1   Constraint=A   Type=Beam
   Joint=2   Constraint=A   Type=Beam
   Joint=3   Constraint=B   Type=Beam
   Joint=4   Constraint=B   Type=Beam

TABLE:  "CONSTRAINT DEFINITIONS - BEAM"
   Name=A   Axis=X
   Name=B   Axis=Y
   Name=C   Axis=Z
)");
  EXPECT_THAT(run.Lines("*RIGIDLINK"),
              ElementsAre("\t5, 110001,     6,      ", "\t3, 101010,     4,      ",
                          "\t1, 011100,     2,      ", "\t5, 110001,     6,      "));
}

TEST(RepeatedLinks, FourthBodyIsLinkedThreeTimes) {
  // Made are A, B, C, C, D, D, D as links 1 to 7; printed are 3, 6, 2, 5, 1, 4, 7.
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT CONSTRAINT ASSIGNMENTS"
   Joint=1   Constraint=A   Type=Body
   Joint=2   Constraint=C   Type=Body
   Joint=3   Constraint=A   Type=Body
   Joint=4   Constraint=B   Type=Body
   Joint=5   Constraint=D   Type=Body
   Joint=6   Constraint=B   Type=Body
   Joint=7   Constraint=C   Type=Body
   Joint=8   Constraint=D   Type=Body

TABLE:  "CONSTRAINT DEFINITIONS - BODY"
   Name=A   UX=Yes
   Name=B   UY=Yes
   Name=C   UZ=Yes
   Name=D   RX=Yes
)");
  EXPECT_THAT(run.Lines("*RIGIDLINK"),
              ElementsAre("\t2, 001000,     7,      ", "\t5, 000100,     8,      ",
                          "\t4, 010000,     6,      ", "\t5, 000100,     8,      ",
                          "\t1, 100000,     3,      ", "\t2, 001000,     7,      ",
                          "\t5, 000100,     8,      "));
}

TEST(RepeatedLinks, BeamsAndBodiesAreCountedApart) {
  // Made are Beam A, Body B and Beam C as links 1 to 3; printed are 3, 2, 1.
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT CONSTRAINT ASSIGNMENTS"
   Joint=5   Constraint=C   Type=Beam
   Joint=6   Constraint=C   Type=Beam
   Joint=1   Constraint=A   Type=Beam
   Joint=2   Constraint=A   Type=Beam
   Joint=3   Constraint=B   Type=Body
   Joint=4   Constraint=B   Type=Body

TABLE:  "CONSTRAINT DEFINITIONS - BEAM"
   Name=A   Axis=X
   Name=C   Axis=Z

TABLE:  "CONSTRAINT DEFINITIONS - BODY"
   Name=B   UX=Yes
)");
  EXPECT_THAT(run.Lines("*RIGIDLINK"),
              ElementsAre("\t5, 110001,     6,      ", "\t3, 100000,     4,      ",
                          "\t1, 011100,     2,      "));
}

TEST(RepeatedLinks, BodyThatGivesNoLinkIsCountedAllTheSame) {
  // A is handled first and has a joint alone; made are B, C, C as links 1 to 3, printed 3, 2, 1.
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT CONSTRAINT ASSIGNMENTS"
   Joint=5   Constraint=C   Type=Body
   Joint=6   Constraint=C   Type=Body
   Joint=1   Constraint=A   Type=Body
   Joint=2   Constraint=B   Type=Body
   Joint=3   Constraint=C   Type=Body
   Joint=4   Constraint=B   Type=Body

TABLE:  "CONSTRAINT DEFINITIONS - BODY"
   Name=A   UX=Yes
   Name=B   UY=Yes
   Name=C   UZ=Yes
)");
  EXPECT_THAT(run.Lines("*RIGIDLINK"),
              ElementsAre("\t5, 001000,   6 3,      ", "\t5, 001000,   6 3,      ",
                          "\t2, 010000,     4,      "));
}

TEST(RepeatedLinks, ThirdOfTheOtherKindsIsLinkedOnce) {
  for (const std::string kind : {"Equal", "Line", "Weld"}) {
    SCOPED_TRACE(kind);
    const std::string of = "   Type=" + kind + "\n";
    const ConversionRun run =
        Convert("TABLE:  \"JOINT CONSTRAINT ASSIGNMENTS\"\n   Joint=5   Constraint=C" + of +
                "   Joint=6   Constraint=C" + of + "   Joint=1   Constraint=A" + of +
                "   Joint=2   Constraint=A" + of + "   Joint=3   Constraint=B" + of +
                "   Joint=4   Constraint=B" + of + "\nTABLE:  \"CONSTRAINT DEFINITIONS - " + kind +
                "\"\n   Name=A   UX=Yes\n   Name=B   UY=Yes\n   Name=C   UZ=Yes\n");
    EXPECT_THAT(run.Lines("*RIGIDLINK"),
                ElementsAre("\t5, 001000,     6,      ", "\t3, 010000,     4,      ",
                            "\t1, 100000,     2,      "));
  }
}

TEST(RepeatedLinks, SecondOfEmptyNameIsNeitherLinkedNorCounted) {
  // Handled are A, the empty name and C; without it C is the second and makes one link.
  const struct {
    std::string Type;
    std::string Definitions;
  } kinds[] = {
      {"Beam", "   Name=A   Axis=X\n   Name=C   Axis=X\n"},
      {"Body", "   Name=A   UY=Yes   UZ=Yes   RX=Yes\n   Name=C   UY=Yes   UZ=Yes   RX=Yes\n"},
  };
  for (const auto& kind : kinds) {
    SCOPED_TRACE(kind.Type);
    const std::string of = "   Type=" + kind.Type + "\n";
    const ConversionRun run =
        Convert("TABLE:  \"JOINT CONSTRAINT ASSIGNMENTS\"\n   Joint=5   Constraint=C" + of +
                "   Joint=6   Constraint=C" + of + "   Joint=1   Constraint=A" + of +
                "   Joint=2   Constraint=A" + of + "   Joint=3" + of + "   Joint=4" + of +
                "\nTABLE:  \"CONSTRAINT DEFINITIONS - " + kind.Type + "\"\n" + kind.Definitions);
    EXPECT_THAT(run.Lines("*RIGIDLINK"),
                ElementsAre("\t5, 011100,     6,      ", "\t1, 011100,     2,      "));
  }
}

TEST(RepeatedLinks, ThirdBeamOfEmptyNameIsNotLinkedInAModelWithoutBodies) {
  // Handled are A, B and the empty name.
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT CONSTRAINT ASSIGNMENTS"
   Joint=5   Type=Beam
   Joint=6   Type=Beam
   Joint=1   Constraint=A   Type=Beam
   Joint=2   Constraint=A   Type=Beam
   Joint=3   Constraint=B   Type=Beam
   Joint=4   Constraint=B   Type=Beam

TABLE:  "CONSTRAINT DEFINITIONS - BEAM"
   Name=A   Axis=X
   Name=B   Axis=Y
)");
  EXPECT_THAT(run.Lines("*RIGIDLINK"),
              ElementsAre("\t3, 101010,     4,      ", "\t1, 011100,     2,      "));
}

TEST(RepeatedLinks, ThirdBodyOfEmptyNameIsLinkedTwice) {
  // Made are A, B and the empty name twice as links 1 to 4; printed are 3, 2, 1, 4.
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT CONSTRAINT ASSIGNMENTS"
   Joint=5   Type=Body
   Joint=6   Type=Body
   Joint=1   Constraint=A   Type=Body
   Joint=2   Constraint=A   Type=Body
   Joint=3   Constraint=B   Type=Body
   Joint=4   Constraint=B   Type=Body

TABLE:  "CONSTRAINT DEFINITIONS - BODY"
   Name=A   UX=Yes
   Name=B   UY=Yes
)");
  EXPECT_THAT(run.Lines("*RIGIDLINK"),
              ElementsAre("\t5,      ,     6,      ", "\t3, 010000,     4,      ",
                          "\t1, 100000,     2,      ", "\t5,      ,     6,      "));
}

TEST(RepeatedLinks, SecondBeamOfEmptyNameIsNotLinkedInAModelWithBodiesEither) {
  // Handled are the Beam A, the Body C and the Beam of empty name; links 1 and 2 are written 2, 1.
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT CONSTRAINT ASSIGNMENTS"
   Joint=5   Type=Beam
   Joint=6   Type=Beam
   Joint=1   Constraint=A   Type=Beam
   Joint=2   Constraint=A   Type=Beam
   Joint=3   Constraint=C   Type=Body
   Joint=4   Constraint=C   Type=Body

TABLE:  "CONSTRAINT DEFINITIONS - BEAM"
   Name=A   Axis=X

TABLE:  "CONSTRAINT DEFINITIONS - BODY"
   Name=C   UX=Yes
)");
  EXPECT_THAT(run.Lines("*RIGIDLINK"),
              ElementsAre("\t3, 100000,     4,      ", "\t1, 011100,     2,      "));
}

}  // namespace
