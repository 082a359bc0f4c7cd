// A host program that needs no registration: its manifest names the assembly StReuse.X, so Windows
// takes the classes from the StReuse.dll beside the program (with StReuse.X.manifest, and the
// folders "KAV Data" and "Help"). Opens the stormwater harvesting window on a project. Where the
// user saves, the project goes back to its file and the results are printed.
//   registration_free_host PROJECT.kav
#include <StReuse.h>
#include <windows.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace {

constexpr short kInHostProject = 2;

void Check(HRESULT result, const char* what) {
  if (FAILED(result)) throw std::runtime_error(what);
}

std::wstring ReadProject(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("The project cannot be read.");
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  std::wstring text(bytes.size(), L'\0');
  const int size = static_cast<int>(bytes.size());
  text.resize(static_cast<std::size_t>(
      MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, bytes.data(), size, text.data(), size)));
  if (text.empty()) throw std::runtime_error("The project is no text in UTF-8.");
  return text;
}

std::string Utf8(const std::wstring& text) {
  std::string bytes(text.size() * 3, '\0');
  bytes.resize(static_cast<std::size_t>(
      WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), bytes.data(),
                          static_cast<int>(bytes.size()), nullptr, nullptr)));
  return bytes;
}

// The text of a BSTR, which is freed.
std::wstring Take(BSTR text) {
  const std::wstring copy(text ? text : L"", SysStringLen(text));
  SysFreeString(text);
  return copy;
}

// True if the user saved: `project` and `results` are then what came back.
bool ShowWindow(std::wstring& project, std::wstring& results) {
  CLSID clsid{};
  Check(CLSIDFromProgID(L"StReuse.clsStReuse", &clsid), "The manifest does not name the module.");
  IclsStReuse* module = nullptr;
  Check(CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, __uuidof(IclsStReuse),
                         reinterpret_cast<void**>(&module)),
        "StReuse.dll cannot be used.");
  BSTR own = nullptr;
  BSTR lines = nullptr;
  BSTR text = SysAllocStringLen(project.data(), static_cast<UINT>(project.size()));
  short saved = 0;
  const HRESULT shown = module->Show(kInHostProject, &own, &lines, &text, &saved);
  module->Release();
  SysFreeString(own);
  results = Take(lines);
  project = Take(text);
  Check(shown, "The window cannot be shown.");
  return saved == 1;
}

int Run(const std::filesystem::path& path) {
  std::wstring project = ReadProject(path);
  std::wstring results;
  if (!ShowWindow(project, results)) {
    std::puts("Nothing was saved.");
    return 1;
  }
  std::ofstream file(path, std::ios::binary);
  file << Utf8(project);
  if (!file.flush()) throw std::runtime_error("The project cannot be written.");
  std::printf("Reuse rate (gal/day), efficiency (%%), storage volume (ac-ft):\n%s\n",
              Utf8(results).c_str());
  return 0;
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  if (count != 2) {
    std::puts("usage: registration_free_host PROJECT.kav");
    return 2;
  }
  if (FAILED(OleInitialize(nullptr))) return 3;
  int code = 3;
  try {
    code = Run(arguments[1]);
  } catch (const std::exception& error) {
    std::puts(error.what());
  }
  OleUninitialize();
  return code;
}
