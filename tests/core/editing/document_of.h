#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "core/document/document_file.h"
#include "core/document/global.h"

namespace tavrel::test {

/// The document in a file's text, with a page on screen.
inline Global DocumentOf(std::string_view file, int current_page = 1) {
  Global global;
  ReadDocumentText(file, global);
  global.CurrentPage = static_cast<std::int16_t>(current_page);
  return global;
}

inline std::string Titled(const std::string& title) {
  return "<title>" + title + "</title>";
}

inline std::string WithText(const std::string& text) {
  return "<text>" + text + "</text>";
}

/// A page that is nothing but links to these targets.
inline std::string LinkingTo(std::initializer_list<std::string_view> targets) {
  std::string links;
  for (const std::string_view target : targets) {
    links.append("<linktext>x</linktext><linkto>").append(target).append("</linkto>");
  }
  return "<link>" + links + "</link>";
}

}  // namespace tavrel::test
