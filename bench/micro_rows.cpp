// Rows of a table into records: all keys in one pass, beside a search for each.
#include "frames/elements.h"
#include "joints/nodes.h"
#include "micro.h"
#include "pieces.h"
#include "source/row_reader.h"

#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace s2k2ngt {

// Beside the records, where the comparison looks for them.
static std::uint64_t HashOf(const T_JTCD_D& joint) {
  return micro::HashOfFields(joint.Joint, joint.CoordType, joint.XorR, joint.Y, joint.Z,
                             joint.SpecialJt, joint.StatesGlobal, joint.GlobalX, joint.GlobalY,
                             joint.GlobalZ);
}
static std::uint64_t HashOf(const T_CNFR_D& frame) {
  return micro::HashOfFields(frame.Frame, frame.JointI, frame.JointJ, frame.Length);
}

namespace micro {
namespace {

constexpr int kRows = 5'000;

// A search for each key, in rows without lists, quotes and repeated keys, which end in a null.

void SearchReal(const char* row, const char* key, double& value) {
  if (const char* const place = std::strstr(row, key)) {
    value = std::strtod(place + std::strlen(key), nullptr);
  }
}

void SearchText(const char* row, const char* key, TextStore& texts, Text& value) {
  if (const char* const place = std::strstr(row, key)) {
    const char* const begin = place + std::strlen(key);
    const char* const end = std::strstr(begin, "   ");
    value = texts.Keep(end == nullptr ? Text(begin)
                                      : Text(begin, static_cast<std::size_t>(end - begin)));
  }
}

void Search(const char* row, TextStore& texts, T_JTCD_D& joint) {
  Text special;
  SearchText(row, "Joint=", texts, joint.Joint);
  SearchText(row, "CoordType=", texts, joint.CoordType);
  SearchReal(row, "XorR=", joint.XorR);
  SearchReal(row, "Y=", joint.Y);
  SearchReal(row, "Z=", joint.Z);
  SearchText(row, "SpecialJt=", texts, special);
  SearchReal(row, "GlobalX=", joint.GlobalX);
  SearchReal(row, "GlobalY=", joint.GlobalY);
  SearchReal(row, "GlobalZ=", joint.GlobalZ);
  joint.SpecialJt = special == "Yes";
  joint.StatesGlobal = std::strstr(row, "GlobalX=") != nullptr ||
                       std::strstr(row, "GlobalY=") != nullptr ||
                       std::strstr(row, "GlobalZ=") != nullptr;
}

void Search(const char* row, TextStore& texts, T_CNFR_D& frame) {
  SearchText(row, "Frame=", texts, frame.Frame);
  SearchText(row, "JointI=", texts, frame.JointI);
  SearchText(row, "JointJ=", texts, frame.JointJ);
  SearchReal(row, "Length=", frame.Length);
}

std::string JointRow(int i) {
  const double x = i % 997 * 1.25;
  const double y = i % 89 * 37 / 100.0;
  const double z = i % 13 * 3.5;
  std::string row;
  AppendPieces(row, "   Joint=", i, "   CoordSys=GLOBAL   CoordType=Cartesian   XorR=", x,
               "   Y=", y, "   Z=", z, "   SpecialJt=", i % 50 == 0 ? "Yes" : "No",
               "   GlobalX=", x, "   GlobalY=", y, "   GlobalZ=", z);
  return row;
}

std::string FrameRow(int i) {
  std::string row;
  AppendPieces(row, "   Frame=", i, "   JointI=", i, "   JointJ=", i + 1,
               "   Length=", i % 89 * 37 / 100.0);
  return row;
}

template <class Record>
void AddTable(const std::string& subject, std::string (*makeRow)(int)) {
  const auto rows = std::make_shared<std::vector<std::string>>();
  std::size_t bytes = 0;
  for (int i = 1; i <= kRows; ++i) {
    rows->push_back(makeRow(i));
    bytes += rows->back().size();
  }
  Compare(subject, {rows->size(), bytes},
          Way{"RowReader",
              [rows](auto use) {
                TextStore texts;
                RowReader<Record> reader(texts);
                for (const std::string& row : *rows) {
                  use(reader.Read(row));
                }
              }},
          Way{"strstr+strtod", [rows](auto use) {
                TextStore texts;
                for (const std::string& row : *rows) {
                  Record record;
                  Search(row.c_str(), texts, record);
                  use(record);
                }
              }});
}

}  // namespace

void AddRows() {
  AddTable<T_JTCD_D>("row/joint", JointRow);
  AddTable<T_CNFR_D>("row/frame", FrameRow);
}

}  // namespace micro
}  // namespace s2k2ngt
