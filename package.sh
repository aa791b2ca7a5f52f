#!/usr/bin/env bash
# Sets the machine up, builds Debian's packages into build-packages and judges them: orlo (the viewer), orlo-preferences
# (plug-in and tool), liborlo-dev (the SDK) and orlo-doc.
set -euo pipefail
cd "$(dirname "$0")"
source tools/setup.sh

install_packages package

# In a copy, so that no build leaves anything among the sources.
out=build-packages
rm -rf "$out"
mkdir -p "$out/orlo"
tar --create --exclude=./.git --exclude='./build' --exclude='./build-*' . | tar --extract --directory "$out/orlo"
if ! (cd "$out/orlo" && dpkg-buildpackage --build=binary --no-sign) >"$out/log" 2>&1; then
    tail -n 40 "$out/log"
    echo "package.sh: the packages could not be built; $out/log tells more" >&2
    exit 1
fi

desktop-file-validate Apps/orlo/desktop/*.desktop
appstreamcli validate --no-net Apps/orlo/desktop/*.metainfo.xml
lintian --allow-root --fail-on error,warning "$out"/*.changes
ls "$out"/*.deb
