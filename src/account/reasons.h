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
     "The table holds settings, groups, grids, design data, or what other tables say as well.",
     "There is nothing to do for the analysis."},
    reasons::Refused("table-refused", "The host has no like of this table.",
                     "Read the message that was shown for it."),
    reasons::NotLookedAt("run-ended", "The run ended before the row was converted.",
                         "Mend what the run ended by, and convert again."),
    reasons::Refused("row-refused", "The row cannot be read, and with it the file.",
                     "Mend the row: the failure says what is wrong with it."),
    reasons::Dropped("first-row-counts", "Of this table the first row alone is read.",
                     "Look whether the rows below it say anything else."),
    reasons::Redundant("coordinate-system-below-first",
                       "Coordinate systems below the first are not read. What stands in one of "
                       "them is told with its own rows.",
                       "Look at the rows that name the system."),
    reasons::Reworded("coordinate-system-moved",
                      "Where the system lies, and how it is turned, is not read. What stands in it "
                      "is told with its own rows.",
                      "Look at the rows that name the system."),
    reasons::NotLookedAt("outside-of-tables",
                         "The line stands before the first table, between two or behind the end.",
                         "Look whether it belongs to a table, and give that its title."),
    reasons::Changed("units-missing",
                     "The file has no PROGRAM CONTROL table: tons and metres are taken as units.",
                     "Export the model with this table, or set the units in the host."),
    reasons::Reworded("freedoms-missing",
                      "The file has no table of active degrees of freedom: all are taken.",
                      "Look whether the model is meant to be in a plane."),
    reasons::NotLookedAt("end-missing",
                         "The file does not end in END TABLE DATA. What should stand there, if "
                         "anything, is missing.",
                         "Export the model again, or copy the file again if it was cut off."),
    reasons::Changed("number-read-in-part",
                     "A value that is to be a number is none as a whole: what stands before the "
                     "first sign that is of no number counts, or 0.",
                     "Write numbers with a point and without units, and convert again."),
    reasons::Changed("neither-yes-nor-no",
                     "A value that is to be Yes or No is another word, and counts as No.",
                     "Write Yes or No in this form, and convert again."),
    reasons::Changed("value-of-unknown-name",
                     "The row states something by a name that is not known for its table.",
                     "Look whether it matters to the structure, and enter it in the host."),
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
    reasons::Changed("joint-not-there",
                     "It names a joint that the file does not have: its line in the output names a "
                     "node that is not there.",
                     "Look for the joint in the source model."),
    reasons::Changed(
        "element-not-there",
        "It names an element that the file does not have: its line in the output names "
        "one that is not there.",
        "Look for the element in the source model."),
    reasons::Changed("end-or-corner-unknown",
                     "It names no joint, or one that the file does not have, at an end or a "
                     "corner: the element has no node there.",
                     "Look for the joint in the source model."),
    reasons::Changed("material-of-assignment",
                     "The material that the assignment states is not taken over: the element has "
                     "that of its section or property.",
                     "Give the element its material in the host."),
    reasons::Changed("material-angle", "The angle of the material is not taken over.",
                     "Turn the axes of the elements in the host if the material is not isotropic."),
    reasons::Changed("mass-unlike-weight",
                     "The mass is not that of the weight, from which the host takes it.",
                     "Set the weight or the mass of the material in the host."),
    reasons::Changed("area-section-modifiers",
                     "The host has no modifiers of area sections: they are left out.",
                     "Change the thickness or the material of the elements in the host."),
    reasons::Changed("spectrum-direction-combination",
                     "The combination of directions is not taken over: each is a case of its own.",
                     "Combine the directions in the host."),
    reasons::Changed("spectrum-damping-of-other-kind",
                     "The damping is not constant: the constant that the row states is written, or "
                     "0.",
                     "Set the damping in *SPEC-CTRL."),
    reasons::Changed("geometric-nonlinearity",
                     "P-Delta and large displacements of the case are not taken over.",
                     "Set the geometric nonlinearity of the case in the host."),
    reasons::Dropped("load-case-not-static", "No linear static analysis case names its load case.",
                     "Add a linear static analysis case that applies the load case."),
    reasons::Changed("coordinate-system-ignored",
                     "It stands in a coordinate system of the user's and is taken as if it did "
                     "not.",
                     "Turn the values into the global or local system."),

    // Joints

    reasons::Dropped("row-of-same-name",
                     "Another row of the same name is taken, and of each name one row alone.",
                     "Look whether the rows say the same."),
    reasons::Changed(
        "name-used-twice",
        "Another row of the table has the same name. Both go over, and what names them "
        "is taken for one of the two.",
        "Give each its own name in the source model, or delete one."),
    reasons::Changed("joint-number-shared",
                     "Another joint has the same label, or one that is read as the same number: "
                     "both are nodes of one number.",
                     "Give each joint a label of its own, without zeros in front."),
    reasons::Changed("joint-coordinate-rounded",
                     "The joint lies so far from the origin that the six digits of the output move "
                     "it by a part of the model's size that may matter.",
                     "Move the model towards the origin in the source program, and convert again."),
    reasons::Changed("joint-coordinates-differ",
                     "Its global coordinates are not those of its own system. SpecialJt chooses "
                     "which are written: the global ones, 0 where they are not stated, or the "
                     "others.",
                     "Look at the node in the host, and at the coordinate system of the joint."),
    reasons::Changed("turned-as-vector",
                     "It acts along other axes than those of the host, and is turned as a force "
                     "is, which is wrong for stiffnesses and masses.",
                     "Enter the springs or masses of the joint in the host."),
    reasons::Dropped("coupled-spring-at-turned-joint",
                     "Coupled springs in global directions at a joint with axes of its own are not "
                     "converted.",
                     "State the springs along the axes of the joint."),
    reasons::Changed("coupled-spring-diagonal",
                     "A stiffness of a single direction stands behind couplings, the first of "
                     "which is taken for it.",
                     "Correct the matrix of the spring in *GSPRTYPE."),
    reasons::Changed("coupled-spring-rotations",
                     "Couplings of rotations with each other are not converted: 0 is written.",
                     "Correct the matrix of the spring in *GSPRTYPE."),
    reasons::Changed("joint-axes-missing",
                     "The joint is said to have advanced local axes, and has no row of them: its "
                     "angles stand alone.",
                     "Look at the axes of the node in the host."),
    reasons::Changed("joint-axes-angles",
                     "The joint has advanced local axes, which its angles turn further: the angles "
                     "are not written.",
                     "Turn the axes of the node in the host."),
    reasons::Dropped("joint-axes-not-asked-for",
                     "No row of typical local axes of the joint says that it has advanced ones.",
                     "Look at the axes of the joint in the source model."),
    reasons::Changed("joint-axes-span-no-plane",
                     "Its axis and its plane give no axes: vectors of 0, or in one line, are "
                     "written, and nothing at the joint is turned.",
                     "Enter the axes of the node in the host."),
    reasons::Changed("joint-axes-joint-unknown",
                     "It goes by a joint that the file does not have, for which the origin is "
                     "taken.",
                     "Look for the joint in the source model."),

    reasons::Dropped("constraint-local",
                     "The host has no constraints along the axes of each joint.",
                     "Enter it in the host as rigid links in global directions."),
    reasons::Dropped("constraint-kind-unknown", "The constraint is of no kind that is known.",
                     "Enter it in the host as a rigid link."),
    reasons::Dropped("constraint-without-name",
                     "It names no constraint, and others of its kind are there.",
                     "Give the constraint a name."),
    reasons::Redundant("constraint-of-one-joint",
                       "The constraint has a single joint, and ties it to nothing.",
                       "There is nothing to do."),
    reasons::Redundant("constraint-without-joints", "The constraint has no joint.",
                       "There is nothing to do."),
    reasons::Dropped("constraint-undefined", "No constraint of its kind is defined.",
                     "Enter it in the host as a rigid link."),
    reasons::Changed(
        "constraint-definition-missing",
        "Of the constraints of its kind none bears its name: the rigid link is written "
        "without directions.",
        "Set the directions of the rigid link in the host."),
    reasons::Dropped("constraint-automatic-axis",
                     "Its axis is none of X, Y and Z, as one that the source program finds itself.",
                     "State the axis, or enter the rigid link in the host."),
    reasons::Changed("constraint-kind-of-another-row",
                     "Another row says that its constraint is of another kind, and is believed.",
                     "Give constraints of different kinds different names."),
    reasons::Dropped("constraint-of-other-kind",
                     "The joints of its name are assigned to a constraint of another kind.",
                     "Give constraints of different kinds different names."),
    reasons::Changed("constraint-names-no-joint",
                     "Joint labels are not all numbers: the rigid link is written without nodes.",
                     "Give all joints numbers as labels, or enter the rigid link in the host."),
    reasons::Changed("constraint-without-master",
                     "Masses decide which joint is the master, and none of its joints has one: the "
                     "rigid link has no master.",
                     "Set the master node in the host."),
    reasons::Dropped("constraint-first-joint-lost",
                     "Masses decide which joint is the master, and none of its joints has one: the "
                     "first is left out.",
                     "Make it the master node in the host."),
    reasons::Reworded("constraint-repeated",
                      "The rigid link is written several times, as of the third and each further "
                      "beam or body constraint.",
                      "Delete the ones too many in the host."),
    reasons::Changed("constraint-as-diaphragm",
                     "The rigid link has the directions of a diaphragm across the axis, which are "
                     "not those of a beam, plate or rod.",
                     "Correct the directions of the rigid link in the host."),
    reasons::Changed(
        "constraint-as-rigid-body",
        "The rigid link ties all of its joints as one rigid body, which an equal, line "
        "or weld constraint does not.",
        "Look at the rigid link in the host, and divide it where joints lie apart."),
    reasons::Changed("diaphragm-of-many-levels",
                     "It makes a diaphragm of each level: one rigid link ties the joints of all.",
                     "Divide the rigid link by levels in the host."),

    // Frames

    reasons::Redundant("switched-off", "Another row of the frame says that it is not in use.",
                       "There is nothing to do for the analysis."),
    reasons::Changed(
        "section-assignment-missing",
        "No section is assigned to the frame: it has the section and material of another frame, or "
        "0.",
        "Assign a section to the frame in the source, or choose its section in the host."),
    reasons::Changed(
        "frame-section-unknown",
        "It names a section that the file does not have: the frame has the section and material of "
        "another frame, or 0.",
        "Look for the section in the source model, or choose the frame's section in the host."),
    reasons::Changed(
        "section-of-another-frame",
        "Sections go to frames by their places in the tables, and another frame stands in the "
        "place of this row: its own frame has the section of another row, if it is there.",
        "List frames and their sections in one order."),
    reasons::Changed("frame-section-material-unknown",
                     "The file does not have its material: frames of the section have another one.",
                     "Choose the material of the frames in the host."),
    reasons::Changed("frame-mirrored",
                     "The section of the frame is mirrored, and goes over unmirrored.",
                     "Look at the frames of unsymmetrical sections in the host."),
    reasons::Changed("advanced-axes-missing",
                     "The frame is said to have advanced local axes, and has no row of them: its "
                     "angle stands alone.",
                     "Look at the angle of the frame in the host."),
    reasons::Changed(
        "advanced-axes-as-along-x",
        "Advanced local axes become one angle, by rules that fit frames along global X.",
        "Look at the angle of the frame in the host."),
    reasons::Dropped("advanced-axes-without-typical",
                     "The frame has no row of typical local axes that asks for advanced ones.",
                     "Look at the angle of the frame in the host."),
    reasons::Dropped(
        "partial-fixity-row-missing",
        "The frame, or one before it, has no row of partial fixity, at which releases end.",
        "Give each frame with releases a row of partial fixity, or none."),
    reasons::Dropped("partial-fixity-without-release", "The frame has no row of releases.",
                     "Look at the releases of the frame in the source model."),
    reasons::Changed("partial-fixity-not-stated",
                     "The release is said to be partial, and the file has no table of partial "
                     "fixity: it is written as a full one.",
                     "Enter the partial fixity in the host."),
    reasons::Changed(
        "partial-fixity-stiffness",
        "Of the springs at released ends it is written that they are there, and not how stiff.",
        "Enter the partial fixity in the host."),
    reasons::Redundant("end-lengths-zero", "The end lengths are zero.", "There is nothing to do."),
    reasons::Changed("rigid-factor", "The rigid factor of the end lengths is not taken over.",
                     "Look at the end offsets in the host."),
    reasons::Dropped("end-lengths-replaced",
                     "A joint offset of the frame takes the place of its end lengths.",
                     "Add the end lengths to the joint offset in the host."),
    reasons::Dropped("joint-offset-not-global",
                     "The joint offset is not in the global system and is left out.",
                     "Enter the offset in the host, or state it in global directions."),
    reasons::Changed("joint-offset-stated-twice",
                     "The joint offset of another row of the frame takes the place of this one.",
                     "Give the frame one row of the table."),
    reasons::Changed("cardinal-point-of-another-frame",
                     "Cardinal points go over with the section, by the first frame that uses it: "
                     "the frame has that of another one.",
                     "Give frames of different cardinal points different sections."),
    reasons::Changed("cardinal-point-shear-center",
                     "The shear center as cardinal point becomes the right bottom of the section.",
                     "Correct the offset of the section in the host."),
    reasons::Changed("cardinal-point-unknown",
                     "The cardinal point is not known and is taken as the center.",
                     "Enter the offset of the section in the host."),
    reasons::Changed("initial-force-direction-unknown",
                     "The direction of the P-delta force is not known and is left empty.",
                     "Enter the direction of the initial force in the host."),
    reasons::Changed("frame-spring-halved",
                     "Of a spring along a frame half is written, as a point spring at the first "
                     "joint of the frame, in the directions of that node.",
                     "Enter the springs of both ends in the host."),
    reasons::Changed("frame-spring-at-no-node",
                     "Joint labels are not all numbers: half of the spring along the frame is "
                     "written, at node 0.",
                     "Enter the springs of both ends in the host."),
    reasons::Changed("frame-spring-direction-unknown",
                     "The direction of the spring along the frame is none of 1, 2 and 3: a spring "
                     "without stiffness is written.",
                     "Enter the springs of both ends in the host."),
    reasons::Changed(
        "spread-along-no-length",
        "The connectivity of the frame states no length: what is spread along it comes to nothing.",
        "Export the lengths of frames, or enter the spring or mass in the host."),
    reasons::Dropped("frame-modifiers", "The host has no modifiers of single frames.",
                     "Give the frame a section of its own with these modifiers."),
    reasons::Reworded("material-design-type",
                      "The host has no like of the design type: the material is one of the user's.",
                      "Choose the type of the material in the host before design."),
    reasons::Changed(
        "material-type-unknown",
        "The material is neither isotropic nor orthotropic, and is taken as orthotropic.",
        "Look at the material in the host."),
    reasons::Changed(
        "material-anisotropic",
        "The anisotropic material is taken as orthotropic, without its mixed constants.",
        "Look whether an orthotropic material will do."),
    reasons::Dropped(
        "material-constants-missing",
        "The material is not isotropic, and the file has no constants for it: its number is a gap.",
        "Enter the material in the host, under this number."),
    reasons::Changed(
        "thermal-unit-unknown",
        "The temperature unit of the file is not known: the thermal coefficient is written as 0.",
        "Enter the thermal coefficient in the host."),
    reasons::Changed("thermal-not-per-celsius",
                     "The thermal coefficients are not turned into ones per degree Celsius, as "
                     "those of isotropic materials are.",
                     "Correct the thermal coefficients in the host."),
    reasons::Dropped("constants-at-another-temperature",
                     "Of a material at several temperatures one row is taken.",
                     "Look whether the right temperature is taken."),
    reasons::Dropped("constants-of-unknown-material",
                     "The file does not have the material of these constants.",
                     "Look for the material in the source model."),
    reasons::Dropped("constants-of-isotropic-material",
                     "The material is isotropic and goes over by its general constants.",
                     "Look whether these constants say anything else."),
    reasons::Dropped(
        "section-shape-unknown",
        "The host does not have the shape: the number of the section has a default one, or none.",
        "Enter the section in the host, under this number."),
    reasons::Dropped("section-behind-dropped-ones",
                     "As many sections as are dropped are missing from the end of the table.",
                     "Enter the section in the host, under this number."),
    reasons::Dropped(
        "nonprismatic-ends-unlike",
        "The segments do not name two sections that the file has, of one shape, as the ends.",
        "Enter the section in the host, under the number of the nonprismatic one."),
    reasons::Changed("nonprismatic-without-segments",
                     "The file has no segments: the section is written without dimensions.",
                     "Enter the dimensions in the host."),
    reasons::Changed(
        "nonprismatic-shape-unknown",
        "The host does not have the shape of the ends: the section is written without a shape.",
        "Enter the shape in the host."),
    reasons::Changed("nonprismatic-double-angle",
                     "The width of both angles is written in the place of that of one.",
                     "Correct the widths of the tapered section in the host."),
    reasons::Changed("nonprismatic-of-general",
                     "An end is a section given by its properties: it is written as a solid "
                     "rectangle of its depth and width.",
                     "Enter the properties of the ends in the host."),
    reasons::Changed("nonprismatic-modifiers",
                     "Modifiers of nonprismatic sections are not taken over.",
                     "Enter the scale factors of the section in the host."),
    reasons::Changed(
        "section-modifiers-missing",
        "A modifier that is not stated is written as 0, which scales the section to nothing.",
        "Take the scale factors off the section in the host."),
    reasons::Changed("section-mass-modifier",
                     "The host does not scale the mass of a section: its modifier is left out.",
                     "Correct the masses in the host."),
    reasons::Changed("segment-of-several",
                     "Of several segments the start of the first and the end of the last go over: "
                     "the other end and the length of this one are left out.",
                     "Divide the frames where the segments meet."),
    reasons::Dropped("segment-inside", "Segments between the first and the last are left out.",
                     "Divide the frames where the segments meet."),
    reasons::Changed("segment-variation-unknown",
                     "The variation of a stiffness is not known and is taken as linear.",
                     "Choose the variation of the section in the host."),
    reasons::Dropped("segment-without-section",
                     "The file has no nonprismatic section of this name.",
                     "Look for the section in the source model."),

    // Areas, solids and links

    reasons::Changed("arc-of-axisymmetric", "The arc of axisymmetric elements is not taken over.",
                     "Look for how much of the circle the host takes the loads and stiffness."),
    reasons::Changed("without-incompatible-modes",
                     "The elements are to do without incompatible bending modes, which the host is "
                     "not told.",
                     "Compare the bending of a coarse part of the model."),

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
    reasons::Changed("element-number-shared",
                     "An area has the same label: two elements are written under one number.",
                     "Give the solids labels of their own in the source."),
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
    reasons::Changed("weight-of-linear-link", "The host's elastic links have no weight.",
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
    reasons::Changed("link-direction-fixed",
                     "The direction is fixed, and goes over as one that has its stiffness alone.",
                     "Give the direction a great stiffness in the host, or tie the joints."),
    reasons::Changed("mass-of-link",
                     "The host's links have no mass and no rotational inertia of their own.",
                     "Enter the mass at the joints in the host."),
    reasons::Changed(
        "p-delta-share-of-link",
        "How the moments of P-Delta are shared out between the ends is not taken over.",
        "Look at the link if the analysis has P-Delta."),
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

    reasons::Dropped(
        "load-defined-again",
        "Several rows define the load, and the type of its load case is that of another.",
        "Give the load one row."),
    reasons::Changed("load-defined-again-with-weight",
                     "Several rows define the load: the type of its load case is that of another, "
                     "and the self weights of all of them are written.",
                     "Give the load one row."),
    reasons::Reworded(
        "design-type-without-like",
        "The host has no like of its design type: the load case is of the user's type.",
        "Set the type of the load case if the host combines load cases by it."),
    reasons::Changed(
        "auto-load-of-other-design",
        "It states a code, and its design type is neither wind nor earthquake: the load case is "
        "written without the load.",
        "Enter the wind or the earthquake in the host."),
    reasons::Dropped("analysis-case-not-static", "Its analysis case is not a linear static one.",
                     "Apply the load by a linear static analysis case, and convert again."),
    reasons::Changed("load-named-again",
                     "Another row names the same load: the load case and all its loads are written "
                     "once more.",
                     "Let one linear static analysis case alone apply the load."),
    reasons::Changed("load-unknown",
                     "It names no load that the file defines, as accelerations do: a load case "
                     "without a type is written.",
                     "Enter the acceleration in the host."),
    reasons::Changed("load-scale-factor", "The scale factor of the load is not taken over.",
                     "Put the factor into a load combination in the host."),
    reasons::Changed("case-of-several-loads",
                     "Its analysis case applies several loads, each of which becomes a load case "
                     "of its own, and "
                     "nothing adds them up.",
                     "Put the loads together in a load combination in the host."),
    reasons::Reworded("case-of-another-name",
                      "The load case has the name of the load and not that of the analysis case.",
                      "Look whether load combinations name the analysis case."),

    reasons::Changed("component-near-zero",
                     "A component that is below 0.00001 when it is turned to other axes becomes 0.",
                     "Enter the component in the host, or convert a file with smaller units."),

    reasons::Redundant("pattern-value-not-used", "No load that is written takes its value.",
                       "Look whether the loads of the pattern have other reasons to be lost."),
    reasons::Changed(
        "pattern-unknown",
        "The file has no values of its joint pattern: they count as 0. So they do where "
        "no pattern is stated.",
        "Assign the pattern to joints, or state JtPattern=None."),
    reasons::Changed("pressure-by-pattern",
                     "The full pressure is written as a uniform one, beside those at the corners "
                     "that its joint pattern gives.",
                     "Take the uniform pressure off in the host."),
    reasons::Changed(
        "temperature-by-pattern",
        "Its joint pattern gives a mean for the element, and temperatures of its nodes, "
        "which add up where elements share a node.",
        "Look at the element and nodal temperatures in the host."),
    reasons::Changed("pattern-on-fewer-joints",
                     "Its element has fewer joints than the mean by its joint pattern is over: "
                     "places without a joint count as joints of value 0.",
                     "Enter the temperature of the element in the host."),

    reasons::Changed(
        "load-direction-without-like",
        "The host has no like of its direction, or of the coordinate system of that: it "
        "is written without one.",
        "Enter the direction of the load in the host."),
    reasons::Changed("load-type-unknown",
                     "It is neither a force nor a moment: it is written without kind and value.",
                     "Enter the load in the host."),
    reasons::Changed(
        "distance-type-unknown",
        "Its distances are neither relative nor absolute: it is written with distances "
        "of 0.",
        "Enter the distances of the load in the host."),
    reasons::Dropped(
        "span-not-stated",
        "Its relative distances are 0 or not stated, and so it is spread over a length "
        "of nothing.",
        "State both distances of the load, and convert again."),
    reasons::Redundant("span-of-nothing", "It is spread over a length of nothing.",
                       "Look whether the load was meant to be a point load."),
    reasons::Dropped("frame-without-length",
                     "Its distance is absolute, and its frame has no length.",
                     "Export the connectivity of frames with lengths, or state distances as "
                     "relative."),
    reasons::Dropped("behind-frame-without-length",
                     "A load at an absolute distance on a frame without a length comes before it, "
                     "and ends the table. The order is not that of the rows.",
                     "Mend the load that stands on a frame without a length, and convert again."),
    reasons::Changed(
        "last-frame-for-unknown",
        "It names a frame that the file does not have: length or joints of another one "
        "are taken.",
        "Look for the frame in the source model, and take off the other joints what "
        "does not belong there."),
    reasons::Dropped("frame-without-section", "Its frame has no section, and so no weight.",
                     "Assign a section to the frame."),
    reasons::Changed("frame-weight-unknown",
                     "The file does not have the section of its frame, or the material of that: a "
                     "weight of 0 is written.",
                     "Enter the gravity load of the frame in the host."),
    reasons::Changed("section-weight-modified",
                     "The section of its frame has a weight modifier, by which the load is not "
                     "multiplied.",
                     "Multiply the load in the host."),
    reasons::Dropped(
        "tendon-without-multiplier",
        "The table of load multipliers has none for its frame in the same place.",
        "List tendons and multipliers in one order, or enter the prestress in the host."),
    reasons::Changed(
        "tendon-with-another-multiplier",
        "The table of load multipliers has none for its frame in the same place: that "
        "of another tendon is taken.",
        "List tendons and multipliers in one order, or enter the prestress in the host."),
    reasons::Dropped(
        "multiplier-without-tendon",
        "The table of tendons has none of its frame in the same place.",
        "List tendons and multipliers in one order, or enter the prestress in the host."),

    reasons::Changed("area-direction-unknown", "Its direction is not known: it is taken as Z.",
                     "Enter the load in the host."),
    reasons::Dropped("uniform-load-without-like",
                     "It is neither global nor along local axis 3 of its area.",
                     "Enter the load in the host."),
    reasons::Changed(
        "load-before-in-its-place",
        "It is neither global nor along local axis 3 of its area: the load before it is "
        "written once more. The order is not that of the rows.",
        "Look at the pressures in the host: delete what stands there twice, and enter "
        "the load."),
    reasons::Dropped("pressure-on-edge", "It presses on an edge of its area.",
                     "Enter the load in the host."),
    reasons::Dropped("load-by-rotation", "Loads by rotation are not converted.",
                     "Enter the load in the host."),
    reasons::Dropped("area-load-to-frames", "Loads of areas to frames are not converted.",
                     "Enter the load on the frames in the host, as a floor load or as beam loads."),
    reasons::Dropped("wind-coefficients-of-area", "Wind coefficients of areas are not converted.",
                     "Enter the wind pressure in the host."),

    reasons::Changed("temperature-unit-unknown",
                     "The temperature unit of the file is neither C nor F: a temperature of 0 is "
                     "taken.",
                     "Export the file with temperatures in C or F."),
    reasons::Changed(
        "reference-of-another-element",
        "Its element has no reference temperature: that of an element before it counts. "
        "The order is not that of the rows.",
        "Assign a reference temperature to the element."),
    reasons::Changed(
        "reference-missing",
        "Its element has no reference temperature: 0 degrees Celsius are taken for it.",
        "Assign a reference temperature to the element."),
    reasons::Changed("gradient-not-per-fahrenheit",
                     "It is taken to be per degree Fahrenheit, and multiplied by 5/9.",
                     "Multiply the gradient by 1.8 in the host."),
    reasons::Changed(
        "gradient-without-depth",
        "Its element has no depth in that direction, or no section: the gradient becomes "
        "0.",
        "Enter the gradient in the host."),
    reasons::Changed("gradient-by-pattern",
                     "It goes by a joint pattern, and is written as if it did not.",
                     "Enter the gradient in the host."),
    reasons::Changed(
        "gradient-of-another-beside-it",
        "A gradient in the other direction, that of a row before it, is written with it "
        "once more. The order is not that of the rows.",
        "Take the other gradient off in the host."),
    reasons::Dropped("temperature-type-unknown", "It is neither a temperature nor a gradient.",
                     "Enter the temperature in the host."),
    reasons::Changed("temperature-taken-as-gradient",
                     "It is not of type Temperature, and taken for a gradient: its temperature is "
                     "lost.",
                     "Enter the temperature in the host."),
    reasons::Dropped("temperature-without-load-case",
                     "It names no load case. Reference and material temperatures of areas do not, "
                     "and are taken for temperature loads.",
                     "Enter reference temperatures in the host."),
    reasons::Changed("reference-by-pattern",
                     "The reference temperature varies by a joint pattern, and is taken as one "
                     "for the whole element.",
                     "Correct the temperatures of the elements in the host."),
    reasons::Redundant("reference-not-used", "No temperature that is written counts from it.",
                       "There is nothing to do."),
    reasons::Dropped("material-temperature", "Material temperatures are not converted.",
                     "Look whether the material in the host is that of the temperature."),

    // Analysis cases, functions and combinations

    reasons::Dropped("analysis-case-of-other-kind",
                     "The host has no analysis cases of this kind, such as nonlinear static ones.",
                     "Enter the case in the host."),
    reasons::Dropped("analysis-case-missing", "No analysis case of its kind asks for it.",
                     "Add an analysis case that does, or take it out of the source model."),
    reasons::Dropped("case-without-definition", "No row of the file defines the case.",
                     "Export all tables of the case."),
    reasons::Dropped("case-without-loads", "The case has no load that can be written.",
                     "Look what becomes of its loads, and enter the case in the host."),
    reasons::Dropped("case-not-converted",
                     "The case does not come through, and what is stated of it with it.",
                     "Look in the other tables of the case for what it is lost by."),
    reasons::Dropped("case-defined-again", "Another row of the same case counts.",
                     "Leave one row of this table for each case."),
    reasons::Redundant("no-part-in-its-case", "It plays no part in a case of this kind.",
                       "There is nothing to do."),
    reasons::Dropped("definition-not-first",
                     "The host has one definition of this kind, which another row gives.",
                     "Run the other case in the host by itself, with what is stated here."),
    reasons::Redundant("definition-as-first", "It says the same as the definition that is written.",
                       "There is nothing to do."),
    reasons::Changed("definition-of-another-case",
                     "The first definition of the file stands for a case of another name.",
                     "Look whether the analysis cases and their definitions belong together."),
    reasons::Dropped("behind-lost-row",
                     "A row before it is lost, by which the rows of its case end.",
                     "Mend the row before it, or enter this one in the host."),
    reasons::Dropped("lost-with-next-row", "The row behind it is lost, and takes this one along.",
                     "Mend the row behind it, or enter this one in the host."),
    reasons::Changed("value-not-stated",
                     "It does not state a value that the host needs: a default is written.",
                     "State the value, or look at the default in the host."),
    reasons::Changed("value-of-row-before",
                     "It states no function or no direction: that of the row before is written.",
                     "State both in the source model."),
    reasons::Changed("rows-of-name-apart",
                     "Rows of its name stand apart from each other: they become two of one name.",
                     "Put all rows of a name together."),
    reasons::Changed("load-case-not-written",
                     "It names a load case that is not in the output as one of this kind.",
                     "Give the host the load case, or take out what names it."),
    reasons::Changed("initial-condition-lost",
                     "It starts from the end of another case, and is written as one that starts "
                     "unstressed.",
                     "Set the initial forces or stiffness in the host."),
    reasons::Changed("gravity-of-small-unit",
                     "Gravity is written as 0.009806 in mm and as 0.09806 in cm.",
                     "Correct it in *STRUCTYPE, *LOADTOMASS, *SFUNCTION and *TFUNCTION."),
    reasons::Changed("length-unit-unknown",
                     "Gravity is written as 9.806, as in metres: the unit of length is another.",
                     "Correct it in *STRUCTYPE, *LOADTOMASS, *SFUNCTION and *TFUNCTION."),
    reasons::Changed("freedoms-not-of-host",
                     "The host has structures in space and in a plane: these degrees of freedom "
                     "are neither.",
                     "Restrain in the host what is not to move."),
    reasons::Dropped("modal-type-unknown", "The modes are neither of Eigen nor of Ritz vectors.",
                     "Enter the eigenvalue control in the host."),
    reasons::Changed("mode-number-changed",
                     "Another number of modes is written: at most one for each element, or those "
                     "of its starting vectors.",
                     "Set the number of modes in the host."),
    reasons::Redundant("analysis-settings", "It is no analysis case: it holds settings.",
                       "There is nothing to do for the analysis."),
    reasons::Changed("modes-of-another-case",
                     "It goes by the modes of another case than the one that is written: the host "
                     "has one eigenvalue analysis.",
                     "Look whether the modes that are written serve."),
    reasons::Changed("search-of-modes",
                     "Shift, cut-off and least number are not taken over: the host looks for the "
                     "lowest modes, as many as are asked for.",
                     "Choose a number of modes that holds those that are wanted."),
    reasons::Changed("participation-of-vectors", "The host has no targets of mass participation.",
                     "Choose a number of modes that reaches the target."),
    reasons::Dropped("participation-target", "The host has no targets of mass participation.",
                     "Choose a number of modes that reaches the target."),
    reasons::Dropped("starting-vector-of-other-kind",
                     "The host has load cases and accelerations along X, Y and Z as starting "
                     "vectors.",
                     "Look at the starting vectors in the host."),
    reasons::Changed("starting-vector-shifted",
                     "A vector that is left out moves the kind or the number of this one.",
                     "Correct the starting vectors in the host."),
    reasons::Reworded("starting-vector-shares-modes",
                      "It states no number of modes: what the others leave is shared.",
                      "Look at the numbers in the host."),
    reasons::Dropped("buckling-load-not-load-case",
                     "The host buckles under load cases alone, not under accelerations.",
                     "Enter the load as a load case."),
    reasons::Changed("spectrum-damping-lost",
                     "The damping is written for CQC alone: 0 stands in its place.",
                     "Set the damping in *SPEC-CTRL, or choose functions of that damping."),
    reasons::Changed("spectrum-case-split",
                     "The rows of its case become load cases of their own, S1, S2 and so on, which "
                     "nothing combines.",
                     "Combine the directions in the host."),
    reasons::Reworded("spectrum-case-numbered", "The load case has a number behind its name.",
                      "Look for the name with the number."),
    reasons::Dropped("spectrum-load-not-global",
                     "It does not stand in the global coordinate system.",
                     "Turn it into the global system by its angle."),
    reasons::Changed("spectrum-function-not-written",
                     "The load case names a function that is not in the output.",
                     "Enter the function in the host, or choose another."),
    reasons::Changed("ground-direction-unknown",
                     "Its direction is none of U1, U2 and U3: Z is written, or none.",
                     "Set the direction in the host."),
    reasons::Dropped("damping-of-other-kind",
                     "The host has no damping of this kind for a case like this.",
                     "Enter a damping of another kind in the host."),
    reasons::Dropped("history-damping-unknown",
                     "The damping of the case is neither constant nor proportional.",
                     "Choose constant or proportional damping."),
    reasons::Dropped("damping-without-values",
                     "The proportional damping of the case states neither a factor of mass nor one "
                     "of stiffness, and the case is lost.",
                     "State a factor."),
    reasons::Changed("damping-of-two-points",
                     "Of the two points of its damping, the period or frequency of the second is "
                     "written with the ratio of the first.",
                     "Enter the damping in the host."),
    reasons::Changed("damping-type-differs",
                     "The definition of its case states another type of damping: its values stand "
                     "in wrong places.",
                     "Enter the damping in the host."),
    reasons::Changed("history-defined-again",
                     "Its case is defined before: both become cases of one name.",
                     "Leave one definition for each case."),
    reasons::Changed("history-motion-differs",
                     "It states two types of motion. The case is transient or periodic by its "
                     "HistoryType alone.",
                     "Correct iTHTYPE in *THLDCASE."),
    reasons::Changed("controls-of-steps",
                     "Of the controls of steps and iterations the host has fewer: some are not "
                     "taken over.",
                     "Look at the convergence of the case in the host."),
    reasons::Changed("nonlinearity-switched-off",
                     "The case switches a nonlinearity of frames, cables or links off, which the "
                     "host is not told.",
                     "Take the nonlinear properties off the elements in the host."),
    reasons::Changed("history-output-interval",
                     "The interval of results is worked out from the longest step, and is not that "
                     "of the row.",
                     "Correct iOUT and INC in *THLDCASE."),
    reasons::Dropped("integration-not-newmark",
                     "The host integrates by Newmark's method alone, and the case is lost.",
                     "Choose Newmark's method."),
    reasons::Changed("time-function-without-points",
                     "The points of its function are not found, and the loads of its case end with "
                     "it.",
                     "Enter the function in the host, and the loads behind this one."),
    reasons::Changed("time-function-not-brought-in",
                     "No modal time history has brought its function in, and the loads of its case "
                     "end with it.",
                     "Enter the function in the host, and the loads behind this one."),
    reasons::Changed("time-function-of-first-load",
                     "Its function has the kind, the scale and the time factor of the first load "
                     "that uses it.",
                     "Give each load a function of its own."),
    reasons::Reworded("time-function-written-again", "Its function is written once more.",
                      "Leave one function of the name in the host."),
    reasons::Changed("angle-for-arrival-time",
                     "The angle of the acceleration stands where its arrival time belongs.",
                     "Correct times and angle in *GROUND-ACC."),
    reasons::Dropped("acceleration-replaced",
                     "An acceleration of a direct time history takes its place; at most its "
                     "function stays.",
                     "Add it to *GROUND-ACC."),
    reasons::Changed("history-load-of-other-kind",
                     "It is neither a load case nor an acceleration: at most its function goes "
                     "over.",
                     "Enter the load in the host."),
    reasons::Dropped("user-function-beside-file",
                     "Functions of the user are not looked at if the file has one from a file.",
                     "Enter the function in the host, or make the one from a file the user's."),
    reasons::Dropped("time-function-not-used",
                     "No load of a modal time history brings the function in.",
                     "Enter the function in the host if it is of use."),
    reasons::Dropped("time-function-by-formula",
                     "Functions by formula and periodic ones are not converted.",
                     "Give the function as points of the user's, or enter it in the host."),
    reasons::Dropped("combination-term-not-static",
                     "The term is not a static load case of the output, and its combination is "
                     "lost.",
                     "Enter the combination in the host."),
    reasons::Dropped("combination-of-lost-term",
                     "Another term of its combination is not a static load case of the output.",
                     "Enter the combination in the host."),
    reasons::Changed("combination-type-unknown",
                     "The host has no combination of this type: that of the rows before is "
                     "written, or a linear sum.",
                     "Set the type in the host."),
    reasons::Changed("combination-case-as-static",
                     "The host has no like of its kind of case: the static load case of its name "
                     "is taken.",
                     "Look at the term in the host."),

    // Bridges

    reasons::Changed("written-in-parts",
                     "Rows of other names come between those of its name: it is written in several "
                     "parts under one name. Vehicle classes do not go by the order of the rows.",
                     "Put the parts together in the host."),
    reasons::Changed("lane-without-name", "It stands in the output before the first lane.",
                     "Give the lane a name."),
    reasons::Dropped("vehicle-not-of-host", "The host has no standard vehicle of this type.",
                     "Enter the vehicle in the host, or choose another."),
    reasons::Changed("vehicle-scale-factor",
                     "The scale factor of the vehicle is not carried over as it stands.",
                     "Put it into the scale factor of the moving load case."),
    reasons::Changed("vehicle-dynamic-allowance",
                     "The dynamic allowance of the vehicle is not carried over.",
                     "Set the impact factor in the host."),
    reasons::Reworded("vehicle-named-by-type",
                      "The vehicle has the name that the host has for its type.",
                      "Look for the vehicle under that name."),
    reasons::Dropped("vehicle-without-axles",
                     "No general vehicle of the file has axles between its ends, and none is "
                     "converted.",
                     "Enter the vehicle in the host."),
    reasons::Changed("vehicle-for-some-responses",
                     "It is meant for some responses alone, and acts on all in the host.",
                     "Give the responses cases of their own in the host."),
    reasons::Changed("vehicle-values-left-out",
                     "Of its loads and distances some are not written, or stand in the place of "
                     "others: the host has other places for vehicles with and without a uniform "
                     "load behind.",
                     "Correct the vehicle in the host."),
    reasons::Dropped("axle-left-out", "The axle is not written.",
                     "Add the axle to the vehicle in the host."),
    reasons::Dropped("axle-of-unknown-vehicle", "The file has no general vehicle of its name.",
                     "Look for the vehicle in the source model."),
    reasons::Dropped("class-vehicle-missing",
                     "Its vehicle is not in the output: the class is written without it.",
                     "Add the vehicle to the class in the host."),
    reasons::Dropped("class-without-name", "The vehicle class has no name.",
                     "Give the class a name."),
    reasons::Dropped("moving-case-without-class",
                     "No vehicle class bears the name of the moving load case.",
                     "Give the case the name of its vehicle class, and convert again."),
    reasons::Dropped("behind-left-out-cases",
                     "As many rows as moving load cases leave out before are lost at the end of "
                     "their table.",
                     "Give each moving load case the name of a vehicle class, and convert again."),
    reasons::Changed("max-loaded-zero",
                     "The number of lanes loaded at most is 0, for which 1 is written.",
                     "Set the number of lanes in the host."),
    reasons::Changed("vehicle-class-not-written",
                     "It names a vehicle class that is not in the output.",
                     "Enter the vehicle class in the host."),
    reasons::Dropped("moving-case-not-written",
                     "Its moving load case, or this assignment of it, is not in the output.",
                     "Look what the assignment is lost by."),
    reasons::Changed("lane-unknown", "It names a lane that the file does not have.",
                     "Look for the lane in the source model."),
    reasons::Dropped("factor-beyond-four-lanes",
                     "The host has factors for one to four loaded lanes.",
                     "Set the factors in the host."),
    reasons::Changed("factor-of-nothing", "Its factor is 0 or less, for which 1 is written.",
                     "Set the factor in the host."),
    reasons::Reworded("response-of-springs", "The forces of springs are not among the results.",
                      "Ask for them in the host, or take the reactions."),
    reasons::Dropped("bridge-response-incomplete",
                     "It does not say of displacements, reactions and frames each for which the "
                     "response is wanted.",
                     "State all three, by None or ALL."),
});

/// A reason of the list, by its code; any other does not compile.
class Why {
 public:
  consteval Why(const char* code) : m_Number(NumberOf(code)) {}

  /// Position in the list.
  constexpr std::uint16_t Number() const { return m_Number; }
  bool operator==(const Why&) const = default;

 private:
  static consteval std::uint16_t NumberOf(Text code) {
    static_assert(kReasons.size() < 65535);
    for (std::size_t number = 0; number < kReasons.size(); ++number) {
      if (code == kReasons[number].Code) {
        return static_cast<std::uint16_t>(number);
      }
    }
    throw "no such reason";
  }

  std::uint16_t m_Number;
};

}  // namespace s2k2ngt
