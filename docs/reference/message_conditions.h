#pragma once

#include "common/messages.h"
#include "common/text.h"

#include <array>

namespace s2k2ngt::reference {

/// When a message is shown.
struct MessageCondition {
  Text Key;
  bool IsRaised;  // false for a message to which no source file leads
  Text Condition;
};

/// All messages, in the order of kMessageKeys.
inline constexpr std::array<MessageCondition, kMessageKeys.size()> kMessageConditions = {{
    {"IDS_S2KV8_Export_must_be_executed", true, "at the beginning of every run"},
    {"IDS_S2KV8_Not_Convert", true,
     "the file is of the format before V8, a line between two tables is neither a title nor the "
     "end, or the END line is missing; the run ends"},
    {"IDS_S2KV8_DATA_Not_Convert", true,
     "a line before the first table, among the first three of the file, is not a title"},
    {"IDS_S2KV8_NODE_NOT_Cylindrical", true,
     "the first coordinate system is not Cartesian; the run ends"},
    {"IDS_S2KV8_AREA_AtMesh_Not_Convert", true,
     "while the file is read, at a table of automatic area meshes"},
    {"IDS_S2KV8_AREA_PrPrsr_Not_Convert", true,
     "while the file is read, at a table of pore pressures of areas"},
    {"IDS_S2KV8_AREA_Local_Not_Convert", true,
     "while the file is read, at a table of typical local axes of areas"},
    {"IDS_S2KV8_AREA_Stif_Not_Convert", true,
     "while the file is read, at a table of stiffness modifiers of areas"},
    {"IDS_S2KV8_SEIS_Data_Not_Convert", true,
     "while the file is read, at a table of earthquake loads by BOCA 96, IBC 2000, NEHRP 97 or UBC "
     "94"},
    {"IDS_S2KV8_WIND_Data_Not_Convert", true,
     "while the file is read, at a table of wind loads by ASCE 7-88, ASCE 7-95, BOCA 96, BS "
     "6399-95 or UBC 94"},
    {"IDS_S2KV8_SOLD_PrPrsr_Not_Convert", true,
     "while the file is read, at a table of pore pressures of solids"},
    {"IDS_S2KV8_SOLD_SurfP_Not_Convert", true,
     "while the file is read, at a table of surface pressures of solids"},
    {"IDS_S2KV8_SOLD_Local_Not_Convert", true,
     "while the file is read, at a table of typical local axes of solids"},
    {"IDS_S2KV8_SOLD_Spr_Not_Convert", true,
     "while the file is read, at a table of springs on solids"},
    {"IDS_S2KV8_NOCONVERT_AREA_GRAV", true,
     "while the model is converted: the areas have gravity loads"},
    {"IDS_S2KV8_FRAM_GRAV_Not_Convert", true,
     "while the model is converted, once for each load with a self weight multiplier"},
    {"IDS_S2KV8_OFFSET_LOCAL_DIR", true,
     "once, if the insertion point of a frame has joint offsets in the Local system"},
    {"IDS_S2KV8_OFFSET_REPLACE_GLOBAL", true,
     "once for each frame with joint offsets in another system that had end offsets already; the "
     "text names the frame"},
    {"IDS_S2KV8_RESP_BOCA96_Not_Convert", true,
     "while the model is converted: there are spectrum functions by BOCA 96"},
    {"IDS_S2KV8_RESP_FILE_Not_Convert", true,
     "while the model is converted: there are spectrum functions from a file"},
    {"IDS_S2KV8_RESP_NHERP97_Not_Convert", true,
     "while the model is converted: there are spectrum functions by NEHRP 97"},
    {"IDS_S2KV8_RESP_NZS4203_Not_Convert", true,
     "while the model is converted: there are spectrum functions by NZS 4203"},
    {"IDS_S2KV8_NOCONVERT_VEHICLE", true,
     "at `*VEHICLE`: a standard vehicle has no like in the host; the text names all of them"},
    {"IDS_S2KV8_AREA_SurfP_Not_Convert", false, "no table leads to it"},
    {"IDS_S2KV8_AREA_Spr_Not_Convert", false, "no table leads to it"},
    {"IDS_S2KV8_NODE_Not_Assgn", false, "at `*ELEMENT`; nothing sets its flag"},
    {"IDS_S2KV8_ELEM_Length_Zero", true,
     "at `*ELEMENT`: a frame load at absolute distances is on a frame without a length"},
    {"IDS_S2KV8_FRAM_LclAx_Not_Convert", true, "at `*ELEMENT`: there are frames"},
    {"IDS_S2KV8_PLAT_LclAx_Not_Convert", true, "at `*ELEMENT`: there are areas"},
    {"IDS_S2KV8_SOLD_LclAx_Not_Convert", true, "at `*ELEMENT`: there are solids"},
    {"IDS_S2KV8_NODE_NSPR_Not_Convert", true,
     "at `*SPRING`: coupled springs in the global system are at a joint with axes of its own"},
    {"IDS_S2KV8_FRAME_2_NSPR", true, "at `*SPRING`: there are springs along frames"},
    {"IDS_S2KV8_PLATE_2_NSPR", true, "at `*SPRING`: there are springs on areas"},
    {"IDS_S2KV8_PLATE_NSPR_Not_Convert", true,
     "at `*SPRING`: an area has a spring on another face than 5 and 6"},
    {"IDS_S2KV8_BEAM_End_Release", true, "at `*FRAME-RLS`: a frame has partial fixity"},
    {"IDS_S2KV8_BEAM_End_Off_Rls", false, "at `*FRAME-RLS`; nothing sets its flag"},
    {"IDS_S2KV8_PLATE_SurfP_Not_Convert", true,
     "at `*PRESSURE`, once for each load case: an area has a surface pressure on another face than "
     "5 and 6"},
    {"IDS_S2KV8_AREA_Thik_Mod_Not_Confert", false,
     "at `*THICKNESS`; the table that would set its flag is refused"},
    {"IDS_S2KV8_LINK_Sinlge_Joint", true, "at `*ELASTICLINK`: a link has a single joint"},
    {"IDS_S2KV8_MATL_ANIS_Not_Convert", true, "at `*MATERIAL`: a material is anisotropic"},
    {"IDS_S2KV8_SECT_Not_Trans", true,
     "at `*SECTION`: a frame section has a shape that the host does not have"},
    {"IDS_S2KV8_STLC_Not_Convert", true,
     "at `*STLDCASE`: a term that a combination takes over, because a static load case has its "
     "name, is of a kind of case that the host does not have"},
    {"IDS_S2KV8_RESP_SPLC_Not_Convert", true,
     "at `*SPLDCASE`: a load of a spectrum case is not in the GLOBAL system"},
    {"IDS_S2KV8_THLC_Data_Not_Convert", true,
     "at `*THLDCASE`: a time history case with proportional damping has no row of it, or one that "
     "states neither coefficient or no known SpecifyType"},
    {"IDS_S2KV8_MDHT_IntpDamp_Not_Convert", true,
     "at `*THLDCASE`: the damping of a modal time history is neither constant nor proportional"},
    {"IDS_S2KV8_BUCK_LdType_Not_Convert", true,
     "at `*BUCK-CTRL`, so only if a buckling case was converted: this case, or one that was tried "
     "before it, has a load that is not a load case"},
    {"IDS_S2KV8_SECT_TAPP_Not_Convert", true,
     "at `*SECTION`: a nonprismatic section has several segments"},
    {"IDS_S2KV8_SECT_SSEC_Not_Define", true,
     "at `*SECTION`: the start section of a nonprismatic section is not in the file, or there is "
     "no row for its start, and its end has no shape of the host either"},
    {"IDS_S2KV8_SECT_ESEC_Not_Define", true,
     "at `*SECTION`: the start of a nonprismatic section has no shape and its end is not a section "
     "of the file"},
    {"IDS_S2KV8_AREA_Prop_Not_Convert", true,
     "at `*THICKNESS`: an area section is of a kind that the host does not have"},
    {"IDS_S2KV8_LINK_Mult_Lin_Not_Convert", false, "at `*NL-PROP`; nothing sets its flag"},
    {"IDS_S2KV8_LINK_Mult_Kine_Not_Convert", false, "at `*NL-PROP`; nothing sets its flag"},
    {"IDS_S2KV8_REST_AutoAX_Not_Convert", true,
     "at `*RIGIDLINK`: the axis of a constraint of several joints is not X, Y or Z"},
    {"IDS_S2KV8_REST_Local_Not_Convert", true, "at `*RIGIDLINK`: a constraint is of kind Local"},
    {"IDS_S2KV8_MAXLOADED_VEHICLE_CLASS", true,
     "at `*MVLDCASE`: an assignment of a case that goes over states 0 as its largest number of "
     "loaded lanes"},
    {"IDS_S2KV8_TMHT_Func_Not_Convert", true,
     "at `*TFUNCTION`: no points were found of a function that a modal time history case needs; "
     "only functions of the user and from a file have points"},
    {"IDS_S2KV8_TMHT_NewMark_Only_Convert", true,
     "at `*THLDCASE`: a direct time history is integrated by another method than Newmark's"},
    {"IDS_S2KV8_ELEM_Renumbering", true,
     "at `*ELEMENT`: the label of a frame, an area or a solid is not a plain number"},
    {"IDS_S2KV8_NODE_Renumbering", true, "at `*NODE`: a joint label is not a plain number"},
}};

}  // namespace s2k2ngt::reference
