#pragma once

#include <filesystem>
#include <string_view>

#include "ui/app.h"

class QWidget;

namespace tavrel {

/// The file in the program's folder for a typed name and an extension such as ".dat"; empty if nothing is
/// left of the name, or if a file of that name exists and the user does not want it overwritten.
/// Throws FileError if the system has no such names.
std::filesystem::path AskForFile(App& app, QWidget* parent, std::string_view typed,
                                 std::string_view extension);

}  // namespace tavrel
