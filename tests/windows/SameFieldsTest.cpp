// The window with its real controls and the command line agree on every field of a project.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <nlohmann/json.hpp>
#include <random>

#include "base/NumberText.h"
#include "design/Fields.h"
#include "engine/ClimateStations.h"
#include "entry/Form1.h"
#include "platform/win32/NativeDesktop.h"
#include "platform/win32/NativeToolkit.h"
#include "support/KavRun.h"
#include "support/ProjectText.h"
#include "support/SampleProjects.h"
#include "support/TempFolder.h"

namespace orvik {
namespace {

constexpr const char* kDataFolder = "./";  // of the build

class SameFields : public testing::Test {
 protected:
  // Opens the project in the window and with kav calc.
  void ExpectSame(const std::string& path) {
    form_.Files().LoadFile(path);
    const auto run = test::RunKavWith({"calc", path, "--json"}, kDataFolder);
    const auto fields = nlohmann::json::parse(run.out);
    for (const auto& [name, value] : fields.items()) {
      if (name == "helpTopic" || name == "hints") continue;
      EXPECT_EQ(InWindow(name), value.get<std::string>()) << name << " of " << path;
    }
    EXPECT_EQ(form_.Fields().txtErrMsg.ExtendedHelpTopic(), fields["helpTopic"]);
    std::vector<std::string> said;
    for (const Hint& hint : form_.Hints()) said.push_back(Sentence(hint));
    EXPECT_THAT(fields["hints"].get<std::vector<std::string>>(),
                testing::UnorderedElementsAreArray(said))
        << path;
  }

  std::string InWindow(const std::string& name) {
    ProjectForm& form = form_.Fields();
    for (const FieldDesign& field : Fields()) {
      if (field.control == name) return form.Box(field.id).Text();
    }
    const std::map<std::string, std::function<std::string()>> others{
        {"cmbClimateStation", [&] { return Chosen(*form.cmbClimateStation); }},
        {"cmbSolveFor", [&] { return Chosen(*form.cmbSolveFor); }},
        {"txtErrMsg", [&] { return form.txtErrMsg.Text(); }},
        {"ReuseRate", [&] { return form_.ReuseRate(); }}};
    return others.at(name)();
  }

  static std::string Chosen(const ComboBox& list) { return list.List(list.ListIndex()); }

  test::TempFolder folder_;
  NativeToolkit toolkit_{::GetModuleHandleW(nullptr)};
  NativeDesktop desktop_{::GetModuleHandleW(nullptr)};
  Form1 form_{toolkit_, desktop_, kDataFolder};
};

TEST_F(SameFields, OfEverySample) {
  for (const auto& sample : test::SampleProjects()) ExpectSame("samples/" + sample.file);
}

// Good numbers, bad ones and none; every mode and every station.
class RandomProject {
 public:
  explicit RandomProject(unsigned seed) : random_(seed) {}

  std::string Text() {
    const unsigned mode = Below(4);
    auto lines = test::ProjectLines(std::to_string(mode), Tail(mode));
    lines[test::kProjectNameLine] = "Pond é ñ ° 中 " + std::to_string(Below(1000));
    lines[test::kStationLine] = std::to_string(Below(static_cast<unsigned>(NumRainfallStations())));
    lines[test::kBasinAreaLine] = Number(5, 20);
    lines[test::kBasinAreaLine + 1] = Number(0.3, 0.9);
    lines[test::kBasinAreaLine + 2] = Number(2, 20);
    return test::ProjectText(lines);
  }

 private:
  unsigned Below(unsigned limit) { return static_cast<unsigned>(random_()) % limit; }

  std::string Number(double low, double high) {
    static const char* const kOthers[] = {"", "0", "-1", "abc", "1E10", " 5 ", ".5"};
    if (Below(20) == 0) return kOthers[Below(7)];
    return ConvertToString(static_cast<float>(low + Below(1000) / 1000.0 * (high - low)));
  }

  std::vector<std::string> Tail(unsigned mode) {
    if (mode == 0) return {"1", Number(0.05, 0.3), Number(1.5, 6)};
    const std::string E = Number(58, 88);
    const std::string S = Number(1.5, 4);
    const std::string Q = Number(0.6, 2);
    if (mode == 1) return {S, Q};
    return mode == 2 ? std::vector{E, Q} : std::vector{E, S};
  }

  std::mt19937 random_;
};

TEST_F(SameFields, OfTwoHundredRandomProjects) {
  int solved = 0;
  for (unsigned seed = 0; seed < 200; ++seed) {
    RandomProject project(seed);
    ExpectSame(folder_.Write("random.kav", project.Text()));
    if (!form_.Fields().txtSolveFor(3).Text().empty()) ++solved;
  }
  EXPECT_GT(solved, 60) << "most of the comparison would be empty";
}

}  // namespace
}  // namespace orvik
