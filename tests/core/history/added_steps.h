#pragma once

#include <string>
#include <utility>

#include "core/history/history.h"

namespace tavrel::test {

inline Records RecordsOf(const Global& global) {
  return {global.Pages, global.MusicLinks};
}

inline Step PageStep(int page, Record before, Record after, std::string name = "step") {
  return {.Name = std::move(name),
          .Pages = {{page, std::move(before), std::move(after)}},
          .MusicLinks = {},
          .Before = {},
          .After = {}};
}

/// Changes a page and adds that as a step.
inline void AddPage(History& steps, Global& global, int page, const std::string& text,
                    std::string name = "step") {
  Record before = global.Page(page);
  global.Page(page) = text;
  steps.Add(PageStep(page, std::move(before), global.Page(page), std::move(name)));
}

inline std::string NameOf(const Step* step) {
  return step == nullptr ? "none" : step->Name;
}

}  // namespace tavrel::test
