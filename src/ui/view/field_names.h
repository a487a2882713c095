#pragma once

#include <QString>

#include "core/document/field_part.h"

namespace tavrel {

/// A field as the editor calls it, with the link's row: "Link text 3".
QString FieldName(const FieldPart& part);

/// A page as lists show it: "007"; empty for the project as a whole.
QString PageName(const FieldPart& part);

}  // namespace tavrel
