// An owned VARIANT.
#pragma once

#include <ole2.h>

namespace orvik::com {

class Variant {
 public:
  Variant() { ::VariantInit(&value_); }
  Variant(const Variant&) = delete;
  Variant& operator=(const Variant&) = delete;
  ~Variant() { ::VariantClear(&value_); }

  VARIANT* Get() { return &value_; }
  const VARIANT* Get() const { return &value_; }
  VARIANT* operator->() { return &value_; }
  const VARIANT* operator->() const { return &value_; }
  VARTYPE Type() const { return value_.vt; }

  // For out arguments: clears the present value and shows the empty place.
  VARIANT* Out() {
    ::VariantClear(&value_);
    return &value_;
  }

 private:
  VARIANT value_;
};

}  // namespace orvik::com
