#include "shell/MainWindowPages.h"

#include "base/NumberText.h"
#include "platform/Desktop.h"
#include "project/ProjectForm.h"
#include "shell/MainWindowTable.h"
#include "shell/PagePictures.h"

namespace orvik {

MainWindowPages::MainWindowPages(Toolkit& toolkit, Desktop& desktop, ProjectForm& form)
    : desktop_(desktop),
      form_(form),
      picToolbar_(toolkit.MakePanel("picToolbar")),
      optPage_{toolkit.MakeOptionButton("optPage(1)"), toolkit.MakeOptionButton("optPage(2)")},
      mnuView_(toolkit.MakeMenuItem("mnuView")),
      mnuProject_(toolkit.MakeMenuItem("mnuProject")),
      mnuData_(toolkit.MakeMenuItem("mnuData")),
      cmdToday_(toolkit, "cmdToday", ButtonCaption::kToday, [this] { cmdToday_Click(); }) {
  picToolbar_->OnPaint = PaintToolbar;
  form_.picProject->OnPaint = PaintPage;
  form_.picData->OnPaint = PaintPage;
  optPage_[0]->Caption(ButtonCaption::kProjectPage);
  optPage_[1]->Caption(ButtonCaption::kDataPage);
  optPage_[0]->OnClick = [this] { optPage_Click(kProjectPage); };
  optPage_[1]->OnClick = [this] { optPage_Click(kDataPage); };
  mnuView_->Caption("Vie&w");
  mnuProject_->Caption("&Project page\tCtrl+1");
  mnuProject_->OnClick = [this] { ShowProject(); };
  mnuData_->Caption("&Data page\tCtrl+2");
  mnuData_->OnClick = [this] { ShowData(); };
  // The pages may be turned by others too.
  form_.picProject->OnShow = [this] { MarkPage(kProjectPage); };
  form_.picData->OnShow = [this] { MarkPage(kDataPage); };
  MakeLabels(toolkit);
  MarkPage(form_.picProject->Visible() ? kProjectPage : kDataPage);
}

MainWindowPages::~MainWindowPages() {
  for (Panel* page : {form_.picProject.get(), form_.picData.get()}) {
    page->OnShow = nullptr;
    page->OnPaint = nullptr;
  }
}

void MainWindowPages::MakeLabels(Toolkit& toolkit) {
  for (const LabelDesign& design : MainWindowLabels()) {
    labels_.push_back(toolkit.MakeLabel(design.name));
    labels_.back()->Caption(design.caption);
  }
}

void MainWindowPages::ShowProject() {
  form_.picData->Visible(false);
  form_.picProject->Visible(true);
}

void MainWindowPages::ShowData() {
  form_.picProject->Visible(false);
  form_.picData->Visible(true);
}

void MainWindowPages::optPage_Click(std::int16_t index) {
  if (index == kProjectPage) ShowProject();
  if (index == kDataPage) ShowData();
}

void MainWindowPages::MarkPage(std::int16_t page) {
  optPage_[0]->Value(page == kProjectPage);
  optPage_[1]->Value(page == kDataPage);
  mnuProject_->Checked(page == kProjectPage);
  mnuData_->Checked(page == kDataPage);
}

void MainWindowPages::cmdToday_Click() {
  const CalendarDate today = desktop_.Today();
  form_.Box(Field::Date).Text(MonthDayYear(today.month, today.day, today.year));
}

}  // namespace orvik
