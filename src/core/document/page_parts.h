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

/// A link in a text: "<words>".
struct InlineLink {
  std::size_t Position;    ///< of the "<"
  std::size_t Length;      ///< up to the ">" and with it; 1 if there is none
  std::string_view Words;  ///< between the brackets
  bool IsClosed;           ///< a ">" comes before the next "<"
};

/// What publishing makes of the brackets of a text.
struct Brackets {
  bool AreLinks = false;                  ///< else they are published as they stand
  std::vector<InlineLink> Links;          ///< the k-th takes the page's k-th link
  std::vector<std::size_t> LoneClosings;  ///< positions of each ">" that closes nothing
};

Brackets BracketsOf(std::string_view text);

/// The first "<" or ">" from a place on, as text.find_first_of("<>", from) finds it, which takes long.
std::size_t FindBracket(std::string_view text, std::size_t from);

}  // namespace tavrel
