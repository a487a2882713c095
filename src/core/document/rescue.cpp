#include "core/document/rescue.h"

#include <string>

#include "core/document/document_copy.h"
#include "core/document/document_file.h"

namespace tavrel {

std::filesystem::path RescueDocument(const Global& global, Platform& platform,
                                     const std::vector<std::filesystem::path>& folders) {
  const std::string text = DocumentText(global);
  for (const std::filesystem::path& folder : folders) {
    const std::filesystem::path copy =
        WriteDocumentCopy(text, folder, DocumentName(global), "rescued", platform);
    if (!copy.empty()) return copy;
  }
  return {};
}

}  // namespace tavrel
