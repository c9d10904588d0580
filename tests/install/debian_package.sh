#!/usr/bin/env bash
# Builds the Debian package from a build folder as the README says, checks
# what it holds and what it asks for, and, where it may, installs it with the
# system's package tool, starts the installed program and removes it again.
#
#   debian_package.sh BUILD_DIR
set -euo pipefail
build="$1"
fail() { echo "FAIL: $*" >&2; exit 1; }

out="$build/package"
rm -rf "$out"
cpack --config "$build/CPackConfig.cmake" -G DEB -B "$out" > "$build/package.log" 2>&1 ||
  { cat "$build/package.log"; fail "cpack"; }
debs=("$out"/vantorel_*.deb)
[ "${#debs[@]}" -eq 1 ] && [ -f "${debs[0]}" ] || fail "cpack made no single vantorel package"
deb="${debs[0]}"

depends="$(dpkg-deb --field "$deb" Depends)"
for package in libqt6widgets6 libqt6gui6 libqt6core6 qt6-qpa-plugins; do
  grep -qw "$package" <<< "$depends" || fail "the package does not depend on $package: $depends"
done
recommends="$(dpkg-deb --field "$deb" Recommends)"
for package in fonts-dejavu-core fonts-dejavu-extra fonts-liberation2; do
  grep -qw "$package" <<< "$recommends" || fail "the package does not recommend $package: $recommends"
done

contents="$(dpkg-deb --contents "$deb" | awk '{print $NF}')"
for file in ./usr/bin/vantorel ./usr/bin/vantorel-cli ./usr/share/applications/vantorel.desktop \
            ./usr/share/icons/hicolor/48x48/apps/vantorel.png ./usr/share/vantorel/Images/Alpha/unrestricted.jpg \
            ./usr/share/vantorel/Images/Omega/unrestricted@2x.gif; do
  grep -qx -- "$file" <<< "$contents" || fail "the package does not hold $file"
done
echo "$(basename "$deb"): Depends: $depends"

# Installs, runs and removes the package with the system's package tool where
# that is allowed (as root, or with sudo that asks no password) and no other
# copy of Vantorel is installed; a machine of someone else's is left alone.
as_root=()
if [ "$(id -u)" -ne 0 ]; then
  if command -v sudo > /dev/null && sudo -n true 2> /dev/null; then as_root=(sudo -n); else
    echo "not installing $(basename "$deb"): neither root nor sudo without a password"; exit 0
  fi
fi
if dpkg-query -W -f='${Status}' vantorel 2> /dev/null | grep -q "install ok installed"; then
  echo "not installing $(basename "$deb"): a vantorel package is installed already"; exit 0
fi
work="$(mktemp -d)"
removed=0
cleanup() {
  [ "$removed" -eq 1 ] || "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get remove -y -q vantorel > /dev/null 2>&1 || true
  rm -rf "$work"
}
trap cleanup EXIT
deb_path="$(cd "$(dirname "$deb")" && pwd -P)/$(basename "$deb")"
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "$deb_path" \
  > "$work/install.log" 2>&1 || { cat "$work/install.log"; fail "apt-get install"; }
[ -x /usr/bin/vantorel ] && [ -x /usr/bin/vantorel-cli ] || fail "the package installed no programs in /usr/bin"

echo 'print Form1.ShipClass[1]' | /usr/bin/vantorel-cli --json-lines | grep -q ShipClass || fail "installed vantorel-cli"
export QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR="$work/xdg" QT_LOGGING_RULES="vantorel.pictures.info=true"
mkdir -m 700 "$XDG_RUNTIME_DIR"
unset VANTOREL_IMAGES
/usr/bin/vantorel > "$work/run.log" 2>&1 &
program=$!
for _ in $(seq 1 600); do
  grep -q "read /usr/share/vantorel/Images/Alpha/unrestricted.jpg" "$work/run.log" && break
  kill -0 "$program" 2> /dev/null || break
  sleep 0.1
done
kill -0 "$program" 2> /dev/null || fail "the installed program ended by itself: $(cat "$work/run.log")"
kill "$program"
wait "$program" 2> /dev/null || true
grep -q "read /usr/share/vantorel/Images/Alpha/unrestricted.jpg" "$work/run.log" ||
  fail "the installed program did not read its pictures: $(cat "$work/run.log")"

"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get remove -y -q vantorel > "$work/remove.log" 2>&1 ||
  { cat "$work/remove.log"; fail "apt-get remove"; }
removed=1
for left in /usr/bin/vantorel /usr/bin/vantorel-cli /usr/share/vantorel /usr/share/applications/vantorel.desktop \
            /usr/share/icons/hicolor/48x48/apps/vantorel.png; do
  [ ! -e "$left" ] || fail "$left is left after the package was removed"
done
echo "$(basename "$deb") installed, ran from /usr and was removed"
