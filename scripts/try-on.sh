#!/usr/bin/env bash
# Tries the two commands of the README on a Debian release as a new user does: from a fresh clone of
# what is committed here, as an ordinary person with sudo, on a system that is made for it and thrown
# away.
#
#   try-on.sh RELEASE [ARCHITECTURE [COMMAND]]
#
# "try-on.sh trixie i386 './test.sh --core'" runs another command. This machine must be able to run
# programs of that architecture. Only root can do all this. Packages come from the mirror that
# this machine uses, or from MIRROR.
set -euo pipefail
root=$(dirname "$(dirname "$(readlink -f "$0")")")
. "$root/scripts/packages.sh"

fail() {
  echo "$*" >&2
  exit 1
}

# The mirror of this machine, whose releases are all in one place.
usedMirror() {
  local sites
  # shellcheck disable=SC2016  # apt-get expands it
  sites=$(apt-get indextargets --format '$(SITE)' 'Created-By: Packages' 'Origin: Debian' \
    'Label: Debian')
  echo "${sites%%$'\n'*}"
}

# Runs in name spaces of its own: what it mounts nobody else sees, and it goes with the last process.
makeAndEnter() {
  local system=$1 release=$2 architecture=$3 command=$4
  local home=$system/home/tester
  mmdebstrap --quiet --variant=apt --architectures="$architecture" \
    --include=git,sudo,passwd,ca-certificates "$release" "$system" "$MIRROR"
  cp /etc/resolv.conf "$system/etc/resolv.conf"
  chroot "$system" useradd --create-home --shell /bin/bash tester
  echo 'tester ALL=(ALL) NOPASSWD: ALL' >"$system/etc/sudoers.d/tester"
  git clone --quiet "file://$root" "$home/quillon-settings"
  chroot "$system" chown -R tester:tester /home/tester

  mount -t proc proc "$system/proc"
  mount --rbind /dev "$system/dev"
  chroot --userspec=tester:tester "$system" /usr/bin/env -i HOME=/home/tester USER=tester \
    PATH=/usr/local/bin:/usr/bin:/bin LANG=C.UTF-8 TERM=dumb \
    bash -c "cd ~/quillon-settings && $command"
}

cleanUp() {
  [ -z "${child:-}" ] || kill -KILL "$child" 2>/dev/null || true
  wait
  # What is still mounted there would be emptied, too.
  ! grep -qF " $scratch/" /proc/mounts || fail "$scratch holds mounts."
  rm -rf "$scratch" || { sleep 2 && rm -rf "$scratch"; }  # somebody was still writing
}

if [ "${1:-}" = --enter ]; then
  shift
  makeAndEnter "$@"
  exit
fi
[ $# -ge 1 ] || fail "Name a release: $(sed -n 's/^#   //p' "$0")"
[ "$(id -u)" -eq 0 ] || fail "Only root can make another system."
installMissing mmdebstrap git
MIRROR=${MIRROR:-$(usedMirror)}
[ -n "$MIRROR" ] || fail "There are no package lists of Debian here; name a mirror in MIRROR."
export MIRROR

# Not in /tmp, which may be mounted so that sudo does not work there.
scratch=$(mktemp -d /var/tmp/try-on.XXXXXX)
chmod 755 "$scratch"
trap cleanUp EXIT
trap 'exit 143' INT TERM HUP
# --kill-child and --pdeathsig: should this script be killed, so is all that it started.
setpriv --pdeathsig KILL unshare --mount-proc --propagation private --pid --fork --kill-child --ipc \
  "$0" --enter "$scratch/system" "$1" "${2:-$(dpkg --print-architecture)}" \
  "${3:-./run.sh && ./run.sh --demo && ./test.sh}" </dev/null &
child=$!
wait "$child"
