#!/usr/bin/env bash
# Tries the packages of a folder on a system that is thrown away afterwards: installs them, renders a picture, changes a
# setting, builds the plug-in alone against the installed SDK, removes them and looks for what they left.
#   tools/try-packages.sh FOLDER
set -euo pipefail
packages=$(realpath "${1:?try-packages.sh: say where the packages are}")
cd "$(dirname "$0")/.."
HOME=$(mktemp -d)
trap 'rm -rf "$HOME"' EXIT
export HOME DEBIAN_FRONTEND=noninteractive QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=$HOME

install() {
    apt-get install -y -qq --no-install-recommends "$@" >/dev/null
}
fail() {
    echo "try-packages.sh: $*" >&2
    exit 1
}

apt-get update -qq
install "$packages"/*.deb
# What none of them brings: a display, and what builds a program; and what one of them only recommends, for the
# translations of the plug-in.
install xvfb xauth libgl1-mesa-dri build-essential cmake ninja-build qttools5-dev qttools5-dev-tools

echo "try-packages.sh: the viewer"
orlo --sample --save "$HOME/sample.step"
tools/with-display.sh orlo --render "$HOME/sample.step" --output "$HOME/picture.png" --size 640x480
# A picture of nothing but the background is much smaller.
[ "$(stat -c %s "$HOME/picture.png")" -gt 10000 ] || fail "the picture shows nothing"

echo "try-packages.sh: the tool"
orlo-prefs list | grep '^  Camera fov ' >/dev/null || fail "no setting is listed"
orlo-prefs set "Camera fov" 60
[ "$(orlo-prefs get "Camera fov")" = 60 ] || fail "a setting did not stay"

echo "try-packages.sh: the SDK"
cmake -S Plugins/KernelPreferences -B "$HOME/plugin" -G Ninja >/dev/null
cmake --build "$HOME/plugin" >/dev/null
orlo-prefs --plugin "$HOME/plugin/bin/libKernelPreferences.so" list | grep '^  Camera fov .*60' >/dev/null ||
    fail "the plug-in that was built alone does not serve"

echo "try-packages.sh: removal"
names=$(for package in "$packages"/*.deb; do dpkg-deb --field "$package" Package; done)
# shellcheck disable=SC2086
apt-get purge -y -qq $names >/dev/null
left=$(find / -xdev -iname '*orlo*' -not -path '/home/*' -not -path "$HOME/*")
left+=$(grep -rIl org.example.orlo /etc /usr /var/lib || true)
[ -z "$left" ] || fail "these are left: $left"
