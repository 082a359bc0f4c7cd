#include <gmock/gmock.h>

#include "platform/PrinterPixels.h"
#include "platform/recording/RecordingPrinter.h"

namespace orvik {
namespace {

using testing::ElementsAre;

TEST(PrinterPixels, AreTheDevicesOwnAsFarAs1200ToTheInchAnd16BitsReach) {
  const struct {
    int device;
    double longerSide;
    int perInch;
  } rows[] = {
      {300, 11, 300},   {1200, 11, 1200}, {2400, 11, 1200},  // Letter
      {600, 48, 600},   {1200, 48, 682},  {2400, 48, 682},   // 32767 / 48 = 682.6
      {1200, 27, 1200}, {1200, 28, 1170},                    // 32767 / 28 = 1170.25
      {600, 0, 600},    {2400, 0, 1200},                     // paper of which nothing is known
      {0, 11, 1},       {300, 100000, 1},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(PrinterPixelsPerInch(row.device, row.longerSide), row.perInch)
        << row.device << " on " << row.longerSide << " inches";
  }
}

TEST(RecordingPrinter, WritesTheDocumentItsFontsAndItsPages) {
  RecordingPrinter printer;
  EXPECT_EQ(printer.StartDocument("Pond"), DocumentStart::Started);
  printer.SetFont({.pixelHeight = 46, .bold = true});
  printer.MoveTo(100, 200.5F);
  printer.Print("abc");
  printer.NewPage();
  printer.FillArea({1, 2, 3, 4}, kRed);
  printer.EndDocument();
  EXPECT_THAT(printer.Calls(),
              ElementsAre("document \"Pond\"", "font Arial 46 bold",
                          "text 100,201 \"abc\" Arial 46 bold colour 0x000000", "new page",
                          "fill 1,2 to 3,4 colour 0x0000FF", "end of document"));
  EXPECT_EQ(printer.PageNumber(), 2);
  EXPECT_TRUE(printer.HasEnded());
}

TEST(RecordingPrinter, PrintingMovesTheCurrentPositionToTheNextLine) {
  RecordingPrinter printer;
  printer.SetFont({.pixelHeight = 40});
  printer.MoveTo(7.25F, 100.5F);
  printer.Print("a");
  EXPECT_EQ(printer.CurrentX(), 7.25F);
  EXPECT_EQ(printer.CurrentY(), 140.5F);
  EXPECT_EQ(printer.TextHeight("a"), 40.0F);
  EXPECT_EQ(printer.TextWidth("abc"), 60.0F);
}

TEST(RecordingPrinter, KeepsTheUnprintableEdgesFree) {
  const RecordingPrinter printer({600, {5100, 6600}, 100});
  EXPECT_EQ(printer.PrintableArea(), (Area{100, 100, 5000, 6500}));
  EXPECT_FALSE(printer.Supports(SurfaceFeature::ExclusiveOr));
}

TEST(RecordingPrinter, FailsOnTheChosenPage) {
  RecordingPrinter printer;
  printer.FailAfterPage(2);
  printer.NewPage();
  EXPECT_THROW(printer.NewPage(), PrinterError);
  EXPECT_THROW(printer.EndDocument(), PrinterError);
  EXPECT_FALSE(printer.HasEnded());
}

TEST(RecordingPrinter, ADocumentThatDoesNotStartIsNotWritten) {
  RecordingPrinter printer;
  for (const auto answer : {DocumentStart::CalledOff, DocumentStart::Unreachable}) {
    printer.AnswerStart(answer);
    EXPECT_EQ(printer.StartDocument("Pond"), answer);
  }
  EXPECT_THAT(printer.Calls(), ElementsAre());
}

}  // namespace
}  // namespace orvik
