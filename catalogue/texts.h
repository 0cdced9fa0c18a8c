#pragma once

#include <array>
#include <string_view>

namespace s2k2ngt::catalogue {

/// One message of a conversion. The spelling of the keys, slips included, is fixed: the converter
/// asks for them so. The texts are plain ASCII for people who design structures; a "%s" stands for
/// one argument and no other text holds a percent sign.
struct MessageText {
  std::string_view Key;
  const char* Text;
};

inline constexpr std::array<MessageText, 59> kMessageTexts = {{
    // Shown while the file is read.
    {"IDS_S2KV8_Export_must_be_executed",
     "The file must be a text export (.s2k) of the complete model from SAP2000 V8, with all tables "
     "selected. If the model was changed after the export, stop this conversion, export the model "
     "again and convert the new file."},
    {"IDS_S2KV8_Not_Convert",
     "The conversion was stopped and no output file was written: the file is of an older format, "
     "holds a line that belongs to no table, or ends without its END line. Export the model again "
     "from SAP2000 V8 and convert the new file."},
    {"IDS_S2KV8_DATA_Not_Convert",
     "A line near the beginning of the file belongs to no table and was skipped. If it is only a "
     "heading or a note, nothing is lost; otherwise check that the file is a text export from "
     "SAP2000 V8."},
    {"IDS_S2KV8_NODE_NOT_Cylindrical",
     "The conversion was stopped and no output file was written, because the first coordinate "
     "system of the model is not Cartesian. Define it as a Cartesian system in SAP2000 V8, export "
     "the model again and convert the new file."},
    {"IDS_S2KV8_AREA_AtMesh_Not_Convert",
     "Automatic mesh settings of areas were not converted; each area becomes one single element. "
     "Divide the areas in SAP2000 V8 before the export, or refine the mesh in the host "
     "application."},
    {"IDS_S2KV8_AREA_PrPrsr_Not_Convert",
     "Pore pressure loads on areas were not converted. Where they matter for a load case, replace "
     "them by equivalent loads on the elements concerned in the host application."},
    {"IDS_S2KV8_AREA_Local_Not_Convert",
     "Local axes assigned to areas were not converted; the elements have the standard axes of the "
     "host application. Check there loads, results and material directions that refer to local "
     "axes."},
    {"IDS_S2KV8_AREA_Stif_Not_Convert",
     "Stiffness modifiers assigned to areas were not converted; the elements keep their full "
     "stiffness. Where a reduction matters, adjust the thickness or the material in the host "
     "application."},
    {"IDS_S2KV8_SEIS_Data_Not_Convert",
     "Automatic seismic load data was not converted, because its design code is not supported; "
     "the data of the codes UBC97 and NBCC95 can be converted. Define the seismic loads of the "
     "load cases concerned in the host application."},
    {"IDS_S2KV8_WIND_Data_Not_Convert",
     "Automatic wind load data was not converted, because its design code is not supported; the "
     "data of the codes UBC97, ASCE7-98 and NBCC95 can be converted. Define the wind loads of the "
     "load cases concerned in the host application."},
    {"IDS_S2KV8_SOLD_PrPrsr_Not_Convert",
     "Pore pressure loads on solids were not converted. Where they matter for a load case, replace "
     "them by equivalent loads on the elements concerned in the host application."},
    {"IDS_S2KV8_SOLD_SurfP_Not_Convert",
     "Surface pressure loads on solids were not converted. Apply them again as pressure loads on "
     "the faces of the solid elements in the host application."},
    {"IDS_S2KV8_SOLD_Local_Not_Convert",
     "Local axes assigned to solids were not converted; the elements have the standard axes of the "
     "host application. Check there results and material directions that refer to local axes."},
    {"IDS_S2KV8_SOLD_Spr_Not_Convert",
     "Springs assigned to the faces of solids were not converted. Define equivalent point springs "
     "at the nodes of these faces in the host application, or the model may lack supports."},

    // Shown while the model is converted.
    {"IDS_S2KV8_NOCONVERT_AREA_GRAV",
     "Gravity loads assigned to areas were not converted. Apply them in the host application as "
     "self weight or as equivalent pressure loads on the elements concerned."},
    {"IDS_S2KV8_FRAM_GRAV_Not_Convert",
     "A load case has a self weight multiplier. It is converted to self weight in the vertical "
     "direction, downward if it is positive, provided that a linear static analysis case uses the "
     "load case. Check in the host application that the self weight is complete and not counted "
     "twice."},
    {"IDS_S2KV8_OFFSET_LOCAL_DIR",
     "Joint offsets of frame insertion points that are given in local axes were not converted. "
     "Enter the offsets of these frames in the host application, turned into global directions."},
    {"IDS_S2KV8_OFFSET_REPLACE_GLOBAL",
     "Frame %s already had end offsets; the joint offsets of its insertion point replace them, so "
     "that any rigid end lengths of this frame are lost. Check its end offsets in the host "
     "application, above all if the joint offsets are not in the GLOBAL system."},
    {"IDS_S2KV8_RESP_BOCA96_Not_Convert",
     "Response spectrum functions of the code BOCA96 were not converted. Spectrum load cases that "
     "use one keep its name: define a function of that name in the host application."},
    {"IDS_S2KV8_RESP_FILE_Not_Convert",
     "Response spectrum functions that are read from a file were not converted. Spectrum load "
     "cases that use one keep its name: define a function of that name in the host application."},
    {"IDS_S2KV8_RESP_NHERP97_Not_Convert",
     "Response spectrum functions of the code NEHRP97 were not converted. Spectrum load cases that "
     "use one keep its name: define a function of that name in the host application."},
    {"IDS_S2KV8_RESP_NZS4203_Not_Convert",
     "Response spectrum functions of the code NZS4203 were not converted. Spectrum load cases that "
     "use one keep its name: define a function of that name in the host application."},
    {"IDS_S2KV8_NOCONVERT_VEHICLE",
     "Standard vehicles of the following types have no counterpart in the host application and "
     "were not converted: %s. Define equivalent vehicles there and add them to the vehicle classes "
     "that contained them."},

    // Areas: reporters that no table of the file leads to.
    {"IDS_S2KV8_AREA_SurfP_Not_Convert",
     "Surface pressure loads on areas could not be converted. Compare the pressure loads in the "
     "host application with those of SAP2000 V8 and add what is missing."},
    {"IDS_S2KV8_AREA_Spr_Not_Convert",
     "Springs on areas could not be converted. Compare the point springs in the host application "
     "with the area springs of SAP2000 V8 and add what is missing."},

    // Deferred to the elements.
    {"IDS_S2KV8_NODE_Not_Assgn",
     "Some elements refer to a joint that could not be assigned to them. Check the nodes of the "
     "elements in the host application and correct those with the node number 0."},
    {"IDS_S2KV8_ELEM_Length_Zero",
     "A frame load is given by absolute distances, but the length of its frame in the file is not "
     "positive. This load and the remaining loads of its kind, point or distributed, were not "
     "converted. Compare the beam loads in the host application with those of SAP2000 V8."},
    {"IDS_S2KV8_FRAM_LclAx_Not_Convert",
     "The local axes of frames are converted to one angle per element; mirrored axes are not "
     "converted, and axes 2 and 3 of SAP2000 V8 change places. Verify the orientation of columns "
     "and of turned sections in the host application."},
    {"IDS_S2KV8_PLAT_LclAx_Not_Convert",
     "The local axes of areas are not converted; plate and plane elements have the standard axes "
     "of the host application. If areas have turned axes in SAP2000 V8, check loads, results and "
     "material directions that refer to them."},
    {"IDS_S2KV8_SOLD_LclAx_Not_Convert",
     "The local axes of solids are not converted; solid elements have the standard axes of the "
     "host application. If solids have turned axes in SAP2000 V8, check results and material "
     "directions that refer to them."},

    // Deferred to the point springs.
    {"IDS_S2KV8_NODE_NSPR_Not_Convert",
     "Coupled joint springs given in the GLOBAL system were not converted at joints that have "
     "local axes. Define them as general spring supports in the host application, turned into the "
     "local axes of the node."},
    {"IDS_S2KV8_FRAME_2_NSPR",
     "Each spring along a frame becomes one point spring with half of the frame's total spring "
     "stiffness, at its first joint if all joint labels are numbers and else at no valid node. "
     "Check these springs in the host application and add the missing half at the other end."},
    {"IDS_S2KV8_PLATE_2_NSPR",
     "Each spring on face 5 or 6 of an area becomes one point spring with a quarter of the area's "
     "total spring stiffness, at its first joint if all joint labels are numbers and else at no "
     "valid node. Check these springs in the host application and add those at the other corners."},
    {"IDS_S2KV8_PLATE_NSPR_Not_Convert",
     "Springs on other faces of areas than 5 and 6 were not converted. Define equivalent point "
     "springs at the nodes of these edges in the host application."},

    // Deferred to the beam end releases.
    {"IDS_S2KV8_BEAM_End_Release",
     "The stiffness of partially fixed frame ends was not converted: the value 1 stands for every "
     "partial fixity above zero, and 0 for all others. Enter the actual values at these ends in "
     "the host application."},
    {"IDS_S2KV8_BEAM_End_Off_Rls",
     "Some frames have end offsets and end releases at the same end. Check in the host application "
     "at which point of the element the release takes effect."},

    // Deferred to the pressure loads.
    {"IDS_S2KV8_PLATE_SurfP_Not_Convert",
     "Surface pressure loads on other faces of areas than 5 and 6 were not converted, in this or "
     "another load case. Apply them as edge loads on the elements in the host application."},

    // Deferred to the thicknesses.
    {"IDS_S2KV8_AREA_Thik_Mod_Not_Confert",
     "The stiffness modifiers of areas were not converted; the thicknesses are those of the "
     "unmodified sections. Where a modifier matters, adjust the thickness or the material in the "
     "host application."},

    // Deferred to the elastic links.
    {"IDS_S2KV8_LINK_Sinlge_Joint",
     "Links with a single joint were not converted, because a link of the host application joins "
     "two nodes. Replace them there by point springs or general spring supports at the joints "
     "concerned."},

    // Deferred to the materials.
    {"IDS_S2KV8_MATL_ANIS_Not_Convert",
     "Anisotropic materials are converted as orthotropic ones, without their coupling constants; "
     "one without advanced constants is left out. Check these materials in the host application "
     "before they are used for analysis."},

    // Deferred to the sections.
    {"IDS_S2KV8_SECT_Not_Trans",
     "Frame sections of a shape that cannot be converted were left out. Their numbers are empty or "
     "missing in the host application, and the last sections of the list may be missing too: "
     "compare the list with SAP2000 V8 and define the missing sections."},

    // Deferred to the static load cases.
    {"IDS_S2KV8_STLC_Not_Convert",
     "Some load combinations refer to a case of a type that cannot be converted. Such a term is "
     "treated as a static load case: check the load combinations in the host application and "
     "correct these terms."},

    // Deferred to the spectrum load cases.
    {"IDS_S2KV8_RESP_SPLC_Not_Convert",
     "Spectrum loads in another coordinate system than GLOBAL were not converted, and the loads "
     "next to them may be incomplete. Check all spectrum load cases in the host application and "
     "define the missing ones in global directions."},

    // Deferred to the time history load cases.
    {"IDS_S2KV8_THLC_Data_Not_Convert",
     "A time history case with proportional damping was not converted, because neither its mass "
     "coefficient nor its stiffness coefficient could be found. Define the case and its damping in "
     "the host application."},
    {"IDS_S2KV8_MDHT_IntpDamp_Not_Convert",
     "Modal time history cases with interpolated damping, or with damping of an unknown type, were "
     "not converted; constant and proportional damping can be. Define these cases in the host "
     "application."},

    // Deferred to the buckling control.
    {"IDS_S2KV8_BUCK_LdType_Not_Convert",
     "A buckling case contains a load that is not a load case, such as an acceleration. This load "
     "and the rest of that case were not converted. Check the loads of the buckling analysis in "
     "the host application."},

    // Deferred to the sections, from their conversion.
    {"IDS_S2KV8_SECT_TAPP_Not_Convert",
     "Of a nonprismatic section with several segments, only the start of the first and the end of "
     "the last segment are used. Divide the frames with such sections at the segment ends in "
     "SAP2000 V8, or model them as several elements in the host application."},
    {"IDS_S2KV8_SECT_SSEC_Not_Define",
     "The start section of a nonprismatic section could not be found, and the nonprismatic section "
     "was not converted. Define it in the host application and assign it to its frames."},
    {"IDS_S2KV8_SECT_ESEC_Not_Define",
     "The end section of a nonprismatic section could not be found, and the nonprismatic section "
     "was not converted. Define it in the host application and assign it to its frames."},

    // Deferred to the thicknesses, from their conversion.
    {"IDS_S2KV8_AREA_Prop_Not_Convert",
     "Some area sections are of a type that cannot be converted. Elements with an unknown kind of "
     "shell became thick plates, the others have no element type. Assign the right element type to "
     "them in the host application."},

    // Deferred to the nonlinear link properties, from their conversion.
    {"IDS_S2KV8_LINK_Mult_Lin_Not_Convert",
     "Link properties of the type MultiLinear, and the links that use them, were not converted. "
     "Define them in the host application with a type of nonlinear link that it offers."},
    {"IDS_S2KV8_LINK_Mult_Kine_Not_Convert",
     "Link properties of the type Plastic (Kinematic), and the links that use them, were not "
     "converted. Define them in the host application with a type of nonlinear link that it "
     "offers."},

    // Deferred to the rigid links, from their conversion.
    {"IDS_S2KV8_REST_AutoAX_Not_Convert",
     "Beam, Rod, Diaphragm or Plate constraints whose axis is not X, Y or Z, such as an automatic "
     "axis, were not converted. Give them a definite axis in SAP2000 V8 and export again, or "
     "define the rigid links in the host application."},
    {"IDS_S2KV8_REST_Local_Not_Convert",
     "Local constraints were not converted, because they act along the local axes of each joint. "
     "Define equivalent rigid links or elastic links between these joints in the host "
     "application."},

    // Deferred to the moving load cases, from their conversion.
    {"IDS_S2KV8_MAXLOADED_VEHICLE_CLASS",
     "A moving load assignment has 0 as its greatest number of loaded lanes; the number was set to "
     "1. Correct it in the host application if more lanes than one may be loaded at a time."},

    // Deferred to the time history functions and load cases, from their conversion.
    {"IDS_S2KV8_TMHT_Func_Not_Convert",
     "No points were found for a time history function: only user functions and functions from "
     "file are converted, and user functions only if none is from file. The function and further "
     "loads of its case are missing in the host application: define them there."},
    {"IDS_S2KV8_TMHT_NewMark_Only_Convert",
     "Direct integration time history cases with another method than Newmark were not converted. "
     "Choose the Newmark method in SAP2000 V8 and export again, or define these cases in the host "
     "application."},

    // Numbering of elements and nodes.
    {"IDS_S2KV8_ELEM_Renumbering",
     "All elements were renumbered, because the label of a frame, an area or a solid is not a "
     "plain number. The label from SAP2000 V8 stands as a comment behind each element in the "
     "output file."},
    {"IDS_S2KV8_NODE_Renumbering",
     "All joints were renumbered in the order of the file, because a joint label is not a plain "
     "number. The label from SAP2000 V8 stands as a comment behind each node in the output file."},
}};

}  // namespace s2k2ngt::catalogue
