// The library as a module of a host's process: where it lies, and whether something still needs it.
#pragma once

#include <windows.h>

#include <atomic>
#include <string>

namespace orvik::com {

// What keeps the library loaded: living objects and locks by clients. One count for the module,
// since DllCanUnloadNow asks for the module as a whole.
class ModuleUse {
 public:
  static void Add() { ++count_; }
  static void Remove() { --count_; }
  static bool IsFree() { return count_ == 0; }

 private:
  static inline std::atomic<long> count_ = 0;
};

// Keeps the library loaded while it lives. Each object has one.
class ModuleHold {
 public:
  ModuleHold() { ModuleUse::Add(); }
  ModuleHold(const ModuleHold&) = delete;
  ModuleHold& operator=(const ModuleHold&) = delete;
  ~ModuleHold() { ModuleUse::Remove(); }
};

// The full path of the module that this code was linked into.
std::wstring ModulePath();

}  // namespace orvik::com
