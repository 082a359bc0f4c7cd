// Between the form's widgets and the project as a value: a snapshot of what they show, and a result
// shown in them.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string_view>

namespace orvik {

enum class Field : std::uint8_t;
struct Message;
struct Project;
struct Result;

class ctrlErrorMessageBar;
class ctrlStormwaterReuse;
struct ProjectForm;

class FormBinding {
 public:
  // Both outlive this.
  FormBinding(ProjectForm& form, ctrlStormwaterReuse& chart) : form_(form), chart_(chart) {}

  // The project as the fields and the chart show it now.
  Project Snapshot() const;

  // Writes the result's texts into the fields, its messages on the error bar, and its point on the
  // chart.
  void Show(const Result& result);

  // While Show writes: what changes in the fields then was calculated, not typed.
  bool IsShowing() const { return isShowing_; }

  // Every text of the fields empty, and no message.
  void Empty(std::initializer_list<Field> fields);

 private:
  void ShowTexts(const Result& result);

  ProjectForm& form_;
  ctrlStormwaterReuse& chart_;
  bool isShowing_ = false;
};

// Shows a message on the bar. That data is missing is shown without a sound: it is normal while a
// point is dragged.
void ShowOnBar(ctrlErrorMessageBar& bar, const Message& message);

}  // namespace orvik
