#include "run/entry_points.h"

#include "platform/default_platform.h"

#include <s2k2ngt/converter.h>
#include <s2k2ngt/entry_points.h>

namespace s2k2ngt {

std::optional<std::string> ChooseSourceFile(Platform& platform) {
  return platform.ChooseFile({.DefaultExtension = ".dat",
                              .Filter = "SAP2000(v8) Files(*.s2k)|*.s2k|All Files(*.*)|*.*||"});
}

int ConvertChosenFile(Platform& platform, std::string& output) {
  const auto path = ChooseSourceFile(platform);
  if (!path) {
    return kStopped;
  }
  CConverter converter(platform);
  const int result = converter.Run(path->c_str());
  if (result == kConverted) {
    output = CConverter::OutputPath(*path);
  }
  return result;
}

}  // namespace s2k2ngt

std::int32_t ConvertFile2(s2k2ngt::CString& rOutput) {
  const auto platform = s2k2ngt::MakeDefaultPlatform();
  return s2k2ngt::ConvertChosenFile(*platform, rOutput);
}

std::int32_t ConvertFile() {
  s2k2ngt::CString ignored;
  return ConvertFile2(ignored);
}
