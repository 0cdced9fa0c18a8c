#include "common/messages.h"
#include "platform/default_platform.h"
#include "run/entry_points.h"
#include "run/message_boxes.h"

#include <s2k2ngt/converter.h>
#include <s2k2ngt/exceptions.h>
#include <s2k2ngt/s2k2ngt.h>
#include <s2k2ngt/version.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <exception>
#include <iterator>
#include <map>
#include <string>

namespace s2k2ngt {
namespace {

/// Hands everything to a host's call-backs.
class CallBackPlatform : public Platform {
 public:
  explicit CallBackPlatform(const s2k2ngt_host& host) : m_Host(host) {}

  void ShowMessage(const std::string& key, const std::string& text) override {
    if (m_Host.message != nullptr) {
      m_Host.message(m_Host.context, key.c_str(), text.c_str());
    }
  }
  void SetStatus(const std::string& text) override { m_Phase = text; }
  void SetRange(int high) override { m_Range = high; }
  void SetPosition(int position) override {
    if (m_Host.progress != nullptr) {
      m_Host.progress(m_Host.context, m_Phase.c_str(), position, m_Range);
    }
  }
  bool AskStop() override { return m_Host.stop != nullptr && m_Host.stop(m_Host.context) != 0; }

 private:
  const s2k2ngt_host& m_Host;
  std::string m_Phase;
  int m_Range = 0;
};

static_assert(S2K2NGT_CONVERTED == kConverted && S2K2NGT_STOPPED == kStopped &&
              S2K2NGT_FAILED == kFailed);

/// The members that the host's version of the struct has; the others are null.
s2k2ngt_host KnownPartOf(const s2k2ngt_host* host) {
  s2k2ngt_host known = {};
  if (host == nullptr) {
    return known;
  }
  const auto take = [&](auto member) {
    const auto end = reinterpret_cast<const char*>(&(host->*member) + 1);
    if (end <= reinterpret_cast<const char*>(host) + host->size) {
      known.*member = host->*member;
    }
  };
  take(&s2k2ngt_host::context);
  take(&s2k2ngt_host::message);
  take(&s2k2ngt_host::progress);
  take(&s2k2ngt_host::stop);
  take(&s2k2ngt_host::failure);
  take(&s2k2ngt_host::table);
  take(&s2k2ngt_host::loss);
  return known;
}

void TellFailure(const s2k2ngt_host& host, const char* reason) noexcept {
  if (host.failure == nullptr) {
    return;
  }
  try {
    host.failure(host.context, reason);
  } catch (...) {  // NOLINT(bugprone-empty-catch): nothing may be thrown to the host
  }
}

static_assert(S2K2NGT_ROW_CONVERTED == static_cast<int>(RowFate::Converted) &&
              S2K2NGT_ROW_CHANGED == static_cast<int>(RowFate::Changed) &&
              S2K2NGT_ROW_DROPPED == static_cast<int>(RowFate::Dropped) &&
              S2K2NGT_ROW_REFUSED == static_cast<int>(RowFate::Refused) &&
              S2K2NGT_ROW_NOT_LOOKED_AT == static_cast<int>(RowFate::NotLookedAt));

void TellTable(const s2k2ngt_host& host, const TableAccount& table) {
  if (host.table == nullptr) {
    return;
  }
  s2k2ngt_table told = {};
  told.title = table.Title.c_str();
  told.line = table.Line;
  told.id = table.TableId;
  told.message = table.Message.c_str();
  told.rows = table.Rows;
  std::copy(std::begin(table.ByFate), std::end(table.ByFate), told.by_fate);
  host.table(host.context, &told);
}

void TellLoss(const s2k2ngt_host& host, const RowLoss& row, std::uint64_t rows) {
  const Reason& why = *row.Why;
  const s2k2ngt_loss told = {rows,
                             row.Position,
                             row.Line,
                             row.Label.c_str(),
                             static_cast<int>(why.Fate),
                             why.IsLoss ? 1 : 0,
                             why.Code,
                             why.Text,
                             why.Advice};
  host.loss(host.context, &told);
}

bool WantsAccount(const s2k2ngt_host& host) {
  return host.table != nullptr || host.loss != nullptr;
}

void TellAccount(const s2k2ngt_host& host, const Account& account) {
  auto row = account.Losses.begin();
  for (std::uint32_t number = 0; number < account.Tables.size(); ++number) {
    const TableAccount& table = account.Tables[number];
    TellTable(host, table);
    if (host.loss == nullptr) {
      continue;
    }
    std::map<const Reason*, std::uint64_t> ofWholeTable;
    for (const ReasonCount& count : table.Reasons) {
      ofWholeTable[count.Why] = count.Rows;
    }
    for (; row != account.Losses.end() && row->Table == number; ++row) {
      --ofWholeTable[row->Why];
      TellLoss(host, *row, 1);
    }
    for (const ReasonCount& count : table.Reasons) {
      if (ofWholeTable[count.Why] > 0) {
        TellLoss(host, {number, 0, table.Line, {}, count.Why}, ofWholeTable[count.Why]);
      }
    }
  }
}

enum class Output { BesideInput, Nowhere };

int Convert(const char* path, Platform& platform, const s2k2ngt_host& host, char* output,
            std::size_t outputSize, Output where = Output::BesideInput) {
  const std::string outputPath = CConverter::OutputPath(path);
  if (outputSize > 0 && outputPath.size() + 1 > outputSize) {
    TellFailure(host, "the buffer for the path of the output is too small");
    return kFailed;
  }
  int result = kFailed;
  std::string reason;
  Account account;
  {
    // It goes before the host is told, and its progress window with it.
    CConverter converter(platform);
    RunOptions options;
    options.WritesOutput = where == Output::BesideInput;
    options.KeepsAccount = WantsAccount(host);
    try {
      result = converter.Run(path, options);
    } catch (const std::exception&) {
      result = kFailed;
      if (converter.Failure().Reason.empty()) {
        throw;  // the run could not even begin
      }
    }
    reason = converter.Failure().Describe(path);
    account = converter.AccountOfRows();
  }
  TellAccount(host, account);
  if (result == kFailed) {
    TellFailure(host, reason.c_str());
  } else if (result == kConverted && outputSize > 0) {
    std::memcpy(output, outputPath.c_str(), outputPath.size() + 1);
  }
  return result;
}

bool IsBuffer(const char* output, std::size_t size) { return output != nullptr || size == 0; }

/// Runs `convert`, which takes the host that is known of, if the call is complete. Nothing that it
/// throws gets out.
template <class Function>
int Guard(const s2k2ngt_host* host, bool isComplete, Function convert) {
  const s2k2ngt_host known = KnownPartOf(host);
  if (!isComplete) {
    TellFailure(known, "a path or buffer is missing");
    return kFailed;
  }
  try {
    return convert(known);
  } catch (const MemoryException&) {
    TellFailure(known, "there is not enough memory");
    return kFailed;
  } catch (...) {
    TellFailure(known, "a call-back of the host threw an exception");
    return kFailed;
  }
}

}  // namespace
}  // namespace s2k2ngt

int s2k2ngt_convert(const char* path, const s2k2ngt_host* host, char* output, size_t output_size) {
  const bool isComplete = path != nullptr && s2k2ngt::IsBuffer(output, output_size);
  return s2k2ngt::Guard(host, isComplete, [&](const s2k2ngt_host& known) {
    s2k2ngt::CallBackPlatform platform(known);
    return s2k2ngt::Convert(path, platform, known, output, output_size);
  });
}

int s2k2ngt_check(const char* path, const s2k2ngt_host* host) {
  return s2k2ngt::Guard(host, path != nullptr, [&](const s2k2ngt_host& known) {
    s2k2ngt::CallBackPlatform platform(known);
    return s2k2ngt::Convert(path, platform, known, nullptr, 0, s2k2ngt::Output::Nowhere);
  });
}

int s2k2ngt_convert_chosen(const s2k2ngt_host* host, char* output, size_t output_size) {
  const bool isComplete = s2k2ngt::IsBuffer(output, output_size);
  return s2k2ngt::Guard(host, isComplete, [&](const s2k2ngt_host& known) {
    const auto platform = s2k2ngt::MakeDefaultPlatform();
    const auto path = s2k2ngt::ChooseSourceFile(*platform);
    return path ? s2k2ngt::Convert(path->c_str(), *platform, known, output, output_size)
                : S2K2NGT_STOPPED;
  });
}

const char* s2k2ngt_version(void) { return S2K2NGT_VERSION; }

size_t s2k2ngt_message_count(void) { return s2k2ngt::kMessageKeys.size(); }

const char* s2k2ngt_message_key(size_t position) {
  return position < s2k2ngt::kMessageKeys.size() ? s2k2ngt::kMessageKeys[position].data() : nullptr;
}

const char* s2k2ngt_message_text(const char* key) {
  return key == nullptr ? "" : s2k2ngt::CatalogueText(key);
}
