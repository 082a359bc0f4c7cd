#include "platform/recording/RecordingPrinter.h"

namespace orvik {

RecordingPrinter::RecordingPrinter(const RecordingPaper& paper) : paper_(paper) {
  surface_.Support(SurfaceFeature::ExclusiveOr, false);
}

Area RecordingPrinter::PrintableArea() const {
  return {paper_.unprintable, paper_.unprintable, paper_.size.width - paper_.unprintable,
          paper_.size.height - paper_.unprintable};
}

DocumentStart RecordingPrinter::StartDocument(std::string_view title) {
  if (answer_ == DocumentStart::Started) surface_.Note("document \"" + std::string(title) + "\"");
  return answer_;
}

void RecordingPrinter::Eject() {
  if (page_ == failsAfter_) throw PrinterError("The printer is out of order.");
}

void RecordingPrinter::NewPage() {
  Eject();
  ++page_;
  surface_.Note("new page");
}

void RecordingPrinter::EndDocument() {
  Eject();
  hasEnded_ = true;
  surface_.Note("end of document");
}

void RecordingPrinter::SetFont(const Font& font) {
  Printer::SetFont(font);
  surface_.Note("font " + TextOfFont(font));
}

}  // namespace orvik
