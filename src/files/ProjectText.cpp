#include "files/ProjectText.h"

#include <string_view>
#include <utility>

#include "base/NumberText.h"
#include "base/Text.h"
#include "files/ProjectExtras.h"
#include "stream/clsIOStream.h"

namespace orvik {
namespace {

constexpr std::string_view kMagic = "KAV3.3.01";
constexpr std::string_view kTitle = "ORVIK Stormwater Harvesting Module";
constexpr std::size_t kMagicPrefix = 7;    // "KAV3.3.": the rest is the file's version
constexpr std::size_t kVersionDigits = 2;  // at the end of the line
constexpr double kFileVersion = 1;

// The entries of a kept point.
constexpr std::string_view kKeptR = "point.R";
constexpr std::string_view kKeptV = "point.V";

// --- Writing ---

bool WriteLine(clsIOStream& stream, std::string_view value) {
  return stream.WriteString(Trim(FoldLineEnds(value)));
}

// The fields of one kind of line, in the table's order.
template <typename Selects>
bool WriteFields(clsIOStream& stream, const Project& project, Selects selects) {
  for (const FieldDesign& field : Fields()) {
    if (selects(field) && !WriteLine(stream, project.Text(field.id))) return false;
  }
  return true;
}

bool IsDescription(const FieldDesign& field) {
  return field.IsDescription();
}

bool IsSiteNumber(const FieldDesign& field) {
  return field.kind == FieldKind::Number;
}

bool WriteHotspot(clsIOStream& stream, const DesignPoint& point) {
  if (!point.isShown) return WriteLine(stream, "0");
  return WriteLine(stream, "1") && WriteLine(stream, ToShortestText(SingleR(point))) &&
         WriteLine(stream, ToShortestText(SingleV(point)));
}

bool WriteTail(clsIOStream& stream, const Project& project) {
  if (project.mode == SolveFor::Interactive) return WriteHotspot(stream, project.point);
  if (!IsTypedMode(project.mode)) return true;
  return WriteLine(stream, project.Text(Field::SolveFor1)) &&
         WriteLine(stream, project.Text(Field::SolveFor2));
}

ProjectExtras ExtrasOf(const Project& project) {
  ProjectExtras extras;
  if (project.keptPoint) {
    extras.emplace(kKeptR, project.keptPoint->R);
    extras.emplace(kKeptV, project.keptPoint->V);
  }
  return extras;
}

// --- Reading ---

class Reader {
 public:
  explicit Reader(clsIOStream& stream) : stream_(stream) {}

  ProjectReading Read() {
    reading_.isWhole =
        ReadMagic() && SkipLine() && ReadFields(IsDescription) && ReadSite() && ReadDesign();
    if (reading_.isWhole) ReadKeptPoint();
    reading_.endsWithinLine = stream_.EndsWithinLine();
    return std::move(reading_);
  }

 private:
  // A file never reports a failed read; so the end is asked for first.
  bool ReadLine(std::string& line) {
    if (stream_.EndOfFile() || !stream_.ScanString(line)) {
      reading_.endsEarly = true;
      return false;
    }
    ++reading_.lines;
    if (!reading_.lineFeedLine && line.find('\n') != std::string::npos) {
      reading_.lineFeedLine = reading_.lines;
    }
    return true;
  }

  bool SkipLine() {
    std::string ignored;
    return ReadLine(ignored);
  }

  bool ReadWholeNumber(std::optional<std::int16_t>& number) {
    std::string line;
    if (!ReadLine(line)) return false;
    number = ParseWholeNumber(line);
    if (!number) reading_.badLine = reading_.lines;
    return number.has_value();
  }

  bool ReadMagic() {
    if (!ReadLine(reading_.firstLine)) return false;
    const std::string_view magic = Trim(reading_.firstLine);
    if (!magic.starts_with(kMagic.substr(0, kMagicPrefix))) {
      return Refuse(MessageId::NotAProjectFile);
    }
    const std::string_view version = magic.substr(magic.size() - kVersionDigits);
    if (!IsNumericText(version) || ParseNumber(version) != kFileVersion) {
      return Refuse(MessageId::InvalidFileVersion);
    }
    return true;
  }

  bool Refuse(MessageId message) {
    reading_.refusal = {message};
    return false;
  }

  bool ReadField(Field field) {
    std::string line;
    if (!ReadLine(line)) return false;
    reading_.texts[static_cast<std::size_t>(field)] = std::move(line);
    return true;
  }

  template <typename Selects>
  bool ReadFields(Selects selects) {
    for (const FieldDesign& field : Fields()) {
      if (selects(field) && !ReadField(field.id)) return false;
    }
    return true;
  }

  // The station's name is there for people who read the file; the number decides.
  bool ReadSite() {
    return ReadWholeNumber(reading_.station) && ReadLine(reading_.stationName) &&
           ReadWholeNumber(reading_.mode) && ReadFields(IsSiteNumber);
  }

  bool ReadDesign() {
    const SolveFor mode = reading_.Mode();
    if (mode == SolveFor::Interactive) return ReadHotspot();
    if (!IsTypedMode(mode)) return true;
    return ReadField(Field::SolveFor1) && ReadField(Field::SolveFor2);
  }

  bool ReadHotspot() {
    std::optional<std::int16_t> isShown;
    if (!ReadWholeNumber(isShown)) return false;
    if (*isShown == 0) return true;
    StoredPoint point;
    if (!ReadLine(point.R) || !ReadLine(point.V)) return false;
    reading_.point = std::move(point);
    return true;
  }

  void ReadKeptPoint() {
    const ExtrasReading extras = ReadExtras(stream_);
    reading_.blockEndsEarly = !extras.isWhole;
    const auto R = extras.entries.find(kKeptR);
    const auto V = extras.entries.find(kKeptV);
    if (R == extras.entries.end() || V == extras.entries.end()) return;
    if (!IsNumericText(R->second) || !IsNumericText(V->second)) return;
    reading_.keptPoint = StoredPoint{R->second, V->second};
  }

  clsIOStream& stream_;
  ProjectReading reading_;
};

}  // namespace

bool WriteProject(clsIOStream& stream, const Project& project) {
  if (!WriteLine(stream, kMagic) || !WriteLine(stream, kTitle) ||
      !WriteFields(stream, project, IsDescription) ||
      !WriteLine(stream, std::to_string(project.station)) ||
      !WriteLine(stream, project.StationName()) ||
      !WriteLine(stream, std::to_string(IndexOf(project.mode))) ||
      !WriteFields(stream, project, IsSiteNumber)) {
    return false;
  }
  return WriteTail(stream, project) && WriteExtras(stream, ExtrasOf(project));
}

ProjectReading ReadProject(clsIOStream& stream) {
  return Reader(stream).Read();
}

}  // namespace orvik
