#include "frames/end_conditions.h"

#include "account/shared_names.h"
#include "frames/elements.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

namespace s2k2ngt {

// ---- Conversion ----

namespace {

// The systems that an offset is in: the first two are the target's, the last is the source's.
constexpr Text kAlongElement = "ELEMENT";
constexpr Text kGlobal = "GLOBAL";
constexpr Text kLocal = "Local";

/// Six conditions of a frame's end, turned from the source's order (axial, shear 2, shear 3,
/// torsion, moment 2, moment 3) into the target's: its axis y is the source's 3, its z the 2.
template <class Value>
std::array<Value, 6> InTargetOrder(Value axial, Value shear2, Value shear3, Value torsion,
                                   Value moment2, Value moment3) {
  return {axial, shear3, shear2, torsion, moment3, moment2};
}

/// That there is a spring is kept, not how stiff it is.
double MarkOfSpring(double stiffness) { return stiffness >= kTolerance ? 1.0 : 0.0; }

EndRelease ReleaseOf(const std::array<bool, 6>& released, bool hasSprings,
                     const std::array<double, 6>& springs, TextStore& texts) {
  EndRelease end;
  std::array<char, 6> flag{};
  for (std::size_t place = 0; place < released.size(); ++place) {
    flag[place] = released[place] ? '1' : '0';
    end.Value[place] = hasSprings ? MarkOfSpring(springs[place]) : 0.0;
  }
  end.Flag = texts.Keep({flag.data(), flag.size()});
  return end;
}

}  // namespace

bool ConvertReleases(Conversion& run) {
  const auto& springs = run.Source.Rows<T_FRPF_D>();
  ReserveForRows<T_NGT_FRRL_D, T_FRGN_D>(run);
  for (const auto [key, frame] : run.Source.Rows<T_FRGN_D>().Walk()) {
    const auto found = springs.FirstWith<&T_FRPF_D::Frame>(frame.Frame);
    if (!found && !springs.Empty()) {
      // Meant so: the first frame without a row of springs ends the conversion of releases.
      return true;
    }
    const T_FRPF_D spring = found ? found->Value : T_FRPF_D{};
    if (frame.PartialFix) {
      run.Warnings.bFrameEndPartial = true;
    }
    const auto releasedI =
        InTargetOrder(frame.PI, frame.V2I, frame.V3I, frame.TI, frame.M2I, frame.M3I);
    const auto springsI =
        InTargetOrder(spring.PI, spring.V2I, spring.V3I, spring.TI, spring.M2I, spring.M3I);
    const auto releasedJ =
        InTargetOrder(frame.PJ, frame.V2J, frame.V3J, frame.TJ, frame.M2J, frame.M3J);
    const auto springsJ =
        InTargetOrder(spring.PJ, spring.V2J, spring.V3J, spring.TJ, spring.M2J, spring.M3J);
    TextStore& texts = run.Target.Texts();
    run.Target.Add(key, T_NGT_FRRL_D{.Label = frame.Frame,
                                     .I = ReleaseOf(releasedI, frame.PartialFix, springsI, texts),
                                     .J = ReleaseOf(releasedJ, frame.PartialFix, springsJ, texts)});
  }
  return true;
}

namespace {

bool HasNoEndLength(const T_FROF_D& frame) {
  return std::abs(frame.LengthI) + std::abs(frame.LengthJ) <= kTolerance;
}

void ConvertEndLengths(Conversion& run) {
  auto& offsets = run.Target.Table<T_NGT_FROF_D>();
  ReserveForRows<T_NGT_FROF_D, T_FROF_D>(run);
  for (const auto [key, frame] : run.Source.Rows<T_FROF_D>().Walk()) {
    if (HasNoEndLength(frame)) {
      run.Accounts.Note<T_FROF_D>(key, "end-lengths-zero");
      continue;
    }
    offsets.Append({.Label = frame.Frame,
                    .TYPE = kAlongElement,
                    .RGDXi = frame.LengthI,
                    .RGDXj = frame.LengthJ,
                    .SourceKey = key});
  }
}

bool HasNoJointOffset(const T_FRIP_D& frame) {
  return std::abs(frame.JtOffsetXI) + std::abs(frame.JtOffsetYI) + std::abs(frame.JtOffsetZI) +
             std::abs(frame.JtOffsetXJ) + std::abs(frame.JtOffsetYJ) + std::abs(frame.JtOffsetZJ) <=
         kTolerance;
}

/// Notes that the offset is in a system of the user's, by its name in the target.
void NoteSystem(Conversion& run, std::uint32_t key, Text type) {
  if (type == kAlongElement) {
    run.Accounts.Note<T_FRIP_D>(key, "coordinate-system-ignored");
  } else if (type != kGlobal) {
    run.Accounts.Note<T_FRIP_D>(key, "joint-offset-not-global");
  }
}

/// Notes the row of an offset whose place is taken by that of an insertion point.
void NoteReplaced(Conversion& run, const T_NGT_FROF_D& offset) {
  if (offset.TYPE == kAlongElement) {
    run.Accounts.Note<T_FROF_D>(offset.SourceKey, "end-lengths-replaced");
  } else {
    run.Accounts.Note<T_FRIP_D>(offset.SourceKey, "joint-offset-stated-twice");
  }
}

void ConvertJointOffsets(Conversion& run) {
  auto& offsets = run.Target.Table<T_NGT_FROF_D>();
  bool hasLocal = false;
  for (const auto [key, frame] : run.Source.Rows<T_FRIP_D>().Walk()) {
    if (HasNoJointOffset(frame)) {
      continue;
    }
    if (frame.CoordSys == kLocal) {
      run.Accounts.Note<T_FRIP_D>(key, "joint-offset-not-global");
      hasLocal = true;
      continue;
    }
    const T_NGT_FROF_D offset{.Label = frame.Frame,
                              .TYPE = run.Target.Texts().Keep(ToUpper(frame.CoordSys)),
                              .RGDXi = frame.JtOffsetXI,
                              .RGDYi = frame.JtOffsetYI,
                              .RGDZi = frame.JtOffsetZI,
                              .RGDXj = frame.JtOffsetXJ,
                              .RGDYj = frame.JtOffsetYJ,
                              .RGDZj = frame.JtOffsetZJ,
                              .SourceKey = key};
    NoteSystem(run, key, offset.TYPE);
    const auto earlier = offsets.FirstWith<&T_NGT_FROF_D::Label>(frame.Frame);
    if (!earlier) {
      offsets.Append(offset);
      continue;
    }
    run.Shown.ShowWith("IDS_S2KV8_OFFSET_REPLACE_GLOBAL", frame.Frame);
    NoteReplaced(run, earlier->Value);
    *offsets.FindToChange(earlier->Key) = offset;
  }
  if (hasLocal) {
    run.Shown.Show("IDS_S2KV8_OFFSET_LOCAL_DIR");
  }
}

}  // namespace

bool ConvertOffsets(Conversion& run) {
  ConvertEndLengths(run);
  ConvertJointOffsets(run);
  return true;
}

// ---- Output ----

bool WriteReleases(Conversion& run, LineWriter& out) {
  const auto& releases = run.Target.Table<T_NGT_FRRL_D>();
  if (releases.Empty()) {
    return true;
  }
  if (run.Warnings.bFrameEndOffsetRelease) {
    run.Shown.Show("IDS_S2KV8_BEAM_End_Off_Rls");
  }
  if (run.Warnings.bFrameEndPartial) {
    run.Shown.Show("IDS_S2KV8_BEAM_End_Release");
  }
  out.WriteLine("*FRAME-RLS    ; Beam End Release\n");
  out.WriteLine("; ELEM_LIST, FLAG-i, Fxi, Fyi, Fzi, Mxi, Myi, Mzi        ; 1st line\n");
  out.WriteLine(";            FLAG-j, Fxj, Fyj, Fzj, Mxj, Myj, Mzj, GROUP ; 2nd line\n");
  ElementReferences elements(run.Elements);
  T_NGT_FRRL_D release;  // a key without a record repeats the record before it
  for (std::uint32_t key = 1; key <= releases.Count(); ++key) {
    release = RecordOr(releases.Find(key), release);
    const auto& atI = release.I.Value;
    const auto& atJ = release.J.Value;
    out.WriteLine("\t%d, \t%s, %5g, %5g, %5g, %5g, %5g, %5g\n",
                  elements.NumberOf(release.Label, kFrameFamily), release.I.Flag, atI[0], atI[1],
                  atI[2], atI[3], atI[4], atI[5]);
    out.WriteLine("\t\t%s, %5g, %5g, %5g, %5g, %5g, %5g,\n", release.J.Flag, atJ[0], atJ[1], atJ[2],
                  atJ[3], atJ[4], atJ[5]);
  }
  out.WriteLine("\n");
  return true;
}

bool WriteOffsets(Conversion& run, LineWriter& out) {
  const auto& offsets = run.Target.Table<T_NGT_FROF_D>();
  if (offsets.Empty()) {
    return true;
  }
  out.WriteLine("*OFFSET    ; Beam End Offsets\n");
  out.WriteLine(
      "; ELEM_LIST, TYPE, RGDXi, RGDYi, RGDZi, RGDXj, RGDYj, RGDZj, GROUP  ; TYPE=GLOBAL\n");
  out.WriteLine(
      "; ELEM_LIST, TYPE, RGDi, RGDj, GROUP                                ; TYPE=ELEMENT\n");
  ElementReferences elements(run.Elements);
  for (std::uint32_t key = 1; key <= offsets.Count(); ++key) {
    const T_NGT_FROF_D offset = RecordOr(offsets.Find(key), T_NGT_FROF_D{});
    const std::int32_t iEl = elements.NumberOf(offset.Label, kFrameFamily);
    if (offset.TYPE == kAlongElement) {
      out.WriteLine("\t%d, %5s, %5g, %5g,\n", iEl, offset.TYPE, offset.RGDXi, offset.RGDXj);
    } else if (offset.TYPE == kGlobal) {
      out.WriteLine("\t%d, %5s, %5g, %5g, %5g, %5g, %5g, %5g,\n", iEl, offset.TYPE, offset.RGDXi,
                    offset.RGDYi, offset.RGDZi, offset.RGDXj, offset.RGDYj, offset.RGDZj);
    }
    // The target knows no other system; an offset in one writes no line.
  }
  out.WriteLine("\n");
  return true;
}

// ---- Account ----

namespace {

/// True when the releases of this key are in the output, which counts them and prints the keys up
/// to their count.
bool IsWritten(Conversion& run, std::uint32_t key) {
  const auto& releases = run.Target.Table<T_NGT_FRRL_D>();
  return key <= releases.Count() && releases.Find(key) != nullptr;
}

void NoteReleases(Conversion& run) {
  const bool hasSprings = !run.Source.Rows<T_FRPF_D>().Empty();
  for (const auto [key, row] : run.Source.Rows<T_FRGN_D>().Entries()) {
    if (!IsWritten(run, key)) {
      run.Accounts.Note<T_FRGN_D>(key, "partial-fixity-row-missing");
      continue;
    }
    if (row.PartialFix && !hasSprings) {
      run.Accounts.Note<T_FRGN_D>(key, "partial-fixity-not-stated");
    }
    if (const auto why = WhyNoElement(run, row.Frame, key)) {
      run.Accounts.Note<T_FRGN_D>(key, *why);
    }
  }
}

/// True when the stiffness of a spring is not what stands for it.
bool LosesStiffness(const T_FRPF_D& row) {
  const std::array<double, 12> springs = {row.PI, row.V2I, row.V3I, row.TI, row.M2I, row.M3I,
                                          row.PJ, row.V2J, row.V3J, row.TJ, row.M2J, row.M3J};
  return std::ranges::any_of(springs,
                             [](double stiffness) { return stiffness != MarkOfSpring(stiffness); });
}

void NotePartialFixity(Conversion& run, std::uint32_t key, const T_FRPF_D& row) {
  const auto release = run.Source.Rows<T_FRGN_D>().FirstWith<&T_FRGN_D::Frame>(row.Frame);
  if (!release) {
    run.Accounts.Note<T_FRPF_D>(key, FrameWith(run.Source, row.Frame, key)
                                         ? Why("partial-fixity-without-release")
                                         : Why("frame-unknown"));
  } else if (run.Source.Rows<T_FRPF_D>().FirstWith<&T_FRPF_D::Frame>(row.Frame)->Key != key) {
    run.Accounts.Note<T_FRPF_D>(key, "row-of-same-name");
  } else if (!IsWritten(run, release->Key)) {
    run.Accounts.Note<T_FRPF_D>(key, "partial-fixity-row-missing");
  } else if (!release->Value.PartialFix) {
    run.Accounts.Note<T_FRPF_D>(key, "switched-off");
  } else if (LosesStiffness(row)) {
    run.Accounts.Note<T_FRPF_D>(key, "partial-fixity-stiffness");
  }
}

void NoteEndLengths(Conversion& run) {
  for (const auto [key, row] : run.Source.Rows<T_FROF_D>().Entries()) {
    if (HasNoEndLength(row)) {
      continue;
    }
    if (const auto why = WhyNoElement(run, row.Frame, key)) {
      run.Accounts.Note<T_FROF_D>(key, *why);
    }
  }
}

void NoteInsertionPoints(Conversion& run) {
  for (const auto [key, row] : run.Source.Rows<T_FRIP_D>().Entries()) {
    if (const auto why = WhyNoElement(run, row.Frame, key)) {
      run.Accounts.Note<T_FRIP_D>(key, HasNoJointOffset(row) ? Why("frame-unknown") : *why);
    }
  }
}

}  // namespace

void CloseEndConditions(Conversion& run) {
  NoteSharedNames<&T_FRGN_D::Frame, T_FRGN_D>(run);
  NoteReleases(run);
  for (const auto [key, row] : run.Source.Rows<T_FRPF_D>().Entries()) {
    NotePartialFixity(run, key, row);
  }
  NoteEndLengths(run);
  NoteInsertionPoints(run);
}

}  // namespace s2k2ngt
