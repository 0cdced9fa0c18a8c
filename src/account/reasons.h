#pragma once

#include "common/text.h"

#include <s2k2ngt/account.h>

#include <array>
#include <cstddef>
#include <cstdint>

namespace s2k2ngt {

namespace reasons {

consteval Reason Changed(const char* code, const char* text, const char* advice) {
  return {code, RowFate::Changed, true, text, advice};
}
/// A change by which no part of the model is altered.
consteval Reason Reworded(const char* code, const char* text, const char* advice) {
  return {code, RowFate::Changed, false, text, advice};
}
consteval Reason Dropped(const char* code, const char* text, const char* advice) {
  return {code, RowFate::Dropped, true, text, advice};
}
/// A row left out that says nothing which the output does not say.
consteval Reason Redundant(const char* code, const char* text, const char* advice) {
  return {code, RowFate::Dropped, false, text, advice};
}
consteval Reason Refused(const char* code, const char* text, const char* advice) {
  return {code, RowFate::Refused, true, text, advice};
}
consteval Reason NotLookedAt(const char* code, const char* text, const char* advice) {
  return {code, RowFate::NotLookedAt, true, text, advice};
}

}  // namespace reasons

/// The one list of reasons. A code says what was found, not what the code does about it.
inline constexpr auto kReasons = std::to_array<Reason>({
    // The file and its tables

    reasons::NotLookedAt("table-unknown", "No table of this title is known.",
                         "Enter what it states in the host."),
    reasons::NotLookedAt("table-not-read", "Tables of this kind are not read.",
                         "Enter what it states in the host."),
    {"table-without-model-data", RowFate::NotLookedAt, false,
     "The table holds no part of the structural model: settings, groups, grids, or design.",
     "There is nothing to do for the analysis."},
    reasons::Refused("table-refused", "The host has no like of this table.",
                     "Read the message that was shown for it."),
    reasons::NotLookedAt("run-ended", "The run ended before the row was converted.",
                         "Mend what the run ended by, and convert again."),
    reasons::Refused("row-refused", "The row cannot be read, and with it the file.",
                     "Mend the row: the failure says what is wrong with it."),
    reasons::Dropped("first-row-counts", "Of this table the first row alone is read.",
                     "Look whether the rows below it say anything else."),
    reasons::Dropped("overwritten-by-later-block",
                     "A later block of the same table has written over the row.",
                     "Give each table one block."),
    reasons::Dropped("title-without-empty-line",
                     "A further title follows without an empty line, which drops the rows above.",
                     "Put an empty line before each title."),
    reasons::Changed("read-under-title-before",
                     "No empty line stands above the title: the rows are read as those of the "
                     "title before.",
                     "Put an empty line before each title."),
    reasons::Dropped("row-without-end", "The row ends in a mark by which it would go on.",
                     "Take the \" _\" off its end."),

    reasons::Dropped("joint-unknown", "It names a joint that the file does not have.",
                     "Look for the joint in the source model."),
    reasons::Dropped("frame-unknown", "It names a frame that the file does not have.",
                     "Look for the frame in the source model."),
    reasons::Dropped("area-unknown", "It names an area that the file does not have.",
                     "Look for the area in the source model."),
    reasons::Dropped("solid-unknown", "It names a solid that the file does not have.",
                     "Look for the solid in the source model."),
    reasons::Dropped("link-unknown", "It names a link that the file does not have.",
                     "Look for the link in the source model."),
    reasons::Changed("joint-taken-from-another",
                     "It names a joint that the file does not have: another number is written.",
                     "Look for the joint in the source model."),
    reasons::Changed("element-taken-from-another",
                     "It names an element that the file does not have: another number is written.",
                     "Look for the element in the source model."),
    reasons::Dropped("load-case-not-static", "No linear static analysis case names its load case.",
                     "Add a linear static analysis case that applies the load case."),
    reasons::Changed("coordinate-system-ignored",
                     "It stands in a coordinate system of the user's and is taken as if it did "
                     "not.",
                     "Turn the values into the global or local system."),

    // Joints

    // Frames

    // Areas, solids and links

    reasons::Changed("area-without-section",
                     "No section is assigned to the area: it is written without a type, with "
                     "material 1 and thickness 1.",
                     "Give the element its type, material and thickness in the host."),
    reasons::Changed("area-section-unknown",
                     "It names an area section that the file does not have: the area is written "
                     "without a type, with material 1 and thickness 1.",
                     "Give the element its type, material and thickness in the host."),
    reasons::Changed("area-material-unknown",
                     "The material of the area section is not in the file: areas of the section "
                     "get material 1, and thickness 1.",
                     "Give the elements of the section their material and thickness in the host."),
    reasons::Changed("area-section-type-unlike",
                     "The host has no elements of this type: areas of the section are written as "
                     "thick plates if it is a shell, and else without a type.",
                     "Give the elements of the section a type in the host."),
    reasons::Changed(
        "area-section-of-same-name",
        "Areas have another section of the same name: of this one the thickness alone is written.",
        "Give each area section a name of its own."),
    reasons::Changed("area-not-in-plane",
                     "The corners do not lie in one plane of constant Y, as plane strain and "
                     "axisymmetric elements must: the area is written as plane stress.",
                     "Lay the area into the XZ plane in the source."),
    reasons::Changed(
        "area-of-three-joints",
        "It has three joints and no repeated fourth: the third place of the element is empty.",
        "Put the third node of the element into its third place in the host."),
    reasons::Changed("end-or-corner-unknown",
                     "It names no joint, or one that the file does not have, at an end or a "
                     "corner: the element has no node there.",
                     "Look for the joint in the source model."),
    reasons::Changed("element-number-shared",
                     "An area has the same label: two elements are written under one number.",
                     "Give the solids labels of their own in the source."),
    reasons::Dropped("row-of-same-name",
                     "Another row of the same name is taken, and of each name one row alone.",
                     "Look whether the rows say the same."),
    reasons::Redundant("property-not-used", "Nothing that is written has this section or property.",
                       "There is nothing to do for the analysis."),
    reasons::Dropped("spring-on-edge",
                     "It is a spring on an edge of an area, which the host does not have.",
                     "Enter springs at the nodes of the edge in the host."),
    reasons::Dropped(
        "spring-behind-unknown-area",
        "A spring on an area that is not there ended the conversion before this row was met.",
        "Take springs on areas that are not there out of the source."),
    reasons::Changed("spring-on-face",
                     "Of a spring on a face the quarter is written, at the first corner of the "
                     "area alone and in the directions of its node.",
                     "Enter the springs of the area again in the host."),
    reasons::Changed("spring-at-no-node",
                     "Joint labels are not all numbers: of a spring on a face the quarter is "
                     "written, at node 0.",
                     "Enter the springs of the area again in the host."),
    reasons::Changed("spring-direction-unknown",
                     "Its direction is not 1, 2 or 3: a spring without stiffness is written.",
                     "Enter the spring again in the host."),
    reasons::Changed(
        "area-without-size",
        "The connectivity row of its area states no size: what is spread over the area comes to 0.",
        "Export the connectivity of areas with its column AreaArea."),
    reasons::Changed(
        "mass-of-unknown-area",
        "It names an area that the file does not have: the mass goes to the corners of another "
        "one.",
        "Look for the area in the source model, and correct the nodal masses in the host."),
    reasons::Changed("mass-on-triangle",
                     "A quarter of the mass goes to each of four corners: a triangle has two of "
                     "them at its last joint, or one at node 0.",
                     "Correct the nodal masses of the triangle in the host."),
    reasons::Changed(
        "solid-without-property",
        "No property is assigned to the solid: it takes the material of another solid, or 0.",
        "Give the element its material in the host."),
    reasons::Changed("solid-property-unknown",
                     "It names a solid property that the file does not have: the solid takes the "
                     "material of another one, or 0.",
                     "Give the element its material in the host."),
    reasons::Changed("solid-material-unknown",
                     "The material of the solid property is not in the file: the solid takes the "
                     "material of another one, or 0.",
                     "Give the elements of the property their material in the host."),
    reasons::Dropped("gravity-of-solid-or-link",
                     "Gravity loads of solids and links are not carried over.",
                     "Use the self weight of the load case in the host, or enter the loads."),
    reasons::Dropped("link-without-summary",
                     "The summary of links does not list the link, and links go by it.",
                     "Export the table of the summary of links too."),
    reasons::Dropped("link-of-single-joint",
                     "A link of a single joint, to the ground, is not carried over.",
                     "Enter a spring at the node in the host."),
    reasons::Dropped("link-kind-unlike",
                     "The host has no multilinear and no kinematic plastic links.",
                     "Choose another kind of link in the host, and enter it."),
    reasons::Changed("link-without-joints",
                     "The connectivity does not list the link: it has the joints of another one.",
                     "Look for the link in the source model."),
    reasons::Changed("link-property-unknown",
                     "No property of its name and kind is written: the link has no stiffness.",
                     "Enter the property in the host."),
    reasons::Changed("link-axes-missing",
                     "It is said to have local axes, or advanced ones, of which there is no row: "
                     "they are not in its angle.",
                     "Check the angle of the link in the host."),
    reasons::Dropped(
        "link-axes-not-asked-for",
        "The summary, or the row of typical axes, does not say that the link has these axes.",
        "Check the angle of the link in the host."),
    reasons::Changed("link-advanced-axes",
                     "Advanced axes are turned into one angle, as if the link ran along global X.",
                     "Check the angle of the link in the host."),
    reasons::Dropped("weight-of-linear-link", "The host's elastic links have no weight.",
                     "Enter the weight as nodal loads and masses in the host."),
    reasons::Changed("link-property-without-values",
                     "Its kind is not known, or has no rows of directions: a property without name "
                     "and values is written.",
                     "Enter the property in the host."),
    reasons::Dropped("direction-of-unknown-property", "No link property of this kind has its name.",
                     "Look for the property in the source model."),
    reasons::Dropped("link-direction-unknown", "Its direction is none of U1 to R3.",
                     "Correct the direction in the source."),
    reasons::Changed(
        "link-direction-misplaced",
        "Its direction is none of U1 to R3: the values stand in that of the row before it.",
        "Correct the direction in the source."),
    reasons::Changed("damping-of-linear-direction",
                     "The direction is linear: its effective damping is not written.",
                     "Enter the damping in the host."),
    reasons::Changed("isolator-yield-in-u3",
                     "The yield or friction values of isolators in direction U3 are not written.",
                     "Enter the values of direction DY in the host: they are often those of DZ."),
    reasons::Changed(
        "link-shear-distance",
        "The distance of the shear spring is not written as it stands: in nonlinear properties it "
        "goes to the other axis, as 1 at most, and in others it must be positive and of U2 or U3.",
        "Correct the distances of the shear springs in the host."),
    reasons::Redundant("link-assignment-in-summary",
                       "The summary of links states the property too, and links go by that.",
                       "There is nothing to do."),

    // Loads

    reasons::Dropped("auto-load-not-asked-for",
                     "Its load case is not of wind or earthquake by this code.",
                     "Choose the code in the source's load case if the load shall act."),
    reasons::Changed("auto-load-code-unlike",
                     "The host has no like of the code by which the load is computed, or of the "
                     "user's own coefficients: the load case is written without the load.",
                     "Enter the load in the host."),
    reasons::Changed("auto-load-without-parameters",
                     "There is no row of parameters of the code for the load: the load case is "
                     "written without the load.",
                     "Enter the load in the host."),
    reasons::Changed(
        "wind-direction",
        "The direction of the wind is not carried over: the load is written with the factor 1 "
        "along both X and Y.",
        "Set the factors of both directions in the host, and check heights and exposure."),
    reasons::Changed(
        "seismic-eccentricity",
        "Eccentricities are not carried over: the host's own positive ones are written.",
        "Set the eccentricities in the host."),
    reasons::Changed(
        "seismic-period-not-of-user",
        "The row states no period of the user's: the factor Ct stands in its place, or 0.",
        "Enter the period in the host."),
    reasons::Changed("zone-factor-from-height",
                     "A height that stands before the zone factor is taken for it.",
                     "Correct the zone factor in the host."),
    reasons::Changed("seismic-direction-unknown",
                     "Its direction is neither X nor Y: it is taken for Y.",
                     "Check the direction of the load in the host."),
    reasons::Changed(
        "soil-type-unknown",
        "Its soil type is not one of two letters: the first two are taken, or Sa if there is none.",
        "Correct the soil profile in the host."),

    // Analysis cases, functions and combinations

    // Bridges
});

/// A reason of the list, by its code; any other does not compile.
class Why {
 public:
  consteval Why(const char* code) : m_Number(NumberOf(code)) {}

  /// Position in the list.
  constexpr std::uint8_t Number() const { return m_Number; }
  bool operator==(const Why&) const = default;

 private:
  static consteval std::uint8_t NumberOf(Text code) {
    static_assert(kReasons.size() < 255);
    for (std::size_t number = 0; number < kReasons.size(); ++number) {
      if (code == kReasons[number].Code) {
        return static_cast<std::uint8_t>(number);
      }
    }
    throw "no such reason";
  }

  std::uint8_t m_Number;
};

}  // namespace s2k2ngt
