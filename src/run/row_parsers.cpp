#include "run/row_parsers.h"

#include "analysis/buckling.h"
#include "analysis/cases.h"
#include "analysis/combinations.h"
#include "analysis/history_damping.h"
#include "analysis/history_loads.h"
#include "analysis/modal.h"
#include "analysis/spectrum.h"
#include "analysis/structure.h"
#include "analysis/time_functions.h"
#include "analysis/time_history.h"
#include "bridge/lanes.h"
#include "bridge/moving_loads.h"
#include "bridge/vehicles.h"
#include "frames/elements.h"
#include "frames/end_conditions.h"
#include "frames/initial_forces.h"
#include "frames/lumping.h"
#include "frames/materials.h"
#include "frames/modifiers.h"
#include "frames/sections.h"
#include "joints/constraints.h"
#include "joints/local_axes.h"
#include "joints/masses.h"
#include "joints/nodes.h"
#include "joints/supports.h"
#include "loads/area_loads.h"
#include "loads/frame_loads.h"
#include "loads/joint_loads.h"
#include "loads/joint_patterns.h"
#include "loads/load_cases.h"
#include "loads/temperature_loads.h"
#include "loads/wind_seismic.h"
#include "plates/areas.h"
#include "plates/links.h"
#include "plates/lumping.h"
#include "plates/solids.h"
#include "source/single_records.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <type_traits>

namespace s2k2ngt {
namespace {

struct Entry {
  Text Record;
  RowParser Parse;
  TableUse Use;
};

/// True when the model keeps what stands first in the rows, by which people know them.
template <class Record>
constexpr bool HasLabel() {
  const auto& keys = kRowKeys<Record>;
  return std::size(keys) > 0 && std::begin(keys)->IsText();
}

template <class Record>
std::string LabelOf(CModel& model, std::uint32_t key) {
  const Record* const row = model.Rows<Record>().Find(key);
  if (row != nullptr) {
    for (const RowKey<Record>& known : kRowKeys<Record>) {
      if (known.IsText() && !known.TextOf(*row).empty()) {
        return std::string(TrimLeft(known.Name())).append(known.TextOf(*row));
      }
    }
  }
  return {};
}

template <class Record>
constexpr TableUse UseOf() {
  TableUse use{.Keys = kKeyUses<Record>, .Lost = std::nullopt};
  if constexpr (requires { Record::kLostMessage; }) {
    use.Lost = Record::kLostMessage;
  }
  use.IsChecked = std::is_same_v<Record, CoordinateSystem>;
  return use;
}

/// The same of a table of many records.
template <class Record>
constexpr TableUse UseOfRows() {
  TableUse use = UseOf<Record>();
  if constexpr (HasLabel<Record>()) {
    use.Label = LabelOf<Record>;
  }
  return use;
}

/// The table of a record whose rows are none of them refused.
template <class Record>
constexpr Entry Rows() {
  return {Record::kTable, StoreRows<Record>, UseOfRows<Record>()};
}

constexpr std::array kRowParsers = std::to_array<Entry>({
    {kActiveDegreesOfFreedom, StoreActiveDegreesOfFreedom, UseOf<ActiveDegreesOfFreedom>()},
    {kCoordinateSystem, StoreCoordinateSystem, UseOf<CoordinateSystem>()},
    {kUnits, StoreUnits, UseOf<ProgramControl>()},
    {T_JTCD_D::kTable, StoreJoints, UseOfRows<T_JTCD_D>()},
    Rows<T_JTRA_D>(),
    Rows<T_JTUC_D>(),
    Rows<T_JTSC_D>(),
    Rows<T_JTTP_D>(),
    Rows<T_JTAV_D>(),
    Rows<T_JTMA_D>(),
    Rows<T_JTCA_D>(),
    Rows<T_CDBM_D>(),
    Rows<T_CDDP_D>(),
    Rows<T_CDPL_D>(),
    Rows<T_CDRD_D>(),
    Rows<T_CDBD_D>(),
    Rows<T_CDEL_D>(),
    Rows<T_CDLN_D>(),
    Rows<T_CDWL_D>(),
    Rows<T_CDLC_D>(),
    Rows<T_CNFR_D>(),
    Rows<T_FRSC_D>(),
    Rows<T_FRTP_D>(),
    Rows<T_FRAV_D>(),
    Rows<T_FRGN_D>(),
    Rows<T_FRPF_D>(),
    Rows<T_FROF_D>(),
    Rows<T_FRIP_D>(),
    Rows<T_MTGN_D>(),
    Rows<T_MTAD_D>(),
    Rows<T_FRSG_D>(),
    Rows<T_FSNP_D>(),
    Rows<T_FRPM_D>(),
    Rows<T_FRPD_D>(),
    Rows<T_FRPT_D>(),
    Rows<T_FRLM_D>(),
    Rows<T_FRSA_D>(),
    Rows<T_FRAD_D>(),
    Rows<T_CNAR_D>(),
    Rows<T_ASCA_D>(),
    Rows<T_ASPR_D>(),
    Rows<T_ALGR_D>(),
    Rows<T_ASPA_D>(),
    Rows<T_ADMA_D>(),
    Rows<T_CNSL_D>(),
    Rows<T_SLPA_D>(),
    Rows<T_SLPD_D>(),
    Rows<T_SLLG_D>(),
    Rows<T_SLAM_D>(),
    Rows<T_SLPT_D>(),
    Rows<T_SMLA_D>(),
    Rows<T_CNLK_D>(),
    Rows<T_LLCT_D>(),
    Rows<T_LLCA_D>(),
    Rows<T_LPGN_D>(),
    Rows<T_LPLN_D>(),
    Rows<T_LPDM_D>(),
    Rows<T_LPGP_D>(),
    Rows<T_LPHK_D>(),
    Rows<T_LPRB_D>(),
    Rows<T_LPSL_D>(),
    Rows<T_LPPW_D>(),
    Rows<T_LPMT_D>(),
    Rows<T_LPPK_D>(),
    Rows<T_LPAN_D>(),
    Rows<T_LLDG_D>(),
    Rows<T_LDCS_D>(),
    Rows<T_STC1_D>(),
    Rows<T_JTLF_D>(),
    Rows<T_JTGD_D>(),
    Rows<T_FRLD_D>(),
    Rows<T_FRLP_D>(),
    Rows<T_FRLG_D>(),
    Rows<T_ALUM_D>(),
    Rows<T_ALSP_D>(),
    Rows<T_ALRT_D>(),
    Rows<T_ALUF_D>(),
    Rows<T_ALWP_D>(),
    Rows<T_JTPA_D>(),
    Rows<T_FRLT_D>(),
    Rows<T_ALTM_D>(),
    Rows<T_SLLT_D>(),
    Rows<T_FRRT_D>(),
    Rows<T_AMRT_D>(),
    Rows<T_SLRT_D>(),
    Rows<T_AMMT_D>(),
    Rows<T_SUB7_D>(),
    Rows<T_SNBC_D>(),
    Rows<T_WUB7_D>(),
    Rows<T_WAS8_D>(),
    Rows<T_WNBC_D>(),
    Rows<T_ANAL_D>(),
    Rows<T_MSMS_D>(),
    Rows<T_MDL1_D>(),
    Rows<T_MDL2_D>(),
    Rows<T_MDL3_D>(),
    Rows<T_BKL1_D>(),
    Rows<T_BKL2_D>(),
    Rows<T_RSP1_D>(),
    Rows<T_RSP2_D>(),
    Rows<T_RSP3_D>(),
    Rows<T_RSP4_D>(),
    Rows<T_RSP5_D>(),
    Rows<T_FRSB_D>(),
    Rows<T_FRSE_D>(),
    Rows<T_FRSF_D>(),
    Rows<T_FRSI_D>(),
    Rows<T_FRSN_D>(),
    Rows<T_FRSH_D>(),
    Rows<T_FRSZ_D>(),
    Rows<T_FRC4_D>(),
    Rows<T_FRC7_D>(),
    Rows<T_FRSU_D>(),
    Rows<T_MDH1_D>(),
    Rows<T_MDH2_D>(),
    Rows<T_MDH3_D>(),
    Rows<T_MDH4_D>(),
    Rows<T_MDH5_D>(),
    Rows<T_MDH6_D>(),
    Rows<T_DRH1_D>(),
    Rows<T_DRH2_D>(),
    Rows<T_DRH3_D>(),
    Rows<T_DRH4_D>(),
    Rows<T_DRH5_D>(),
    Rows<T_FTHC_D>(),
    Rows<T_FTHF_D>(),
    Rows<T_FTHP_D>(),
    Rows<T_FTHR_D>(),
    Rows<T_FTHS_D>(),
    Rows<T_FTHT_D>(),
    Rows<T_FTHU_D>(),
    Rows<T_FTHW_D>(),
    Rows<T_COMB_D>(),
    Rows<T_BLLN_D>(),
    Rows<T_BLSV_D>(),
    Rows<T_BLGV1_D>(),
    Rows<T_BLGV2_D>(),
    Rows<T_BLVC_D>(),
    Rows<T_BLBR_D>(),
    Rows<T_MVL1_D>(),
    Rows<T_MVL2_D>(),
    Rows<T_MVL3_D>(),
});

const Entry* FindEntry(Text recordName) {
  const auto* const entry = std::ranges::find(kRowParsers, recordName, &Entry::Record);
  return entry == kRowParsers.end() ? nullptr : entry;
}

}  // namespace

RowParser FindRowParser(Text recordName) {
  const Entry* const entry = FindEntry(recordName);
  return entry == nullptr ? nullptr : entry->Parse;
}

std::optional<TableUse> UseOfTable(Text recordName) {
  const Entry* const entry = FindEntry(recordName);
  return entry == nullptr ? std::nullopt : std::optional(entry->Use);
}

}  // namespace s2k2ngt
