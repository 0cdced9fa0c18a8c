#pragma once

#include "common/text.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace s2k2ngt {

/// The keys of the message catalogue. Their spellings, slips included, are those of the catalogues
/// that hosts have installed.
inline constexpr std::array<std::string_view, 59> kMessageKeys = {
    "IDS_S2KV8_Export_must_be_executed",
    "IDS_S2KV8_Not_Convert",
    "IDS_S2KV8_DATA_Not_Convert",
    "IDS_S2KV8_NODE_NOT_Cylindrical",
    "IDS_S2KV8_AREA_AtMesh_Not_Convert",
    "IDS_S2KV8_AREA_PrPrsr_Not_Convert",
    "IDS_S2KV8_AREA_Local_Not_Convert",
    "IDS_S2KV8_AREA_Stif_Not_Convert",
    "IDS_S2KV8_SEIS_Data_Not_Convert",
    "IDS_S2KV8_WIND_Data_Not_Convert",
    "IDS_S2KV8_SOLD_PrPrsr_Not_Convert",
    "IDS_S2KV8_SOLD_SurfP_Not_Convert",
    "IDS_S2KV8_SOLD_Local_Not_Convert",
    "IDS_S2KV8_SOLD_Spr_Not_Convert",
    "IDS_S2KV8_NOCONVERT_AREA_GRAV",
    "IDS_S2KV8_FRAM_GRAV_Not_Convert",
    "IDS_S2KV8_OFFSET_LOCAL_DIR",
    "IDS_S2KV8_OFFSET_REPLACE_GLOBAL",
    "IDS_S2KV8_RESP_BOCA96_Not_Convert",
    "IDS_S2KV8_RESP_FILE_Not_Convert",
    "IDS_S2KV8_RESP_NHERP97_Not_Convert",
    "IDS_S2KV8_RESP_NZS4203_Not_Convert",
    "IDS_S2KV8_NOCONVERT_VEHICLE",
    "IDS_S2KV8_AREA_SurfP_Not_Convert",
    "IDS_S2KV8_AREA_Spr_Not_Convert",
    "IDS_S2KV8_NODE_Not_Assgn",
    "IDS_S2KV8_ELEM_Length_Zero",
    "IDS_S2KV8_FRAM_LclAx_Not_Convert",
    "IDS_S2KV8_PLAT_LclAx_Not_Convert",
    "IDS_S2KV8_SOLD_LclAx_Not_Convert",
    "IDS_S2KV8_NODE_NSPR_Not_Convert",
    "IDS_S2KV8_FRAME_2_NSPR",
    "IDS_S2KV8_PLATE_2_NSPR",
    "IDS_S2KV8_PLATE_NSPR_Not_Convert",
    "IDS_S2KV8_BEAM_End_Release",
    "IDS_S2KV8_BEAM_End_Off_Rls",
    "IDS_S2KV8_PLATE_SurfP_Not_Convert",
    "IDS_S2KV8_AREA_Thik_Mod_Not_Confert",
    "IDS_S2KV8_LINK_Sinlge_Joint",
    "IDS_S2KV8_MATL_ANIS_Not_Convert",
    "IDS_S2KV8_SECT_Not_Trans",
    "IDS_S2KV8_STLC_Not_Convert",
    "IDS_S2KV8_RESP_SPLC_Not_Convert",
    "IDS_S2KV8_THLC_Data_Not_Convert",
    "IDS_S2KV8_MDHT_IntpDamp_Not_Convert",
    "IDS_S2KV8_BUCK_LdType_Not_Convert",
    "IDS_S2KV8_SECT_TAPP_Not_Convert",
    "IDS_S2KV8_SECT_SSEC_Not_Define",
    "IDS_S2KV8_SECT_ESEC_Not_Define",
    "IDS_S2KV8_AREA_Prop_Not_Convert",
    "IDS_S2KV8_LINK_Mult_Lin_Not_Convert",
    "IDS_S2KV8_LINK_Mult_Kine_Not_Convert",
    "IDS_S2KV8_REST_AutoAX_Not_Convert",
    "IDS_S2KV8_REST_Local_Not_Convert",
    "IDS_S2KV8_MAXLOADED_VEHICLE_CLASS",
    "IDS_S2KV8_TMHT_Func_Not_Convert",
    "IDS_S2KV8_TMHT_NewMark_Only_Convert",
    "IDS_S2KV8_ELEM_Renumbering",
    "IDS_S2KV8_NODE_Renumbering",
};

/// A key that the catalogue has; any other does not compile.
class MessageKey {
 public:
  consteval MessageKey(const char* key) : m_Key(key) {
    if (std::ranges::find(kMessageKeys, m_Key) == kMessageKeys.end()) {
      throw "no such message key";
    }
  }
  constexpr const char* Get() const { return m_Key.data(); }

 private:
  std::string_view m_Key;
};

/// Where the stages and writers show what could not be carried over.
class Messages {
 public:
  virtual ~Messages() = default;
  /// Shows the catalogue's text of `key`.
  virtual void Show(MessageKey key) = 0;
  /// The same with `argument` in the place of the text's first "%s".
  virtual void ShowWith(MessageKey key, Text argument) = 0;

 protected:
  Messages() = default;
  Messages(const Messages&) = default;
  Messages& operator=(const Messages&) = default;
};

}  // namespace s2k2ngt
