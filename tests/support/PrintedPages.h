// What a recording printer's calls put on paper: the texts of each page and where they stand.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

#include "platform/recording/RecordingSurface.h"

namespace orvik::test {

struct PrintedText {
  std::string text;
  std::string font;  // "Arial 46 bold"
  Area area;
};

using PrintedPage = std::vector<PrintedText>;

// Widths as the recording surface measures them: half the height for each character, and one pixel
// more in bold.
inline PrintedText ParseTextCall(const std::string& call) {
  int x = 0;
  int y = 0;
  std::sscanf(call.c_str(), "text %d,%d", &x, &y);
  const std::size_t begin = call.find('"') + 1;
  const std::size_t end = call.rfind('"');
  PrintedText printed{call.substr(begin, end - begin), call.substr(end + 2), {}};
  printed.font = printed.font.substr(0, printed.font.find(" colour"));
  Font font;
  std::sscanf(printed.font.c_str(), "Arial %d", &font.pixelHeight);
  font.bold = printed.font.find(" bold") != std::string::npos;
  RecordingSurface surface;
  const Size size = surface.MeasureText(printed.text, font);
  const bool upwards = printed.font.find("angle 900") != std::string::npos;
  printed.area = upwards ? Area{x, y - size.width, x + size.height, y}
                         : Area{x, y, x + size.width, y + size.height};
  return printed;
}

inline std::vector<PrintedPage> PrintedPages(const std::vector<std::string>& calls) {
  std::vector<PrintedPage> pages(1);
  for (const std::string& call : calls) {
    if (call == "new page") pages.emplace_back();
    if (call.starts_with("text ")) pages.back().push_back(ParseTextCall(call));
  }
  return pages;
}

// The texts of all pages in their order.
inline std::vector<std::string> TextsOf(const std::vector<PrintedPage>& pages) {
  std::vector<std::string> texts;
  for (const PrintedPage& page : pages) {
    for (const PrintedText& printed : page) texts.push_back(printed.text);
  }
  return texts;
}

}  // namespace orvik::test
