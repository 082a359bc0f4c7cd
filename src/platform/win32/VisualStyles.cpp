#include "platform/win32/VisualStyles.h"

namespace orvik {
namespace {

HANDLE ContextOf(HINSTANCE module) {
  constexpr int kManifest = 2;  // the number of a library's own manifest
  ACTCTXW description{};
  description.cbSize = sizeof description;
  description.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID | ACTCTX_FLAG_HMODULE_VALID;
  description.hModule = module;
  description.lpResourceName = MAKEINTRESOURCEW(kManifest);
  return ::CreateActCtxW(&description);
}

}  // namespace

VisualStyles::VisualStyles(HINSTANCE module) : context_(ContextOf(module)) {
  if (context_ != INVALID_HANDLE_VALUE) ::ActivateActCtx(context_, &cookie_);
}

VisualStyles::~VisualStyles() {
  if (context_ == INVALID_HANDLE_VALUE) return;
  if (cookie_ != 0) ::DeactivateActCtx(0, cookie_);
  ::ReleaseActCtx(context_);
}

}  // namespace orvik
