#include "source/single_records.h"

#include <s2k2ngt/exceptions.h>

#include <vector>

namespace s2k2ngt {
namespace {

Text FirstRow(TableRows rows) {
  if (rows.empty()) {
    throw InvalidArgumentException("the table has no row");
  }
  return rows.front().Content;
}

template <class Record>
Record ReadFirst(TableRows rows, CModel& model) {
  RowReader<Record> reader(model.Texts(), model.IsAccountedFor);
  const Record record = reader.Read(FirstRow(rows));
  model.TakeLost(1, reader.Lost());
  return record;
}

}  // namespace

std::optional<Refusal> StoreActiveDegreesOfFreedom(TableRows rows, CModel& model,
                                                   Messages& /*shown*/) {
  model.Set(ReadFirst<ActiveDegreesOfFreedom>(rows, model));
  model.CountRows(1);
  return std::nullopt;
}

std::optional<Refusal> StoreCoordinateSystem(TableRows rows, CModel& model, Messages& shown) {
  const auto system = ReadFirst<CoordinateSystem>(rows, model);
  if (system.Type != "Cartesian") {
    shown.Show("IDS_S2KV8_NODE_NOT_Cylindrical");
    return Refusal{rows.front().Line, "the first coordinate system has Type=" +
                                          std::string(system.Type) + ", only Cartesian is read"};
  }
  model.CountRows(1);
  return std::nullopt;
}

std::optional<Refusal> StoreUnits(TableRows rows, CModel& model, Messages& /*shown*/) {
  // As with every row: what this one does not state is the default, whatever an earlier block said.
  Units units;
  std::vector<std::string> words;
  if (CStrParser::GetStrings(FirstRow(rows), kUnitsKey, words)) {
    if (words.size() < 3) {
      throw InvalidArgumentException("CurrUnits= must name force, length and temperature");
    }
    TextStore& texts = model.Texts();
    units = {texts.Keep(words[0]), texts.Keep(words[1]), texts.Keep(words[2]), true};
  }
  model.Set(units);
  model.CountRows(1);
  return std::nullopt;
}

}  // namespace s2k2ngt
