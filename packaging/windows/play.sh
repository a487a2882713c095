# shellcheck shell=bash
# Sourced by the tests of the packages: plays a user of the real program on a display of its own.

pictures=$PWD/build/windows/pictures
under_wine=$PWD/packaging/windows/under-wine
mkdir -p "$pictures"

fail() { echo "FAILED: $*" >&2; exit 1; }

# Everything that was started ends with the test.
end_all() {
  local job
  for job in $(jobs -p); do kill "$job" 2> /dev/null || true; done
}
trap end_all EXIT

start_display() {
  local number
  exec 8< <(exec Xvfb -displayfd 1 -screen 0 1280x1000x24 -nolisten tcp 2> /dev/null)
  read -r -u 8 number || fail "no display"
  export DISPLAY=:$number QT_QPA_PLATFORM=windows
}

# Waits up to half a minute for a command to succeed.
wait_for() {
  local tries
  for tries in $(seq 150); do
    "$@" > /dev/null 2>&1 && return
    sleep 0.2
  done
  echo "after $tries tries: $*" >&2
  return 1
}

start_program() {
  "$under_wine" "$1" &
  program=$!
  wait_for xdotool search --onlyvisible --name '^Tavrel Writer' || fail "no window of $1 appears"
  sleep 2
}

# Presses keys one after the other, as a person would.
press() {
  local key
  for key in "$@"; do
    xdotool key --clearmodifiers "$key"
    sleep 0.5
  done
}

# Takes a picture and makes sure that there is something in it.
take_picture() {
  import -window root "$pictures/$1.png"
  [ "$(identify -format %k "$pictures/$1.png")" -gt 100 ] || fail "the picture $1 is empty"
}

has_ended() { ! kill -0 "$program"; }

end_program() {
  press alt+F4
  wait_for has_ended || fail "the program does not end"
  local status=0
  wait "$program" || status=$?
  [ "$status" -eq 0 ] || fail "the program ended with $status"
}
