#pragma once

#include <filesystem>
#include <string_view>

#include "ui/app.h"

class QWidget;

namespace tavrel {

/// The document file name for a typed name; empty if nothing is left of it, or if a file of that name exists
/// and the user does not want it overwritten.
std::filesystem::path AskForDocumentFile(App& app, QWidget* parent, std::string_view typed);

}  // namespace tavrel
