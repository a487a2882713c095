#include "core/document/spoiling_tags.h"

#include <array>

namespace tavrel {
namespace {

template <std::size_t count>
using Tags = std::array<std::string_view, count>;

constexpr Tags<5> kInTitle = {"</title>", "<note>", "<text>", "<link>", "<music>"};
constexpr Tags<5> kInNote = {"</note>", "<title>", "<text>", "<link>", "<music>"};
constexpr Tags<7> kInText = {"</text>", "<title>", "<note>", "</link>", "<linktext>", "<linkto>", "<music>"};
constexpr Tags<6> kInLinkText = {"</linktext>", "<title>", "</link>", "<linktext>", "<linkto>", "<music>"};
constexpr Tags<5> kInLinkTarget = {"</linkto>", "</link>", "<linktext>", "<linkto>", "<music>"};
constexpr Tags<3> kInMusicText = {"</music>", "<title>", "<music>"};
constexpr Tags<1> kInMusicLink = {"</music>"};

}  // namespace

std::span<const std::string_view> SpoilingTags(Field field) {
  switch (field) {
    case Field::Title:
      return kInTitle;
    case Field::Note:
      return kInNote;
    case Field::Text:
      return kInText;
    case Field::LinkText:
      return kInLinkText;
    case Field::LinkTarget:
      return kInLinkTarget;
    case Field::MusicText:
      return kInMusicText;
    case Field::MusicLink:
      return kInMusicLink;
    default:
      return {};
  }
}

}  // namespace tavrel
