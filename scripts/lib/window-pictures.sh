# Shared by scripts/guide-pictures and scripts/tour-pictures: runs the screenshot tool on a
# fresh X server with a window manager and moves the pictures it made into a folder, shrunk
# losslessly when optipng is installed. Builds nothing.
#   window_pictures DESTINATION PACKAGE TOOL-ARGUMENTS... -- PICTURE-NAMES...

window_pictures() {
  local destination=$1 package=$2
  shift 2
  local arguments=()
  while [ "$1" != "--" ]; do arguments+=("$1"); shift; done
  shift
  local pictures=("$@")
  local tool=build/release/tools/screenshots/orrery-screenshots

  if [ ! -x "$tool" ]; then
    echo "$tool is missing: build first with scripts/run or cmake --build build/release" >&2
    exit 1
  fi
  if [ ! -d "$package" ]; then
    echo "$package: no such package (scripts/run builds the examples)" >&2
    exit 1
  fi
  for program in xvfb-run openbox xprop; do
    if ! command -v "$program" >/dev/null; then
      echo "$program is missing: scripts/setup installs it" >&2
      exit 1
    fi
  done

  # Global, so that the exit trap still knows it.
  work=$(mktemp -d)
  trap 'rm -rf "$work"' EXIT
  # The title bar shows the name of the running executable: run a copy named as installed.
  cp "$tool" "$work/orrery"
  # A settings folder of its own: the file dialogs' remembered folders (QtProject.conf) of
  # earlier sessions can neither steer the export panel nor be changed by this run.
  mkdir -m 700 "$work/config"
  export XDG_CONFIG_HOME="$work/config"
  if [ -z "${XDG_RUNTIME_DIR:-}" ]; then
    mkdir -m 700 "$work/runtime"
    export XDG_RUNTIME_DIR="$work/runtime"
  fi
  tests/window/with-desktop "$work/orrery" "${arguments[@]}" "$work/images" "$package" >/dev/null

  for name in "${pictures[@]}"; do
    if [ ! -s "$work/images/$name.png" ]; then
      echo "the window did not give $name.png; $destination is left as it was" >&2
      exit 1
    fi
  done
  if command -v optipng >/dev/null; then
    optipng -quiet -o2 -strip all "$work"/images/*.png
  else
    echo "optipng is not installed: the pictures are kept as the window wrote them"
  fi
  mkdir -p "$destination"
  for name in "${pictures[@]}"; do
    mv -f "$work/images/$name.png" "$destination/$name.png"
  done
  echo "Wrote ${#pictures[@]} pictures to $(realpath "$destination")"
}
