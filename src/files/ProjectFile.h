// The project as text, one value per line: written from the form's fields and read back into them.
#pragma once

#include "chart/ctrlStormwaterReuse.h"
#include "files/clsIOStream.h"
#include "platform/Desktop.h"
#include "project/ProjectForm.h"
#include "project/SolveForWorkflow.h"

namespace orvik {

// Line 1 "KAV3.3.01"; 2 the module's title; 3 to 8 the six fields of description; 9 and 10 the
// climate station's list index (0-based, -1 none) and name; 11 the solve-for index; 12 to 14 basin
// area, runoff coefficient and irrigation area. Then, in the interactive mode: 1 or 0 for a hotspot
// and, where there is one, its R and V; in the typed modes: the two given values. Nothing that can
// be computed is stored.
class ProjectFile {
 public:
  ProjectFile(ProjectForm& form, ctrlStormwaterReuse& chart, SolveForWorkflow& workflow,
              Desktop& desktop)
      : form_(form), chart_(chart), workflow_(workflow), desktop_(desktop) {}

  // Writes the project to a stream that is open for output. Blanks around a value are left out, and
  // a line end inside one becomes a blank, since a value is a line. False at the first failed
  // write.
  bool SaveDataInBuffer(clsIOStream& stream) const;

  // Reads a project and recalculates. Shows a message where the first line is not that of a project
  // file of this version. False there, and silently where the text ends early or a list index is
  // not a whole number of 16 bits; fields read before keep their new values. An index outside its
  // list chooses nothing.
  bool ReadDataFromBuffer(clsIOStream& stream);

  // Every field to its empty default: an untitled, empty project on the data page.
  void ClearData();

 private:
  bool CheckVersion(clsIOStream& stream);
  bool ReadDescription(clsIOStream& stream);
  bool ReadSite(clsIOStream& stream);
  bool ReadHotspot(clsIOStream& stream);
  bool ReadGivenValues(clsIOStream& stream);
  bool SaveHotspot(clsIOStream& stream) const;

  ProjectForm& form_;
  ctrlStormwaterReuse& chart_;
  SolveForWorkflow& workflow_;
  Desktop& desktop_;
};

}  // namespace orvik
