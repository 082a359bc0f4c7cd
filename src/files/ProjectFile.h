// The project's text and the form: the fields written as a project, and a project read into them.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <vector>

#include "design/Hints.h"

namespace orvik {

class Desktop;
class FormBinding;
class clsIOStream;
class ctrlStormwaterReuse;
enum class FieldKind : std::uint8_t;
struct ProjectForm;
struct ProjectReading;

class SolveForWorkflow;

class ProjectFile {
 public:
  // All outlive this.
  ProjectFile(ProjectForm& form, ctrlStormwaterReuse& chart, FormBinding& binding,
              SolveForWorkflow& workflow, Desktop& desktop)
      : form_(form), chart_(chart), binding_(binding), workflow_(workflow), desktop_(desktop) {}

  // See WriteProject.
  bool SaveDataInBuffer(clsIOStream& stream) const;

  // Reads a project and recalculates. Shows a message where the first line is not that of a project
  // file of this version. False there, and silently where the text ends early or a list index is
  // not a whole number of 16 bits; fields read before keep their new values. An index outside its
  // list chooses nothing.
  bool ReadDataFromBuffer(clsIOStream& stream);

  // What is to be said of the project that was read last, until it is answered: of its station,
  // until another one is chosen. Of a stream on a text rather than a file, only its content is
  // spoken of.
  std::vector<Hint> Hints() const;
  void ForgetHints() { hints_.clear(); }

  // Whether the project that was read last had a kept point; see design/KeptPoint.
  bool HadKeptPoint() const { return hadKeptPoint_; }

  // Whether the file of that project may have lost what follows its lines: see ProjectReading.
  bool BlockEndedEarly() const { return blockEndedEarly_; }

  // Every field to its empty default: an empty project.
  void ClearData();

 private:
  void TakeOver(const ProjectReading& reading);
  void TakeOverTexts(const ProjectReading& reading, std::initializer_list<FieldKind> kinds);

  ProjectForm& form_;
  ctrlStormwaterReuse& chart_;
  FormBinding& binding_;
  SolveForWorkflow& workflow_;
  Desktop& desktop_;
  std::vector<Hint> hints_;
  std::int16_t stationRead_ = -1;  // the list's index
  bool hadKeptPoint_ = false;
  bool blockEndedEarly_ = false;
};

}  // namespace orvik
