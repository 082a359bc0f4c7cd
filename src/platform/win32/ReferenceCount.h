// How many references to an object there are. It is born with one, its creator's.
#pragma once

#include <atomic>

namespace orvik {

class ReferenceCount {
 public:
  unsigned long Add() { return ++count_; }
  unsigned long Remove() { return --count_; }

 private:
  std::atomic<unsigned long> count_ = 1;
};

}  // namespace orvik
