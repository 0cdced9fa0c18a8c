#include "account/ledger.h"
#include "run/accounts.h"
#include "run/drawing.h"
#include "run/message_boxes.h"
#include "run/prgs_dlg.h"
#include "run/row_parsers.h"
#include "run/sections.h"
#include "run/stages.h"
#include "source/line_reader.h"
#include "source/scanner.h"
#include "source/source_file.h"
#include "target/conversion.h"
#include "target/head.h"
#include "target/output_file.h"

#include <s2k2ngt/converter.h>

#include <array>
#include <exception>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace s2k2ngt {

/// The run itself. All that it works on lives as long as the driver.
class CConverter::Impl : private TableSink {
 public:
  Impl(Platform& platform, RunOptions options)
      : m_Options(std::move(options)), m_Messages(platform), m_PrgsDlg(platform) {
    m_Failure.Reason.reserve(kNoMemory.size());  // when it is to be told there is none
    m_Model.IsAccountedFor = m_Options.KeepsAccount;
  }

  int Run(const char* pszPath);
  const Diagnostic& Failure() const { return m_Failure; }
  std::uint64_t RowCount() const { return m_Model.RowCount(); }
  Account AccountOfRows() { return m_Ledger.MakeAccount(m_IsWhole); }
  Drawing DrawingOfModel() const { return m_IsWhole ? DrawingOf(m_Conversion) : Drawing(); }

 private:
  static constexpr std::string_view kNoMemory = "there is not enough memory for this model";

  int RunUncaught(const std::string& path);
  int RunPhases(const std::string& path, SourceFile source);
  int Read(Text image);
  int Convert();
  int Write(const std::string& outputPath);
  int WriteAll(LineWriter& out);
  bool WantsRows(int tableId) override;
  bool DispatchRows(const TableBlock& block) override;
  void LoseRows(const TableBlock& block, RowsLost how) override;
  void PassOver(std::uint64_t line) override;
  bool StoreRows(const TableBlock& block, RowParser parse);

  RunOptions m_Options;
  MessageBoxes m_Messages;
  CPrgsDlg m_PrgsDlg;
  CModel m_Model;
  CNgtModel m_NgtModel;
  ElementNumbers m_Elements;
  DeferredWarnings m_Warnings;
  Ledger m_Ledger{m_Options.KeepsAccount};
  Conversion m_Conversion{m_Model, m_NgtModel, m_Elements, m_Warnings, m_Messages, m_Ledger};
  bool m_IsWhole = false;
  Diagnostic m_Failure;
};

int CConverter::Impl::Run(const char* pszPath) {
  try {
    // No path is as one of no file.
    return RunUncaught(pszPath == nullptr ? "" : pszPath);
  } catch (const MemoryException&) {
    m_Failure.Reason = kNoMemory;
    throw;
  } catch (const std::exception& exception) {
    m_Failure.Reason = exception.what();
    throw;
  }
}

int CConverter::Impl::RunUncaught(const std::string& path) {
  SourceFile source = ReadSourceFile(path);
  m_PrgsDlg.Create();
  m_PrgsDlg.SetRange(static_cast<int>(CountLines(source.Image())));
  if (!source.OpenError.empty()) {
    // The progress window stays open behind the message.
    m_Messages.ShowLiteral("Cannot open input file!");
    m_Failure.Reason = "cannot open the input file: " + source.OpenError;
    return kFailed;
  }
  m_Messages.Show("IDS_S2KV8_Export_must_be_executed");
  const int result = RunPhases(path, std::move(source));
  m_PrgsDlg.Destroy();
  return result;
}

int CConverter::Impl::RunPhases(const std::string& path, SourceFile source) {
  int result = Read(source.Image());
  source = {};  // its memory is of more use to the phases to come
  if (result == kConverted) {
    result = Convert();
  }
  if (result == kConverted) {
    result = Write(m_Options.Output.empty() ? OutputPath(path) : m_Options.Output);
  }
  if (result == kConverted && m_Ledger.IsKept()) {
    CloseAccounts(m_Conversion);
  }
  m_IsWhole = result == kConverted;
  return result;
}

int CConverter::Impl::Read(Text image) {
  m_Failure.Phase = kReading;
  TableScanner scanner(image, m_Messages, m_PrgsDlg, *this);
  const int result = scanner.Read();
  if (result == kFailed && m_Failure.Reason.empty()) {
    m_Failure.Line = scanner.LineNumber();
    m_Failure.Table = scanner.Title();
    m_Failure.Reason = scanner.Reason();
  }
  if (result == kConverted && m_Ledger.IsKept()) {
    EnterWhatIsMissing(m_Model, scanner.LineNumber(), scanner.HasEnd(), m_Ledger);
  }
  return result;
}

bool CConverter::Impl::WantsRows(int tableId) {
  return m_Ledger.IsKept() || FindRowParser(OutcomeOf(tableId).Record) != nullptr;
}

bool CConverter::Impl::DispatchRows(const TableBlock& block) {
  const TableOutcome outcome = OutcomeOf(block.TableId);
  const RowParser parse = FindRowParser(outcome.Record);
  if (m_Ledger.IsKept()) {
    EnterBlock(block, outcome, m_Model, m_Ledger);
  }
  if (outcome.Fate == TableFate::Refused) {
    m_Messages.Show(*outcome.Message);
  }
  return parse == nullptr || StoreRows(block, parse);
}

bool CConverter::Impl::StoreRows(const TableBlock& block, RowParser parse) {
  m_Failure.Table = block.Title;
  m_Failure.Line = block.Rows.empty() ? block.Line : block.Rows.front().Line;
  const std::optional<Refusal> refusal = parse(block.Rows, m_Model, m_Messages);
  if (m_Ledger.IsKept()) {
    EnterLostValues(m_Model, m_Ledger);
  }
  if (refusal) {
    m_Failure.Line = refusal->Line;
    m_Failure.Reason = refusal->Reason;
    if (m_Ledger.IsKept()) {
      EnterRefusal(block, *refusal, m_Ledger);
    }
    return false;
  }
  m_Failure.Table.clear();
  m_Failure.Line = 0;
  return true;
}

void CConverter::Impl::LoseRows(const TableBlock& block, RowsLost how) {
  if (m_Ledger.IsKept()) {
    EnterLostRows(block, how, m_Ledger);
  }
}

void CConverter::Impl::PassOver(std::uint64_t line) {
  if (m_Ledger.IsKept()) {
    EnterLineOfNoTable(line, m_Ledger);
  }
}

int CConverter::Impl::Convert() {
  m_Failure.Phase = kConverting;
  m_PrgsDlg.SetPhase(kConverting);
  m_PrgsDlg.SetRange(20);
  int position = 0;
  for (const Stage& stage : kStages) {
    if (!stage.Convert(m_Conversion)) {
      m_Failure.Reason = "the stage of the " + std::string(stage.Name) + " failed";
      return kFailed;
    }
    if (!m_PrgsDlg.Step(++position)) {
      return kStopped;
    }
  }
  return kConverted;
}

int CConverter::Impl::Write(const std::string& outputPath) {
  m_Failure.Phase = kWriting;
  m_PrgsDlg.SetPhase(kWriting);
  OutputFile file = m_Options.WritesOutput ? OutputFile(outputPath) : OutputFile();
  LineWriter out(file);
  WriteFileHead(outputPath, out);
  const int result = WriteAll(out);
  if (result == kConverted) {
    WriteFileEnd(out);
  }
  // A file that was stopped or failed stays as far as it was written.
  out.Flush();
  file.Close();
  return result;
}

int CConverter::Impl::WriteAll(LineWriter& out) {
  m_PrgsDlg.SetRange(static_cast<int>(kSections.size()));
  int position = 0;
  for (const Section& section : kSections) {
    if (!section.Write(m_Conversion, out)) {
      m_Failure.Reason = "the section " + std::string(section.Commands) + " cannot be written";
      return kFailed;
    }
    if (!m_PrgsDlg.Step(++position)) {
      return kStopped;
    }
  }
  return kConverted;
}

CConverter::CConverter(Platform& platform) : m_Platform(platform) {}

CConverter::~CConverter() = default;

int CConverter::Run(const char* pszPath) { return Run(pszPath, RunOptions()); }

int CConverter::Run(const char* pszPath, const RunOptions& options) {
  // Nothing survives from one run to the next, whatever becomes of that.
  m_Impl.reset();
  m_Impl = std::make_unique<Impl>(m_Platform, options);
  return m_Impl->Run(pszPath);
}

const Diagnostic& CConverter::Failure() const {
  static const Diagnostic none;
  return m_Impl == nullptr ? none : m_Impl->Failure();
}

std::uint64_t CConverter::RowCount() const { return m_Impl == nullptr ? 0 : m_Impl->RowCount(); }

Account CConverter::AccountOfRows() const {
  return m_Impl == nullptr ? Account() : m_Impl->AccountOfRows();
}

Drawing CConverter::DrawingOfModel() const {
  return m_Impl == nullptr ? Drawing() : m_Impl->DrawingOfModel();
}

std::string CConverter::OutputPath(const std::string& inputPath) {
  // Without a dot rfind gives npos, which takes the whole path.
  return inputPath.substr(0, inputPath.rfind('.')) + ".ngt";
}

std::string Diagnostic::Describe(const std::string& fileName) const {
  constexpr std::array<const char*, 4> kDoing = {"", "reading", "converting", "writing"};
  std::string text = fileName;
  if (Line > 0) {
    text.append(":").append(std::to_string(Line));
  }
  text.append(": ");
  if (Phase != kNotBegun) {
    text.append(kDoing.at(static_cast<std::size_t>(Phase)));
    if (!Table.empty()) {
      text.append(" table \"").append(Table).append("\"");
    }
    text.append(": ");
  }
  return text.append(Reason);
}

}  // namespace s2k2ngt
