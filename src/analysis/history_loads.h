#pragma once

#include "common/text.h"
#include "common/worked_out.h"
#include "source/model.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

#include <concepts>
#include <cstdint>
#include <vector>

namespace s2k2ngt {

// ---- Source rows ----

/// A load of a history case: a function of time by which a load or an acceleration goes.
struct HistoryLoad {
  Text Case;
  Text LoadType;  // "Load case", "Accel" and others
  Text LoadName;  // a load, or "Accel U1" to "Accel U3"
  Text Function;
  double LoadSF = 0.0;
  double TransAccSF = 0.0;
  double TimeFactor = 0.0;
  double ArrivalTime = 0.0;  // seconds
  double Angle = 0.0;        // degrees
};

template <std::derived_from<HistoryLoad> Record>
inline constexpr RowKey<Record> kRowKeys<Record>[] = {
    {"Case=", &HistoryLoad::Case},
    {"LoadType=", &HistoryLoad::LoadType},
    {"LoadName=", &HistoryLoad::LoadName},
    {"Function=", &HistoryLoad::Function},
    {"LoadSF=", &HistoryLoad::LoadSF},
    {"TransAccSF=", &HistoryLoad::TransAccSF},
    {"TimeFactor=", &HistoryLoad::TimeFactor},
    {"ArrivalTime=", &HistoryLoad::ArrivalTime},
    {"Angle=", &HistoryLoad::Angle},
    LostUnless{"CoordSys=", "GLOBAL", "coordinate-system-ignored"}};

struct T_MDH2_D : HistoryLoad {
  static constexpr Text kTable = "T_MDH2_D";
};
struct T_DRH2_D : HistoryLoad {
  static constexpr Text kTable = "T_DRH2_D";
};

// ---- Target records ----

/// A load that goes by a time function, keyed by a running number.
struct T_NGT_DSLD_D {
  static constexpr std::uint32_t kBuckets = 17;
  Text THIS;
  Text SLOAD;
  Text FUNC;
  double ATIME = 0.0;
};

/// A ground acceleration that goes by a time function. A function stands in one direction.
struct T_NGT_GRAC_D {
  Text THIS;
  Text FUNCX;
  double ATIMEX = 0.0;
  Text FUNCY;
  double ATIMEY = 0.0;
  Text FUNCZ;
  double ATIMEZ = 0.0;
  std::uint32_t Row = 0;  // its source row, of a modal case or of a direct one
  bool IsModal = false;
};

// ---- Conversion ----

/// The loads of modal history cases.
class ModalHistoryLoads {
 public:
  /// Converts the loads of a case, up to the first whose function has no points. A function that is
  /// there keeps the scale of the load that brought it in.
  void Convert(Conversion& run, Text name);

 private:
  /// Walk positions of the loads of a case that do more than bring in their function, which they do
  /// once: they are all that counts when the case comes again.
  WorkedOut<Text, std::vector<std::uint32_t>> m_Repeated;
};

/// The loads of a direct history case. Meant so: their functions must be there already, brought in
/// by a modal case, and then come in once more; the first that is not there ends the loads.
void ConvertDirectLoads(Conversion& run, Text name);

// ---- Output ----

/// Writes *GROUND-ACC.
bool WriteGroundAccelerations(Conversion& run, LineWriter& out);

/// Writes *DYN-SLOAD.
bool WriteTimeVaryingLoads(Conversion& run, LineWriter& out);

// ---- Account ----

/// Notes the loads of history cases that do not go over as they stand.
void CloseHistoryLoads(Conversion& run);

}  // namespace s2k2ngt
