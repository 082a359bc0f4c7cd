// The table of the project's fields: the form, the file, the report and the command line walk it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace orvik {

enum class Field : std::uint8_t {
#define ORVIK_FIELD(id, control, label, caption, unit, shortUnit, page, kind) id,
#define ORVIK_LIST(id, control, label, caption)
#include "design/Fields.def"
#undef ORVIK_FIELD
#undef ORVIK_LIST
  Count
};

inline constexpr std::size_t kFields = static_cast<std::size_t>(Field::Count);

enum class FieldPage : std::uint8_t { Project, Data };

// See design/Fields.def.
enum class FieldKind : std::uint8_t { Text, Wrapped, Date, Number, Result, Slot, Normalized };

struct FieldDesign {
  Field id;
  std::string_view control;
  std::string_view label;
  std::string_view caption;  // with "&" before the mnemonic
  std::string_view unit;
  std::string_view unitLabel;  // the name of the label that shows the unit
  std::string_view markLabel;  // of the one that marks a number that is still needed
  std::string_view shortUnit;
  FieldPage page;
  FieldKind kind;

  bool IsDescription() const { return page == FieldPage::Project; }

  // A result may need a number here.
  bool CanBeNeeded() const { return kind == FieldKind::Number || kind == FieldKind::Slot; }
};

// In the table's order.
std::span<const FieldDesign> Fields();

const FieldDesign& DesignOf(Field field);

// The lists that belong to a project.
enum class ListField : std::uint8_t {
#define ORVIK_FIELD(id, control, label, caption, unit, shortUnit, page, kind)
#define ORVIK_LIST(id, control, label, caption) id,
#include "design/Fields.def"
#undef ORVIK_FIELD
#undef ORVIK_LIST
  Count
};

struct ListDesign {
  ListField id;
  std::string_view control;
  std::string_view label;
  std::string_view caption;
  std::string_view markLabel;
};

inline constexpr std::size_t kListFields = static_cast<std::size_t>(ListField::Count);

// In the table's order.
std::span<const ListDesign> ListFields();

const ListDesign& DesignOf(ListField list);

// A caption without its mark of the mnemonic.
std::string PlainCaption(std::string_view caption);
std::string PlainCaption(Field field);
std::string PlainCaption(ListField list);

}  // namespace orvik
