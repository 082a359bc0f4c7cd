// kav on systems whose arguments are in UTF-8.
#include <unistd.h>

#include <filesystem>
#include <iostream>

#include "base/Paths.h"
#include "cli/Kav.h"

namespace {

std::string ProgramFolder() {
  std::error_code error;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
  if (error) return {};
  return orvik::WithEndingSeparator(orvik::PathToUtf8(program.parent_path()));
}

}  // namespace

int main(int argc, char** argv) {
  orvik::Console console{std::cout, std::cerr, isatty(STDERR_FILENO) != 0, ProgramFolder()};
  return orvik::RunKavAndFlush(std::vector<std::string>(argv + (argc > 0 ? 1 : 0), argv + argc),
                               console);
}
