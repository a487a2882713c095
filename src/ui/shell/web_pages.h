#pragma once

#include <string>

#include "ui/app.h"

class QWidget;

namespace tavrel {

/// Opens an address, or a file of the program's folder, in the user's browser; tells if there is none.
void OpenWebPage(App& app, QWidget* parent, const std::string& target);

}  // namespace tavrel
