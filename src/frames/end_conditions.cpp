#include "frames/end_conditions.h"

#include <cmath>

namespace s2k2ngt {

// ---- Conversion ----

namespace {

/// Six conditions of a frame's end, turned from the source's order (axial, shear 2, shear 3,
/// torsion, moment 2, moment 3) into the target's: its axis y is the source's 3, its z the 2.
template <class Value>
std::array<Value, 6> InTargetOrder(Value axial, Value shear2, Value shear3, Value torsion,
                                   Value moment2, Value moment3) {
  return {axial, shear3, shear2, torsion, moment3, moment2};
}

EndRelease ReleaseOf(const std::array<bool, 6>& released, bool hasSprings,
                     const std::array<double, 6>& springs, TextStore& texts) {
  EndRelease end;
  std::array<char, 6> flag{};
  for (std::size_t place = 0; place < released.size(); ++place) {
    flag[place] = released[place] ? '1' : '0';
    // That there is a spring is kept, not how stiff it is.
    end.Value[place] = hasSprings && springs[place] >= kTolerance ? 1.0 : 0.0;
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

void ConvertEndLengths(Conversion& run) {
  auto& offsets = run.Target.Table<T_NGT_FROF_D>();
  ReserveForRows<T_NGT_FROF_D, T_FROF_D>(run);
  for (const auto [key, frame] : run.Source.Rows<T_FROF_D>().Walk()) {
    if (std::abs(frame.LengthI) + std::abs(frame.LengthJ) <= kTolerance) {
      continue;
    }
    offsets.Append(
        {.Label = frame.Frame, .TYPE = "ELEMENT", .RGDXi = frame.LengthI, .RGDXj = frame.LengthJ});
  }
}

bool HasNoJointOffset(const T_FRIP_D& frame) {
  return std::abs(frame.JtOffsetXI) + std::abs(frame.JtOffsetYI) + std::abs(frame.JtOffsetZI) +
             std::abs(frame.JtOffsetXJ) + std::abs(frame.JtOffsetYJ) + std::abs(frame.JtOffsetZJ) <=
         kTolerance;
}

void ConvertJointOffsets(Conversion& run) {
  auto& offsets = run.Target.Table<T_NGT_FROF_D>();
  bool hasLocal = false;
  for (const auto [key, frame] : run.Source.Rows<T_FRIP_D>().Walk()) {
    if (HasNoJointOffset(frame)) {
      continue;
    }
    if (frame.CoordSys == "Local") {
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
                              .RGDZj = frame.JtOffsetZJ};
    const auto earlier = offsets.FirstWith<&T_NGT_FROF_D::Label>(frame.Frame);
    if (!earlier) {
      offsets.Append(offset);
      continue;
    }
    run.Shown.ShowWith("IDS_S2KV8_OFFSET_REPLACE_GLOBAL", frame.Frame);
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
    if (offset.TYPE == "ELEMENT") {
      out.WriteLine("\t%d, %5s, %5g, %5g,\n", iEl, offset.TYPE, offset.RGDXi, offset.RGDXj);
    } else if (offset.TYPE == "GLOBAL") {
      out.WriteLine("\t%d, %5s, %5g, %5g, %5g, %5g, %5g, %5g,\n", iEl, offset.TYPE, offset.RGDXi,
                    offset.RGDYi, offset.RGDZi, offset.RGDXj, offset.RGDYj, offset.RGDZj);
    }
    // The target knows no other system; an offset in one writes no line.
  }
  out.WriteLine("\n");
  return true;
}

}  // namespace s2k2ngt
