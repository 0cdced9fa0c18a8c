#include "plates/links.h"
#include "plates/row_notes.h"

#include <array>
#include <optional>

namespace s2k2ngt {

// ---- Account ----

namespace {

/// Why a link of the summary is not written; nothing for one that is.
std::optional<Why> LossOf(CModel& model, const T_SMLA_D& link) {
  if (link.LinkJoint == kSingleJoint) {
    return Why("link-of-single-joint");
  }
  if (IsLostKind(link.LinkType)) {
    return Why("link-kind-unlike");
  }
  if (model.Rows<T_CNLK_D>().Empty()) {
    return Why("link-unknown");
  }
  return std::nullopt;
}

/// What the summary says of the links of a label.
struct LinksOfLabel {
  std::optional<Why> Loss;  // nothing if one of them is written
  bool LocalAxes = false;   // of one that is written
};

LinksOfLabel LinksOf(CModel& model, Text label) {
  const auto& links = model.Rows<T_SMLA_D>();
  LinksOfLabel found{.Loss = model.Rows<T_CNLK_D>().FirstWith<&T_CNLK_D::Link>(label)
                                 ? Why("link-without-summary")
                                 : Why("link-unknown")};
  bool isWritten = false;
  for (const std::uint32_t position : links.AllWith<&T_SMLA_D::Link>(label)) {
    const T_SMLA_D& link = links.AtWalk(position).Value;
    found.Loss = LossOf(model, link);
    isWritten = isWritten || !found.Loss;
    found.LocalAxes = found.LocalAxes || (!found.Loss && link.LocalAxes);
  }
  if (isWritten) {
    found.Loss.reset();
  }
  return found;
}

bool HasProperty(Conversion& run, const T_SMLA_D& link) {
  if (link.LinkType != kLinearLink) {
    return !link.LinkProp.empty() &&
           run.Target.Table<T_NGT_NLPR_D>().FirstWith<&T_NGT_NLPR_D::NAME>(link.LinkProp);
  }
  // A property of a link that moves freely has no rows of directions.
  return !run.Source.Rows<T_LPLN_D>().AllWith<&T_LPLN_D::Link>(link.LinkProp).empty() ||
         run.Source.Rows<T_LPGN_D>().FirstWith<&NameAndKind>(
             QualifiedLabel{link.LinkProp, kLinearLink});
}

using Ends = MetRows<&T_CNLK_D::Link, T_CNLK_D>;

/// Notes the links of the summary; enters the properties of elastic links.
void NoteLinks(Conversion& run, Ends& ends, NamesInUse& elastic) {
  for (const auto [key, link] : run.Source.Rows<T_SMLA_D>().Entries()) {
    if (const auto loss = LossOf(run.Source, link)) {
      run.Accounts.Note<T_SMLA_D>(key, *loss);
      continue;
    }
    if (!ends.Of(link.Link)) {
      run.Accounts.Note<T_SMLA_D>(key, "link-without-joints");
    }
    if (link.LocalAxes && !run.Source.Rows<T_LLCT_D>().FirstWith<&T_LLCT_D::Link>(link.Link)) {
      run.Accounts.Note<T_SMLA_D>(key, "link-axes-missing");
    }
    if (!HasProperty(run, link)) {
      run.Accounts.Note<T_SMLA_D>(key, "link-property-unknown");
    }
    if (link.LinkType == kLinearLink) {
      elastic.Add(link.LinkProp);
    }
  }
}

/// Notes a row of which another one is met, and one of a link that is not written; `note` is called
/// for any other.
template <class Row, class NoteFurther>
void NoteRowOfLink(Conversion& run, std::uint32_t key, const Row& row, NoteFurther note) {
  if (!IsTheOneMet<&Row::Link>(run.Source.Rows<Row>(), key, row)) {
    run.Accounts.Note<Row>(key, "row-of-same-name");
    return;
  }
  const LinksOfLabel links = LinksOf(run.Source, row.Link);
  if (links.Loss) {
    run.Accounts.Note<Row>(key, *links.Loss);
  } else {
    note(links.LocalAxes);
  }
}

void NoteEnds(Conversion& run, const Ends& ends) {
  KnownJoints joints(run);
  for (const auto [key, row] : run.Source.Rows<T_CNLK_D>().Entries()) {
    if (ends.IsMet(key)) {
      joints.NoteUnknown<T_CNLK_D>(key, std::array{row.JointI, row.JointJ});
    } else {
      NoteRowOfLink(run, key, row, [](bool) {});
    }
  }
}

void NoteTypicalAxes(Conversion& run, std::uint32_t key, const T_LLCT_D& row, bool isAskedFor) {
  const bool saysNothing = !IsAboveTolerance(row.Angle) && !row.AdvanceAxes;
  if (!isAskedFor && !saysNothing) {
    run.Accounts.Note<T_LLCT_D>(key, "link-axes-not-asked-for");
  } else if (row.AdvanceAxes && !run.Source.Rows<T_LLCA_D>().FirstWith<&T_LLCA_D::Link>(row.Link)) {
    run.Accounts.Note<T_LLCT_D>(key, "link-axes-missing");
  }
}

void NoteAdvancedAxes(Conversion& run, std::uint32_t key, const T_LLCA_D& row, bool isAskedFor) {
  const auto typical = run.Source.Rows<T_LLCT_D>().FirstWith<&T_LLCT_D::Link>(row.Link);
  const bool isRead = isAskedFor && typical && typical->Value.AdvanceAxes;
  run.Accounts.Note<T_LLCA_D>(key,
                              isRead ? Why("link-advanced-axes") : Why("link-axes-not-asked-for"));
}

void NoteAxes(Conversion& run) {
  for (const auto entry : run.Source.Rows<T_LLCT_D>().Entries()) {
    NoteRowOfLink(run, entry.Key, entry.Value, [&](bool isAskedFor) {
      NoteTypicalAxes(run, entry.Key, entry.Value, isAskedFor);
    });
  }
  for (const auto entry : run.Source.Rows<T_LLCA_D>().Entries()) {
    NoteRowOfLink(run, entry.Key, entry.Value, [&](bool isAskedFor) {
      NoteAdvancedAxes(run, entry.Key, entry.Value, isAskedFor);
    });
  }
}

void NoteProperties(Conversion& run, NamesInUse& elastic) {
  for (const auto [key, property] : run.Source.Rows<T_LPGN_D>().Entries()) {
    if (IsLostKind(property.LinkType)) {
      run.Accounts.Note<T_LPGN_D>(key, "link-kind-unlike");
    } else if (property.LinkType == kLinearLink && IsAboveTolerance(property.Weight)) {
      run.Accounts.Note<T_LPGN_D>(key, "weight-of-linear-link");
    }
  }
  for (const auto [key, direction] : run.Source.Rows<T_LPLN_D>().Entries()) {
    if (!elastic.Has(direction.Link)) {
      run.Accounts.Note<T_LPLN_D>(key, "property-not-used");
    }
  }
  NoteDirectionsOfNoProperty(run);
}

template <class... Rows>
void NoteAll(Conversion& run, Why why) {
  (run.Accounts.NoteAll<Rows>(why), ...);
}

/// Notes all tables of a model without a summary of links.
void NoteWithoutSummary(Conversion& run) {
  NoteAll<T_CNLK_D, T_LLCT_D, T_LLCA_D, T_LPAN_D>(run, "link-without-summary");
  const Why ofProperties =
      run.Source.Rows<T_CNLK_D>().Empty() ? Why("property-not-used") : Why("link-without-summary");
  NoteAll<T_LPGN_D, T_LPLN_D, T_LPDM_D, T_LPGP_D, T_LPHK_D, T_LPRB_D, T_LPSL_D, T_LPPW_D>(
      run, ofProperties);
}

}  // namespace

void CloseLinks(Conversion& run) {
  NoteAll<T_LPMT_D, T_LPPK_D>(run, "link-kind-unlike");
  NoteAll<T_LLDG_D>(run, "gravity-of-solid-or-link");
  if (run.Source.Rows<T_SMLA_D>().Empty()) {
    NoteWithoutSummary(run);
    return;
  }
  NoteAll<T_LPAN_D>(run, "link-assignment-in-summary");
  Ends ends(run.Source.Rows<T_CNLK_D>());
  NamesInUse elastic;
  NoteLinks(run, ends, elastic);
  NoteEnds(run, ends);
  NoteAxes(run);
  NoteProperties(run, elastic);
}

}  // namespace s2k2ngt
