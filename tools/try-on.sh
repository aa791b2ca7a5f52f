#!/usr/bin/env bash
# Tries the last commit as a new user would: on a bare Debian, with nothing but a clone of this repository.
#   tools/try-on.sh bookworm|trixie                    .ci/run and then ./run.sh
#   tools/try-on.sh bookworm|trixie --command COMMAND  this instead
#   --roots FOLDER   where the systems are kept for the next time, /var/tmp/orlo-roots unless told
#   --fresh          makes the system anew
# Needs to be root, debootstrap, and a mirror of Debian.
set -euo pipefail

suite=${1:-}
case "$suite" in
bookworm | trixie) shift ;;
*) echo "try-on.sh: say which Debian: bookworm or trixie" >&2; exit 2 ;;
esac
command='.ci/run && ./run.sh'
roots=/var/tmp/orlo-roots
fresh=no
while [ $# -gt 0 ]; do
    case "$1" in
    --command) command=${2:?try-on.sh: --command takes a command}; shift ;;
    --roots) roots=$(realpath -m "${2:?try-on.sh: --roots takes a folder}"); shift ;;
    --fresh) fresh=yes ;;
    *) echo "try-on.sh: unknown argument $1; it takes --command COMMAND, --roots FOLDER and --fresh" >&2; exit 2 ;;
    esac
    shift
done
cd "$(dirname "$0")/.."

[ "$(id -u)" -eq 0 ] || { echo "try-on.sh: only root can make a system of its own" >&2; exit 2; }
type debootstrap >/dev/null || { echo "try-on.sh: debootstrap is not installed" >&2; exit 2; }

root=$roots/$suite
[ "$fresh" = no ] || rm -rf --one-file-system "$root"
# The mark stands when the system is whole: one whose making was interrupted is made again.
if [ ! -e "$root/made" ]; then
    rm -rf --one-file-system "$root"
    mkdir -p "$root"
    debootstrap --variant=minbase "$suite" "$root" >"$root.log" || { tail -n 20 "$root.log" >&2; exit 1; }
    # Nothing of it needs to outlive a crash of the machine.
    echo force-unsafe-io >"$root/etc/dpkg/dpkg.cfg.d/unsafe-io"
    touch "$root/made"
fi
cp /etc/resolv.conf "$root/etc/resolv.conf"

# The clone stays too, so that a second run builds only what changed; what it has of its own is thrown away.
clone=$root/home/orlo
if [ -d "$clone/.git" ]; then
    git -C "$clone" fetch -q "$PWD" HEAD
    git -C "$clone" checkout -q --force --detach FETCH_HEAD
else
    git clone -q --no-hardlinks "$PWD" "$clone"
fi
echo "try-on.sh: $(git -C "$clone" log -1 --format='%h %s') on $suite"

# Mounts and processes are in spaces of their own and end with the command, however it ends.
inside() {
    mount -t proc proc "$root/proc"
    mount -t devpts -o newinstance,ptmxmode=0666 devpts "$root/dev/pts"
    mount -t tmpfs tmpfs "$root/dev/shm"
    exec chroot "$root" env -i HOME=/root PATH=/usr/sbin:/usr/bin:/sbin:/bin LANG=C.UTF-8 CI=true \
        bash -c "cd /home/orlo && $command" </dev/null
}
export -f inside
export root command
unshare --mount --propagation private --pid --fork --kill-child bash -euc inside
echo "try-on.sh: $suite holds"
