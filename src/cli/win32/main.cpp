// kav on Windows: the arguments come in UTF-16, and the console is switched to UTF-8 for our text.
#include <io.h>
#include <windows.h>

#include <exception>
#include <filesystem>
#include <iostream>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/Paths.h"
#include "cli/Kav.h"

namespace {

// Nothing for half a character (a lone surrogate), which names of files may have here.
std::optional<std::string> ToUtf8(const std::filesystem::path& text) {
  try {
    return orvik::PathToUtf8(text);
  } catch (const std::exception&) {
    return std::nullopt;
  }
}

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
  return orvik::WithEndingSeparator(ToUtf8(std::filesystem::path(path).parent_path()).value_or(""));
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
  ::SetConsoleOutputCP(CP_UTF8);
  orvik::Console console{std::cout, std::cerr, _isatty(_fileno(stderr)) != 0, ProgramFolder()};
  std::vector<std::string> arguments;
  for (int i = 1; i < argc; ++i) {
    auto argument = ToUtf8(argv[i]);
    if (!argument) {
      orvik::PrintMessage(console, "Argument " + std::to_string(i) +
                                       " is not valid Unicode text: it has half a character.");
      return static_cast<int>(orvik::ExitCode::WrongUsage);
    }
    arguments.push_back(*std::move(argument));
  }
  return orvik::RunKavAndFlush(arguments, console);
}
