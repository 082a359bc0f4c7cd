// Something is going on for as long as this lives.
#pragma once

#include <utility>

namespace orvik {

class FlagScope {
 public:
  explicit FlagScope(bool& flag) : flag_(flag), before_(std::exchange(flag, true)) {}
  FlagScope(const FlagScope&) = delete;
  FlagScope& operator=(const FlagScope&) = delete;
  ~FlagScope() { flag_ = before_; }

 private:
  bool& flag_;
  bool before_;
};

}  // namespace orvik
