#pragma once

#include "core/document/global.h"

/// Commands on whole pages. Those that change the order of pages give all links new numbers, so that they
/// keep pointing at the same page.
namespace tavrel {

/// Puts a blank page in front of the current one. Page 999 is lost and links to it then say "1000". On page
/// 999 only that page is emptied.
void InsertPage(Global& global);

/// Takes the current page out, to the clipboard. Links to it then point at the page before it; before page 1
/// there is only "000". On page 999 no link changes.
void CutPage(Global& global);

void CopyPage(Global& global);

/// Replaces the current page by the clipboard's; links stay as they are.
void PastePage(Global& global);

/// Empties the current page; links to it stay as they are.
void ClearPage(Global& global);

/// Change places with the page above or below, which must exist, and follow the page there. The clipboard
/// then holds the moved page as it was before.
void MovePageUp(Global& global);
void MovePageDown(Global& global);

}  // namespace tavrel
