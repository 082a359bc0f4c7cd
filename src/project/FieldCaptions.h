// What stands beside the project's fields, wherever they are shown.
#pragma once

#include <string_view>

namespace orvik {

namespace FieldCaption {
inline constexpr std::string_view kProject = "Project name";
inline constexpr std::string_view kDescription = "Description";
inline constexpr std::string_view kProjectNumber = "Project number";
inline constexpr std::string_view kEngineer = "Engineer";
inline constexpr std::string_view kSupervisingEngineer = "Supervising engineer";
inline constexpr std::string_view kDate = "Date";
inline constexpr std::string_view kBasinArea = "Basin area";
inline constexpr std::string_view kRunoffCoefficient = "Runoff coefficient";
inline constexpr std::string_view kEquivalentImperviousArea = "Equivalent impervious area";
inline constexpr std::string_view kIrrigationArea = "Irrigation area";
inline constexpr std::string_view kClimateStation = "Climate station";
inline constexpr std::string_view kSolveFor = "Solve for";
}  // namespace FieldCaption

}  // namespace orvik
