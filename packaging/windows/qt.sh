# shellcheck shell=bash
# Sourced by build and by the checks. find_qt puts the folder of a static Qt for Windows into TAVREL_QT_WINDOWS: the one
# that this variable names already, the one in the cache, or an archive "qt6-windows.tar.xz" that lies beside the
# checkout or in a folder beside it. It fails if there is none.

QT_CACHE=${XDG_CACHE_HOME:-~/.cache}/tavrel-writer/qt6-windows

is_qt() { [ -e "$1/lib/cmake/Qt6Widgets/Qt6WidgetsConfig.cmake" ]; }

# Puts a folder into the cache in one step: whatever happens on the way, the cache holds a whole Qt or none.
cache_qt() {
  rm -rf "$QT_CACHE"
  mv -T "$1" "$QT_CACHE"
}

unpack_qt() {
  local unpacked
  mkdir -p "$(dirname "$QT_CACHE")" || return
  unpacked=$(mktemp -d "$QT_CACHE.XXXXXX") || return
  if tar -xf "$1" -C "$unpacked"; then cache_qt "$unpacked/qt6-windows"; fi
  rm -rf "$unpacked"
}

build_qt() {
  local built status=0
  mkdir -p "$(dirname "$QT_CACHE")"
  built=$(mktemp -d "$QT_CACHE.XXXXXX")
  packaging/windows/build-qt "$built" || status=$?
  if [ "$status" -eq 0 ]; then cache_qt "$built"; else rm -rf "$built"; fi
  return "$status"
}

find_qt() {
  local archive
  if [ -n "${TAVREL_QT_WINDOWS:-}" ]; then
    is_qt "$TAVREL_QT_WINDOWS" && return
    echo "TAVREL_QT_WINDOWS names no Qt: $TAVREL_QT_WINDOWS" >&2
    exit 1
  fi
  if ! is_qt "$QT_CACHE"; then
    for archive in ../qt6-windows.tar.xz ../*/qt6-windows.tar.xz; do
      if [ -f "$archive" ]; then
        unpack_qt "$archive"
        break
      fi
    done
  fi
  is_qt "$QT_CACHE" && export TAVREL_QT_WINDOWS=$QT_CACHE
}
