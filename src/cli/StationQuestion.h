// A station and the quantities that are known, as options of a command.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "cli/Command.h"
#include "engine/FramedCurves.h"

namespace orvik {

struct DesignPoint;
struct LoadedCurves;

// What the user gave; a quantity that was not given is empty.
struct Question {
  std::string station;
  std::string R;
  std::string V;
  std::string E;
};

// The options --rate, --volume and --efficiency.
void AddQuestionOptions(CLI::App& command, Question& question);

int CountGiven(const Question& question);

// Finds the third quantity from the two that are given, and fills it in. The design point; where
// there is no answer, its message says why.
DesignPoint Solve(const FramedCurves& curves, Question& question);

// The curves of a station that the user named.
struct StationAnswer {
  ExitCode exitCode = ExitCode::Done;  // other than Done: the reason has been printed
  std::int16_t station = 0;
  std::string name;  // as the table of stations has it
  std::optional<FramedCurves> curves;
};

StationAnswer LoadStation(Console& console, const std::string& dataFolder, const std::string& name);

// Prints why the curves of the station of this number were not loaded.
void PrintWhyNotLoaded(Console& console, const LoadedCurves& loaded, std::int16_t station);

// The sentence for a curve file that exists but cannot be used; `file` is its beginning.
std::string SentenceOfDamage(const std::string& file, const LoadedCurves& loaded);

// Prints that the curves of this station led to a numeric fault.
ExitCode RefuseCurves(Console& console, const std::string& station);

}  // namespace orvik
