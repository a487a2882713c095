#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace tavrel {

/// A page's record as publishing reads it. The record must outlive its parts.
struct PageParts {
  struct Link {
    std::string_view Text;
    std::string_view Target;
  };

  std::string_view Title;
  std::string_view Note;
  std::string_view Text;
  std::string_view MusicText;
  std::string_view MusicLink;
  std::vector<Link> Links;      ///< up to the last that has words or a target
  bool AreLinksListed = false;  ///< all of them stand in the record's first list of links

  /// How many links stand below the text: publishing ends the list at the first that lacks either.
  std::size_t PublishedLinks() const;
};

PageParts PartsOf(std::string_view record);

/// The links in a record's first list of links, which are those that the editor shows.
std::vector<PageParts::Link> ListedLinks(std::string_view record);

}  // namespace tavrel
