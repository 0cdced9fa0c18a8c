#include "target/head.h"

#include "support/writer_run.h"

#include <gtest/gtest.h>

namespace s2k2ngt {
namespace {

TEST(StructureType, IsWrittenWhenItsFlagIsSet) {
  WriterRun run;
  run.Target.StructureType.iSTYP = 1;
  run.Target.StructureType.iSMAS = 3;
  run.Target.StructureType.GRAV = 386.0632;
  run.Target.StructureType.bWrite = true;
  EXPECT_EQ(run.Write(WriteStructureType),
            "*STRUCTYPE    ; Structure Type\n"
            "; iSTYP, iSMAS, GRAV, TEMPER, bALIGNBEAM, bALIGNSLAB\n"
            "\t1,     3, 386.063,     0,    NO,    NO\n"
            "\n");
}

TEST(StructureType, IsNotWrittenWhenItsFlagIsNotSet) {
  WriterRun run;
  EXPECT_EQ(run.Write(WriteStructureType), "");
}

}  // namespace
}  // namespace s2k2ngt
