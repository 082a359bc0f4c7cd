// The sample projects, typed into the window as an engineer would type them.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "entry/Form1.h"
#include "support/UserToolkit.h"

namespace orvik::test {

struct SampleProject {
  std::string file;
  std::function<void(UserToolkit& toolkit, Form1& window)> type;
};

struct SampleSite {
  const char* name;
  const char* description;
  const char* number;
  const char* date;
  const char* station;
  const char* basinArea;  // acres
  const char* runoffCoefficient;
  const char* irrigationArea;  // acres
};

inline void TypeSite(UserToolkit& toolkit, const SampleSite& site) {
  toolkit.Type("txtProjectName", site.name);
  toolkit.Type("txtDescription", site.description);
  toolkit.Type("txtProjectNumber", site.number);
  toolkit.Type("txtEngineer", "M. Peña, P.E.");
  toolkit.Type("txtSuervisingEngineer", "R. Holloway, P.E.");
  toolkit.Type("txtDate", site.date);
  toolkit.Choose("cmbClimateStation", site.station);
  toolkit.Type("txtBasinArea", site.basinArea);
  toolkit.Type("txtRunoffCoefficient", site.runoffCoefficient);
  toolkit.Type("txtIrrigationArea", site.irrigationArea);
}

inline void TypeGiven(UserToolkit& toolkit, const char* mode, const char* first,
                      const char* second) {
  toolkit.Choose("cmbSolveFor", mode);
  toolkit.Type("txtSolveFor(1)", first);
  toolkit.Type("txtSolveFor(2)", second);
  toolkit.PressKey("txtSolveFor(2)", '\r');
}

inline std::vector<SampleProject> SampleProjects() {
  return {
      {"interactive.kav",
       [](UserToolkit& toolkit, Form1& window) {
         TypeSite(toolkit, {"Palm Trace Village",
                            "Wet detention pond with reuse for the golf practice range", "26-031",
                            "03-09-2026", "West Palm Beach", "30", "0.55", "14"});
         std::string E;
         window.Chart().SetHotspotUsing_RV("0.2", "3", E);
       }},
      {"efficiency.kav",
       [](UserToolkit& toolkit, Form1&) {
         TypeSite(toolkit,
                  {"Bayhead Commons", "Shopping center; pond water irrigates lawns and medians",
                   "26-014", "02-17-2026", "Tampa", "18.4", "0.62", "7.5"});
         TypeGiven(toolkit, "Efficiency", "2.6", "1.6");
       }},
      {"storage-volume.kav",
       [](UserToolkit& toolkit, Form1&) {
         TypeSite(toolkit,
                  {"Sandhill Oaks School", "School campus; play fields irrigated from the pond",
                   "26-022", "02-24-2026", "Orlando", "25", "0.5", "10"});
         TypeGiven(toolkit, "Storage Volume", "78", "1.2");
       }},
      {"reuse-rate.kav",
       [](UserToolkit& toolkit, Form1&) {
         TypeSite(toolkit,
                  {"Prairie Pines Nursery", "Tree nursery on the runoff of its own roofs and yards",
                   "26-027", "03-03-2026", "Gainesville", "12.5", "0.7", "6"});
         TypeGiven(toolkit, "Reuse Rate", "82", "2.5");
       }},
  };
}

}  // namespace orvik::test
