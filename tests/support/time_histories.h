#pragma once

#include "support/conversion_run.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// The data lines of *THLDCASE, of a model without loads behind it.
inline std::vector<std::string> HistoryLines(const ConversionRun& run) {
  return run.LinesBetween("*THLDCASE", "*ENDDATA");
}

/// Line `number` of a model's *THLDCASE, from 1.
inline std::string HistoryLine(const ConversionRun& run, std::size_t number) {
  const std::vector<std::string> lines = HistoryLines(run);
  return number <= lines.size() ? lines[number - 1] : "(no such line)";
}

/// Modal history cases TH1, TH2 and TH3 and direct ones BLAST and SHOCK, in metres, with these
/// analysis cases, modal load rows and direct load rows. The function PULSE has its points, and
/// LOST has none.
inline std::string ModalAndDirectCases(std::string_view analyses, std::string_view modalLoads,
                                       std::string_view directLoads) {
  return R"(TABLE:  "PROGRAM CONTROL"
   CurrUnits="KN, m, C"

TABLE:  "CASE - MODAL HISTORY 1 - GENERAL"
   Case=TH1   DampingType=Constant
   Case=TH2   DampingType=Constant
   Case=TH3   DampingType=Constant

TABLE:  "CASE - DIRECT HISTORY 1 - GENERAL"
   Case=BLAST   OutSteps=10   StepSize=1
   Case=SHOCK   OutSteps=10   StepSize=1

TABLE:  "CASE - DIRECT HISTORY 3 - PROPORTIONAL DAMPING"
   Case=BLAST   SpecifyType=Direct   MassCoeff=0.3
   Case=SHOCK   SpecifyType=Direct   MassCoeff=0.3

TABLE:  "FUNCTION - TIME HISTORY - USER"
   Name=PULSE   Time=0   Value=0
   Name=PULSE   Time=1   Value=1

TABLE:  "ANALYSIS CASE DEFINITIONS"
)" + std::string(analyses) +
         "\nTABLE:  \"CASE - MODAL HISTORY 2 - LOAD ASSIGNMENTS\"\n" + std::string(modalLoads) +
         "\nTABLE:  \"CASE - DIRECT HISTORY 2 - LOAD ASSIGNMENTS\"\n" + std::string(directLoads);
}
