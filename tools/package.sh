#!/usr/bin/env bash
# Builds the Debian package into build/package/ and has it checked.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/common.sh
umask 022

build release
rm -rf build/package
quietly "Packing" cpack --config build/release/CPackConfig.cmake -B build/package
desktop-file-validate packaging/palace-lantern.desktop
appstreamcli validate --no-net packaging/palace-lantern.metainfo.xml
lintian --allow-root --fail-on error,warning build/package/*.deb
dpkg-deb --info build/package/*.deb
echo "The package is $(echo build/package/*.deb)"
