#!/usr/bin/env bash
# Builds the Debian package from a build folder as the README says, and
# checks what it holds and what it asks for, without installing it.
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
