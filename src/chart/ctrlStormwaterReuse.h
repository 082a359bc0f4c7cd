// The design chart control: the curves of one climate station, the design point (the hotspot) on
// them, and the chart that shows both.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "chart/ChartState.h"
#include "chart/HotspotInput.h"
#include "chart/ScreenMarks.h"
#include "design/Hints.h"
#include "platform/Surface.h"

namespace orvik {

class Host;
class Printer;
enum class LoadOutcome : std::uint8_t;
struct ChartScene;

// R: normalized reuse rate, inches per day on the EIA. V: normalized storage volume, inches on the
// EIA. E: efficiency, percent.
//
// Operations that can fail answer False and leave the reason in ErrMsg and the number of the help
// topic in HelpTopicIndex. Numeric faults of unusable curve files (curves that meet, samples beyond
// 16-bit pixels) are thrown as NumericError, except by the answers to mouse and keys: there the
// efficiency is undefined.
class ctrlStormwaterReuse {
 public:
  // `defaultDataFolder` holds the folder "KAV Data" where DesignDataDirectory names no other; it
  // ends with a path separator.
  explicit ctrlStormwaterReuse(std::string defaultDataFolder);
  ctrlStormwaterReuse(const ctrlStormwaterReuse&) = delete;
  ctrlStormwaterReuse& operator=(const ctrlStormwaterReuse&) = delete;
  ~ctrlStormwaterReuse() = default;

  // The window that shows the control, null for none. It outlives the control or is taken away
  // before it goes.
  void AttachHost(Host* host) { marks_.AttachHost(host); }

  // --- Climate station and curves ---

  // Loads the curves of the station of this number (SubscriptError where there is none), or clears
  // them (0). Whoever asked tells the user what went wrong.
  LoadOutcome SetCurveData(std::int16_t StationIndex);

  // What is to be said of the curves that were loaded last, or why none were.
  const std::vector<Hint>& LoadHints() const { return loadHints_; }

  // The folder of the curve files, with a path separator at its end; empty means the default.
  const std::string& DesignDataDirectory() const { return designDataDirectory_; }
  void DesignDataDirectory(std::string folder) { designDataDirectory_ = std::move(folder); }

  // The folder that curve files are read from: that one, or the default.
  std::string CurveFolder() const;

  bool IsLoaded() const { return state_.curves.has_value(); }
  std::int16_t StationIndex() const { return stationIndex_; }
  const std::string& StationName() const { return stationName_; }

  // The loaded curves. Not to be read while IsLoaded is false.
  const CurveSet& Curves() const { return state_.curves->Curves(); }

  // The curves in the chart's frame, as design questions are asked of them; null while none are
  // loaded.
  const FramedCurves* InFrame() const { return state_.Loaded(); }

  // The limits of the loaded file: V on X, R on Y. No value while nothing is loaded.
  std::optional<double> MinX() const;
  std::optional<double> MaxX() const;
  std::optional<double> MinY() const;
  std::optional<double> MaxY() const;

  // Marks the curves as not loaded, empties ErrMsg and HelpTopicIndex, hides the hotspot.
  void Clear();

  // --- Geometry ---

  // Lays the chart out in a control of this many pixels and places a visible hotspot again from its
  // V and R.
  void Resize(int width, int height);

  Size ControlSize() const { return size_; }
  const FrameLayout& Layout() const { return layout_; }
  // Of the curves in their frame; without an extent while nothing is loaded.
  const PlotGeometry& Geometry() const;

  // --- Solving ---

  // Each places the hotspot from two known quantities, given as text (numeric prefix, else 0), and
  // writes the third to the last argument, which is emptied first.
  bool SetHotspotUsing_RV(std::string_view R, std::string_view V, std::string& E);
  bool SetHotspotUsing_ER(std::string_view E, std::string_view R, std::string& V);
  bool SetHotspotUsing_EV(std::string_view E, std::string_view V, std::string& R);

  std::string ErrMsg() const { return Sentence(state_.point.message); }
  std::int16_t HelpTopicIndex() const { return HelpTopic(state_.point.message.id); }

  // --- Hotspot ---

  // The design point as a whole, with what came of the last question about it.
  const DesignPoint& Point() const { return state_.point; }
  void Point(DesignPoint point);

  // Lets the work change the point: work(DesignPoint&, const FramedCurves*); its answer.
  template <typename Work>
  auto ChangePoint(Work&& work) {
    Refresh();
    return std::forward<Work>(work)(state_.point, InFrame());
  }

  bool HotSpotVisibile() const { return state_.point.isShown; }
  void HideHotSpot();

  // The hotspot's values in single precision; 0 and False while it is hidden (E: also while it is
  // undefined there).
  bool GetR(float& R) const;
  bool GetV(float& V) const;
  bool GetE(float& E) const;

  // --- Painting ---

  // Paints the whole control: paper, background, and below the border, while curves are loaded and
  // UserMode is True, the chart with its hotspot.
  void Paint(Surface& surface) const;

  // The same for the screen, where a highlight goes with it.
  void PaintScreen(Surface& surface);

  // Has the whole control painted again soon.
  void Refresh() { marks_.Repaint(); }

  // True while the control works for a user; False where a host only lays it out, which shows no
  // chart. True at first.
  bool UserMode() const { return userMode_; }
  void UserMode(bool on);

  // Lies under the chart while InteractiveMode is False, from the upper left corner on, unscaled.
  void BackgroundPicture(std::optional<Picture> picture);

  // --- Printing ---

  // See chart/ChartPrinting. Nothing is printed where no curves are loaded.
  void PrintDesignChart(Printer& printer, std::int16_t Left, std::int16_t Top, std::int16_t Right,
                        std::int16_t Bottom) const;

  // --- Mouse and keys ---

  // True: the mouse places the hotspot.
  bool InteractiveMode() const { return input_.InteractiveMode(); }
  void InteractiveMode(bool on);

  // True during a drag.
  bool MouseCaptured() const { return input_.MouseCaptured(); }

  // What the window's messages say. Button 1 is the left one; x and y are pixels of the control,
  // and any value is allowed. Arrow keys (37...40) move a visible hotspot by a pixel; the Space bar
  // (32) shows the curve through it while it is held; Esc (27) ends a drag and puts everything back
  // as it was before, which is a change too.
  void MouseDown(std::int16_t button, double x, double y) { input_.MouseDown(button, x, y); }
  void MouseMove(double x, double y) { input_.MouseMove(x, y); }
  void MouseUp() { input_.MouseUp(); }
  void CaptureLost() { input_.CaptureLost(); }  // the system took the mouse away: ends a drag, once
  void KeyDown(std::int16_t keyCode) { input_.KeyDown(keyCode); }
  void KeyUp(std::int16_t keyCode) { input_.KeyUp(keyCode); }
  // Whether KeyDown would heed it now.
  bool WantsKey(std::int16_t keyCode) const { return input_.WantsKey(keyCode); }
  void GotFocus() { input_.GotFocus(); }
  void LostFocus() { input_.LostFocus(); }
  bool HasFocus() const { return input_.HasFocus(); }

 private:
  void LayOut(std::shared_ptr<const CurveSet> curves);
  void Unload();
  ChartScene Scene() const;

  std::string defaultDataFolder_;
  std::string designDataDirectory_;
  std::int16_t stationIndex_ = 0;  // 0: none
  std::string stationName_;
  std::vector<Hint> loadHints_;
  Size size_{kReferenceWidth, kReferenceHeight};
  FrameLayout layout_;
  ChartState state_;
  ScreenMarks marks_;
  HotspotInput input_{state_, marks_};
  bool userMode_ = true;
  std::optional<Picture> backgroundPicture_;

 public:
  // --- Events ---

  std::function<void()>& OnChange = input_.OnChange;  // the user placed or moved the hotspot
  std::function<void()>& OnMousePressed = input_.OnMousePressed;    // a drag has begun
  std::function<void()>& OnMouseReleased = input_.OnMouseReleased;  // the drag has ended
};

}  // namespace orvik
