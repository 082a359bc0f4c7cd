#include "cli/CurvesOptions.h"

#include <stdexcept>

#include "base/FileError.h"
#include "base/NumberText.h"
#include "base/Refusal.h"
#include "base/Text.h"
#include "curves/ChartAxes.h"
#include "curves/CurveMaker.h"
#include "pond/PondDays.h"
#include "rain/RainUnit.h"
#include "rain/RainYears.h"

namespace orvik {

const std::string_view kBalanceDefinition =
    R"(Method: a daily water balance per unit of equivalent impervious area (EIA). Runoff of a day = its
rainfall depth on the EIA; rain on the pond and its evaporation cancel over a year, groundwater
exchange is zero. Each day the storage takes the runoff, what exceeds V spills, then up to R is used.
E = used / runoff over the record, in percent. The storage starts empty; the first usable year is run
once as a warm-up that is not counted, then the whole record is counted. R is the average rate per day,
available every day.)";

namespace {

constexpr int kMostHoldOff = 365;  // days; a longer hold-off would leave hardly a day with use
constexpr double kMostAbstraction = 10;  // inches; hardly a day of any climate would run off

// The ends that an axis may have.
struct AxisLimits {
  const char* name;  // in its options
  double least;
  double largest;
  const char* unit;
};

// A curve covers at least an inch of V and begins above 0, and an R of a few hundredths is less
// than any irrigation. The upper limits are far beyond any pond.
constexpr AxisLimits kLimitsOfV{"v", 2, 100, "inches"};
constexpr AxisLimits kLimitsOfR{"r", 0.05, 10, "inches per day"};

std::string ValidatePositive(const std::string& text) {
  std::string fault = ValidateNumber(text);
  if (!fault.empty()) return fault;
  return ParseNumber(text) > 0 ? "" : "\"" + text + "\" is not above zero";
}

std::string ValidateHoldOff(const std::string& text) {
  const auto days = ParseWholeNumber(text);
  return days && *days >= 0 && *days <= kMostHoldOff
             ? ""
             : "\"" + text + "\" is not a number of days from 0 to " + std::to_string(kMostHoldOff);
}

std::string ValidateAbstraction(const std::string& text) {
  std::string fault = ValidateNumber(text);
  if (!fault.empty()) return fault;
  const double inches = ParseNumber(text);
  if (inches < 0) return "\"" + text + "\" is below zero";
  return inches <= kMostAbstraction
             ? ""
             : "\"" + text + "\" is more than " + ConvertToString(kMostAbstraction) + " inches";
}

std::string ValidateUnit(const std::string& text) {
  if (FindRainUnit(text)) return {};
  std::string names;
  for (const RainUnit unit : kRainUnits) {
    names += (names.empty() ? "" : ", ") + std::string(RainUnitName(unit));
  }
  return "\"" + text + "\" is not a unit of rainfall; the units are " + names;
}

void RequireEnd(double most, const AxisLimits& limits) {
  if (most >= limits.least && most <= limits.largest) return;
  throw UsageError(std::string("--") + limits.name + "-max must be " +
                   ConvertToString(limits.least) + " to " + ConvertToString(limits.largest) + " " +
                   limits.unit + ".");
}

// " Choose a larger --r-max."
std::string Advice(const AxesTooSmall& refusal) {
  const bool isRateAlone = refusal.Remedy() == AxisRemedy::LargerRMax;
  return std::string(" Choose a larger --r-max") + (isRateAlone ? "." : " or --v-max.");
}

std::string Advice(const ImplausibleRain& refusal) {
  std::string units;
  for (const auto& [unit, annualIn] : refusal.Units()) {
    units += (units.empty() ? "--unit " : ", --unit ") + std::string(RainUnitName(unit)) + " (" +
             RoundedDepth(annualIn) + " inches a year)";
  }
  if (units.empty()) return " No other unit makes sense of it either.";
  return " A unit that would make sense: " + units + ".";
}

// Sets the axis from 0 to `most` with the interval that was asked for, or a round one.
void SetAxis(const std::string& mostText, const std::string& intervalText, const AxisLimits& limits,
             double& most, double& interval) {
  if (!mostText.empty()) {
    most = ParseNumber(mostText);
    RequireEnd(most, limits);
    interval = RoundInterval(most).value_or(0);
  }
  if (!intervalText.empty()) interval = ParseNumber(intervalText);
  if (DividesRange(most, interval)) return;
  throw UsageError(std::string("--") + limits.name +
                   "-interval must divide the axis into whole steps, " +
                   std::to_string(kMostAxisSteps) + " at most: choose one that divides " +
                   ConvertToString(most) + ".");
}

}  // namespace

std::string ValidateNotBlank(const std::string& text) {
  return Trim(text).empty() ? "must not be empty" : "";
}

void AddPondOptions(CLI::App& command, PondArguments& arguments) {
  command
      .add_option("--hold-off", arguments.holdOff,
                  "No use on N days after a day with rain; the depth applied on the other days is "
                  "R divided by their share, so that R stays the average (0)")
      ->type_name("N")
      ->check(ValidateHoldOff);
  command
      .add_option("--abstraction", arguments.abstraction,
                  "Inches lost from each day with rain before it runs off (0)")
      ->type_name("IN")
      ->check(ValidateAbstraction);
}

void AddAxesOptions(CLI::App& command, AxesArguments& arguments) {
  const auto add = [&](const char* name, std::string& target, const std::string& what,
                       double ifNotGiven) {
    command.add_option(name, target, what + " (" + ConvertToString(ifNotGiven) + ")")
        ->type_name("NUMBER")
        ->check(ValidatePositive);
  };
  const ChartAxes axes;
  add("--v-max", arguments.VMax, "End of the V axis and of all curves, inches on the EIA",
      axes.VMax);
  add("--v-interval", arguments.VInterval, "Step of the V axis", axes.VInterval);
  add("--r-max", arguments.RMax, "End of the R axis, inches per day on the EIA", axes.RMax);
  add("--r-interval", arguments.RInterval, "Step of the R axis", axes.RInterval);
}

void AddRainOptions(CLI::App& command, RainArguments& arguments, bool required) {
  auto* rain = command
                   .add_option("--rain", arguments.file,
                               "Daily rainfall, comma-separated, with a line of column names")
                   ->type_name("CSV")
                   ->required(required);
  auto* unit =
      command
          .add_option("--unit", arguments.unit,
                      "Unit of its depths: in, hundredths-in, mm or tenths-mm. It is never "
                      "guessed")
          ->type_name("UNIT")
          ->required(required)
          ->check(ValidateUnit);
  rain->needs(unit);
  unit->needs(rain);
  command.add_option("--date-column", arguments.columns.date, "Name of the column of dates")
      ->type_name("NAME")
      ->needs(rain);
  command.add_option("--depth-column", arguments.columns.depth, "Name of the column of depths")
      ->type_name("NAME")
      ->needs(rain);
}

PondOptions ToPondOptions(const PondArguments& arguments) {
  return {.holdOffDays = ParseWholeNumber(arguments.holdOff).value_or(0),
          .abstractionIn = ParseNumber(arguments.abstraction)};
}

ChartAxes ToChartAxes(const AxesArguments& arguments) {
  ChartAxes axes;
  SetAxis(arguments.VMax, arguments.VInterval, kLimitsOfV, axes.VMax, axes.VInterval);
  SetAxis(arguments.RMax, arguments.RInterval, kLimitsOfR, axes.RMax, axes.RInterval);
  return axes;
}

RainRecord ReadRain(const RainArguments& arguments) {
  const RainUnit unit = FindRainUnit(arguments.unit).value();
  return ReadRainRecord(arguments.file, unit, arguments.columns);
}

void WarnOfSuspectedCode(Console& console, const RainYears& years, const std::string& name) {
  const std::string warning = DescribeSuspectedCode(years);
  if (warning.empty()) return;
  PrintMessage(console, (name.empty() ? "" : name + ": ") + warning);
}

std::string SentenceOfRefusal() {
  try {
    throw;
  } catch (const AxesTooSmall& refusal) {
    return refusal.what() + Advice(refusal);
  } catch (const ImplausibleRain& refusal) {
    return refusal.what() + Advice(refusal);
  } catch (const Refusal& refusal) {
    return refusal.what();
  }
}

ExitCode RunWithMessages(Console& console, const std::function<ExitCode()>& work) {
  try {
    return work();
  } catch (const UsageError& error) {
    PrintMessage(console, error.what());
    return ExitCode::WrongUsage;
  } catch (const Refusal&) {
    PrintMessage(console, SentenceOfRefusal());
    return ExitCode::Refused;
  } catch (const FileError& error) {
    PrintMessage(console, error.what());
    return ExitCode::FileError;
  }
}

}  // namespace orvik
