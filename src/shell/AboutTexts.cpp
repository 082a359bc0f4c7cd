#include "shell/AboutTexts.h"

#include <array>

#include "base/BuildVersion.h"

namespace orvik::AboutText {
namespace {

struct Section {
  std::string_view heading;
  std::string_view text;
};

constexpr std::array kSections = {
    Section{"DESIGN CURVES",
            "The curves of the climate stations are computed by ORVIK from public daily rainfall: "
            "records of NOAA's cooperative observers and, for Gainesville after 1983, NOAA's daily "
            "summaries (United States government, public domain). KAV Data\\SOURCES.md lists the "
            "records. Where your authority has adopted curves, use those.\r\n"
            "The map shows the stations where NOAA's list of daily stations has them; its outline "
            "is simplified."},
    Section{
        "LICENCE (MIT)",
        "Permission is hereby granted, free of charge, to any person obtaining a copy of this "
        "software and associated documentation files (the \"Software\"), to deal in the Software "
        "without restriction, including without limitation the rights to use, copy, modify, "
        "merge, publish, distribute, sublicense, and/or sell copies of the Software, and to "
        "permit persons to whom the Software is furnished to do so, subject to the following "
        "conditions:\r\n"
        "The above copyright notice and this permission notice shall be included in all copies "
        "or substantial portions of the Software.\r\n"
        "THE SOFTWARE IS PROVIDED \"AS IS\", WITHOUT WARRANTY OF ANY KIND, EXPRESS OR IMPLIED, "
        "INCLUDING BUT NOT LIMITED TO THE WARRANTIES OF MERCHANTABILITY, FITNESS FOR A "
        "PARTICULAR PURPOSE AND NONINFRINGEMENT. IN NO EVENT SHALL THE AUTHORS OR COPYRIGHT "
        "HOLDERS BE LIABLE FOR ANY CLAIM, DAMAGES OR OTHER LIABILITY, WHETHER IN AN ACTION OF "
        "CONTRACT, TORT OR OTHERWISE, ARISING FROM, OUT OF OR IN CONNECTION WITH THE SOFTWARE OR "
        "THE USE OR OTHER DEALINGS IN THE SOFTWARE."},
    Section{"LINKED INTO THE PROGRAMS",
            "The C++ library and runtime of GCC (libstdc++, libgcc): GNU General Public License 3 "
            "with the GCC Runtime Library Exception 3.1.\r\n"
            "The runtime of mingw-w64, with winpthreads: public domain, Zope Public License 2.1, "
            "MIT, BSD and similar licences.\r\n"
            "The command line kav, besides: CLI11 (BSD licence) and JSON for Modern C++ (MIT "
            "licence).\r\n"
            "NOTICES.txt, which comes with the programs, has their terms."},
};

}  // namespace

std::string Version() {
  return "Version " + BuildVersionText();
}

std::string Details() {
  std::string text;
  for (const Section& section : kSections) {
    if (!text.empty()) text += "\r\n\r\n";
    text += section.heading;
    text += "\r\n";
    text += section.text;
  }
  return text;
}

}  // namespace orvik::AboutText
