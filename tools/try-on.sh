#!/usr/bin/env bash
# Tries the last commit as a new user would: on a bare Debian, with nothing but a clone of this repository.
#   tools/try-on.sh bookworm|trixie                    .ci/run and ./run.sh, then the packages as below
#   tools/try-on.sh bookworm|trixie --packages         builds the packages, and tries them on a second bare system
#   tools/try-on.sh bookworm|trixie --command COMMAND  this instead
#   --roots FOLDER   where the systems are kept for the next time, /var/tmp/orlo-roots unless told
#   --fresh          makes the systems anew
# Needs to be root, debootstrap, and a mirror of Debian.
set -euo pipefail

suite=${1:-}
case "$suite" in
bookworm | trixie) shift ;;
*) echo "try-on.sh: say which Debian: bookworm or trixie" >&2; exit 2 ;;
esac
command='.ci/run && ./run.sh'
packages=yes
roots=/var/tmp/orlo-roots
fresh=no
while [ $# -gt 0 ]; do
    case "$1" in
    --command) command=${2:?try-on.sh: --command takes a command} packages=no; shift ;;
    --packages) command='' ;;
    --roots) roots=$(realpath -m "${2:?try-on.sh: --roots takes a folder}"); shift ;;
    --fresh) fresh=yes ;;
    *) echo "try-on.sh: unknown argument $1; it takes --packages, --command COMMAND, --roots FOLDER and --fresh" >&2; exit 2 ;;
    esac
    shift
done
cd "$(dirname "$0")/.."

[ "$(id -u)" -eq 0 ] || { echo "try-on.sh: only root can make a system of its own" >&2; exit 2; }
type debootstrap >/dev/null || { echo "try-on.sh: debootstrap is not installed" >&2; exit 2; }

bare=$roots/$suite.bare
# Begins anew, out of anything that is whole under its name only when it is done.
make_bare_system() {
    rm -rf --one-file-system "$bare" "$bare.new"
    mkdir -p "$bare.new"
    debootstrap --variant=minbase "$suite" "$bare.new" >"$bare.log" || { tail -n 20 "$bare.log" >&2; exit 1; }
    # Nothing of it needs to outlive a crash of the machine.
    echo force-unsafe-io >"$bare.new/etc/dpkg/dpkg.cfg.d/unsafe-io"
    mv "$bare.new" "$bare"
}
copy_bare_system() {
    rm -rf --one-file-system "$1" "$1.new"
    cp -a "$bare" "$1.new"
    mv "$1.new" "$1"
}

# The clone stays in the system, so that a second run builds only what changed; what it has of its own is thrown away.
clone_into() {
    local clone=$1/home/orlo
    if [ -d "$clone/.git" ]; then
        git -C "$clone" fetch -q "$PWD" HEAD
        git -C "$clone" checkout -q --force --detach FETCH_HEAD
    else
        git clone -q --no-hardlinks "$PWD" "$clone"
    fi
    echo "try-on.sh: $(git -C "$clone" log -1 --format='%h %s') on ${1##*/}"
}

# Mounts and processes are in spaces of their own and end with the command, however it ends.
# shellcheck disable=SC2154
inside() {
    mount -t proc proc "$root/proc"
    mount -t devpts -o newinstance,ptmxmode=0666 devpts "$root/dev/pts"
    mount -t tmpfs tmpfs "$root/dev/shm"
    cp /etc/resolv.conf "$root/etc/resolv.conf"
    exec chroot "$root" env -i HOME=/root PATH=/usr/sbin:/usr/bin:/sbin:/bin LANG=C.UTF-8 CI=true \
        bash -c "cd /home/orlo && $command" </dev/null
}
export -f inside
run_in() {
    root=$1 command=$2 unshare --mount --propagation private --pid --fork --kill-child bash -euc inside
}

[ "$fresh" = no ] || rm -rf --one-file-system "$bare" "${roots:?}/$suite"
[ -d "$bare" ] || make_bare_system
[ -d "$roots/$suite" ] || copy_bare_system "$roots/$suite"
clone_into "$roots/$suite"
[ -z "$command" ] || run_in "$roots/$suite" "$command"
if [ "$packages" = yes ]; then
    run_in "$roots/$suite" ./package.sh
    copy_bare_system "$roots/$suite.packages"
    clone_into "$roots/$suite.packages"
    mkdir "$roots/$suite.packages/home/packages"
    cp "$roots/$suite"/home/orlo/build-packages/*.deb "$roots/$suite.packages/home/packages"
    run_in "$roots/$suite.packages" 'tools/try-packages.sh /home/packages'
fi
echo "try-on.sh: $suite holds"
