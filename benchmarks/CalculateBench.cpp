// A whole calculation of a project on loaded curves, from values to values and texts, beside the
// same calculation through the widgets of the form.
#include <benchmark/benchmark.h>

#include "design/Calculate.h"
#include "engine/CurveLoading.h"
#include "entry/Form1.h"
#include "platform/headless/HeadlessDesktop.h"
#include "platform/headless/HeadlessToolkit.h"

namespace orvik {
namespace {

constexpr std::int16_t kTampa = 23;

struct Given {
  SolveFor mode;
  const char* first;
  const char* second;
};

constexpr Given kEfficiency{SolveFor::Efficiency, "2.6", "1.6"};
constexpr Given kStorageVolume{SolveFor::StorageVolume, "72", "1.6"};
constexpr Given kReuseRate{SolveFor::ReuseRate, "82", "2.5"};

FramedCurves TampasCurves() {
  const LoadedCurves loaded = LoadStationCurves(CurveFolderBelow(ORVIK_DATA), kTampa);
  const PlotGeometry geometry = ReferenceGeometry(*loaded.curves);
  return {loaded.curves, geometry};
}

Project ProjectWith(const Given& given) {
  Project project;
  project.Text(Field::BasinArea) = "18.4";
  project.Text(Field::RunoffCoefficient) = "0.62";
  project.Text(Field::IrrigationArea) = "7.5";
  project.Text(Field::SolveFor1) = given.first;
  project.Text(Field::SolveFor2) = given.second;
  project.station = kTampa - 1;
  project.Mode(given.mode);
  return project;
}

void BM_Calculate(benchmark::State& state, const Given& given) {
  const FramedCurves curves = TampasCurves();
  const Project project = ProjectWith(given);
  for ([[maybe_unused]] const auto _ : state) {
    Result result = Calculate(project, &curves);
    if (!result.messages.empty()) state.SkipWithError("not solved");
    benchmark::DoNotOptimize(result);
  }
}

void BM_ThroughTheForm(benchmark::State& state, const Given& given) {
  HeadlessToolkit toolkit;
  HeadlessDesktop desktop;
  Form1 form(toolkit, desktop, ORVIK_DATA);
  const Project project = ProjectWith(given);
  ProjectForm& fields = form.Fields();
  fields.cmbClimateStation->ListIndex(project.station);
  fields.cmbSolveFor->ListIndex(IndexOf(given.mode));
  for (const FieldDesign& field : Fields()) fields.Box(field.id).Text(project.Text(field.id));
  FormBinding binding(fields, form.Chart());
  SolveForWorkflow workflow(fields, form.Chart(), binding);
  for ([[maybe_unused]] const auto _ : state) workflow.ReCalc();
  if (!fields.txtErrMsg.Text().empty()) state.SkipWithError("not solved");
}

BENCHMARK_CAPTURE(BM_Calculate, Efficiency, kEfficiency);
BENCHMARK_CAPTURE(BM_ThroughTheForm, Efficiency, kEfficiency);
BENCHMARK_CAPTURE(BM_Calculate, StorageVolume, kStorageVolume);
BENCHMARK_CAPTURE(BM_ThroughTheForm, StorageVolume, kStorageVolume);
BENCHMARK_CAPTURE(BM_Calculate, ReuseRate, kReuseRate);
BENCHMARK_CAPTURE(BM_ThroughTheForm, ReuseRate, kReuseRate);

}  // namespace
}  // namespace orvik
