#pragma once

#include <map>
#include <string>

#include "core/document/global.h"

namespace tavrel::test {

/// A plain copy of a document, which shares nothing with it: the bytes of all pages and music links that are
/// not empty.
class DocumentCopy {
 public:
  DocumentCopy() = default;
  explicit DocumentCopy(const Global& global);

  std::string Page(int number) const;
  void SetPage(int number, const std::string& bytes);

  bool IsIn(const Global& global) const;
  bool operator==(const DocumentCopy& other) const { return records_ == other.records_; }

  /// The records that are others in a document, for the message of a failure.
  std::string Others(const Global& global) const;

 private:
  std::map<int, std::string> records_;  ///< music links by their number behind the pages
};

}  // namespace tavrel::test
