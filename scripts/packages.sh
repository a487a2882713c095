# Sourced by run, test and .ci/run: installs the Debian packages that are missing.

BUILD_PACKAGES="g++ cmake ninja-build qt6-base-dev libgtest-dev libgmock-dev libbenchmark-dev fonts-dejavu-core"
CHECK_PACKAGES="clang libclang-rt-dev clang-format clang-tidy"
WINDOWS_PACKAGES="cmake ninja-build qt6-base-dev g++-mingw-w64-x86-64-posix googletest nsis xz-utils
                  wine wine64 fonts-wine libjpeg62-turbo libpcre2-16-0"
WINDOWS_TEST_PACKAGES="lld fonts-dejavu-core xvfb xauth xdotool imagemagick"
WINDOWS_QT_PACKAGES="cmake ninja-build dpkg-dev perl python3 qt6-base-dev qt6-base-dev-tools g++-mingw-w64-x86-64-posix"

need_packages() {
  local missing=()
  local package
  for package in "$@"; do
    dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return
  echo "Installing ${missing[*]}"
  local as_root=()
  [ "$(id -u)" -eq 0 ] || as_root=(sudo)
  "${as_root[@]}" apt-get update -qq
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
}
