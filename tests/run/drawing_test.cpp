#include "support/conversion_run.h"
#include "support/examples.h"
#include "support/random_model.h"
#include "support/temporary_folder.h"

#include <s2k2ngt/converter.h>
#include <s2k2ngt/drawing.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using s2k2ngt::Drawing;
using s2k2ngt::DrawnElement;
using s2k2ngt::DrawnNode;
using testing::ElementsAre;
using testing::IsEmpty;

/// A run over these bytes, with its drawing and its output.
struct DrawnRun {
  explicit DrawnRun(const std::string& bytes, int stopAtStep = 0) {
    const TemporaryFolder folder;
    const std::string path = folder.FileName("model.s2k");
    WriteFile(path, bytes);
    ScriptedPlatform platform;
    platform.StopAtStep = stopAtStep;
    s2k2ngt::CConverter converter(platform);
    Result = converter.Run(path.c_str());
    Model = converter.DrawingOfModel();
    if (Result == s2k2ngt::kConverted) {
      Output.Output = ReadFile(folder.FileName("model.ngt"));
    }
  }
  int Result = 0;
  Drawing Model;
  ConversionRun Output;
};

Drawing Draw(std::string_view tables) { return DrawnRun(FileWith(tables)).Model; }

/// The nodes in words, as "1 A: 0 0 3 supported".
std::vector<std::string> Nodes(const Drawing& drawing) {
  std::vector<std::string> nodes;
  for (const DrawnNode& node : drawing.Nodes) {
    std::ostringstream text;
    text << node.Number << " " << node.Label << ": " << node.X << " " << node.Y << " " << node.Z
         << (node.IsSupported ? " supported" : "");
    nodes.push_back(text.str());
  }
  return nodes;
}

/// The elements in words, as "frame 7 B1: 1 2" with the numbers of their nodes.
std::vector<std::string> Elements(const Drawing& drawing) {
  constexpr std::array<const char*, 5> kKinds = {"frame", "area", "solid", "link", "rigid link"};
  std::vector<std::string> elements;
  for (const DrawnElement& element : drawing.Elements) {
    std::ostringstream text;
    text << kKinds.at(static_cast<std::size_t>(element.Kind)) << " " << element.Number << " "
         << element.Label << ":";
    for (const std::uint32_t node : element.Nodes) {
      text << " " << drawing.Nodes[node].Number;
    }
    elements.push_back(text.str());
  }
  return elements;
}

/// Joints of these labels.
std::string Joints(const std::vector<std::string>& labels) {
  std::string rows;
  for (const std::string& label : labels) {
    rows += "   Joint=" + label + "   XorR=1\n";
  }
  return SourceTable("JOINT COORDINATES", rows);
}

// Nodes

TEST(DrawingOfModelTest, NodesStandWithTheirNumbersAndCoordinates) {
  const Drawing drawing = Draw(R"(
TABLE:  "JOINT COORDINATES"
   Joint=5   XorR=1.5   Y=-2   Z=3
   Joint=10   XorR=0   Y=0   Z=0   SpecialJt=Yes   GlobalX=7   GlobalY=8   GlobalZ=9
)");
  EXPECT_THAT(Nodes(drawing), ElementsAre("5 5: 1.5 -2 3", "10 10: 7 8 9"));
  EXPECT_FALSE(drawing.NodesAreRenumbered);
}

TEST(DrawingOfModelTest, NodesOfLabelsThatAreNoNumbersAreNumberedByTheirRows) {
  const Drawing drawing = Draw(Joints({"7", "B"}));
  EXPECT_THAT(Nodes(drawing), ElementsAre("1 7: 1 0 0", "2 B: 1 0 0"));
  EXPECT_TRUE(drawing.NodesAreRenumbered);
  EXPECT_FALSE(drawing.ElementsAreRenumbered);
}

TEST(DrawingOfModelTest, RestraintsAndSpringsSupportNodes) {
  const Drawing drawing = Draw(Joints({"1", "2", "3", "4", "5", "6"}) + R"(
TABLE:  "JOINT RESTRAINT ASSIGNMENTS"
   Joint=1   U1=No   U2=No   U3=No   R1=No   R2=No   R3=Yes
   Joint=2   U1=No   U2=No   U3=No   R1=No   R2=No   R3=No

TABLE:  "JOINT SPRING ASSIGNMENTS 1 - UNCOUPLED"
   Joint=3   CoordSys=Local   U1=100

TABLE:  "JOINT SPRING ASSIGNMENTS 2 - COUPLED"
   Joint=4   CoordSys=Local   U1=100

TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=6   JointJ=5   Length=2

TABLE:  "FRAME SPRING ASSIGNMENTS"
   Frame=1   Dir=2   Stiffness=10
)");
  // Of a spring along a frame one is left, at its first joint.
  EXPECT_THAT(Nodes(drawing),
              ElementsAre("1 1: 1 0 0 supported", "2 2: 1 0 0", "3 3: 1 0 0 supported",
                          "4 4: 1 0 0 supported", "5 5: 1 0 0", "6 6: 1 0 0 supported"));
}

// Elements

constexpr const char* kFrameAndArea = R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=F   JointI=2   JointJ=1

TABLE:  "CONNECTIVITY - AREA"
   Area=9   NumJoints=4   Joint1=1   Joint2=2   Joint3=3   Joint4=4
)";

TEST(DrawingOfModelTest, ElementsOfLabelsThatAreNoNumbersAreNumberedByTheirPositions) {
  const Drawing drawing = Draw(Joints({"1", "2", "3", "4"}) + kFrameAndArea);
  EXPECT_THAT(Elements(drawing), ElementsAre("frame 1 F: 2 1", "area 2 9: 1 2 4 3"));
  EXPECT_TRUE(drawing.ElementsAreRenumbered);
  EXPECT_FALSE(drawing.NodesAreRenumbered);
}

TEST(DrawingOfModelTest, ElementsOfLabelsThatFamiliesShareAreNumberedByTheirPositions) {
  const Drawing drawing = Draw(Joints({"1", "2", "3", "4"}) + R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=8   JointI=1   JointJ=2

TABLE:  "CONNECTIVITY - AREA"
   Area=8   NumJoints=4   Joint1=1   Joint2=2   Joint3=3   Joint4=4
)");
  EXPECT_THAT(Elements(drawing), ElementsAre("frame 1 8: 1 2", "area 2 8: 1 2 4 3"));
}

TEST(DrawingOfModelTest, ATriangleHasThreeNodes) {
  const Drawing drawing = Draw(Joints({"1", "2", "3", "4"}) + R"(
TABLE:  "CONNECTIVITY - AREA"
   Area=1   NumJoints=3   Joint1=1   Joint2=2   Joint3=3   Joint4=3
   Area=2   NumJoints=3   Joint1=1   Joint2=2   Joint3=4
)");
  // The second does not repeat its last joint, and has an empty place in the output.
  EXPECT_THAT(Elements(drawing), ElementsAre("area 1 1: 1 2 3", "area 2 2: 1 2 4"));
}

TEST(DrawingOfModelTest, SolidsHaveEightNodesOrSix) {
  const Drawing drawing = Draw(Joints({"1", "2", "3", "4", "5", "6", "7", "8"}) + R"(
TABLE:  "CONNECTIVITY - SOLID"
   Solid=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6   Joint7=7   Joint8=8
   Solid=2   Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6
)");
  EXPECT_THAT(Elements(drawing),
              ElementsAre("solid 1 1: 1 2 4 3 5 6 8 7", "solid 2 2: 1 2 3 4 5 6"));
}

TEST(DrawingOfModelTest, LinksHaveTheirLabelsAndNoNumbers) {
  const Drawing drawing = Draw(Joints({"1", "2", "3"}) + R"(
TABLE:  "CONNECTIVITY - LINK"
   Link=11   JointI=1   JointJ=2
   Link=12   JointI=2   JointJ=3
   Link=13   JointI=3   JointJ=3

TABLE:  "SUMMARY - LINK ASSIGNMENTS"
   Link=11   LinkType=Gap   LinkJoint=TwoJoint   LinkProp=P
   Link=12   LinkType=Linear   LinkJoint=TwoJoint   LinkProp=P
   Link=13   LinkType=Linear   LinkJoint=SingleJoint   LinkProp=P
)");
  // Elastic links are written before the others; a link of a single joint is lost.
  EXPECT_THAT(Elements(drawing), ElementsAre("link 0 12: 2 3", "link 0 11: 1 2"));
}

TEST(DrawingOfModelTest, ARigidLinkGoesFromItsMasterToEachOtherJoint) {
  const Drawing drawing = Draw(Joints({"1", "2", "3"}) + R"(
TABLE:  "JOINT CONSTRAINT ASSIGNMENTS"
   Joint=3   Constraint=W   Type=Weld
   Joint=1   Constraint=W   Type=Weld
   Joint=2   Constraint=W   Type=Weld

TABLE:  "CONSTRAINT DEFINITIONS - WELD"
   Name=W   UX=Yes
)");
  EXPECT_THAT(Elements(drawing), ElementsAre("rigid link 0 : 3 1", "rigid link 0 : 3 2"));
}

TEST(DrawingOfModelTest, AnElementWithoutOneOfItsNodesKeepsItsNumberAndHasNoNodes) {
  const Drawing drawing = Draw(Joints({"1", "2"}) + R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=3
   Frame=2   JointI=1   JointJ=2

TABLE:  "CONNECTIVITY - SOLID"
   Solid=4   Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6   Joint7=7   Joint8=8

TABLE:  "CONNECTIVITY - LINK"
   Link=5   JointI=2   JointJ=3

TABLE:  "SUMMARY - LINK ASSIGNMENTS"
   Link=5   LinkType=Linear   LinkJoint=TwoJoint   LinkProp=P
)");
  EXPECT_THAT(Elements(drawing),
              ElementsAre("frame 1 1:", "frame 2 2: 1 2", "solid 4 4:", "link 0 5:"));
}

TEST(DrawingOfModelTest, AnAreaOfFewerThanThreeCornersKeepsItsNumberAndHasNoNodes) {
  const Drawing drawing = Draw(Joints({"A", "B"}) + R"(
TABLE:  "CONNECTIVITY - AREA"
   Area=S   NumJoints=4   Joint1=A   Joint2=B   Joint3=C   Joint4=D
   Area=T   NumJoints=3   Joint1=A   Joint2=B
)");
  EXPECT_THAT(Elements(drawing), ElementsAre("area 1 S:", "area 2 T:"));
}

// Runs

TEST(DrawingOfModelTest, BeforeARunThereIsNone) {
  ScriptedPlatform platform;
  const s2k2ngt::CConverter converter(platform);
  EXPECT_THAT(converter.DrawingOfModel().Nodes, IsEmpty());
}

TEST(DrawingOfModelTest, OfAFailedRunThereIsNone) {
  const DrawnRun run(FileWith(Joints({"1"}) + "TABLE:  \"JOINT COORDINATES\"\n   Joint=2   "
                                              "CoordType=Cylindrical\n\n"));
  EXPECT_EQ(run.Result, s2k2ngt::kFailed);
  EXPECT_THAT(run.Model.Nodes, IsEmpty());
}

TEST(DrawingOfModelTest, OfAStoppedRunThereIsNone) {
  const DrawnRun run(FileWith(Joints({"1"})), 10);
  EXPECT_EQ(run.Result, s2k2ngt::kStopped);
  EXPECT_THAT(run.Model.Nodes, IsEmpty());
}

/// The numbers at the head of a data line of the output, of which the words are left out.
std::vector<long> NumbersIn(const std::string& line) {
  std::vector<long> numbers;
  std::istringstream words(line.substr(0, line.find(';')));
  for (std::string word; std::getline(words, word, ',');) {
    char* end = nullptr;
    const long number = std::strtol(word.c_str(), &end, 10);
    if (end != word.c_str()) {
      numbers.push_back(number);
    }
  }
  return numbers;
}

void ExpectNumbersOfOutput(const DrawnRun& run) {
  std::vector<std::string> nodes;
  for (const DrawnNode& node : run.Model.Nodes) {
    std::array<char, 160> line{};
    std::snprintf(line.data(), line.size(), "\t%d, %5g, %5g, %5g", node.Number, node.X, node.Y,
                  node.Z);
    nodes.emplace_back(line.data());
  }
  std::vector<std::string> written = run.Output.Lines("*NODE");
  for (std::string& line : written) {
    line.erase(std::min(line.find(" \t\t;Joint="), line.size()));
  }
  EXPECT_EQ(nodes, written);

  std::vector<std::vector<long>> elements;
  for (const DrawnElement& element : run.Model.Elements) {
    if (element.Number > 0) {
      elements.emplace_back(1, element.Number);
      for (const std::uint32_t node : element.Nodes) {
        elements.back().push_back(run.Model.Nodes[node].Number);
      }
    }
  }
  const std::vector<std::string> lines = run.Output.Lines("*ELEMENT");
  ASSERT_EQ(elements.size(), lines.size());
  for (std::size_t place = 0; place < lines.size(); ++place) {
    std::vector<long> numbers = NumbersIn(lines[place]);
    ASSERT_GE(numbers.size(), 3 + elements[place].size() - 1) << lines[place];
    numbers.erase(numbers.begin() + 1, numbers.begin() + 3);  // material and property
    std::erase(numbers, 0);                                   // places of corners that are empty
    numbers.resize(elements[place].size());
    EXPECT_EQ(elements[place], numbers) << lines[place];
  }
}

TEST(DrawingOfModelTest, NumbersOfAllModelsAreThoseOfTheirOutput) {
  for (const std::string& name : ExampleNames()) {
    SCOPED_TRACE(name);
    ExpectNumbersOfOutput(DrawnRun(Example(name)));
  }
  for (const auto& file : std::filesystem::directory_iterator(S2K2NGT_FAULT_MODELS)) {
    SCOPED_TRACE(file.path());
    ExpectNumbersOfOutput(DrawnRun(ReadFile(file.path().string())));
  }
}

TEST(DrawingOfModelTest, ElementsOfAnyModelHaveNodesThatAreThere) {
  for (std::uint32_t seed = 1; seed <= 40; ++seed) {
    SCOPED_TRACE(seed);
    const Drawing drawing = DrawnRun(RandomModel(seed)).Model;
    for (const DrawnElement& element : drawing.Elements) {
      EXPECT_NE(element.Nodes.size(), 1U);
      EXPECT_TRUE(std::ranges::all_of(
          element.Nodes, [&](std::uint32_t node) { return node < drawing.Nodes.size(); }));
    }
  }
}

}  // namespace
