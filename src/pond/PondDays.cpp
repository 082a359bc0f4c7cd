#include "pond/PondDays.h"

#include <algorithm>
#include <numeric>

#include "base/NumberText.h"
#include "base/Refusal.h"
#include "rain/RainYears.h"

namespace orvik {
namespace {

// What belongs to the days of the kept years, with that of the warm-up ahead: its days are the
// first ones of the kept years.
template <typename T>
std::vector<T> RunAhead(const std::vector<T>& kept, std::size_t warmUpDays) {
  std::vector<T> all(kept.begin(), kept.begin() + static_cast<std::ptrdiff_t>(warmUpDays));
  all.insert(all.end(), kept.begin(), kept.end());
  return all;
}

// True for each day that lies within `holdOff` days after a day with rain. Rain does not hold off
// use on its own day.
std::vector<bool> FindHeldOffDays(const std::vector<double>& rain, int holdOff) {
  std::vector<bool> heldOff(rain.size());
  int remaining = 0;
  for (std::size_t d = 0; d < rain.size(); ++d) {
    heldOff[d] = remaining > 0;
    remaining = rain[d] > 0 ? holdOff : std::max(0, remaining - 1);
  }
  return heldOff;
}

// The depth asked for on each day, as a multiple of R. R is the mean over all counted days, so the
// depth not asked for on days held off is spread evenly over the others.
std::vector<double> ShareUse(const std::vector<bool>& heldOff, std::size_t warmUpDays) {
  const auto counted = static_cast<double>(heldOff.size() - warmUpDays);
  const auto begin = heldOff.begin() + static_cast<std::ptrdiff_t>(warmUpDays);
  const auto withUse = static_cast<double>(std::count(begin, heldOff.end(), false));
  if (withUse == 0) throw Refusal("The hold-off leaves no day on which water is used.");
  std::vector<double> share(heldOff.size());
  std::ranges::transform(heldOff, share.begin(),
                         [&](bool held) { return held ? 0.0 : counted / withUse; });
  return share;
}

}  // namespace

std::string HoldOffText(const PondOptions& options) {
  return "hold-off " + std::to_string(options.holdOffDays) +
         (options.holdOffDays == 1 ? " day" : " days");
}

std::string AbstractionText(const PondOptions& options) {
  return "abstraction " + ConvertToString(options.abstractionIn) + " in";
}

PondDays BuildPondDays(const RainYears& years, const PondOptions& options) {
  PondDays days;
  days.warmUpDays = years.kept.front().days;
  days.dates = RunAhead(years.dates, days.warmUpDays);
  days.years = years.kept;
  for (CalendarYear& year : days.years) year.firstDay += days.warmUpDays;

  const std::vector<double> rain = RunAhead(years.daily, days.warmUpDays);
  days.useShare = ShareUse(FindHeldOffDays(rain, options.holdOffDays), days.warmUpDays);
  days.runoff.resize(rain.size());
  std::ranges::transform(rain, days.runoff.begin(), [&](double depth) {
    return std::max(0.0, depth - options.abstractionIn);
  });
  const auto counted = days.runoff.begin() + static_cast<std::ptrdiff_t>(days.warmUpDays);
  days.totalRunoff = std::accumulate(counted, days.runoff.end(), 0.0);
  if (!(days.totalRunoff > 0)) {
    throw Refusal("No day has more rain than the abstraction: nothing runs off.");
  }
  return days;
}

}  // namespace orvik
