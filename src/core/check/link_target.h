#pragma once

#include <string_view>

#include "core/document/global.h"
#include "core/ipod/music_addresses.h"

namespace tavrel {

/// Where a link leads once it is published.
struct LinkTarget {
  enum class Kind {
    Page,             ///< to a page that there is
    EmptyPage,        ///< to a page, 1 to 999, for which there is no note
    NoPage,           ///< to a note that no page can have
    NotesMenu,        ///< to the Notes menu, for want of a target
    Music,            ///< to a music link that names something
    EmptyMusic,       ///< to a music link that names nothing
    ImpossibleMusic,  ///< publishing stops at it
  };

  Kind What = Kind::NotesMenu;
  int Number = 0;  ///< of the page or the music link
};

/// `target` is as a link stores it: a page number of three digits or a music link's name. `music` are the
/// document's addresses.
LinkTarget TargetOf(const Global& global, MusicAddresses& music, std::string_view target);

/// The same for a page's own music, which is a music link whatever it is called.
LinkTarget MusicTargetOf(MusicAddresses& music, std::string_view target);

}  // namespace tavrel
