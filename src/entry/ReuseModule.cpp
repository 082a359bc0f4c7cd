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

ReuseModule::ReuseModule(std::string applicationFolder, Desktop& desktop, MakeToolkit makeToolkit,
                         WatchThread watchThread)
    : applicationFolder_(WithEndingSeparator(std::move(applicationFolder))),
      desktop_(desktop),
      makeToolkit_(std::move(makeToolkit)),
      watchThread_(std::move(watchThread)) {}

ReuseModule::~ReuseModule() = default;

// --- Who may work with the window ---

ReuseModule::Use::Use(ReuseModule& module) : module_(module) {
  const auto abandoned = module_.Admit();  // goes after the guard
}

ReuseModule::Use::~Use() {
  const std::lock_guard guard(module_.useGuard_);
  module_.use_.reset();
}

// Answers the window that a thread has left behind, which the system has destroyed with it.
std::unique_ptr<ReuseModule::LoadedWindow> ReuseModule::Admit() {
  const std::lock_guard guard(useGuard_);
  if (use_ && use_->isRunning()) throw WindowBusyError();
  std::unique_ptr<LoadedWindow> abandoned;
  if (window_ && !windowThread_.IsThisOne()) {
    if (windowThread_.isRunning()) throw WindowThreadError();
    abandoned = std::move(window_);
    holders_.clear();
  }
  use_ = WatchThisThread();
  return abandoned;
}

ReuseModule::WatchedThread ReuseModule::WatchThisThread() const {
  return {std::this_thread::get_id(), watchThread_()};
}

void ReuseModule::UnloadWindow() {
  window_.reset();
  holders_.clear();
}

void ReuseModule::HoldWindow(Holder holder) {
  const std::lock_guard guard(useGuard_);
  holders_.insert(holder);
}

void ReuseModule::LetGoOfWindow(Holder holder) {
  std::unique_ptr<LoadedWindow> idle;  // goes after the guard
  const std::lock_guard guard(useGuard_);
  holders_.erase(holder);
  const bool isIdle = holders_.empty() && !use_;
  if (isIdle && window_ && windowThread_.IsThisOne()) idle = std::move(window_);
}

// --- What is loaded ---

const ModuleFolders& ReuseModule::Folders() {
  if (!folders_) folders_ = SettleFolders(applicationFolder_, desktop_);
  return *folders_;
}

Form1& ReuseModule::Window() {
  if (!window_) {
    window_ = std::make_unique<LoadedWindow>(makeToolkit_(), desktop_, applicationFolder_);
    windowThread_ = WatchThisThread();
  }
  return window_->form;
}

}  // namespace orvik
