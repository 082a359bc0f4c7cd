// What a drawn control asks of the window that shows it.
#pragma once

namespace orvik {

class Surface;

class Host {
 public:
  Host() = default;
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;
  virtual ~Host() = default;

  // Paint the whole of me again soon, not before this call returns.
  virtual void Invalidate() = 0;

  virtual void CaptureMouse() = 0;
  virtual void ReleaseMouse() = 0;

  // The control's own surface, for drawing outside a paint (transient marks). Null while nothing is
  // shown.
  virtual Surface* DrawNow() = 0;
};

}  // namespace orvik
