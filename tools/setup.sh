# What the scripts in the root of the repository share: to be sourced there.

# Debian's packages, once: what is installed already is not asked for again. Those below the line "# only for NAME" are
# left out unless the name is given.
install_packages() {
    local missing=()
    local package
    while read -r package; do
        dpkg-query -W -f='${db:Status-Abbrev}' "$package" 2>/dev/null | grep -q '^ii' || missing+=("$package")
    done < <(awk -v wanted="${1:-}" '/^# only for /{ skipped = $4 != wanted } !skipped && !/^\s*(#|$)/' tools/packages.txt)
    [ "${#missing[@]}" -eq 0 ] && return

    local root=()
    [ "$(id -u)" -eq 0 ] || root=(sudo)
    echo "Installing ${missing[*]}"
    "${root[@]}" apt-get update -qq
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# Configures and builds a preset, or some targets of it; a second time only what changed.
build() {
    local preset=$1
    shift
    cmake --preset "$preset" -Wno-dev >/dev/null
    cmake --build --preset "$preset" ${1:+--target "$@"}
}
