#include "marks.h"

#include "html.h"
#include "shapes.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <string_view>

using s2k2ngt::Account;
using s2k2ngt::Drawing;
using s2k2ngt::DrawnElement;
using s2k2ngt::DrawnNode;
using s2k2ngt::ElementKind;
using s2k2ngt::Reason;

namespace {

/// The kinds by their keys, in the order of ElementKind; a rigid link has no rows of its own.
constexpr std::array<std::string_view, 4> kKeys = {"Frame", "Area", "Solid", "Link"};
constexpr std::size_t kJoint = kKeys.size();
constexpr std::array<std::string_view, 5> kNames = {"Frame", "Area", "Solid", "Link", "Rigid link"};

/// The kind of thing that a key names.
std::optional<std::size_t> KindOf(std::string_view key) {
  if (key == "Joint") {
    return kJoint;
  }
  const auto* const found = std::ranges::find(kKeys, key);
  return found == kKeys.end() ? std::nullopt
                              : std::optional(static_cast<std::size_t>(found - kKeys.begin()));
}

/// In the tables that define link properties Link= names the property.
bool NamesProperties(std::string_view title) {
  return title.starts_with("LINK PROP") && title.find("ASSIGN") == std::string_view::npos;
}

using ReasonsByLabel = std::map<std::string, std::vector<const Reason*>, std::less<>>;

/// What rows with a loss name, for each kind and for joints.
std::array<ReasonsByLabel, kKeys.size() + 1> NamedIn(const Account& account) {
  std::array<ReasonsByLabel, kKeys.size() + 1> named;
  for (const s2k2ngt::RowLoss& loss : account.Losses) {
    const std::string_view row = loss.Label;
    const std::size_t sign = row.find('=');
    if (!loss.Why->IsLoss || sign == std::string_view::npos) {
      continue;
    }
    const auto kind = KindOf(row.substr(0, sign));
    if (!kind ||
        (kNames.at(*kind) == "Link" && NamesProperties(account.Tables[loss.Table].Title))) {
      continue;
    }
    std::string_view label = row.substr(sign + 1);
    if (label.size() >= 2 && label.front() == '"' && label.back() == '"') {
      label = label.substr(1, label.size() - 2);
    }
    std::vector<const Reason*>& whys = named.at(*kind)[std::string(label)];
    if (std::ranges::find(whys, loss.Why) == whys.end()) {
      whys.push_back(loss.Why);
    }
  }
  return named;
}

void MarkIfNamed(bool isJoint, std::size_t number, const std::string& label,
                 const ReasonsByLabel& named, std::vector<Mark>& marks) {
  const auto found = named.find(label);
  if (found != named.end()) {
    marks.push_back({isJoint, static_cast<std::uint32_t>(number), found->second});
  }
}

/// A label of a length for a tooltip. What is cut off may be half a character.
std::string Shortened(const std::string& label) {
  constexpr std::size_t kMost = 40;
  return label.size() <= kMost ? Escaped(label) : Escaped(label.substr(0, kMost)) + "…";
}

}  // namespace

std::vector<Mark> MarksOf(const Drawing& drawing, const Account& account) {
  const auto named = NamedIn(account);
  std::vector<Mark> marks;
  for (std::size_t number = 0; number < drawing.Elements.size(); ++number) {
    const DrawnElement& element = drawing.Elements[number];
    if (element.Kind != ElementKind::RigidLink && IsDrawable(element, drawing)) {
      MarkIfNamed(false, number, element.Label, named.at(static_cast<std::size_t>(element.Kind)),
                  marks);
    }
  }
  for (std::size_t number = 0; number < drawing.Nodes.size(); ++number) {
    if (IsDrawable(drawing.Nodes[number])) {
      MarkIfNamed(true, number, drawing.Nodes[number].Label, named.at(kJoint), marks);
    }
  }
  return marks;
}

std::string TextOf(const Mark& mark, const Drawing& drawing) {
  constexpr std::size_t kMostReasons = 2;
  std::string text;
  if (mark.IsJoint) {
    const DrawnNode& node = drawing.Nodes[mark.Number];
    text = "Joint " + Shortened(node.Label) + ", node " + std::to_string(node.Number) + ":";
  } else {
    const DrawnElement& element = drawing.Elements[mark.Number];
    text.append(kNames.at(static_cast<std::size_t>(element.Kind)))
        .append(" ")
        .append(Shortened(element.Label));
    if (element.Kind != ElementKind::Link) {
      text += ", element " + std::to_string(element.Number);
    }
    text += ":";
  }
  for (std::size_t why = 0; why < std::min(mark.Whys.size(), kMostReasons); ++why) {
    text.append(" ").append(Escaped(mark.Whys[why]->Text));
  }
  if (mark.Whys.size() > kMostReasons) {
    text += " And " + Counted(mark.Whys.size() - kMostReasons, "more reason.", "more reasons.");
  }
  return text;
}
