#pragma once

#include "common/text.h"
#include "source/model.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

#include <cstdint>
#include <vector>

namespace s2k2ngt {

// ---- Source rows ----

/// A point of a time function.
struct TimePoint {
  Text Name;
  double Time = 0.0;
  double Value = 0.0;
};

/// Of a function that was read from a file. The file itself is not needed: its points are here.
struct T_FTHF_D : TimePoint {
  static constexpr Text kTable = "T_FTHF_D";
};
/// Of a function of the user's own.
struct T_FTHU_D : TimePoint {
  static constexpr Text kTable = "T_FTHU_D";
};

inline constexpr RowKey<TimePoint> kTimePointKeys[] = {
    {"Name=", &TimePoint::Name}, {"Time=", &TimePoint::Time}, {"Value=", &TimePoint::Value}};

template <>
inline constexpr auto kRowKeys<T_FTHF_D> = JoinKeys<T_FTHF_D>(
    kTimePointKeys,
    {Unread{"HeaderLines="}, Unread{"PrefixChars="}, Unread{"PtsPerLine="}, Unread{"FormatType="},
     Unread{"FixedLength="}, Unread{"Interval="}, Unread{"FileName="}});
template <>
inline constexpr auto kRowKeys<T_FTHU_D> = JoinKeys<T_FTHU_D>(kTimePointKeys);

// Functions by formula. The target has none like them: a load that names one finds no points.

struct T_FTHC_D {  // cosine
  static constexpr Text kTable = "T_FTHC_D";
};
struct T_FTHP_D {  // user, periodic
  static constexpr Text kTable = "T_FTHP_D";
};
struct T_FTHR_D {  // ramp
  static constexpr Text kTable = "T_FTHR_D";
};
struct T_FTHS_D {  // sine
  static constexpr Text kTable = "T_FTHS_D";
};
struct T_FTHT_D {  // triangular
  static constexpr Text kTable = "T_FTHT_D";
};
struct T_FTHW_D {  // sawtooth
  static constexpr Text kTable = "T_FTHW_D";
};

template <>
inline constexpr RowKey<T_FTHC_D> kRowKeys<T_FTHC_D>[] = {
    Unread{"Name="},        Unread{"Time="},      Unread{"Value="},    Unread{"Period="},
    Unread{"StepsPerCyc="}, Unread{"NumCycles="}, Unread{"Amplitude="}};
template <>
inline constexpr RowKey<T_FTHP_D> kRowKeys<T_FTHP_D>[] = {Unread{"Name="}, Unread{"Time="},
                                                          Unread{"Value="}, Unread{"NumCycles="}};
template <>
inline constexpr RowKey<T_FTHR_D> kRowKeys<T_FTHR_D>[] = {Unread{"Name="},      Unread{"Time="},
                                                          Unread{"Value="},     Unread{"RampTime="},
                                                          Unread{"Amplitude="}, Unread{"MaxTime="}};
template <>
inline constexpr RowKey<T_FTHS_D> kRowKeys<T_FTHS_D>[] = {
    Unread{"Name="},        Unread{"Time="},      Unread{"Value="},    Unread{"Period="},
    Unread{"StepsPerCyc="}, Unread{"NumCycles="}, Unread{"Amplitude="}};
template <>
inline constexpr RowKey<T_FTHT_D> kRowKeys<T_FTHT_D>[] = {
    Unread{"Name="},   Unread{"Time="},      Unread{"Value="},
    Unread{"Period="}, Unread{"NumCycles="}, Unread{"Amplitude="}};
template <>
inline constexpr RowKey<T_FTHW_D> kRowKeys<T_FTHW_D>[] = {
    Unread{"Name="},     Unread{"Time="},      Unread{"Value="},    Unread{"Period="},
    Unread{"RampTime="}, Unread{"Amplitude="}, Unread{"NumCycles="}};

// ---- Target records ----

/// A pair of a time function.
struct TimePair {
  double TIME = 0.0;
  double VALUE = 0.0;
};

/// What the values of a time function are.
enum class TimeFunctionKind : std::int32_t { Other = 1, Acceleration = 2, Load = 5 };

/// A time function, keyed by a running number. A name may stand in several.
struct T_NGT_THFN_D {
  Text NAME;
  TimeFunctionKind iTYPE = TimeFunctionKind::Other;
  double SCALE = 0.0;
  double GRAV = 0.0;
  std::vector<TimePair> Pairs;
  double TimeFactor = 0.0;  // by which the times are stretched
};

// ---- Conversion ----

/// True when the target has a function of this name.
bool HasTimeFunction(Conversion& run, Text name);

/// Adds the function of this name with its points, their times stretched by its factor. False, and
/// noted, when the source has no points of it.
bool AddTimeFunction(Conversion& run, T_NGT_THFN_D function);

// ---- Output ----

/// Writes *TFUNCTION.
bool WriteTimeFunctions(Conversion& run, LineWriter& out);

// ---- Account ----

/// Notes the points of functions that are not in the output.
void CloseTimeFunctions(Conversion& run);

}  // namespace s2k2ngt
