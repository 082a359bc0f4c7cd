// StReuse.exe: opens the window of the StReuse.dll that lies beside it, on the project file that is
// named on the command line.
#include <StReuse.h>
#include <shellapi.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "entry/com/Bstr.h"
#include "entry/com/ComError.h"
#include "entry/com/Module.h"
#include "platform/win32/ComPtr.h"

namespace {

using namespace orvik::com;
using orvik::ComPtr;

constexpr const wchar_t* kTitle = L"Error";
constexpr short kStandAlone = 1;

void ShowError(const std::wstring& text) {
  ::MessageBoxW(nullptr, text.c_str(), kTitle, MB_OK | MB_ICONEXCLAMATION);
}

class ComApartment {
 public:
  ComApartment() { Check(::OleInitialize(nullptr), "Windows cannot start COM."); }
  ComApartment(const ComApartment&) = delete;
  ComApartment& operator=(const ComApartment&) = delete;
  ~ComApartment() { ::OleUninitialize(); }
};

// What the user named, without the program itself.
std::vector<std::wstring> Arguments() {
  int count = 0;
  const std::unique_ptr<LPWSTR, decltype(&::LocalFree)> values(
      ::CommandLineToArgvW(::GetCommandLineW(), &count), &::LocalFree);
  std::vector<std::wstring> arguments;
  for (int i = 1; values && i < count; ++i) arguments.emplace_back(values.get()[i]);
  return arguments;
}

// The library stays loaded to the end of the process: its objects do.
ComPtr<IClassFactory> FindFactory(const std::filesystem::path& library) {
  const HMODULE module = ::LoadLibraryExW(library.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
  if (!module) {
    throw ComError(HRESULT_FROM_WIN32(::GetLastError()),
                   "StReuse.dll cannot be loaded. It belongs beside StReuse.exe.");
  }
  using GetClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
  const auto getClassObject = reinterpret_cast<GetClassObject>(
      reinterpret_cast<void*>(::GetProcAddress(module, "DllGetClassObject")));
  if (!getClassObject) throw ComError(E_FAIL, "StReuse.dll is damaged: it makes no classes.");
  ComPtr<IClassFactory> factory;
  Check(getClassObject(__uuidof(clsStReuse), IID_IClassFactory, factory.OutVoid()),
        "StReuse.dll does not know its own window.");
  return factory;
}

// The full path of the file, whether or not there is one: the window says so.
std::wstring ProjectPath(const std::vector<std::wstring>& arguments) {
  if (arguments.empty()) return {};
  std::error_code error;
  const auto path = std::filesystem::absolute(arguments.front(), error);
  return error ? arguments.front() : path.wstring();
}

void OpenWindow() {
  const ComApartment apartment;
  const auto factory =
      FindFactory(std::filesystem::path(ModulePath()).parent_path() / "StReuse.dll");
  ComPtr<IclsStReuse> entry;
  Check(factory->CreateInstance(nullptr, __uuidof(IclsStReuse), entry.OutVoid()),
        "The window cannot be made.");
  Bstr own(std::wstring_view{});
  Bstr file(ProjectPath(Arguments()));
  Bstr project(std::wstring_view{});
  BSTR texts[] = {own.Release(), file.Release(), project.Release()};
  short saved = 0;
  const HRESULT result = entry->Show(kStandAlone, &texts[0], &texts[1], &texts[2], &saved);
  for (BSTR text : texts) ::SysFreeString(text);
  Check(result, "The window cannot be shown.");
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
  try {
    OpenWindow();
    return 0;
  } catch (const std::exception& error) {
    ShowError(WideFromUtf8(error.what()));
    return 1;
  }
}
