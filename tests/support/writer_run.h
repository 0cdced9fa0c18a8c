#pragma once

#include "target/conversion.h"

#include <string>
#include <vector>

/// The models of a run, to be filled by hand for what no source file leads to: a writer's branch
/// that no conversion reaches, or a warning that no stage sets.
class WriterRun : private s2k2ngt::Messages {
 public:
  /// What the writer leaves in the output file.
  std::string Write(s2k2ngt::WriterFunction writer);

  s2k2ngt::CModel Source;
  s2k2ngt::CNgtModel Target;
  s2k2ngt::DeferredWarnings Warnings;
  /// Keys of the messages in the order shown.
  std::vector<std::string> Messages;

 private:
  void Show(s2k2ngt::MessageKey key) override { Messages.emplace_back(key.Get()); }
  void ShowWith(s2k2ngt::MessageKey key, s2k2ngt::Text /*argument*/) override { Show(key); }

  s2k2ngt::ElementNumbers m_Elements;
  s2k2ngt::Ledger m_Accounts{false};
  s2k2ngt::Conversion m_Conversion{Source, Target, m_Elements, Warnings, *this, m_Accounts};
};
