// A counted reference to a COM object.
#pragma once

#include <unknwn.h>

#include <utility>

namespace orvik {

template <class Interface>
class ComPtr {
 public:
  ComPtr() = default;
  // Shares `pointer`, which may be null.
  explicit ComPtr(Interface* pointer) : pointer_(pointer) {
    if (pointer_) pointer_->AddRef();
  }
  ComPtr(const ComPtr& other) : ComPtr(other.pointer_) {}
  ComPtr(ComPtr&& other) noexcept : pointer_(std::exchange(other.pointer_, nullptr)) {}
  ComPtr& operator=(ComPtr other) noexcept {
    std::swap(pointer_, other.pointer_);
    return *this;
  }
  ~ComPtr() { Reset(); }

  // Takes over a reference that the caller owns.
  static ComPtr Adopt(Interface* pointer) {
    ComPtr adopted;
    adopted.pointer_ = pointer;
    return adopted;
  }

  void Reset() {
    if (Interface* const released = std::exchange(pointer_, nullptr)) released->Release();
  }

  Interface* Get() const { return pointer_; }
  Interface* operator->() const { return pointer_; }
  explicit operator bool() const { return pointer_ != nullptr; }

  // For out arguments: releases the present object and returns the address of the empty pointer.
  Interface** Out() {
    Reset();
    return &pointer_;
  }
  void** OutVoid() { return reinterpret_cast<void**>(Out()); }

 private:
  Interface* pointer_ = nullptr;
};

}  // namespace orvik
