// Takes pictures of the windows, for people to look at (scripts/look-at-windows).
//   window_pictures DATA-FOLDER PICTURE-FOLDER      both with a separator at their end
#include <ole2.h>

#include <cstdio>
#include <exception>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "FormOnScreen.h"
#include "Listener.h"
#include "ScaledWindow.h"
#include "base/Paths.h"
#include "shell/AboutDesign.h"
#include "shell/ClimateStationsDesign.h"
#include "shell/frmClimateStations.h"

namespace orvik {
namespace {

using test::ComeToScaling;
using test::FormOnScreen;
using test::FormUser;
using test::WaitUntilPainted;

struct Camera {
  std::string data;
  std::string pictures;

  void Take(const FormUser& user, const std::string& name) const {
    WaitUntilPainted(user);
    test::Screenshot(user.Window(), pictures + name + ".png");
    std::printf("%s.png\n", name.c_str());
  }
};

std::string Percent(int dpi) {
  return std::to_string(dpi * 100 / 96);
}

void Require(bool isSo, const char* what) {
  if (!isSo) throw std::runtime_error(what);
}

FormOnScreen::Work Opened(const Camera& camera, const std::string& sample) {
  return {[&camera, sample](Form1& form) {
            form.Chart().DesignDataDirectory(camera.data + "KAV Data/");
            form.Files().LoadFile(camera.data + "samples/" + sample + ".kav");
          },
          {}};
}

// Both pages at three scalings.
void TakeMainWindow(const Camera& camera, const std::string& sample) {
  FormOnScreen form(sample == "efficiency" ? 2 : 1, Opened(camera, sample));
  const struct {
    int dpi;
    SIZE size;
  } rows[] = {{96, {1140, 700}}, {144, {1700, 1040}}, {192, {2280, 1390}}};
  for (const auto& row : rows) {
    ComeToScaling(form.Window(), row.dpi, row.size);
    for (const std::string page : {"Project", "Data"}) {
      form.ClickMenu("mnu" + page);
      Require(form.Until([&] { return form.IsVisible("pic" + page); }), "The page does not turn.");
      camera.Take(form, sample + "-" + page + "-" + Percent(row.dpi));
    }
  }
}

void TakeSmallestWithAFault(const Camera& camera) {
  FormOnScreen form(2, Opened(camera, "reuse-rate"));
  ComeToScaling(form.Window(), 96, {900, 600});
  form.Type("txtRunoffCoefficient", "1.2");
  form.Press({VK_RETURN, {}});
  Require(form.UntilText("txtErrMsg", "The runoff coefficient must be between 0 and 1."),
          "The fault is not shown.");
  camera.Take(form, "small-fault");
}

// A result out of date beside what is missing, at the usual size and at twice that.
void TakeHintAndMarks(const Camera& camera) {
  FormOnScreen form(1, Opened(camera, "efficiency"));
  const auto take = [&](int dpi, SIZE size, const std::string& name) {
    ComeToScaling(form.Window(), dpi, size);
    camera.Take(form, name + "-" + Percent(dpi));
  };
  form.Type("txtBasinArea", "30");
  take(96, {1140, 760}, "out-of-date");
  form.Type("txtIrrigationArea", "ten");
  form.Type("txtSolveFor(1)", "");
  form.Press({VK_RETURN, {}});
  Require(form.Until([&] { return !form.Text("txtHint").empty(); }), "There is no hint.");
  take(96, {1140, 760}, "hint");
  take(96, {900, 600}, "hint-small");
  take(192, {2280, 1500}, "hint");
}

// A small window at two scalings.
void TakeSmallWindow(const Camera& camera, const FormUser& user, const std::string& name) {
  RECT outer{};
  ::GetWindowRect(user.Window(), &outer);
  for (const int dpi : {96, 144}) {
    ComeToScaling(user.Window(), dpi,
                  {(outer.right - outer.left) * dpi / 96, (outer.bottom - outer.top) * dpi / 96});
    camera.Take(user, name + "-" + Percent(dpi));
  }
}

void TakeMapAndAboutBox(const Camera& camera) {
  FormOnScreen form(1);
  std::filesystem::create_directories(PathFromUtf8(form.Folder() / "Help"));
  std::filesystem::copy_file(PathFromUtf8(StationMapPath(camera.data)),
                             PathFromUtf8(StationMapPath(form.Folder().Path())));
  form.Click("cmdMap");
  FormUser map = form.WaitForWindow("Climate stations", ClimateStationsDesign::Get());
  TakeSmallWindow(camera, map, "map");
  ComeToScaling(map.Window(), 96, {820, 740});
  const std::string fitted = map.Text("ctrlPictureViewer1");
  map.TurnWheel("ctrlPictureViewer1", {560, 420}, 5);
  Require(map.Until([&] { return map.Text("ctrlPictureViewer1") != fitted; }),
          "The map does not grow.");
  map.Press({VK_RIGHT, {}});
  camera.Take(map, "map-zoomed");
  map.Press({VK_ESCAPE, {}});
  Require(form.UntilBack(), "The map does not close.");
  form.ClickMenu("mnuHelp_About");
  TakeSmallWindow(camera, form.WaitForWindow("About this module", AboutDesign::Get()), "about");
}

void TakeAll(const Camera& camera) {
  const test::ClientThread com;
  std::filesystem::create_directories(PathFromUtf8(camera.pictures));
  for (const char* sample : {"efficiency", "storage-volume", "reuse-rate", "interactive"}) {
    TakeMainWindow(camera, sample);
  }
  TakeSmallestWithAFault(camera);
  TakeHintAndMarks(camera);
  TakeMapAndAboutBox(camera);
}

}  // namespace
}  // namespace orvik

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  try {
    orvik::TakeAll({argv[1], argv[2]});
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
