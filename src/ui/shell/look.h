#pragma once

#include <QIcon>

namespace tavrel {

/// Makes the pictures that are compiled in available.
void InitResources();

QIcon ProgramIcon();

/// The style and the icon of all windows. To be called once the application exists.
void SetUpLook();

}  // namespace tavrel
