// The accessible object of a drawn control, asked on the thread of its window.
#include <gtest/gtest.h>

#include <stdexcept>

#include "HostToolkit.h"
#include "Listener.h"
#include "ParentWindow.h"
#include "platform/win32/ModuleUse.h"

namespace orvik {
namespace {

using test::ClientThread;
using test::Listener;

class ControlAccessibleTest : public testing::Test {
 protected:
  void SetUp() override {
    host_->Move(10, 20, 120, 80);
    host_->ReadAloud = [this] { return spoken_; };
  }
  HWND Window() const { return host_->Handle(); }

  ClientThread com_{COINIT_APARTMENTTHREADED};
  test::ParentWindow parent_;
  Spoken spoken_{"Save && e&xit", "3 in"};
  std::unique_ptr<NativeControlHost> host_ =
      std::make_unique<NativeControlHost>(::GetModuleHandleW(nullptr), parent_.Handle());
};

TEST_F(ControlAccessibleTest, TellsWhatTheControlTells) {
  const Listener control(Window());
  ASSERT_TRUE(control);
  EXPECT_EQ(control.Name(), "Save & exit");
  EXPECT_EQ(control.Value(), "3 in");
  EXPECT_EQ(control.Role(), ROLE_SYSTEM_CHART);
  host_->OnMnemonic = [] {};
  EXPECT_EQ(control.Role(), ROLE_SYSTEM_PUSHBUTTON);
  EXPECT_EQ(control.DefaultAction(), "Press");
}

TEST_F(ControlAccessibleTest, WhatItHasNotIsNoTextAndNoFailure) {
  spoken_ = {};
  const Listener control(Window());
  com::Bstr text;
  EXPECT_EQ(control.Object().get_accName(Listener::Self(), text.Out()), S_FALSE);
  EXPECT_EQ(text.Get(), nullptr);
  EXPECT_EQ(control.Object().get_accValue(Listener::Self(), text.Out()), S_FALSE);
  host_->ReadAloud = nullptr;
  EXPECT_EQ(control.Object().get_accName(Listener::Self(), text.Out()), S_FALSE);
}

TEST_F(ControlAccessibleTest, ThereIsNothingInsideIt) {
  const Listener control(Window());
  VARIANT part = Listener::Self();
  part.lVal = 1;
  com::Bstr text;
  com::Variant value;
  EXPECT_EQ(control.Object().get_accName(part, text.Out()), E_INVALIDARG);
  EXPECT_EQ(control.Object().get_accValue(part, text.Out()), E_INVALIDARG);
  EXPECT_EQ(control.Object().get_accRole(part, value.Out()), E_INVALIDARG);
  EXPECT_EQ(control.Object().accDoDefaultAction(part), E_INVALIDARG);
  part.vt = VT_EMPTY;
  EXPECT_EQ(control.Object().get_accName(part, text.Out()), E_INVALIDARG);
  long children = -1;
  EXPECT_EQ(control.Object().get_accChildCount(&children), S_OK);
  EXPECT_EQ(children, 0);
}

TEST_F(ControlAccessibleTest, APlaceForTheAnswerIsNeeded) {
  const Listener control(Window());
  EXPECT_EQ(control.Object().get_accName(Listener::Self(), nullptr), E_POINTER);
  EXPECT_EQ(control.Object().get_accRole(Listener::Self(), nullptr), E_POINTER);
  EXPECT_EQ(control.Object().QueryInterface(IID_IUnknown, nullptr), E_POINTER);
}

TEST_F(ControlAccessibleTest, NothingIsThrownThroughIt) {
  const Listener control(Window());
  com::Bstr text;
  host_->ReadAloud = []() -> Spoken { throw std::runtime_error("No curves"); };
  EXPECT_EQ(control.Object().get_accName(Listener::Self(), text.Out()), E_FAIL);
  host_->ReadAloud = []() -> Spoken { throw std::bad_alloc(); };
  EXPECT_EQ(control.Object().get_accValue(Listener::Self(), text.Out()), E_OUTOFMEMORY);
  EXPECT_EQ(text.Get(), nullptr);
  host_->ReadAloud = nullptr;
}

TEST_F(ControlAccessibleTest, LateBoundClientsHearTheSame) {
  const Listener control(Window());
  VARIANT self = Listener::Self();
  DISPPARAMS parameters{&self, nullptr, 1, 0};
  com::Variant name;
  EXPECT_EQ(
      control.Object().Invoke(DISPID_ACC_NAME, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET,
                              &parameters, name.Out(), nullptr, nullptr),
      S_OK);
  ASSERT_EQ(name.Type(), VT_BSTR);
  EXPECT_EQ(com::Utf8FromBstr(name->bstrVal), "Save & exit");
}

TEST_F(ControlAccessibleTest, APressIsDoneOnceTheCallerHasItsAnswer) {
  int pressed = 0;
  host_->OnMnemonic = [&] { ++pressed; };
  const Listener control(Window());
  EXPECT_EQ(control.Press(), S_OK);
  EXPECT_EQ(pressed, 0);
  test::HandleMessages();
  EXPECT_EQ(pressed, 1);
  EXPECT_EQ(::GetFocus(), Window());
  host_->Enabled(false);
  EXPECT_EQ(control.Press(), E_ACCESSDENIED);
  test::HandleMessages();
  EXPECT_EQ(pressed, 1);
}

TEST_F(ControlAccessibleTest, OfOneControlThereIsOneObject) {
  const Listener first(Window());
  const Listener second(Window());
  EXPECT_EQ(&first.Object(), &second.Object());
}

// --- Life ---

void ExpectNotConnected(const Listener& control) {
  com::Bstr text;
  com::Variant value;
  long number = 0;
  ComPtr<IDispatch> parent;
  IAccessible& object = control.Object();
  const VARIANT self = Listener::Self();
  EXPECT_EQ(object.get_accName(self, text.Out()), CO_E_OBJNOTCONNECTED);
  EXPECT_EQ(object.get_accValue(self, text.Out()), CO_E_OBJNOTCONNECTED);
  EXPECT_EQ(object.get_accDefaultAction(self, text.Out()), CO_E_OBJNOTCONNECTED);
  EXPECT_EQ(object.get_accRole(self, value.Out()), CO_E_OBJNOTCONNECTED);
  EXPECT_EQ(object.get_accState(self, value.Out()), CO_E_OBJNOTCONNECTED);
  EXPECT_EQ(object.get_accParent(parent.Out()), CO_E_OBJNOTCONNECTED);
  EXPECT_EQ(object.accLocation(&number, &number, &number, &number, self), CO_E_OBJNOTCONNECTED);
  EXPECT_EQ(object.accDoDefaultAction(self), CO_E_OBJNOTCONNECTED);
  HWND window = nullptr;
  ComPtr<IOleWindow> place;
  ASSERT_EQ(object.QueryInterface(IID_IOleWindow, place.OutVoid()), S_OK);
  EXPECT_EQ(place->GetWindow(&window), CO_E_OBJNOTCONNECTED);
}

TEST_F(ControlAccessibleTest, KeptLongerThanItsControlItSaysSo) {
  const Listener control(Window());
  host_.reset();
  ExpectNotConnected(control);
}

TEST_F(ControlAccessibleTest, KeptLongerThanTheWindowOfItsControlItSaysSo) {
  const Listener control(Window());
  parent_.Destroy();
  ExpectNotConnected(control);
}

TEST_F(ControlAccessibleTest, TheModuleIsNeededWhileAnObjectOfItIsKept) {
  const bool wasFree = ModuleUse::IsFree();
  Listener control(Window());
  EXPECT_FALSE(ModuleUse::IsFree());
  host_.reset();
  EXPECT_FALSE(ModuleUse::IsFree());
  control.LetGo();
  EXPECT_TRUE(wasFree);
  EXPECT_TRUE(ModuleUse::IsFree());
}

// Who asks and never fetches the answer leaves a reference of the system behind.
TEST_F(ControlAccessibleTest, AnAnswerThatNobodyFetchesKeepsNothing) {
  EXPECT_NE(::SendMessageW(Window(), WM_GETOBJECT, 0, OBJID_CLIENT), 0);
  host_.reset();
  EXPECT_TRUE(ModuleUse::IsFree());
}

TEST_F(ControlAccessibleTest, OtherObjectsOfTheWindowAreTheSystems) {
  EXPECT_EQ(::SendMessageW(Window(), WM_GETOBJECT, 0, OBJID_WINDOW), 0);
  EXPECT_EQ(::SendMessageW(Window(), WM_GETOBJECT, 0, OBJID_CARET), 0);
}

}  // namespace
}  // namespace orvik
