// The entry object: how a host opens the module's window on its project and gets the work back.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orvik {

class Form1;
class Printer;
class ReuseModule;

class clsStReuse {
 public:
  explicit clsStReuse(ReuseModule& module) : module_(module) {}
  clsStReuse(const clsStReuse&) = delete;
  clsStReuse& operator=(const clsStReuse&) = delete;
  ~clsStReuse();  // lets go of the window that it printed from

  // Opens the window and waits until the user leaves it. 1 where the user chose to save, else 0.
  //   Mode          1 = stand-alone, 2 = from within a host's project
  //   ParamString1  the host's own
  //   ParamString2  in, Mode 1: the project file to open, if it exists; otherwise lines with the
  //                 basin area (acres) and the runoff coefficient. Out, where saved: three lines
  //                 with the reuse rate (gallons per day), the efficiency (percent) and the storage
  //                 volume (acre-feet)
  //   ParamString3  in, other modes than 1: the project as text. Out, where saved: likewise
  // Where the user did not save, the texts stay as they were. Throws WindowBusyError while the
  // window is open.
  std::int16_t Show(std::int16_t Mode, std::string& ParamString1, std::string& ParamString2,
                    std::string& ParamString3);

  // Prints the report of the project text ParamString2 and shows no window; `printer` is null where
  // none can be reached, which is told. A text that cannot be read to its end is told too, and the
  // report is that of cleared data; so is that of an empty text. Takes Mode and ParamString1 as
  // Show does. The window stays loaded and hidden. Throws WindowBusyError while the window is open.
  void Print_Remote(Printer* printer, std::int16_t Mode, const std::string& ParamString1,
                    const std::string& ParamString2);

  // Makes one folder. False where it is there already or cannot be made.
  bool MakeDirectory(std::string_view Path);

 private:
  void Load(Form1& window, const std::string& ParamString2, const std::string& ParamString3);

  ReuseModule& module_;
};

// The lines of a text; they end at CR LF, a lone CR or a lone LF. The end of the last line begins
// no other.
std::vector<std::string> SplitLines(std::string_view text);

}  // namespace orvik
