// A printer that writes its calls as text, for tests to compare exactly: those of its pages as
// RecordingSurface writes them, and
//
//   document "Report of a pond"
//   font Arial 46 bold
//   new page
//   end of document
#pragma once

#include <string>
#include <vector>

#include "platform/PagePrinter.h"
#include "platform/recording/RecordingSurface.h"

namespace orvik {

struct RecordingPaper {
  int resolution = 300;   // pixels per inch
  Size size{2550, 3300};  // Letter
  int unprintable = 75;   // pixels along every edge
};

class RecordingPrinter final : public PagePrinter {
 public:
  explicit RecordingPrinter(const RecordingPaper& paper = {});

  // The calls since the last Take.
  const std::vector<std::string>& Calls() const { return surface_.Calls(); }
  std::vector<std::string> Take() { return surface_.Take(); }

  // What StartDocument answers from now on.
  void AnswerStart(DocumentStart answer) { answer_ = answer; }

  // The page at whose ejection the printer fails; 0 for none.
  void FailAfterPage(int page) { failsAfter_ = page; }

  bool HasEnded() const { return hasEnded_; }

  int Resolution() const override { return paper_.resolution; }
  Size PaperSize() const override { return paper_.size; }
  Area PrintableArea() const override;
  DocumentStart StartDocument(std::string_view title) override;
  int PageNumber() const override { return page_; }
  void NewPage() override;
  void EndDocument() override;
  void SetFont(const Font& font) override;

 protected:
  Surface& Page() override { return surface_; }
  Surface& ToMeasure() const override { return surface_; }

 private:
  void Eject();

  RecordingPaper paper_;
  mutable RecordingSurface surface_;  // measuring writes nothing
  DocumentStart answer_ = DocumentStart::Started;
  int page_ = 1;
  int failsAfter_ = 0;
  bool hasEnded_ = false;
};

}  // namespace orvik
