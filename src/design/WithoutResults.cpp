#include "design/WithoutResults.h"

#include "design/Project.h"

namespace orvik {

std::string WhyNoResult(const Project& project, const std::string& shown) {
  if (!shown.empty()) return shown;
  if (project.mode == SolveFor::None) return Sentence({MessageId::NoModeChosen});
  if (project.mode == SolveFor::Interactive && !project.point.isShown) {
    return Sentence({MessageId::NoPointPlaced});
  }
  return {};
}

}  // namespace orvik
