#!/usr/bin/env bash
# Builds the Debian package into build/package/ and has it checked.
set -euo pipefail
cd "$(dirname "$0")/.."
umask 022

echo "Building the package ..."
cmake --preset release >/dev/null
cmake --build --preset release >/dev/null

work=build/package
tree=$work/tree
rm -rf "$work"
DESTDIR=$PWD/$tree cmake --install build/release --prefix /usr --strip >/dev/null
chmod 644 "$tree/usr/lib/palace-lantern/Bmp2Jpeg.dll"
strip --remove-section=.comment --remove-section=.note "$tree"/usr/lib/palace-lantern/*

# What the libraries ask for is computed; the typeface that stands in for Verdana and the opener of the help
# pages are in packaging/control.in, since no library says that they are needed.
mkdir -p "$work/debian" "$tree/DEBIAN"
echo "Source: palace-lantern" > "$work/debian/control"
libraries=$(cd "$work" && dpkg-shlibdeps -O tree/usr/lib/palace-lantern/* 2>/dev/null | sed 's/^shlibs:Depends=//')
version=$(sed -n '1s/.*(\(.*\)).*/\1/p' packaging/changelog)
sed -e "s/@VERSION@/$version/" -e "s/@ARCHITECTURE@/$(dpkg --print-architecture)/" \
    -e "s/@LIBRARIES@/$libraries/" -e "s/@SIZE@/$(du -sk "$tree/usr" | cut -f1)/" \
    packaging/control.in > "$tree/DEBIAN/control"
(cd "$tree" && find usr -type f -print0 | sort -z | xargs -0 md5sum > DEBIAN/md5sums)
dpkg-deb --root-owner-group --build "$tree" "$work" >/dev/null
package=$(echo "$work"/*.deb)

desktop-file-validate packaging/palace-lantern.desktop
appstreamcli validate --no-net packaging/palace-lantern.metainfo.xml
lintian --allow-root --fail-on error,warning "$package"
rm -rf "$tree" "$work/debian"
dpkg-deb --info "$package"
echo "The package is $package"
