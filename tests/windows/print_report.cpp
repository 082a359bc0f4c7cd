// Prints the report of a project as the Print command of the window does: on the default printer,
// or at a resolution of the print server's queue.
//   print_report PROJECT.kav DATA-FOLDER [DPI]
#include <cstdio>
#include <cstdlib>

#include "QueueDc.h"
#include "base/Paths.h"
#include "entry/Form1.h"
#include "platform/headless/HeadlessToolkit.h"
#include "platform/win32/GdiPrinter.h"
#include "support/AnsweringDesktop.h"

int main(int argc, char** argv) {
  if (argc < 3) return 2;
  orvik::HeadlessToolkit toolkit;
  orvik::test::AnsweringDesktop desktop;
  desktop.Now({{2026, 4, 17}, 9, 30, 0});
  orvik::Form1 window(toolkit, desktop, orvik::WithEndingSeparator(argv[2]));
  if (!window.Files().OpenProject(argv[1])) return 3;
  const orvik::test::QueueDc queue(argc > 3 ? static_cast<short>(std::atoi(argv[3])) : short{300});
  desktop.AnswerPrinter(orvik::MakeGdiPrinter(argc > 3 ? orvik::PrinterDc::Borrow(queue.Get())
                                                       : orvik::PrinterDc::OpenDefault()));
  window.PrintCurrentProject();
  for (const auto& message : desktop.Messages()) std::printf("%s\n", message.text.c_str());
  return desktop.Messages().empty() ? 0 : 1;
}
