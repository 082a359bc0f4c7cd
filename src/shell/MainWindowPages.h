// The toolbar, the two pages of which one shows, and the labels beside their fields.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

#include "controls/HostedButton.h"
#include "platform/Toolkit.h"

namespace orvik {

class Desktop;
struct ProjectForm;

class MainWindowPages {
 public:
  MainWindowPages(Toolkit& toolkit, Desktop& desktop, ProjectForm& form);
  MainWindowPages(const MainWindowPages&) = delete;
  MainWindowPages& operator=(const MainWindowPages&) = delete;
  ~MainWindowPages();

  void ShowProject();
  void ShowData();

  // 1 shows the project page, 2 the data page; any other index changes nothing.
  void optPage_Click(std::int16_t index);

  // Today as month-day-year with hyphens ("03-09-2026") into the date field.
  void cmdToday_Click();

 private:
  static constexpr std::int16_t kProjectPage = 1;
  static constexpr std::int16_t kDataPage = 2;

  void MakeLabels(Toolkit& toolkit);
  void MarkPage(std::int16_t page);

  Desktop& desktop_;
  ProjectForm& form_;
  std::unique_ptr<Panel> picToolbar_;
  std::array<std::unique_ptr<OptionButton>, 2> optPage_;
  std::unique_ptr<MenuItem> mnuView_;
  std::unique_ptr<MenuItem> mnuProject_;
  std::unique_ptr<MenuItem> mnuData_;
  std::vector<std::unique_ptr<Label>> labels_;
  HostedButton cmdToday_;
};

}  // namespace orvik
