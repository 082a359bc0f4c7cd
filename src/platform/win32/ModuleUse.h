// Whether something still needs the module that this code was linked into.
#pragma once

#include <atomic>

namespace orvik {

// What keeps a library loaded: living objects and locks by clients. One count for the module, since
// the system asks for the module as a whole.
class ModuleUse {
 public:
  static void Add() { ++count_; }
  static void Remove() { --count_; }
  static bool IsFree() { return count_ == 0; }

 private:
  static inline std::atomic<long> count_ = 0;
};

// Keeps the library loaded while it lives. Each object that clients hold has one.
class ModuleHold {
 public:
  ModuleHold() { ModuleUse::Add(); }
  ModuleHold(const ModuleHold&) = delete;
  ModuleHold& operator=(const ModuleHold&) = delete;
  ~ModuleHold() { ModuleUse::Remove(); }
};

}  // namespace orvik
