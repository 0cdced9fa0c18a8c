#include "support/conversion_run.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The rows of the general table of materials that a test speaks of.
ConversionRun ConvertMaterials(const std::string& rows) {
  return Convert("TABLE:  \"MATERIAL PROPERTIES 1 - GENERAL\"\n" + rows);
}

TEST(Materials, SectionOfAnIsotropicAndAnOrthotropicMaterial) {
  const ConversionRun run = Convert(R"(
TABLE:  "PROGRAM CONTROL"
   CurrUnits="KN, m, C"

TABLE:  "MATERIAL PROPERTIES 1 - GENERAL"
   Material=TIMBER   Type=Orthotropic   DesignType=None   UnitMass=0.4   UnitWeight=4   E=9   U=9
   Material=A36   Type=Isotropic   DesignType=Steel   UnitMass=7.849   UnitWeight=76.9729 _
        E=199948023.75   U=0.3   A=1.17E-05   NumAdvance=0   Color=Magenta

TABLE:  "MATERIAL PROPERTIES 2 - ADVANCED"
   Material=TIMBER   Temp=20   E1=1.1E+07   E2=370000   E3=400000   G12=690000   G13=720000 _
        G23=72000   U12=0.37   U13=0.42   U23=0.47   A1=5E-06   A2=3E-05   A3=3.5E-05
)");
  EXPECT_EQ(
      run.Section("*MATERIAL"),
      "*MATERIAL    ; Material\n"
      "\n"
      "; iMAT, TYPE, MNAME, SPHEAT, HEATCO, [DATA1]               ; STEEL, CONC, USER\n"
      "; iMAT, TYPE, MNAME, SPHEAT, HEATCO, [DATA2], [DATA2]      ; SRC\n"
      "; [DATA1] : 1, DB, NAME\n"
      "; [DATA1] : 2, ELAST, POISN, THERMAL, DEN\n"
      "; [DATA1] : 3, Ex, Ey, Ez, Tx, Ty, Tz, Sxy, Sxz, Syz, Pxy, Pxz, Pyz, DEN  ; Orthotropic\n"
      "; [DATA2] : 1, DB, NAME or 2, ELAST, POISN, THERMAL, DEN\n"
      "\t2, STEEL,   A36,     0,     0, 2, 1.99948e+08,   0.3, 1.17e-05, 76.9729\n"
      "\t1,  USER, TIMBER,     0,     0, 3, 1.1e+07, 400000, 370000, 5e-06, 3.5e-05, 3e-05, "
      "720000, 690000, 72000,  0.42,  0.37,  0.47,     4\n"
      "\n");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(Materials, ModelWithoutMaterialsHasNoSection) {
  const ConversionRun run = Convert(R"(
TABLE:  "MATERIAL PROPERTIES 2 - ADVANCED"
   Material=TIMBER   Temp=20   E1=1   E2=2   E3=3
)");
  EXPECT_EQ(run.Section("*MATERIAL"), "");
}

TEST(Materials, SixMaterialsPrintInTheOrderOfTheWalk) {
  const ConversionRun run = ConvertMaterials(R"(   Material=M1   Type=Isotropic   E=1
   Material=M2   Type=Isotropic   E=2
   Material=M3   Type=Isotropic   E=3
   Material=M4   Type=Isotropic   E=4
   Material=M5   Type=Isotropic   E=5
   Material=M6   Type=Isotropic   E=6
)");
  EXPECT_THAT(run.Lines("*MATERIAL"),
              ElementsAre("\t3,  USER,    M3,     0,     0, 2,     3,     0,     0,     0",
                          "\t6,  USER,    M6,     0,     0, 2,     6,     0,     0,     0",
                          "\t2,  USER,    M2,     0,     0, 2,     2,     0,     0,     0",
                          "\t5,  USER,    M5,     0,     0, 2,     5,     0,     0,     0",
                          "\t1,  USER,    M1,     0,     0, 2,     1,     0,     0,     0",
                          "\t4,  USER,    M4,     0,     0, 2,     4,     0,     0,     0"));
}

TEST(Materials, DesignTypeGivesTheTypeOfBothKinds) {
  struct Case {
    const char* DesignType;
    const char* Type;
  };
  const Case cases[] = {{"None", " USER"},     {"Concrete", " CONC"}, {"Steel", "STEEL"},
                        {"Aluminum", " USER"}, {"STEEL", " USER"},    {"concrete", " USER"},
                        {"", " USER"}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.DesignType);
    const ConversionRun run = Convert(std::string(R"(
TABLE:  "MATERIAL PROPERTIES 1 - GENERAL"
   Material=ISO   Type=Isotropic   UnitWeight=78   E=2   U=0.3   A=0.5   DesignType=)") +
                                      c.DesignType + R"(
   Material=ORTHO   Type=Orthotropic   UnitWeight=5   DesignType=)" +
                                      c.DesignType + R"(

TABLE:  "MATERIAL PROPERTIES 2 - ADVANCED"
   Material=ORTHO   E1=1   E2=2   E3=3
)");
    EXPECT_THAT(
        run.Lines("*MATERIAL"),
        ElementsAre(std::string("\t2, ") + c.Type +
                        ", ORTHO,     0,     0, 3,     1,     3,     2,     0,     0,     0,     "
                        "0,     0,     0,     0,     0,     0,     5",
                    std::string("\t1, ") + c.Type +
                        ",   ISO,     0,     0, 2,     2,   0.3,   0.5,    78"));
  }
}

TEST(Materials, MissingDesignTypeIsUser) {
  const ConversionRun run = ConvertMaterials("   Material=ISO   Type=Isotropic   E=2\n");
  EXPECT_THAT(run.Lines("*MATERIAL"),
              ElementsAre("\t1,  USER,   ISO,     0,     0, 2,     2,     0,     0,     0"));
}

TEST(Materials, TypeIsFoundInsideDesignTypeWhenThatStandsFirst) {
  const ConversionRun run =
      ConvertMaterials("   Material=ISO   DesignType=Isotropic   Type=Steel   E=2\n");
  EXPECT_THAT(run.Lines("*MATERIAL"),
              ElementsAre("\t1,  USER,   ISO,     0,     0, 2,     2,     0,     0,     0"));
}

TEST(Materials, UnitOfTemperatureConvertsTheThermalCoefficientOfIsotropicMaterials) {
  struct Case {
    const char* Units;
    const char* Thermal;
  };
  const Case cases[] = {
      {"KN, m, C", "    1"},       {"KN, m, c", "    1"}, {"Kip, in, F", "  1.8"},
      {"lb, ft, f", "  1.8"},      {"KN, m, K", "    0"}, {"KN, m, ", "    0"},
      {"KN, m, Celsius", "    0"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.Units);
    const ConversionRun run = Convert(std::string(R"(
TABLE:  "PROGRAM CONTROL"
   CurrUnits=")") + c.Units + R"("

TABLE:  "MATERIAL PROPERTIES 1 - GENERAL"
   Material=ISO   Type=Isotropic   A=1.0
)");
    EXPECT_THAT(run.Lines("*MATERIAL"),
                ElementsAre(std::string("\t1,  USER,   ISO,     0,     0, 2,     0,     0, ") +
                            c.Thermal + ",     0"));
  }
}

TEST(Materials, UnitOfTemperatureIsCelsiusWithoutAUnitLine) {
  const ConversionRun run = ConvertMaterials("   Material=ISO   Type=Isotropic   A=1.0\n");
  EXPECT_THAT(run.Lines("*MATERIAL"),
              ElementsAre("\t1,  USER,   ISO,     0,     0, 2,     0,     0,     1,     0"));
}

TEST(Materials, OrthotropicConstantsExchangeAxesTwoAndThreeWhateverTheUnits) {
  for (const char* units : {"KN, m, C", "Kip, in, F"}) {
    SCOPED_TRACE(units);
    const ConversionRun run = Convert(std::string(R"(
TABLE:  "PROGRAM CONTROL"
   CurrUnits=")") + units + R"("

TABLE:  "MATERIAL PROPERTIES 1 - GENERAL"
   Material=PLY   Type=Orthotropic   DesignType=None   UnitWeight=6   E=91   U=92   A=93

TABLE:  "MATERIAL PROPERTIES 2 - ADVANCED"
   Material=PLY   Temp=0   E1=1   E2=2   E3=3   G12=12   G13=13   G23=23   U12=0.12   U13=0.13 _
        U23=0.23   A1=0.1   A2=0.2   A3=0.3
)");
    EXPECT_THAT(run.Lines("*MATERIAL"),
                ElementsAre("\t1,  USER,   PLY,     0,     0, 3,     1,     3,     2,   0.1,   "
                            "0.3,   0.2,    13,    12,    23,  0.13,  0.12,  0.23,     6"));
  }
}

TEST(Materials, MixedConstantsOfAnAnisotropicMaterialAreDroppedWithAMessage) {
  const ConversionRun run = Convert(R"(
TABLE:  "MATERIAL PROPERTIES 1 - GENERAL"
   Material=ROCK   Type=Anisotropic   DesignType=None   UnitWeight=27

TABLE:  "MATERIAL PROPERTIES 2 - ADVANCED"
   Material=ROCK   E1=1   E2=2   E3=3   U14=41   U24=42   U34=43   U15=51   U25=52   U35=53 _
        U45=54   U16=61   U26=62   U36=63   U46=64   U56=65   A12=71   A13=72   A23=73
)");
  EXPECT_THAT(run.Lines("*MATERIAL"),
              ElementsAre("\t1,  USER,  ROCK,     0,     0, 3,     1,     3,     2,     0,     0,  "
                          "   0,     0,     0,     0,     0,     0,     0,    27"));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_MATL_ANIS_Not_Convert"));
}

TEST(Materials, AnyOtherTypeIsOrthotropicWithoutAMessage) {
  for (const char* type :
       {"Orthotropic", "Uniaxial", "isotropic", "ISOTROPIC", "anisotropic", ""}) {
    SCOPED_TRACE(type);
    const ConversionRun run = Convert(std::string(R"(
TABLE:  "MATERIAL PROPERTIES 1 - GENERAL"
   Material=PLY   E=9   UnitWeight=6   Type=)") +
                                      type + R"(

TABLE:  "MATERIAL PROPERTIES 2 - ADVANCED"
   Material=PLY   E1=1   E2=2   E3=3
)");
    EXPECT_THAT(run.Lines("*MATERIAL"),
                ElementsAre("\t1,  USER,   PLY,     0,     0, 3,     1,     3,     2,     0,     "
                            "0,     0,     0,     0,     0,     0,     0,     0,     6"));
    EXPECT_THAT(run.Messages, IsEmpty());
  }
}

TEST(Materials, AdvancedConstantsOfAnIsotropicMaterialAreNotUsed) {
  const ConversionRun run = Convert(R"(
TABLE:  "MATERIAL PROPERTIES 1 - GENERAL"
   Material=PLY   Type=Isotropic   E=9

TABLE:  "MATERIAL PROPERTIES 2 - ADVANCED"
   Material=PLY   E1=1   E2=2   E3=3
)");
  EXPECT_THAT(run.Lines("*MATERIAL"),
              ElementsAre("\t1,  USER,   PLY,     0,     0, 2,     9,     0,     0,     0"));
}

TEST(Materials, OfSeveralTemperaturesTheOneThatTheWalkMeetsFirstCounts) {
  // Rows 1, 2, 3 are walked in the order 2, 1, 3.
  const ConversionRun run = Convert(R"(
TABLE:  "MATERIAL PROPERTIES 1 - GENERAL"
   Material=PLY   Type=Orthotropic
   Material=OAK   Type=Orthotropic

TABLE:  "MATERIAL PROPERTIES 2 - ADVANCED"
   Material=PLY   Temp=0   E1=1   E2=2   E3=3
   Material=PLY   Temp=20   E1=4   E2=5   E3=6
   Material=OAK   Temp=0   E1=7   E2=8   E3=9
)");
  EXPECT_THAT(run.Lines("*MATERIAL"),
              ElementsAre("\t2,  USER,   OAK,     0,     0, 3,     7,     9,     8,     0,     0,  "
                          "   0,     0,     0,     0,     0,     0,     0,     0",
                          "\t1,  USER,   PLY,     0,     0, 3,     4,     6,     5,     0,     0,  "
                          "   0,     0,     0,     0,     0,     0,     0,     0"));
}

TEST(Materials, MaterialWithoutAdvancedConstantsLeavesAGapInTheNumbers) {
  // with no table of advanced constants at all, and with one that lacks the material
  for (const char* advanced : {"", R"(
TABLE:  "MATERIAL PROPERTIES 2 - ADVANCED"
   Material=rock   E1=1   E2=2   E3=3
)"}) {
    SCOPED_TRACE(advanced);
    const ConversionRun run = Convert(std::string(R"(
TABLE:  "MATERIAL PROPERTIES 1 - GENERAL"
   Material=A36   Type=Isotropic   E=1
   Material=ROCK   Type=Orthotropic   E=2
   Material=C30   Type=Isotropic   E=3

)") + advanced);
    EXPECT_THAT(run.Lines("*MATERIAL"),
                ElementsAre("\t3,  USER,   C30,     0,     0, 2,     3,     0,     0,     0",
                            "\t1,  USER,   A36,     0,     0, 2,     1,     0,     0,     0"));
    EXPECT_THAT(run.Messages, IsEmpty());
  }
}

TEST(Materials, LostAnisotropicMaterialShowsTheMessageWhenAnotherMaterialIsWritten) {
  const ConversionRun run = ConvertMaterials(R"(   Material=ROCK   Type=Anisotropic
   Material=A36   Type=Isotropic   E=1
)");
  EXPECT_THAT(run.Lines("*MATERIAL"),
              ElementsAre("\t2,  USER,   A36,     0,     0, 2,     1,     0,     0,     0"));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_MATL_ANIS_Not_Convert"));
}

TEST(Materials, LostAnisotropicMaterialAloneShowsNothing) {
  const ConversionRun run =
      ConvertMaterials("   Material=ROCK   Type=Anisotropic   DesignType=None   UnitWeight=27\n");
  EXPECT_EQ(run.Section("*MATERIAL"), "");
  EXPECT_THAT(run.Messages, IsEmpty());
  EXPECT_EQ(run.Result, 0);
}

TEST(Materials, SeveralAnisotropicMaterialsShowTheMessageOnce) {
  const ConversionRun run = Convert(R"(
TABLE:  "MATERIAL PROPERTIES 1 - GENERAL"
   Material=ROCK   Type=Anisotropic
   Material=SOIL   Type=Anisotropic

TABLE:  "MATERIAL PROPERTIES 2 - ADVANCED"
   Material=ROCK   E1=1
   Material=SOIL   E1=2
)");
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_MATL_ANIS_Not_Convert"));
}

TEST(Materials, RepeatedNameGivesTwoMaterials) {
  const ConversionRun run = ConvertMaterials(R"(   Material=A36   Type=Isotropic   E=1
   Material=A36   Type=Isotropic   E=2
)");
  EXPECT_THAT(run.Lines("*MATERIAL"),
              ElementsAre("\t2,  USER,   A36,     0,     0, 2,     2,     0,     0,     0",
                          "\t1,  USER,   A36,     0,     0, 2,     1,     0,     0,     0"));
}

}  // namespace
