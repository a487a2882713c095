#include "core/document/global.h"

#include "core/text/file_names.h"

namespace tavrel {

void ClearDocument(Global& global) {
  for (int page = 1; page <= kLastPage; ++page) global.Page(page).clear();
  for (int link = 1; link <= kLastMusicLink; ++link) global.MusicLink(link).clear();
  global.IsDocumentShown = false;
}

int LastPage(const Global& global) {
  int page = kLastPage;
  while (page > 1 && global.Page(page).empty()) --page;
  return page;
}

std::filesystem::path DocumentFile(const Global& global) {
  return global.ProgramFolder / global.DocPath;
}

std::filesystem::path DocumentName(const Global& global) {
  return WithoutExtension(global.DocPath);
}

}  // namespace tavrel
