// The main window for those who hear it: names, values and roles, asked from another thread as a
// screen reader asks them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "FormOnScreen.h"
#include "Listener.h"
#include "ParentWindow.h"
#include "shell/MainWindowTable.h"

namespace orvik {
namespace {

using test::ClientThread;
using test::FormOnScreen;
using test::Listener;

constexpr const char* kChart = "ctrlStormwaterReuse1";

// Basin 10 ac, C 0.5: EIA 5 ac. Storage 1.25 ac-ft: V = 1.25 x 12 / 5 = 3 in. Reuse 0.91 in/week
// over 5 ac: R = 5 x 0.91 / 5 / 7 = 0.13 in/day. E = 50 + 400 (0.13 + 0.05 ln 3 - 0.15) = 63.97225,
// in single precision 63.97224.
void TypeProject(FormOnScreen& form) {
  form.Choose("cmbSolveFor", "Efficiency");
  form.Choose("cmbClimateStation", "Tampa");
  form.Type("txtBasinArea", "10");
  form.Type("txtRunoffCoefficient", "0.5");
  form.Type("txtIrrigationArea", "5");
  form.Type("txtSolveFor(1)", "1.25");
  form.Type("txtSolveFor(2)", "0.91");
}

class MainWindowListeners : public testing::Test {
 protected:
  Listener Hear(std::string_view widget) const { return Listener(form_->Find(widget)); }
  void Open(std::int16_t mode, FormOnScreen::Work work = {}) {
    form_.emplace(mode, std::move(work));
  }

  ClientThread com_;
  std::optional<FormOnScreen> form_;
};

// --- The chart ---

TEST_F(MainWindowListeners, TheChartTellsItsStationAndItsPoint) {
  Open(1);
  const Listener chart = Hear(kChart);
  ASSERT_TRUE(chart);
  EXPECT_EQ(chart.Role(), ROLE_SYSTEM_CHART);
  EXPECT_EQ(chart.Name(), "Design chart");
  EXPECT_EQ(chart.Value(), "no climate station");
  EXPECT_EQ(chart.DefaultAction(), "");
  EXPECT_EQ(chart.Press(), DISP_E_MEMBERNOTFOUND);
  TypeProject(*form_);
  form_->Press({VK_RETURN, {}});
  ASSERT_TRUE(form_->UntilText("txtE", "63.97224"));
  EXPECT_EQ(chart.Name(), "Design chart of Tampa");
  EXPECT_EQ(chart.Value(), "R 0.13 in/day, V 3 in, E 63.97224 %");
}

TEST_F(MainWindowListeners, TheChartSaysThatItHasTheKeyboard) {
  Open(1);
  ::PostMessageW(form_->Window(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(form_->Find(kChart)),
                 TRUE);
  ASSERT_TRUE(form_->Until([this] { return form_->Focus() == kChart; }));
  const Listener chart = Hear(kChart);
  com::Variant state;
  EXPECT_EQ(chart.Object().get_accState(Listener::Self(), state.Out()), S_OK);
  EXPECT_EQ(state->lVal & (STATE_SYSTEM_FOCUSED | STATE_SYSTEM_UNAVAILABLE), STATE_SYSTEM_FOCUSED);
}

TEST_F(MainWindowListeners, TheWindowOfAnObjectIsTheControls) {
  Open(1);
  for (const char* widget : {kChart, "cmdReCalc"}) {
    HWND window = nullptr;
    EXPECT_EQ(::WindowFromAccessibleObject(&Hear(widget).Object(), &window), S_OK) << widget;
    EXPECT_EQ(window, form_->Find(widget)) << widget;
  }
}

TEST_F(MainWindowListeners, TheObjectLiesWhereItsControlLies) {
  Open(1);
  RECT outer{};
  ::GetWindowRect(form_->Find(kChart), &outer);
  long left = 0;
  long top = 0;
  long width = 0;
  long height = 0;
  EXPECT_EQ(Hear(kChart).Object().accLocation(&left, &top, &width, &height, Listener::Self()),
            S_OK);
  const RECT told{left, top, left + width, top + height};
  EXPECT_TRUE(::EqualRect(&told, &outer)) << left << "," << top << " " << width << "x" << height;
}

// --- Events ---

// The events of one window, in the order in which they were raised.
class Events {
 public:
  Events(HWND window, DWORD thread) : window_(window) {
    heard_ = this;
    hook_ = ::SetWinEventHook(EVENT_OBJECT_NAMECHANGE, EVENT_OBJECT_LIVEREGIONCHANGED, nullptr,
                              &Hear, 0, thread, WINEVENT_OUTOFCONTEXT);
  }
  Events(const Events&) = delete;
  Events& operator=(const Events&) = delete;
  ~Events() {
    ::UnhookWinEvent(hook_);
    heard_ = nullptr;
  }

  int Count(DWORD event) const { return static_cast<int>(std::ranges::count(events_, event)); }

 private:
  static void CALLBACK Hear(HWINEVENTHOOK, DWORD event, HWND window, LONG object, LONG child, DWORD,
                            DWORD) {
    if (!heard_ || window != heard_->window_) return;
    if (object == OBJID_CLIENT && child == CHILDID_SELF) heard_->events_.push_back(event);
  }

  static inline Events* heard_ = nullptr;  // the system's call has no place for it
  HWND window_;
  HWINEVENTHOOK hook_ = nullptr;
  std::vector<DWORD> events_;
};

TEST_F(MainWindowListeners, AChangeOfTheChartIsHeard) {
  Open(1);
  const Events events(form_->Find(kChart), form_->Thread());
  const auto until = [&](DWORD event, int count) {
    return form_->Until([&] {
      test::HandleMessages();
      return events.Count(event) >= count;
    });
  };
  TypeProject(*form_);
  EXPECT_TRUE(until(EVENT_OBJECT_NAMECHANGE, 1)) << "the station";
  EXPECT_TRUE(until(EVENT_OBJECT_VALUECHANGE, 1)) << "no design point";
  const int before = events.Count(EVENT_OBJECT_VALUECHANGE);
  form_->Press({VK_RETURN, {}});
  EXPECT_TRUE(until(EVENT_OBJECT_VALUECHANGE, before + 1)) << "the design point";
  EXPECT_EQ(events.Count(EVENT_OBJECT_NAMECHANGE), 1);
}

// --- What is said beside the messages ---

TEST_F(MainWindowListeners, AHintIsAnnouncedWhereverTheKeyboardIs) {
  Open(1);
  const Events events(form_->Find("txtHint"), form_->Thread());
  form_->Choose("cmbClimateStation", "Tampa");
  form_->Type("txtBasinArea", "10");
  form_->Press({VK_RETURN, {}});
  const std::string hint = "Still needed for a result: Runoff coefficient, Irrigation area.";
  ASSERT_TRUE(form_->UntilText("txtHint", hint));
  EXPECT_TRUE(form_->Until([&] {
    test::HandleMessages();
    return events.Count(EVENT_OBJECT_LIVEREGIONCHANGED) > 0;
  }));
  EXPECT_EQ(Hear("txtHint").Name(), "Hint");
  EXPECT_EQ(Hear("txtHint").Value(), hint);
  EXPECT_EQ(form_->Focus(), "txtBasinArea");
}

// Wine keeps no descriptions; that there is another one can be heard.
TEST_F(MainWindowListeners, AResultOutOfDateIsHeard) {
  Open(1);
  TypeProject(*form_);
  form_->Press({VK_RETURN, {}});
  ASSERT_TRUE(form_->UntilText("txtE", "63.97224"));
  const Events events(form_->Find("txtE"), form_->Thread());
  form_->Type("txtSolveFor(2)", "1.05");
  EXPECT_TRUE(form_->Until([&] {
    test::HandleMessages();
    return events.Count(EVENT_OBJECT_DESCRIPTIONCHANGE) > 0;
  }));
}

// --- Buttons ---

TEST_F(MainWindowListeners, ButtonsAreButtonsWithNameKeyAndPress) {
  Open(2);
  for (const auto& [widget, name, key] : {std::tuple{"cmdReCalc", "Recalculate", "c"},
                                          std::tuple{"cmdSaveExit", "Save and exit", "S"},
                                          std::tuple{"cmdDiscardExit", "Discard and exit", "x"}}) {
    const Listener button = Hear(widget);
    ASSERT_TRUE(button) << widget;
    EXPECT_EQ(button.Role(), ROLE_SYSTEM_PUSHBUTTON) << widget;
    EXPECT_EQ(button.Name(), name);
    EXPECT_EQ(button.Value(), "") << widget;
    EXPECT_EQ(button.Shortcut(), std::string("Alt+") + key) << widget;
    EXPECT_EQ(button.DefaultAction(), "Press") << widget;
  }
}

// What was typed last is in no result yet; it must be in those that are saved.
TEST_F(MainWindowListeners, APressCountsTheFieldThatWasTypedInto) {
  std::string efficiency;
  Open(2, {{}, [&](Form1& form) { efficiency = form.Efficiency(); }});
  TypeProject(*form_);
  form_->Press({VK_RETURN, {}});
  ASSERT_TRUE(form_->UntilText("txtE", "63.97224"));
  form_->Type("txtSolveFor(2)", "1.05");
  EXPECT_EQ(form_->Text("txtE"), "63.97224");
  const Listener save = Hear("cmdSaveExit");  // let go of after the thread of the window has ended
  EXPECT_EQ(save.Press(), S_OK);
  EXPECT_EQ(form_->Leave(), 1);
  // R = 1.05 / 7 = 0.15: E = 50 + 400 x 0.05 ln 3 = 71.97225.
  EXPECT_NEAR(std::stod(efficiency), 71.97225, 1e-4);
}

TEST_F(MainWindowListeners, BehindAMessageBoxNothingCanBePressed) {
  Open(2);
  const Listener save = Hear("cmdSaveExit");
  form_->CloseByFrame();
  ASSERT_TRUE(form_->Until([this] { return form_->Dialog() != nullptr; }));
  EXPECT_EQ(save.Press(), E_ACCESSDENIED);
  form_->AnswerDialog(IDNO);
  EXPECT_EQ(form_->Leave(), 0);
}

TEST_F(MainWindowListeners, OnAHiddenPageNothingCanBePressed) {
  Open(1);
  EXPECT_EQ(Hear("cmdToday").Press(), E_ACCESSDENIED);
  form_->Press({'1', {VK_CONTROL}});
  ASSERT_TRUE(form_->Until([this] { return form_->IsVisible("cmdToday"); }));
  EXPECT_EQ(Hear("cmdToday").Press(), S_OK);
  EXPECT_TRUE(form_->Until([this] { return !form_->Text("txtDate").empty(); }));
}

// --- After the window ---

TEST_F(MainWindowListeners, ObjectsKeptLongerThanTheWindowFail) {
  Open(2);
  const Listener chart = Hear(kChart);
  const Listener button = Hear("cmdSaveExit");
  EXPECT_EQ(chart.Name(), "Design chart");
  form_->Click("cmdDiscardExit");
  EXPECT_EQ(form_->Leave(), 0);
  com::Bstr name;
  EXPECT_TRUE(FAILED(chart.Object().get_accName(Listener::Self(), name.Out())));
  EXPECT_TRUE(FAILED(button.Press()));
  EXPECT_EQ(button.Role(), -1);
}

// --- Fields ---

std::string WithoutMnemonic(std::string text) {
  std::erase(text, '&');
  return text;
}

// A list has no name of its own in every implementation of the system; it takes the text before it.
std::string NameOfList(HWND list) {
  const HWND label = ::GetWindow(list, GW_HWNDPREV);
  const bool isLabel = (::SendMessageW(label, WM_GETDLGCODE, 0, 0) & DLGC_STATIC) != 0;
  return isLabel && ::IsWindowVisible(label) ? WithoutMnemonic(test::TextOf(label)) : std::string();
}

TEST_F(MainWindowListeners, EveryFieldIsNamedByItsLabel) {
  Open(1);
  const auto hear = [this](const FieldRow& row) {
    const std::string label = WithoutMnemonic(form_->Text(row.label.name));
    const bool isList = row.field.starts_with("cmb");
    EXPECT_NE(label, "") << row.field;
    EXPECT_EQ(isList ? NameOfList(form_->Find(row.field)) : Hear(row.field).Name(), label)
        << row.field;
  };
  for (const FieldGroup& group : DataGroups()) std::ranges::for_each(group.rows, hear);
  hear(MessageRow());
  form_->Press({'1', {VK_CONTROL}});
  ASSERT_TRUE(form_->Until([this] { return form_->IsVisible("txtProjectName"); }));
  std::ranges::for_each(ProjectRows(), hear);
}

}  // namespace
}  // namespace orvik
