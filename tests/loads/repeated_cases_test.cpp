// Linear static cases that stand several times in a file, and loads of several cases. The
// parameters of an automatic load are taken each time that it is met; the first are written, and
// those behind them decide by which load a walk over all parameters ends.
#include "support/chained_hash.h"
#include "support/conversion_run.h"
#include "support/load_tables.h"

#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;

/// A load that an analysis case names.
using Assignment = std::pair<std::string, std::string>;

/// Loads E1 and E2 of earthquake and W1 and W2 of wind, with parameters, and EN and WN of another
/// code, without; and these analysis cases and assignments.
std::string Model(const std::vector<std::string>& analyses,
                  const std::vector<Assignment>& assignments) {
  std::string tables = R"(
TABLE:  "LOAD CASE DEFINITIONS"
   LoadCase=E1   DesignType=QUAKE   AutoLoad=UBC97
   LoadCase=E2   DesignType=QUAKE   AutoLoad=UBC97
   LoadCase=EN   DesignType=QUAKE   AutoLoad=NBCC95
   LoadCase=W1   DesignType=WIND   AutoLoad="UBC 97"
   LoadCase=W2   DesignType=WIND   AutoLoad="UBC 97"
   LoadCase=WN   DesignType=WIND   AutoLoad="NBCC 95"

TABLE:  "AUTO SEISMIC - UBC97"
   LoadCase=E1   Dir=X   Ct=0.01
   LoadCase=E2   Dir=X   Ct=0.02

TABLE:  "AUTO WIND - UBC97"
   LoadCase=W1   WindSpeed=70
   LoadCase=W2   WindSpeed=80

TABLE:  "ANALYSIS CASE DEFINITIONS"
)";
  for (const std::string& name : analyses) {
    tables += "   Case=" + name + "   Type=LinStatic\n";
  }
  tables += "\nTABLE:  \"CASE - STATIC 1 - LOAD ASSIGNMENTS\"\n";
  for (const auto& [analysis, load] : assignments) {
    tables += "   Case=" + analysis + "   LoadName=" + load + "\n";
  }
  return tables;
}

/// The load whose parameters a walk meets last, when they are kept each time that a load is met in
/// a table of so many buckets. Loads whose names end in N have none.
std::string LastOfTheWalk(const std::vector<std::string>& analyses,
                          const std::vector<Assignment>& assignments, std::uint32_t buckets) {
  ChainedHash<std::string> cases(17);
  for (std::uint32_t key = 1; key <= analyses.size(); ++key) {
    cases.Insert(key, analyses[key - 1]);
  }
  ChainedHash<Assignment> loads(17);
  for (std::uint32_t key = 1; key <= assignments.size(); ++key) {
    loads.Insert(key, assignments[key - 1]);
  }
  ChainedHash<std::string> parameters(buckets);
  std::uint32_t count = 0;
  const auto walkedLoads = loads.Walk();
  for (const auto& [caseKey, analysis] : cases.Walk()) {
    for (const auto& [loadKey, assignment] : walkedLoads) {
      if (assignment.first == analysis && !assignment.second.ends_with('N')) {
        parameters.Insert(++count, assignment.second);
      }
    }
  }
  return parameters.Walk().back().second;
}

/// The load of the one closing line that stands without an opening, which is that of EN or WN.
std::string LoneClosingLine(const ConversionRun& run) {
  const std::string closing = ";End of data for load case [";
  // Behind the line that closes another block, or at the very beginning.
  const std::string text = "]\n\n" + TextOfLoads(run);
  const std::size_t lone = text.find("]\n\n" + closing);
  EXPECT_NE(lone, std::string::npos);
  EXPECT_EQ(text.find("]\n\n" + closing, lone + 1), std::string::npos);
  const std::size_t name = lone + 3 + closing.size();
  return text.substr(name, text.find(']', name) - name);
}

TEST(RepeatedCases, MoveTheClosingLineOfALoadCaseOfAnotherCode) {
  const std::vector<Assignment> assignments = {{"A", "E1"}, {"C", "E2"}, {"B", "EN"}};
  // Cases A, C, B are walked C, A, B: records 1 and 2 are of E2 and E1 and are walked 2, 1.
  EXPECT_EQ(LoneClosingLine(Convert(Model({"A", "C", "B"}, assignments))), "E2");
  // Cases A, C, A, B are walked C, B, A, A: record 3, of E1 again, is walked last.
  EXPECT_EQ(LoneClosingLine(Convert(Model({"A", "C", "A", "B"}, assignments))), "E1");
}

TEST(RepeatedCases, MoveTheClosingLineUntilTheLastBucketIsReached) {
  const std::vector<Assignment> assignments = {
      {"A", "E1"}, {"C", "E2"}, {"B", "EN"}, {"A", "E2"}, {"C", "E1"}};
  for (const unsigned repeats : {1U, 2U, 3U, 4U, 9U, 40U}) {
    SCOPED_TRACE(repeats);
    std::vector<std::string> analyses = {"B", "C"};
    analyses.insert(analyses.end(), repeats, "A");
    EXPECT_EQ(LoneClosingLine(Convert(Model(analyses, assignments))),
              LastOfTheWalk(analyses, assignments, 17));
  }
}

TEST(RepeatedCases, MoveThatOfWindUntilItsMuchLaterLastBucketIsReached) {
  // The first key of the last bucket of 1,001 is 127,831.
  for (const unsigned repeats : {1U, 2U, 7U, 360U}) {
    SCOPED_TRACE(repeats);
    std::vector<Assignment> assignments = {{"A", "W1"}, {"A", "W2"}, {"B", "WN"}};
    for (unsigned count = 0; count < repeats; ++count) {
      assignments.emplace_back("A", count % 3 == 0 ? "W1" : "W2");
    }
    std::vector<std::string> analyses = {"B"};
    analyses.insert(analyses.end(), repeats, "A");
    EXPECT_EQ(LoneClosingLine(Convert(Model(analyses, assignments))),
              LastOfTheWalk(analyses, assignments, 1'001));
  }
}

TEST(RepeatedCases, LoadOfTwoCasesIsWrittenTwiceWithItsParameters) {
  const ConversionRun run = Convert(Model({"A", "B"}, {{"A", "E1"}, {"B", "E1"}}));
  EXPECT_THAT(run.Lines("*STLDCASE"), ElementsAre("\tE1,     E, ", "\tE1,     E, "));
  const std::string block = run.LoadBlock("E1", "*SEIS");
  EXPECT_NE(block, "");
  EXPECT_EQ(TextOfLoads(run), block + block);
}

}  // namespace
