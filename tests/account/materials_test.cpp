#include "support/account_run.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string Materials(std::string_view rows) {
  return SourceTable("MATERIAL PROPERTIES 1 - GENERAL", rows);
}

std::string Constants(std::string_view rows) {
  return SourceTable("MATERIAL PROPERTIES 2 - ADVANCED", rows);
}

std::string Units(std::string_view units) {
  return SourceTable("PROGRAM CONTROL", "   CurrUnits=\"" + std::string(units) + "\"\n");
}

std::vector<std::string> LossesOf(const std::string& tables) {
  return KeepAccount(tables).Losses();
}

constexpr const char* kWood = "   Material=GL24   Type=Orthotropic   DesignType=None\n";
constexpr const char* kConstantsOfWood =
    "   Material=GL24   Temp=0   E1=11   E2=3   E3=3   G12=7\n";

TEST(AccountOfMaterialsTest, SoundMaterialsAreConverted) {
  const AccountRun run = KeepAccount(
      Units("KN, m, F") +
      Materials("   Material=S235   Type=Isotropic   DesignType=Steel   E=2   U=0.3   A=1\n"
                "   Material=C30   Type=Isotropic   DesignType=Concrete   E=3   U=0.2   A=1\n"
                "   Material=OTHER   Type=Isotropic   E=3   U=0.2   A=1\n" +
                std::string(kWood)) +
      Constants(kConstantsOfWood));
  EXPECT_THAT(run.Tables(), ElementsAre("PROGRAM CONTROL: 1 rows, 1 converted",
                                        "MATERIAL PROPERTIES 1 - GENERAL: 4 rows, 4 converted",
                                        "MATERIAL PROPERTIES 2 - ADVANCED: 1 rows, 1 converted"));
}

TEST(AccountOfMaterialsTest, ADesignTypeWithoutLikeIsReworded) {
  const AccountRun run =
      KeepAccount(Materials("   Material=ALU   Type=Isotropic   DesignType=Aluminum   E=7\n"));
  EXPECT_THAT(run.Losses(), ElementsAre("Material=ALU: material-design-type"));
  EXPECT_FALSE(run.HasLossOfRows());
}

TEST(AccountOfMaterialsTest, AMaterialWithoutItsConstantsIsDropped) {
  EXPECT_THAT(LossesOf(Materials(kWood)), ElementsAre("Material=GL24: material-constants-missing"));
}

TEST(AccountOfMaterialsTest, AnAnisotropicMaterialIsChanged) {
  EXPECT_THAT(
      LossesOf(Materials("   Material=GL24   Type=Anisotropic\n") + Constants(kConstantsOfWood)),
      ElementsAre("Material=GL24: material-anisotropic", "Material=GL24: material-anisotropic"));
}

TEST(AccountOfMaterialsTest, AMaterialOfAnUnknownTypeIsChanged) {
  EXPECT_THAT(
      LossesOf(Materials("   Material=GL24   Type=Uniaxial\n") + Constants(kConstantsOfWood)),
      ElementsAre("Material=GL24: material-type-unknown"));
}

TEST(AccountOfMaterialsTest, AThermalCoefficientOfAnUnknownUnitIsChanged) {
  const std::string withCoefficient = Materials("   Material=S235   Type=Isotropic   E=2   A=1\n");
  EXPECT_THAT(LossesOf(Units("KN, m, K") + withCoefficient),
              ElementsAre("Material=S235: thermal-unit-unknown"));
  EXPECT_THAT(LossesOf(Units("KN, m, K") + Materials("   Material=S235   Type=Isotropic   E=2\n")),
              IsEmpty());
}

TEST(AccountOfMaterialsTest, ThermalCoefficientsThatAreNotPerCelsiusAreChanged) {
  for (const char* coefficient : {"A1=1", "A2=1", "A3=1"}) {
    const std::string tables = Materials(kWood) + Constants("   Material=GL24   E1=11   " +
                                                            std::string(coefficient) + "\n");
    EXPECT_THAT(LossesOf(Units("Kip, ft, F") + tables),
                ElementsAre("Material=GL24: thermal-not-per-celsius"));
    EXPECT_THAT(LossesOf(Units("KN, m, c") + tables), IsEmpty());
  }
}

TEST(AccountOfMaterialsTest, OfConstantsAtSeveralTemperaturesOneRowCounts) {
  // Rows 1 and 2 are walked in the order 2, 1.
  const AccountRun run =
      KeepAccount(Materials(kWood) + Constants("   Material=GL24   Temp=0   E1=11\n"
                                               "   Material=GL24   Temp=50   E1=9\n"));
  EXPECT_THAT(run.Losses(), ElementsAre("Material=GL24: constants-at-another-temperature"));
  ASSERT_EQ(run.Rows.Losses.size(), 1U);
  EXPECT_EQ(run.Rows.Losses[0].Position, 1U);
}

TEST(AccountOfMaterialsTest, ConstantsOfAnUnknownMaterialAreDropped) {
  EXPECT_THAT(LossesOf(Constants(kConstantsOfWood)),
              ElementsAre("Material=GL24: constants-of-unknown-material"));
}

TEST(AccountOfMaterialsTest, ConstantsOfAnIsotropicMaterialAreDropped) {
  EXPECT_THAT(LossesOf(Materials("   Material=GL24   Type=Isotropic   E=2\n") +
                       Constants(kConstantsOfWood)),
              ElementsAre("Material=GL24: constants-of-isotropic-material"));
}

TEST(AccountOfMaterialsTest, ConstantsOfOneOfTwoMaterialsOfANameAreConverted) {
  EXPECT_THAT(LossesOf(Materials("   Material=GL24   Type=Isotropic   E=2\n" + std::string(kWood) +
                                 "   Material=GL24   Type=Isotropic   E=2\n") +
                       Constants(kConstantsOfWood)),
              ElementsAre("Material=GL24: name-used-twice", "Material=GL24: name-used-twice"));
}

}  // namespace
