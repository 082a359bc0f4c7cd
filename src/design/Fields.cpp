#include "design/Fields.h"

#include <array>

namespace orvik {
namespace {

constexpr std::array<FieldDesign, kFields> kFieldTable{{
#define ORVIK_FIELD(id, control, label, caption, unit, shortUnit, page, kind) \
  {Field::id,    control,      label,     caption,         unit,              \
   label "Unit", label "Mark", shortUnit, FieldPage::page, FieldKind::kind},
#define ORVIK_LIST(id, control, label, caption)
#include "design/Fields.def"
#undef ORVIK_FIELD
#undef ORVIK_LIST
}};

constexpr std::array kListTable{
#define ORVIK_FIELD(id, control, label, caption, unit, shortUnit, page, kind)
#define ORVIK_LIST(id, control, label, caption) \
  ListDesign{ListField::id, control, label, caption, label "Mark"},
#include "design/Fields.def"
#undef ORVIK_FIELD
#undef ORVIK_LIST
};

}  // namespace

std::span<const FieldDesign> Fields() {
  return kFieldTable;
}

const FieldDesign& DesignOf(Field field) {
  return kFieldTable.at(static_cast<std::size_t>(field));
}

std::span<const ListDesign> ListFields() {
  return kListTable;
}

const ListDesign& DesignOf(ListField list) {
  return kListTable.at(static_cast<std::size_t>(list));
}

std::string PlainCaption(std::string_view caption) {
  std::string plain(caption);
  std::erase(plain, '&');
  return plain;
}

std::string PlainCaption(Field field) {
  return PlainCaption(DesignOf(field).caption);
}

std::string PlainCaption(ListField list) {
  return PlainCaption(DesignOf(list).caption);
}

}  // namespace orvik
