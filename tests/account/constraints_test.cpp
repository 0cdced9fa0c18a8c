#include "support/account_run.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr const char* kJoints = R"(TABLE:  "JOINT COORDINATES"
   Joint=1   XorR=0
   Joint=2   XorR=1
   Joint=3   XorR=2

)";

std::string Definition(const std::string& kind, const std::string& rows) {
  return SourceTable("CONSTRAINT DEFINITIONS - " + kind, rows);
}

std::string Members(const std::string& rows) {
  return SourceTable("JOINT CONSTRAINT ASSIGNMENTS", rows);
}

std::string Member(std::string_view joint, std::string_view constraint, std::string_view type) {
  return "   Joint=" + std::string(joint) + "   Constraint=" + std::string(constraint) +
         "   Type=" + std::string(type) + "\n";
}

/// Joints 1 and 2 in a constraint.
std::string TwoJoints(std::string_view constraint, std::string_view type) {
  return Member("1", constraint, type) + Member("2", constraint, type);
}

constexpr const char* kBody = "   Name=LINK   CoordSys=GLOBAL   UX=Yes   UY=Yes   UZ=Yes\n";
constexpr const char* kDiaphragm = "   Name=LINK   CoordSys=GLOBAL   Axis=Z   MultiLevel=No\n";

AccountRun KeepAccountOf(const std::string& tables) { return KeepAccount(kJoints + tables); }

/// What is lost of these tables of a model with joints 1 to 3.
std::vector<std::string> LossesOf(const std::string& tables) {
  return KeepAccountOf(tables).Losses();
}

TEST(AccountOfConstraints, BodiesAndDiaphragmsAreConverted) {
  const AccountRun run =
      KeepAccountOf(Members(TwoJoints("LINK", "Body") + TwoJoints("FLOOR", "Diaphragm")) +
                    Definition("BODY", kBody) +
                    Definition("DIAPHRAGM", "   Name=FLOOR   CoordSys=GLOBAL   Axis=Z\n"));
  EXPECT_THAT(run.Losses(), IsEmpty());
  EXPECT_THAT(run.Tables(), ElementsAre("JOINT COORDINATES: 3 rows, 3 converted",
                                        "JOINT CONSTRAINT ASSIGNMENTS: 4 rows, 4 converted",
                                        "CONSTRAINT DEFINITIONS - BODY: 1 rows, 1 converted",
                                        "CONSTRAINT DEFINITIONS - DIAPHRAGM: 1 rows, 1 converted"));
}

TEST(AccountOfConstraints, BeamsPlatesAndRodsAreChangedAndTheirJointsAreNot) {
  for (const auto& [title, type] :
       {std::pair("BEAM", "Beam"), std::pair("PLATE", "Plate"), std::pair("ROD", "Rod")}) {
    SCOPED_TRACE(title);
    EXPECT_THAT(LossesOf(Members(TwoJoints("LINK", type)) +
                         Definition(title, "   Name=LINK   CoordSys=GLOBAL   Axis=X\n")),
                ElementsAre("Name=LINK: constraint-as-diaphragm"));
  }
}

TEST(AccountOfConstraints, EqualLineAndWeldConstraintsAreChangedAndTheirJointsAreNot) {
  for (const auto& [title, type] :
       {std::pair("EQUAL", "Equal"), std::pair("LINE", "Line"), std::pair("WELD", "Weld")}) {
    SCOPED_TRACE(title);
    EXPECT_THAT(LossesOf(Members(TwoJoints("LINK", type)) + Definition(title, kBody)),
                ElementsAre("Name=LINK: constraint-as-rigid-body"));
  }
}

TEST(AccountOfConstraints, LocalConstraintsAreDropped) {
  EXPECT_THAT(LossesOf(Members(TwoJoints("LINK", "Local")) + Definition("LOCAL", kBody)),
              ElementsAre("Joint=1: constraint-local", "Joint=2: constraint-local",
                          "Name=LINK: constraint-local"));
}

TEST(AccountOfConstraints, ConstraintsOfAnUnknownKindAreDropped) {
  EXPECT_THAT(LossesOf(Members(TwoJoints("LINK", "Spider"))),
              ElementsAre("Joint=1: constraint-kind-unknown", "Joint=2: constraint-kind-unknown"));
}

TEST(AccountOfConstraints, ASecondBodyWithoutANameIsDropped) {
  const std::string nameless = "   Joint=1   Type=Body\n   Joint=2   Type=Body\n";
  EXPECT_THAT(LossesOf(Members(nameless + TwoJoints("LINK", "Body")) + Definition("BODY", kBody)),
              // rows are walked in the order 3, 2, 1, 4
              ElementsAre("Joint=1: constraint-without-name", "Joint=2: constraint-without-name"));
}

TEST(AccountOfConstraints, AConstraintOfOneJointTiesNothing) {
  const AccountRun run =
      KeepAccountOf(Members(Member("1", "LINK", "Body")) + Definition("BODY", kBody));
  EXPECT_THAT(run.Losses(), ElementsAre("Joint=1: constraint-of-one-joint",
                                        "Name=LINK: constraint-of-one-joint"));
  EXPECT_FALSE(run.HasLossOfRows());
}

TEST(AccountOfConstraints, ADefinitionWithoutJointsTiesNothing) {
  const AccountRun run = KeepAccountOf(Definition("BODY", kBody));
  EXPECT_THAT(run.Losses(), ElementsAre("Name=LINK: constraint-without-joints"));
  EXPECT_FALSE(run.HasLossOfRows());
}

TEST(AccountOfConstraints, JointsOfAKindWithoutDefinitionsAreDropped) {
  EXPECT_THAT(LossesOf(Members(TwoJoints("LINK", "Body"))),
              ElementsAre("Joint=1: constraint-undefined", "Joint=2: constraint-undefined"));
}

TEST(AccountOfConstraints, JointsWithoutTheDefinitionOfTheirNameAreChanged) {
  EXPECT_THAT(LossesOf(Members(TwoJoints("ROOF", "Body")) + Definition("BODY", kBody)),
              ElementsAre("Joint=1: constraint-definition-missing",
                          "Joint=2: constraint-definition-missing",
                          "Name=LINK: constraint-without-joints"));
}

TEST(AccountOfConstraints, ConstraintsOfAnAutomaticAxisAreDropped) {
  const AccountRun run =
      KeepAccountOf(Members(TwoJoints("LINK", "Diaphragm")) +
                    Definition("DIAPHRAGM", "   Name=LINK   CoordSys=TOWER   Axis=Auto\n"));
  EXPECT_THAT(run.Losses(), ElementsAre("Joint=1: constraint-automatic-axis",
                                        "Joint=2: constraint-automatic-axis",
                                        "Name=LINK: constraint-automatic-axis"));
  EXPECT_EQ(run.Rows.With(s2k2ngt::RowFate::Dropped), 3U);
}

TEST(AccountOfConstraints, AJointThatIsNotThereIsChanged) {
  EXPECT_THAT(LossesOf(Members(Member("1", "LINK", "Body") + Member("9", "LINK", "Body")) +
                       Definition("BODY", kBody)),
              ElementsAre("Joint=9: joint-not-there"));
}

TEST(AccountOfConstraints, AnotherKindUnderOneNameIsChangedAndItsDefinitionDropped) {
  // rows are walked in the order 3, 2, 1
  EXPECT_THAT(LossesOf(Members(Member("1", "LINK", "Diaphragm") + Member("2", "LINK", "Body") +
                               Member("3", "LINK", "Body")) +
                       Definition("BODY", kBody) + Definition("DIAPHRAGM", kDiaphragm)),
              ElementsAre("Joint=1: constraint-kind-of-another-row",
                          "Name=LINK: constraint-of-other-kind"));
}

TEST(AccountOfConstraints, OfTwoDefinitionsTheFirstOfTheWalkCounts) {
  // rows are walked in the order 2, 1
  EXPECT_THAT(
      LossesOf(Members(TwoJoints("LINK", "Diaphragm")) +
               Definition("DIAPHRAGM", "   Name=LINK   Axis=Auto\n   Name=LINK   Axis=Z\n")),
      ElementsAre("Name=LINK: row-of-same-name"));
}

TEST(AccountOfConstraints, JointsThatAreNotAllNumbersAreChanged) {
  EXPECT_THAT(
      KeepAccount(SourceTable("JOINT COORDINATES", "   Joint=1\n   Joint=TOP   Z=3\n") +
                  Members(Member("1", "LINK", "Body") + Member("TOP", "LINK", "Body")) +
                  Definition("BODY", kBody))
          .Losses(),
      ElementsAre("Joint=1: constraint-names-no-joint", "Joint=TOP: constraint-names-no-joint"));
}

TEST(AccountOfConstraints, WithoutAMassOfItsOwnADiaphragmLosesItsFirstJointAndItsMaster) {
  const AccountRun run = KeepAccountOf(
      Members(TwoJoints("LINK", "Diaphragm")) + Definition("DIAPHRAGM", kDiaphragm) +
      SourceTable("JOINT ADDED MASS ASSIGNMENTS", "   Joint=3   CoordSys=Local   Mass1=1\n"));
  EXPECT_THAT(run.Losses(), ElementsAre("Joint=1: constraint-first-joint-lost",
                                        "Joint=2: constraint-without-master"));
  EXPECT_EQ(run.Tables()[1], "JOINT CONSTRAINT ASSIGNMENTS: 2 rows, 1 changed, 1 dropped");
}

TEST(AccountOfConstraints, TheThirdBodyIsWrittenTwiceWhichIsNoLoss) {
  // rows are walked in the order 3, 6, 2, 5, 1, 4: B, C, A
  const AccountRun run = KeepAccountOf(
      Members(TwoJoints("A", "Body") + TwoJoints("B", "Body") + TwoJoints("C", "Body")) +
      Definition("BODY", "   Name=A   UX=Yes\n   Name=B   UX=Yes\n   Name=C\n"));
  EXPECT_THAT(run.Losses(),
              ElementsAre("Joint=1: constraint-repeated", "Joint=2: constraint-repeated"));
  EXPECT_EQ(run.Rows.Losses[0].Position, 1U);
  EXPECT_FALSE(run.HasLossOfRows());
}

TEST(AccountOfConstraints, ConstraintsInAUsersSystemAreChanged) {
  EXPECT_THAT(
      LossesOf(Members(TwoJoints("LINK", "Body") + TwoJoints("FLOOR", "Diaphragm")) +
               Definition("BODY", "   Name=LINK   CoordSys=TOWER   UX=Yes\n") +
               Definition("DIAPHRAGM", "   Name=FLOOR   CoordSys=TOWER   Axis=Z\n")),
      ElementsAre("Name=LINK: coordinate-system-ignored", "Name=FLOOR: coordinate-system-ignored"));
}

TEST(AccountOfConstraints, ADiaphragmOfManyLevelsIsChanged) {
  EXPECT_THAT(LossesOf(Members(TwoJoints("LINK", "Diaphragm")) +
                       Definition("DIAPHRAGM", "   Name=LINK   Axis=Z   MultiLevel=Yes\n")),
              ElementsAre("Name=LINK: diaphragm-of-many-levels"));
}

}  // namespace
