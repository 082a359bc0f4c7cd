#include "entry/ReuseModule.h"

#include <utility>

#include "base/Paths.h"
#include "entry/Form1.h"
#include "platform/Toolkit.h"

namespace orvik {

struct ReuseModule::LoadedWindow {
  LoadedWindow(std::unique_ptr<Toolkit> standsOn, Desktop& desktop, const std::string& dataFolder)
      : toolkit(std::move(standsOn)), form(*toolkit, desktop, dataFolder) {}

  std::unique_ptr<Toolkit> toolkit;
  Form1 form;
};

ReuseModule::ReuseModule(std::string applicationFolder, Desktop& desktop, MakeToolkit makeToolkit)
    : applicationFolder_(WithEndingSeparator(std::move(applicationFolder))),
      desktop_(desktop),
      makeToolkit_(std::move(makeToolkit)) {}

ReuseModule::~ReuseModule() = default;

ReuseModule::Use::Use(ReuseModule& module) : module_(module) {
  const std::lock_guard guard(module_.useGuard_);
  if (module_.isInUse_) throw WindowBusyError();
  if (module_.window_ && module_.windowThread_ != std::this_thread::get_id()) {
    throw WindowThreadError();
  }
  module_.isInUse_ = true;
}

ReuseModule::Use::~Use() {
  const std::lock_guard guard(module_.useGuard_);
  module_.isInUse_ = false;
}

void ReuseModule::UnloadWindow() {
  window_.reset();
}

void ReuseModule::UnloadIdleWindow() {
  std::unique_ptr<LoadedWindow> idle;  // goes after the guard
  const std::lock_guard guard(useGuard_);
  if (!isInUse_ && windowThread_ == std::this_thread::get_id()) idle = std::move(window_);
}

const ModuleFolders& ReuseModule::Folders() {
  if (!folders_) folders_ = SettleFolders(applicationFolder_, desktop_);
  return *folders_;
}

Form1& ReuseModule::Window() {
  if (!window_) {
    window_ = std::make_unique<LoadedWindow>(makeToolkit_(), desktop_, applicationFolder_);
    windowThread_ = std::this_thread::get_id();
  }
  return window_->form;
}

}  // namespace orvik
