#!/usr/bin/env bash
# Installs the build into a fresh prefix, as a user or a package would, and
# starts the installed program on a virtual screen: it must find its ship
# pictures in the prefix's data folder, and say nothing unless asked.
#
#   installed_program.sh BUILD_DIR
set -euo pipefail
build="$1"

work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
work="$(cd "$work" && pwd -P)"
prefix="$work/prefix"
fail() { echo "FAIL: $*" >&2; exit 1; }

cmake --install "$build" --prefix "$prefix" > "$work/install.log" || { cat "$work/install.log"; fail "install"; }

# What the install lays out, where a desktop looks for it.
pictures="$prefix/share/vantorel/Images"
for file in bin/vantorel bin/vantorel-cli share/applications/vantorel.desktop \
            share/vantorel/Images/Alpha/unrestricted.jpg share/vantorel/Images/Omega/unrestricted.gif \
            share/vantorel/Images/Alpha/unrestricted@2x.jpg share/vantorel/Images/Omega/unrestricted@2x.gif; do
  [ -e "$prefix/$file" ] || fail "$file is not installed"
done
for size in 16 22 24 32 48 64 128 256; do
  icon="$prefix/share/icons/hicolor/${size}x${size}/apps/vantorel.png"
  [ -f "$icon" ] || fail "no icon of $size pixels"
done
alpha=$(find "$pictures/Alpha" -name '*.jpg' ! -name '*@2x.jpg' | wc -l)
omega=$(find "$pictures/Omega" -name '*.gif' ! -name '*@2x.gif' | wc -l)
[ "$alpha" -eq 45 ] && [ "$omega" -eq 45 ] || fail "$alpha Alpha and $omega Omega pictures installed, not 45 each"
if command -v desktop-file-validate > /dev/null; then
  desktop-file-validate "$prefix/share/applications/vantorel.desktop" || fail "the desktop file is not valid"
fi

# The scripting front end runs from the prefix too.
echo 'print Form1.ShipClass[1]' | "$prefix/bin/vantorel-cli" --json-lines > "$work/cli.out" || fail "vantorel-cli"
grep -q 'ShipClass' "$work/cli.out" || fail "vantorel-cli printed no ship class"

export QT_QPA_PLATFORM=offscreen
export XDG_RUNTIME_DIR="$work/xdg"
mkdir -m 700 "$XDG_RUNTIME_DIR"
unset VANTOREL_IMAGES QT_LOGGING_RULES

# Starts the installed program with its output in FILE; it runs until
# stopped, so the caller stops it.
start() {
  "$prefix/bin/vantorel" > "$1" 2>&1 &
  program=$!
}
stop() {
  kill -0 "$program" 2> /dev/null || fail "the installed program ended by itself: $(cat "$1")"
  kill "$program"
  wait "$program" 2> /dev/null || true
}

# With its logging category on, the program says where its pictures come
# from and which it read.
export QT_LOGGING_RULES="vantorel.pictures.info=true"
started=$SECONDS
start "$work/on.log"
for _ in $(seq 1 600); do
  grep -q "read $pictures/Alpha/unrestricted.jpg" "$work/on.log" && break
  kill -0 "$program" 2> /dev/null || break
  sleep 0.1
done
took=$((SECONDS - started))
sleep 0.5
stop "$work/on.log"
grep -q "pictures from $pictures\$" "$work/on.log" || fail "pictures not taken from $pictures: $(cat "$work/on.log")"
grep -q "read $pictures/Alpha/unrestricted.jpg 360 x 360" "$work/on.log" ||
  fail "the first ship picture was not read: $(cat "$work/on.log")"

# With the category off, as a user starts it: not a word, for twice as long
# as the program took to read its first picture and two seconds more. The
# virtual screen's own notice that it cannot raise a window is Qt's, not the
# program's.
unset QT_LOGGING_RULES
start "$work/off.log"
sleep $((2 * took + 2))
stop "$work/off.log"
said="$(grep -v -x 'This plugin does not support raise()' "$work/off.log" || true)"
[ -z "$said" ] || fail "the program wrote with its logging off: $said"

echo "installed program found its pictures in $pictures"
