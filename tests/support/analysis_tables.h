#pragma once

#include "support/conversion_run.h"

#include <string>
#include <string_view>

/// The load cases DEAD and LIVE, each of a static analysis case of its name, and further rows of
/// analysis cases, of which the first has key 3.
inline std::string AnalysesBesideStatic(std::string_view analyses) {
  return SourceTable("LOAD CASE DEFINITIONS",
                     "   LoadCase=DEAD   DesignType=DEAD   AutoLoad=None   SelfWtMult=0\n"
                     "   LoadCase=LIVE   DesignType=LIVE   AutoLoad=None   SelfWtMult=0\n") +
         SourceTable("CASE - STATIC 1 - LOAD ASSIGNMENTS",
                     "   Case=DEAD   LoadType=\"Load case\"   LoadName=DEAD   LoadSF=1\n"
                     "   Case=LIVE   LoadType=\"Load case\"   LoadName=LIVE   LoadSF=1\n") +
         SourceTable("ANALYSIS CASE DEFINITIONS",
                     "   Case=DEAD   Type=LinStatic   InitialCond=Zero\n"
                     "   Case=LIVE   Type=LinStatic   InitialCond=Zero\n" +
                         std::string(analyses));
}
