// What lives as long as the module is loaded: its folders and its one main window.
#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <string>
#include <thread>

#include "entry/ModuleFolders.h"

namespace orvik {

class Desktop;
class Form1;
class Toolkit;

// The module's window is open already; a host cannot open it twice.
class WindowBusyError : public std::runtime_error {
 public:
  WindowBusyError() : std::runtime_error("The stormwater harvesting window is already open.") {}
};

// A window works on the thread that made it, and cannot be brought to another one.
class WindowThreadError : public std::runtime_error {
 public:
  WindowThreadError()
      : std::runtime_error("The stormwater harvesting window belongs to another thread.") {}
};

// One for each loaded module. Its window is worked with on the thread that made it; calls of other
// threads are refused, not crashed on.
class ReuseModule {
 public:
  // Makes the toolkit that a main window stands on; asked anew for each window.
  using MakeToolkit = std::function<std::unique_ptr<Toolkit>()>;

  // `applicationFolder` holds the module's own file, with "KAV Data" beside it.
  ReuseModule(std::string applicationFolder, Desktop& desktop, MakeToolkit makeToolkit);
  ReuseModule(const ReuseModule&) = delete;
  ReuseModule& operator=(const ReuseModule&) = delete;
  ~ReuseModule();

  // An operation works with the window while this lives. Throws WindowBusyError while another one
  // does (the window's own messages can bring a host to call again), and WindowThreadError where
  // the window was made by another thread.
  class Use {
   public:
    explicit Use(ReuseModule& module);
    Use(const Use&) = delete;
    Use& operator=(const Use&) = delete;
    ~Use();

   private:
    ReuseModule& module_;
  };

  // The first call settles them.
  const ModuleFolders& Folders();

  // The main window, made on first use.
  Form1& Window();
  bool HasWindow() const { return window_ != nullptr; }
  void UnloadWindow();

  // Unloads a window that no operation works with, if this thread may.
  void UnloadIdleWindow();

 private:
  struct LoadedWindow;

  std::string applicationFolder_;
  Desktop& desktop_;
  MakeToolkit makeToolkit_;
  std::optional<ModuleFolders> folders_;
  std::unique_ptr<LoadedWindow> window_;
  std::thread::id windowThread_;
  bool isInUse_ = false;
  std::mutex useGuard_;  // for the three above while it is decided who may work with them
};

}  // namespace orvik
