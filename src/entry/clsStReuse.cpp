#include "entry/clsStReuse.h"

#include <stdexcept>

#include "base/Paths.h"
#include "entry/Form1.h"
#include "entry/ReuseModule.h"

namespace orvik {
namespace {

constexpr std::int16_t kSaved = 1;
constexpr std::int16_t kDiscarded = 0;
constexpr const char* kLineEnd = "\r\n";

// The window is unloaded however its showing ends.
class UnloadAtEnd {
 public:
  explicit UnloadAtEnd(ReuseModule& module) : module_(module) {}
  UnloadAtEnd(const UnloadAtEnd&) = delete;
  UnloadAtEnd& operator=(const UnloadAtEnd&) = delete;
  ~UnloadAtEnd() { module_.UnloadWindow(); }

 private:
  ReuseModule& module_;
};

// The host's project, handed over as text. Half a project must not pass for the host's, neither in
// the window nor in print: one that cannot be read to its end leaves cleared data.
void LoadProjectText(Form1& window, const std::string& text) {
  if (!window.Files().ReadFile(text)) window.Files().New();
}

// A file that is not there, or cannot be read, is said beside the window's messages: a box would
// come before the window.
void OpenNamedFile(Form1& window, const std::string& path) {
  if (FileExists(path) && window.Files().LoadFile(path)) return;
  window.Say({HintId::NamedFileNotOpened, {path}});
}

}  // namespace

clsStReuse::~clsStReuse() {
  module_.LetGoOfWindow(this);
}

std::int16_t clsStReuse::Show(std::int16_t Mode, std::string&, std::string& ParamString2,
                              std::string& ParamString3) {
  const ReuseModule::Use use(module_);
  const std::string startFolder = module_.Folders().module;
  const bool isLeftOver = module_.HasWindow();
  Form1& window = module_.Window();
  const UnloadAtEnd unload(module_);
  if (isLeftOver) window.Files().New();  // it holds the project that was printed
  window.Files().DefaultFolder(startFolder);
  window.Mode(Mode);
  Load(window, ParamString2, ParamString3);
  window.ReturnCode(kDiscarded);
  window.ShowModally();
  if (window.ReturnCode() != kSaved) return kDiscarded;
  std::string project;
  if (!window.Files().SaveText(project)) {
    throw std::runtime_error("The project cannot be written as text.");
  }
  ParamString3 = project;
  ParamString2 =
      window.ReuseRate() + kLineEnd + window.Efficiency() + kLineEnd + window.StorageVolume();
  return kSaved;
}

void clsStReuse::Load(Form1& window, const std::string& ParamString2,
                      const std::string& ParamString3) {
  if (window.Mode() == kStandAlone) {
    window.KeepRecoveryCopies(module_.Folders().recovery);
    if (!ParamString2.empty()) OpenNamedFile(window, ParamString2);
    return;
  }
  if (!ParamString3.empty()) LoadProjectText(window, ParamString3);
  const auto items = SplitLines(ParamString2);
  if (items.size() >= 2) window.TakeBasin(items[0], items[1]);
}

void clsStReuse::Print_Remote(Printer* printer, std::int16_t Mode, const std::string&,
                              const std::string& ParamString2) {
  const ReuseModule::Use use(module_);
  Form1& window = module_.Window();
  module_.HoldWindow(this);
  window.Mode(Mode);
  LoadProjectText(window, ParamString2);
  window.PrintOn(printer);
}

bool clsStReuse::MakeDirectory(std::string_view Path) {
  return orvik::MakeDirectory(Path);
}

std::vector<std::string> SplitLines(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const auto end = text.find_first_of(kLineEnd);
    lines.emplace_back(text.substr(0, end));
    if (end == std::string_view::npos) break;
    const bool isPair = text.substr(end, 2) == kLineEnd;
    text.remove_prefix(end + (isPair ? 2 : 1));
  }
  return lines;
}

}  // namespace orvik
