#include <gtest/gtest.h>

#include <cmath>

#include "controls/PictureView.h"

namespace orvik {
namespace {

// A picture of 200 x 100 in a window of 100 x 100: fitted it is half as large, 50 pixels high, with
// 25 above and below it.
PictureView WideInSquare() {
  PictureView view;
  view.PictureSize({200, 100});
  view.WindowSize({100, 100});
  return view;
}

// The point of the picture that lies under a point of the window.
double PictureX(const PictureView& view, double x) {
  return (x - view.Place().left) / view.Zoom();
}
double PictureY(const PictureView& view, double y) {
  return (y - view.Place().top) / view.Zoom();
}

// --- Fitting ---

TEST(PictureView, AFittedPictureIsAsLargeAsTheWindowHasRoomAndInItsMiddle) {
  const PictureView view = WideInSquare();
  EXPECT_TRUE(view.IsFitted());
  EXPECT_EQ(view.Zoom(), 0.5);
  EXPECT_EQ(view.Place(), (Area{0, 25, 100, 75}));
}

TEST(PictureView, ASmallPictureIsFittedByEnlargingUpToTheMost) {
  PictureView view;
  view.PictureSize({40, 20});
  view.WindowSize({120, 100});
  EXPECT_EQ(view.Zoom(), 3);
  EXPECT_EQ(view.Place(), (Area{0, 20, 120, 80}));
  view.PictureSize({10, 10});
  EXPECT_EQ(view.Zoom(), PictureView::kMostZoom);
  EXPECT_EQ(view.Place(), (Area{20, 10, 100, 90}));
  EXPECT_TRUE(view.IsFitted());
}

TEST(PictureView, AFittedPictureIsFittedAnewInAnotherWindow) {
  PictureView view = WideInSquare();
  view.WindowSize({400, 100});
  EXPECT_EQ(view.Zoom(), 1);
  EXPECT_EQ(view.Place(), (Area{100, 0, 300, 100}));
  EXPECT_TRUE(view.IsFitted());
}

TEST(PictureView, NothingIsShownWithoutAPictureOrAWindow) {
  PictureView view;
  const auto expectEmpty = [&] {
    EXPECT_TRUE(view.IsEmpty());
    EXPECT_FALSE(view.IsFitted());
    EXPECT_FALSE(view.CanPan());
    EXPECT_EQ(view.Place(), Area{});
  };
  expectEmpty();
  view.WindowSize({100, 100});
  view.ZoomAbout(10, 10, 2);
  view.Pan(5, 5);
  view.Fit();
  expectEmpty();
  view.PictureSize({200, 100});
  EXPECT_EQ(view.Place(), (Area{0, 25, 100, 75}));
  view.WindowSize({0, 100});
  expectEmpty();
  view.WindowSize({100, 100});
  EXPECT_EQ(view.Place(), (Area{0, 25, 100, 75}));
}

// --- Zoom ---

// At 1 the picture is twice as wide as the window and as high: across, the point stays; down, the
// picture has no room to move.
TEST(PictureView, WhatIsUnderThePointStaysThere) {
  PictureView view = WideInSquare();
  view.ZoomAbout(30, 50, 2);
  EXPECT_EQ(view.Zoom(), 1);
  EXPECT_EQ(view.Place(), (Area{-30, 0, 170, 100}));
  for (const double factor : {1.25, 1.5, 0.8, 1.1, 0.9}) {
    const double x = PictureX(view, 40);
    const double y = PictureY(view, 60);
    const double halfPixelBefore = 0.5 / view.Zoom();  // the place is told in whole pixels
    view.ZoomAbout(40, 60, factor);
    EXPECT_NEAR(PictureX(view, 40), x, halfPixelBefore + 0.5 / view.Zoom()) << factor;
    EXPECT_NEAR(PictureY(view, 60), y, halfPixelBefore + 0.5 / view.Zoom()) << factor;
  }
}

TEST(PictureView, ManySmallStepsLeadBackToWhereTheyBegan) {
  PictureView view = WideInSquare();
  view.ZoomAbout(50, 50, 8);
  const Area before = view.Place();
  for (int i = 0; i < 20; ++i) view.ZoomAbout(33, 71, 1.01);
  for (int i = 0; i < 20; ++i) view.ZoomAbout(33, 71, 1 / 1.01);
  EXPECT_EQ(view.Place(), before);
}

TEST(PictureView, TheZoomStaysBetweenTheFittedOneAndTheMost) {
  PictureView view = WideInSquare();
  view.ZoomAbout(50, 50, 1000);
  EXPECT_EQ(view.Zoom(), PictureView::kMostZoom);
  view.ZoomAbout(0, 0, 1.0 / 1000);
  EXPECT_EQ(view.Zoom(), 0.5);
  EXPECT_TRUE(view.IsFitted());
  EXPECT_EQ(view.Place(), (Area{0, 25, 100, 75}));
}

TEST(PictureView, AFactorOfNothingFits) {
  PictureView view = WideInSquare();
  view.ZoomAbout(10, 20, 4);
  view.ZoomAboutMiddle(0);
  EXPECT_TRUE(view.IsFitted());
}

// The picture's left edge may not come into the window: its point under the pointer has to move.
TEST(PictureView, ZoomingOutAtAnEdgeLeavesNoGap) {
  PictureView view = WideInSquare();
  view.ZoomAbout(0, 50, 4);
  EXPECT_EQ(view.Place().left, 0);
  view.ZoomAbout(90, 50, 0.75);
  EXPECT_EQ(view.Zoom(), 1.5);
  EXPECT_EQ(view.Place().left, 0);
}

// --- Panning ---

TEST(PictureView, PanningStopsAtThePicturesEdges) {
  PictureView view = WideInSquare();
  view.ZoomAbout(50, 50, 4);  // 400 x 200 in 100 x 100
  EXPECT_TRUE(view.CanPan());
  view.Pan(-20, 10);
  EXPECT_EQ(view.Place(), (Area{-170, -40, 230, 160}));
  view.Pan(1000, 1000);
  EXPECT_EQ(view.Place(), (Area{0, 0, 400, 200}));
  view.Pan(-1000, -1000);
  EXPECT_EQ(view.Place(), (Area{-300, -100, 100, 100}));
}

TEST(PictureView, AFittedPictureDoesNotMove) {
  PictureView view = WideInSquare();
  EXPECT_FALSE(view.CanPan());
  view.Pan(10, -10);
  EXPECT_EQ(view.Place(), (Area{0, 25, 100, 75}));
}

// Sizes whose fitted zoom is no exact number.
TEST(PictureView, AFittedPictureCannotBePannedWhateverItsSize) {
  for (int width = 300; width < 700; width += 7) {
    PictureView view;
    view.PictureSize({1328, 1145});
    view.WindowSize({width, width * 6 / 7});
    EXPECT_TRUE(view.IsFitted()) << width;
    EXPECT_FALSE(view.CanPan()) << width;
    const Area place = view.Place();
    EXPECT_TRUE(place.right - place.left == width || place.bottom - place.top == width * 6 / 7);
  }
}

// --- Another window ---

TEST(PictureView, AZoomedPictureKeepsItsMiddleInAnotherWindow) {
  PictureView view = WideInSquare();
  view.ZoomAbout(50, 50, 8);  // 800 x 400
  view.Pan(100, 20);
  const double x = PictureX(view, 50);
  const double y = PictureY(view, 50);
  view.WindowSize({160, 120});
  EXPECT_EQ(view.Zoom(), 4);
  EXPECT_EQ(PictureX(view, 80), x);
  EXPECT_EQ(PictureY(view, 60), y);
}

TEST(PictureView, AWindowThatOutgrowsTheZoomFits) {
  PictureView view = WideInSquare();
  view.ZoomAbout(50, 50, 1.5);  // 0.75: 150 x 75
  view.WindowSize({400, 400});
  EXPECT_TRUE(view.IsFitted());
  EXPECT_EQ(view.Zoom(), 2);
  EXPECT_EQ(view.Place(), (Area{0, 100, 400, 300}));
}

TEST(PictureView, AnotherPictureIsFitted) {
  PictureView view = WideInSquare();
  view.ZoomAbout(50, 50, 8);
  view.PictureSize({50, 100});
  EXPECT_TRUE(view.IsFitted());
  EXPECT_EQ(view.Place(), (Area{25, 0, 75, 100}));
}

}  // namespace
}  // namespace orvik
