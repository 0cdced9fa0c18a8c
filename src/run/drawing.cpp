#include "run/drawing.h"

#include "common/numbers.h"
#include "frames/elements.h"
#include "joints/constraints.h"
#include "joints/nodes.h"
#include "joints/supports.h"
#include "plates/areas.h"
#include "plates/links.h"
#include "plates/solids.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace s2k2ngt {
namespace {

class DrawingMaker {
 public:
  explicit DrawingMaker(const Conversion& run) : m_Run(run) {}

  Drawing Make() {
    m_Drawing.NodesAreRenumbered = !m_Run.Target.NodeLabelsNumeric;
    m_Drawing.ElementsAreRenumbered = m_Run.Elements.Renumbered();
    TakeNodes();
    TakeSupports();
    TakeFrames();
    TakeAreas();
    TakeSolids();
    TakeLinks<T_NGT_ELNK_D>();
    TakeLinks<T_NGT_NLNK_D>();
    TakeRigidLinks();
    return std::move(m_Drawing);
  }

 private:
  using Numbers = std::span<const std::int32_t>;

  void TakeNodes();
  void TakeSupports();
  void Support(std::int32_t number);
  void TakeFrames();
  void TakeAreas();
  void TakeSolids();
  template <class Link>
  void TakeLinks();
  void TakeRigidLinks();
  void Add(ElementKind kind, std::int32_t number, Text label, Numbers nodes);

  const Conversion& m_Run;
  Drawing m_Drawing;
  std::unordered_map<std::int32_t, std::uint32_t> m_PositionOfNode;  // by its number
};

void DrawingMaker::TakeNodes() {
  const auto& nodes = m_Run.Target.Table<T_NGT_NODE_D>();
  m_Drawing.Nodes.reserve(nodes.Count());
  m_PositionOfNode.reserve(nodes.Count());
  for (std::uint32_t key = 1; key <= nodes.Count(); ++key) {
    const T_NGT_NODE_D node = RecordOr(nodes.Find(key), T_NGT_NODE_D{});
    const std::int32_t number = m_Run.Target.NodeNumber(node.Label);
    // Of nodes that share a number the first is drawn with the elements.
    m_PositionOfNode.emplace(number, static_cast<std::uint32_t>(m_Drawing.Nodes.size()));
    m_Drawing.Nodes.push_back({.Number = number,
                               .Label = std::string(node.Label),
                               .X = node.X,
                               .Y = node.Y,
                               .Z = node.Z});
  }
}

void DrawingMaker::Support(std::int32_t number) {
  const auto node = m_PositionOfNode.find(number);
  if (node != m_PositionOfNode.end()) {
    m_Drawing.Nodes[node->second].IsSupported = true;
  }
}

void DrawingMaker::TakeSupports() {
  for (const T_NGT_BNDR_D& support : m_Run.Target.Table<T_NGT_BNDR_D>().Records()) {
    if (std::ranges::count(support.CONST, '1') > 0) {
      Support(m_Run.Target.NodeNumber(support.NODE));
    }
  }
  for (const T_NGT_NSPR_D& spring : m_Run.Target.Table<T_NGT_NSPR_D>().Records()) {
    Support(m_Run.Target.NodeNumber(spring.NODE));
  }
  for (const T_NGT_GSPR_D& spring : m_Run.Target.Table<T_NGT_GSPR_D>().Records()) {
    Support(m_Run.Target.NodeNumber(spring.NODE));
  }
}

void DrawingMaker::Add(ElementKind kind, std::int32_t number, Text label, Numbers nodes) {
  DrawnElement element{.Kind = kind, .Number = number, .Label = std::string(label), .Nodes = {}};
  for (const std::int32_t node : nodes) {
    const auto found = m_PositionOfNode.find(node);
    if (found == m_PositionOfNode.end()) {
      element.Nodes.clear();
      break;
    }
    element.Nodes.push_back(found->second);
  }
  m_Drawing.Elements.push_back(std::move(element));
}

void DrawingMaker::TakeFrames() {
  const auto& frames = m_Run.Target.Table<T_NGT_FRAM_D>();
  for (std::uint32_t key = 1; key <= frames.Count(); ++key) {
    const T_NGT_FRAM_D frame = RecordOr(frames.Find(key), T_NGT_FRAM_D{});
    Add(ElementKind::Frame, m_Run.Elements.NumberOf(key, frame.Label), frame.Label,
        std::array{m_Run.Target.NodeNumber(frame.NodeI), m_Run.Target.NodeNumber(frame.NodeJ)});
  }
}

void DrawingMaker::TakeAreas() {
  const auto& areas = m_Run.Target.Table<T_NGT_PLAT_D>();
  const auto before = static_cast<std::uint32_t>(m_Run.Source.Rows<T_CNFR_D>().Count());
  for (std::uint32_t key = 1; key <= areas.Count(); ++key) {
    const T_NGT_PLAT_D area = RecordOr(areas.Find(key), T_NGT_PLAT_D{});
    const auto corner = [&](std::size_t place) {
      return m_Run.Target.NodeNumber(area.iN.at(place));
    };
    // The output goes around the element, with 0 for a corner that a triangle does not have.
    std::vector<std::int32_t> corners = {corner(0), corner(1), corner(3)};
    if (corner(2) != corner(3)) {
      corners.push_back(corner(2));
    }
    std::erase(corners, 0);
    Add(ElementKind::Area, m_Run.Elements.NumberOf(before + key, area.Label), area.Label,
        corners.size() >= 3 ? Numbers(corners) : Numbers());
  }
}

void DrawingMaker::TakeSolids() {
  const auto& solids = m_Run.Target.Table<T_NGT_SOLD_D>();
  const auto before = static_cast<std::uint32_t>(m_Run.Source.Rows<T_CNFR_D>().Count() +
                                                 m_Run.Source.Rows<T_CNAR_D>().Count());
  for (std::uint32_t key = 1; key <= solids.Count(); ++key) {
    const T_NGT_SOLD_D solid = RecordOr(solids.Find(key), T_NGT_SOLD_D{});
    std::vector<std::int32_t> corners;
    // In the order of the output, which goes around a face.
    for (const std::size_t place : std::array<std::size_t, 8>{0, 1, 3, 2, 4, 5, 7, 6}) {
      corners.push_back(m_Run.Target.NodeNumber(solid.iN.at(place)));
    }
    if (corners.back() == 0) {  // a wedge, which keeps the order of the source
      std::swap(corners[2], corners[3]);
      corners.resize(6);
    }
    Add(ElementKind::Solid, m_Run.Elements.NumberOf(before + key, solid.Label), solid.Label,
        corners);
  }
}

template <class Link>
void DrawingMaker::TakeLinks() {
  for (const auto [key, link] : m_Run.Target.Table<Link>().Walk()) {
    Add(ElementKind::Link, 0, link.Label,
        std::array{m_Run.Target.NodeNumber(link.iNODE1), m_Run.Target.NodeNumber(link.iNODE2)});
  }
}

/// The first word of a text, which is taken off it; nothing when it has none.
std::optional<Text> TakeWord(Text& text) {
  text = TrimLeft(text);
  if (text.empty()) {
    return std::nullopt;
  }
  const Text word = text.substr(0, text.find(' '));
  text.remove_prefix(word.size());
  return word;
}

void DrawingMaker::TakeRigidLinks() {
  // Their nodes are numbers already; without a master, or without numbers, there is no line.
  for (const auto [key, link] : m_Run.Target.Table<T_NGT_RLNK_D>().Walk()) {
    Text slaves = link.SNODES;
    while (const std::optional<Text> slave = TakeWord(slaves)) {
      if (IsAllDigits(link.MNODE) && IsAllDigits(*slave) && !link.MNODE.empty()) {
        Add(ElementKind::RigidLink, 0, "",
            std::array{ParseInteger(link.MNODE), ParseInteger(*slave)});
      }
    }
  }
}

}  // namespace

Drawing DrawingOf(const Conversion& run) { return DrawingMaker(run).Make(); }

}  // namespace s2k2ngt
