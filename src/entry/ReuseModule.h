// What lives as long as the module is loaded: its folders and its one main window.
#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
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
// threads are refused, not crashed on. A thread that has ended takes its window with it: the next
// thread that calls gets a new one.
class ReuseModule {
 public:
  // Makes the toolkit that a main window stands on; asked anew for each window.
  using MakeToolkit = std::function<std::unique_ptr<Toolkit>()>;

  // Whether the thread that was watched still runs.
  using IsRunning = std::function<bool()>;
  // Begins to watch the thread that calls it.
  using WatchThread = std::function<IsRunning()>;

  // `applicationFolder` holds the module's own file, with "KAV Data" beside it.
  ReuseModule(std::string applicationFolder, Desktop& desktop, MakeToolkit makeToolkit,
              WatchThread watchThread);
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

  // A report was printed from the window: it stays loaded until everyone who printed lets go. The
  // last one to let go unloads a window that no operation works with, if this thread may.
  using Holder = const void*;
  void HoldWindow(Holder holder);
  void LetGoOfWindow(Holder holder);

 private:
  struct LoadedWindow;

  // A thread, known for as long as it runs: its number may be given to another one afterwards.
  struct WatchedThread {
    std::thread::id id;
    IsRunning isRunning;

    bool IsThisOne() const { return id == std::this_thread::get_id() && isRunning(); }
  };

  WatchedThread WatchThisThread() const;
  std::unique_ptr<LoadedWindow> Admit();

  std::string applicationFolder_;
  Desktop& desktop_;
  MakeToolkit makeToolkit_;
  std::optional<ModuleFolders> folders_;
  WatchThread watchThread_;
  std::unique_ptr<LoadedWindow> window_;
  WatchedThread windowThread_;        // that made it
  std::optional<WatchedThread> use_;  // the thread of the operation that works with the window
  std::set<Holder> holders_;
  std::mutex useGuard_;  // for the four above while it is decided who may work with them
};

}  // namespace orvik
