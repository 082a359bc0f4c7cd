// kav on Windows: the arguments come in UTF-16, and the console is switched to UTF-8 for our text.
#include <io.h>
#include <windows.h>

#include <filesystem>
#include <iostream>

#include "base/Paths.h"
#include "cli/Kav.h"

namespace {

std::string ProgramFolder() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length =
        ::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    if (length == 0) return {};
    if (length < path.size()) {
      path.resize(length);
      break;
    }
    path.resize(path.size() * 2);
  }
  return orvik::WithEndingSeparator(orvik::PathToUtf8(std::filesystem::path(path).parent_path()));
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
  ::SetConsoleOutputCP(CP_UTF8);
  std::vector<std::string> arguments;
  for (int i = 1; i < argc; ++i) arguments.push_back(orvik::PathToUtf8(argv[i]));
  orvik::Console console{std::cout, std::cerr, _isatty(_fileno(stderr)) != 0, ProgramFolder()};
  return orvik::RunKavAndFlush(arguments, console);
}
