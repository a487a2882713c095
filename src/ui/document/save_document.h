#pragma once

#include "ui/app.h"

namespace tavrel {

/// Writes the document file, then lets the windows redraw. Throws RunTimeError.
void SaveDoc(App& app);

}  // namespace tavrel
