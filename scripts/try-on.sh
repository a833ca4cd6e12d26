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
#
# The status is that of the command; 75 says that there was no such system to run it in.
set -euo pipefail
root=$(dirname "$(dirname "$(readlink -f "$0")")")
. "$root/scripts/packages.sh"

fail() {
  echo "$*" >&2
  exit 1
}

# For reasons that say nothing about the program.
giveUp() {
  echo "$*" >&2
  exit 75
}

# The mirror of this machine, whose releases are all in one place.
usedMirror() {
  local sites
  # shellcheck disable=SC2016  # apt-get expands it
  sites=$(apt-get indextargets --format '$(SITE)' 'Created-By: Packages' 'Origin: Debian' \
    'Label: Debian')
  echo "${sites%%$'\n'*}"
}

# How this machine gets its packages is how that system gets them, too: through a proxy, or from a
# mirror whose lists are older than they may be.
aptOptions() {
  echo 'Acquire::Retries "3";'
  apt-config dump | grep -E '^Acquire::(https?::Proxy|Check-(Date|Valid-Until)) ' || true
}

# Makes the system; $1 is its folder. What is thrown away need not survive a power failure.
makeSystem() {
  local left=3
  aptOptions >"$scratch/apt.conf"
  until quietly mmdebstrap --variant=apt --architectures="$3" --aptopt="$scratch/apt.conf" \
    --dpkgopt=force-unsafe-io --include=git,sudo,passwd,ca-certificates "$2" "$1" "$MIRROR"; do
    rm -rf --one-file-system "$1"
    [ $((--left)) -gt 0 ] || return 1
    sleep 20  # a mirror is perhaps about to be brought up to date
  done
}

# Runs in name spaces of its own: what it mounts nobody else sees, and it goes with the last process.
makeAndEnter() {
  local system=$1 release=$2 architecture=$3 command=$4
  local home=$system/home/tester
  makeSystem "$system" "$release" "$architecture" ||
    giveUp "There is no $release for $architecture to be had here: nothing was tried on it."
  cp /etc/resolv.conf "$system/etc/resolv.conf"
  echo "127.0.0.1 localhost $(uname -n)" >"$system/etc/hosts"  # or sudo looks for it in vain
  chroot "$system" useradd --create-home --shell /bin/bash tester
  echo 'tester ALL=(ALL) NOPASSWD: ALL' >"$system/etc/sudoers.d/tester"
  # git refuses folders of other people, which a checkout in a container often is.
  printf '[safe]\n\tdirectory = *\n' >"$scratch/gitconfig"
  GIT_CONFIG_GLOBAL=$scratch/gitconfig git clone --quiet "file://$root" "$home/quillon-settings"
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
unshare --mount --propagation private --pid --fork true ||
  giveUp "No name spaces can be made here (in a container, perhaps): nothing was tried."
MIRROR=${MIRROR:-$(usedMirror)}
[ -n "$MIRROR" ] || fail "There are no package lists of Debian here; name a mirror in MIRROR."
export MIRROR

# Not in /tmp, which may be mounted so that sudo does not work there.
scratch=$(mktemp -d /var/tmp/try-on.XXXXXX)
export scratch
chmod 755 "$scratch"
trap cleanUp EXIT
trap 'exit 143' INT TERM HUP
# --kill-child and --pdeathsig: should this script be killed, so is all that it started.
setpriv --pdeathsig KILL unshare --mount-proc --propagation private --pid --fork --kill-child --ipc \
  "$0" --enter "$scratch/system" "$1" "${2:-$(dpkg --print-architecture)}" \
  "${3:-./run.sh && ./run.sh --demo && ./test.sh}" </dev/null &
child=$!
wait "$child"
