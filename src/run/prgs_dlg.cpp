#include "run/prgs_dlg.h"

#include <array>
#include <cstdint>

namespace s2k2ngt {

CPrgsDlg::~CPrgsDlg() {
  try {
    Destroy();
  } catch (...) {  // NOLINT(bugprone-empty-catch): the run is over, with a result or an exception
  }
}

void CPrgsDlg::Create() {
  m_Platform.OpenProgress();
  m_Exists = true;
}

void CPrgsDlg::Destroy() {
  if (m_Exists) {
    m_Exists = false;
    m_Platform.CloseProgress();
  }
}

void CPrgsDlg::SetPhase(int phase) {
  constexpr std::array<const char*, 3> kTexts = {"Reading [s2k] file of SAP2000 V8",
                                                 "Converting [s2k] file to NORDA text file",
                                                 "Writing NORDA text file"};
  if (phase >= 1 && phase <= static_cast<int>(kTexts.size())) {
    m_Platform.SetStatus(kTexts.at(static_cast<std::size_t>(phase) - 1));
  }
}

void CPrgsDlg::SetRange(int high) { m_Platform.SetRange(static_cast<std::uint16_t>(high)); }

bool CPrgsDlg::Step(int position) {
  if (m_Platform.AskStop()) {
    Destroy();
    return false;
  }
  m_Platform.SetPosition(position);
  return true;
}

}  // namespace s2k2ngt
