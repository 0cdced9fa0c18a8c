#include "pages.h"

#include "common/text.h"
#include "message_conditions.h"
#include "run/row_parsers.h"
#include "source/table_catalogue.h"
#include "texts.h"

#include <s2k2ngt/account.h>

#include <algorithm>
#include <set>

namespace s2k2ngt::reference {
namespace {

std::string Code(Text text) { return "`" + std::string(text) + "`"; }

/// The keys of one kind, without their equals signs, each once.
std::string KeysOf(const TableUse& use, bool areRead) {
  std::string keys;
  std::set<Text> listed;
  for (const KeyUse& key : use.Keys) {
    const Text name = TrimLeft(key.Name.substr(0, key.Name.size() - 1));
    if (key.IsRead == areRead && listed.insert(name).second) {
      keys += (keys.empty() ? "" : ", ") + std::string(name);
    }
  }
  return keys;
}

struct Fate {
  std::string Word;
  std::string Read;
  std::string Unread;
};

Fate FateOfStored(Text record) {
  const std::optional<TableUse> use = UseOfTable(record);
  if (!use) {
    return {"read and not used", "", ""};
  }
  Fate fate{"", KeysOf(*use, true), KeysOf(*use, false)};
  if (use->Lost) {
    fate.Word = "refused with " + Code(use->Lost->Get());
  } else if (use->IsChecked) {
    fate.Word = "checked";
  } else if (fate.Read.empty()) {
    fate.Word = "read and not used";
  } else {
    fate.Word = fate.Unread.empty() ? "converted" : "used in part";
  }
  return fate;
}

Fate FateOf(const TableOutcome& outcome) {
  switch (outcome.Fate) {
    case TableFate::Ignored:
      return {"ignored", "", ""};
    case TableFate::Refused:
      return {"refused with " + Code(outcome.Message->Get()), "", ""};
    case TableFate::Stored:
      return FateOfStored(outcome.Record);
  }
  return {};
}

/// False for a table whose words hold shorter ones that are met first.
bool IsMet(const std::string& words, int tableId) {
  return IdOfTitle("TABLE:  \"" + words + "\"") == tableId;
}

std::string Row(Text keyword, Text word, int tableId) {
  const bool isMet = IsMet(std::string(keyword) + " " + ToUpper(word), tableId);
  const Fate fate = isMet ? FateOf(OutcomeOf(tableId)) : Fate{"never met: see above", "", ""};
  return "| " + Code(keyword) + " | " + (word.empty() ? "" : Code(ToUpper(word))) + " | " +
         fate.Word + " | " + fate.Read + " | " + fate.Unread + " |\n";
}

}  // namespace

std::string SourceTablesPage() {
  std::string page = R"(# Source tables and what becomes of each

A table is known by the first word of its title and, for most first words, by a second one that
stands anywhere in the title; the first that fits, from top to bottom, decides. So "AREA REFERENCE
TEMPERATURES" is taken for temperature loads, which stand above reference temperatures. Titles that
fit nothing are ignored.

- **converted**: all keys that the converter knows are used.
- **used in part**: some keys are used, others have no place in the output.
- **checked**: nothing of it reaches the output, but the file is refused if it is not as it must be.
- **read and not used**: the table is known and nothing of it reaches the output.
- **refused**: nothing of it reaches the output, and the message says so.
- **ignored**: passed over without a word.
- **never met**: its words hold those of a table further up, which is taken instead.

A key that is used need not reach the output in every model; guide.md tells what the rules drop.

| Title begins | and holds | Becomes | Keys used | Keys not used |
|---|---|---|---|---|
)";
  for (const TableKeyword& keyword : kKeywords) {
    if (keyword.Words.empty()) {
      page += Row(keyword.Word, "", keyword.Id);
    }
    int tableId = keyword.Id;
    for (const TableWord& word : keyword.Words) {
      page += Row(keyword.Word, word.Word, tableId++);
    }
  }
  return page;
}

namespace {

Text TextOf(Text key) {
  using catalogue::kMessageTexts;
  return std::ranges::find(kMessageTexts, key, &catalogue::MessageText::Key)->Text;
}

}  // namespace

std::string MessagesPage() {
  std::string page = R"(# Messages and when each is shown

A message that is shown "at" a section appears while the output is written, only if the section is,
and once if nothing else is said. A table that is refused is answered once for each of its blocks.
The texts are those of the catalogue that comes with the converter; hosts may have others. A host
without a catalogue shows "Error : DLL is not loaded. check message dll!" for all of them. One text
stands outside the catalogue: "Cannot open input file!".

)";
  for (const MessageCondition& message : kMessageConditions) {
    page += "## " + std::string(message.Key) + "\n\n" +
            (message.IsRaised ? "Shown: " : "Never shown: ") + std::string(message.Condition) +
            ".\n\n> " + std::string(TextOf(message.Key)) + "\n\n";
  }
  page.pop_back();
  return page;
}

namespace {

Text WordOf(RowFate fate) {
  switch (fate) {
    case RowFate::Converted:
      return "converted";
    case RowFate::Changed:
      return "changed";
    case RowFate::Dropped:
      return "dropped";
    case RowFate::Refused:
      return "refused";
    case RowFate::NotLookedAt:
      return "not looked at";
  }
  return "";
}

}  // namespace

std::string ReasonsPage() {
  std::string page = R"(# Reasons why rows do not go over as they stand

What a report gives as `reason`, in the order of the source's topics; [report.md](report.md) tells
what a report is. A code stays what it is, texts may be worded better. What is no loss leaves every
part of the model as it was.

| Code | The row is | Loss | What became of it | What to do |
|---|---|---|---|---|
)";
  for (const Reason& reason : Reasons()) {
    page += "| " + Code(reason.Code) + " | " + std::string(WordOf(reason.Fate)) + " | " +
            (reason.IsLoss ? "yes" : "no") + " | " + reason.Text + " | " + reason.Advice + " |\n";
  }
  return page;
}

}  // namespace s2k2ngt::reference
