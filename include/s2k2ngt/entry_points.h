#pragma once

#include <s2k2ngt/export.h>

#include <cstdint>
#include <string>

namespace s2k2ngt {

/// The string type of the C++ entry points.
using CString = std::string;

}  // namespace s2k2ngt

// The two functions that a host loads. Each asks the user for a .s2k file, converts it and shows
// on the way what could not be carried over. Result: 0 converted, 1 dismissed or stopped by the
// user, -1 failed. Exceptions go to the host, see exceptions.h. A user is asked one thing at a
// time: call neither while a call of one of them goes on.
extern "C" {

/// Converts without telling the output's path.
S2K2NGT_API std::int32_t ConvertFile();

/// The same; with result 0, `rOutput` is the path of the .ngt file, else it is left as it was.
S2K2NGT_API std::int32_t ConvertFile2(s2k2ngt::CString& rOutput);

}  // extern "C"
