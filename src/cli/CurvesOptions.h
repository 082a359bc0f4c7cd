// What the commands below "kav curves" share.
#pragma once

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

#include "cli/Command.h"
#include "rain/RainRecord.h"

namespace orvik {

struct ChartAxes;
struct PondOptions;
struct RainYears;

CommandRun AddCurvesMakeCommand(CLI::App& curves);
CommandRun AddCurvesMakeAllCommand(CLI::App& curves);
CommandRun AddCurvesCheckCommand(CLI::App& curves);

// The daily water balance in a few lines, for --help.
extern const std::string_view kBalanceDefinition;

// For options that must not be blank: what is wrong with the text, or empty.
std::string ValidateNotBlank(const std::string& text);

// Options as the user typed them; empty where not given.
struct PondArguments {
  std::string holdOff;
  std::string abstraction;
};
struct AxesArguments {
  std::string VMax;
  std::string VInterval;
  std::string RMax;
  std::string RInterval;
};
struct RainArguments {
  std::string file;
  std::string unit;
  RainColumns columns;
};

void AddPondOptions(CLI::App& command, PondArguments& arguments);
void AddAxesOptions(CLI::App& command, AxesArguments& arguments);
void AddRainOptions(CLI::App& command, RainArguments& arguments, bool required);

PondOptions ToPondOptions(const PondArguments& arguments);
// Throws UsageError where the axes cannot have round numbers.
ChartAxes ToChartAxes(const AxesArguments& arguments);
// Reads the record that the arguments name; throws FileError.
RainRecord ReadRain(const RainArguments& arguments);

// Prints a warning where the record's largest depth looks like a code for a missing value. `name`
// is that of the record where there are several.
void WarnOfSuspectedCode(Console& console, const RainYears& years, const std::string& name = {});

// Options that contradict each other; what() is the sentence for the user.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The sentence of the Refusal that is being handled, with the options that would help.
std::string SentenceOfRefusal();

// Runs the command's work; refusals and errors become a message and an exit code.
ExitCode RunWithMessages(Console& console, const std::function<ExitCode()>& work);

}  // namespace orvik
