#!/usr/bin/env bash
# shellcheck disable=SC2317  # the functions are run by name
# Runs the program in surroundings that nobody prepared for it. Argument: its built bundle.
# shellcheck source=tests/reliability/check.sh
. "$(dirname "$0")/check.sh"
mkdir -p "$work/Quillon.app/Contents/MacOS" "$work/account"
ln -s /bin/true "$work/Quillon.app/Contents/MacOS/Quillon"
# How many settings there are: each has a row in the table.
keys=$(grep -c '{Key::' "$(dirname "$0")/../../document/key_table.h")

# lines COUNT: whether the preferences file has so many.
lines() { [ "$(wc -l <"$HOME/.quillon_prefs")" -eq "$1" ]; }

# Starts the emulator from a home folder; the status must be 0 and the file complete.
starts() {
  local -x HOME=$1
  rm -f "$HOME/.quillon_prefs"
  timeout 20 "${@:2}" "$program" --start >/dev/null 2>&1 && lines "$keys"
}

long=$work
while [ ${#long} -lt 3880 ]; do long+=/$(printf 'x%.0s' {1..200}); done
for home in "$long" "$work/ b  l a n k s " "$work/Größe ☃/e$(printf '\314\201')" \
  "$work/"$'new\nline' "$work/100%25 # ?"; do
  mkdir -p "$home"
  check "HOME of ${#home} characters: ${home:0:60}" starts "$home" env -i HOME="$home"
done
check "no home folder: told by the status" \
  bash -c "! HOME='$work/none' timeout 20 '$program' --start >/dev/null 2>&1"
HOME=$long timeout -k 5 3 "$program" >/dev/null 2>&1
check "the window with the long one stays until it is ended" [ $? -eq 124 ]

# Where HOME says nothing the account's own folder counts: that of an account of ours, which only the
# program sees in the place of the real one.
printf 'root:x:0:0::%s:/bin/sh\n' "$work/account" >"$work/passwd"
asAccount() {
  # shellcheck disable=SC2016  # until it is run
  unshare --user --map-root-user --mount \
    bash -c 'mount --bind "$0/passwd" /etc/passwd && cd "$0" && "$@"' "$work" "$@" >/dev/null
}
for setting in -uHOME HOME= HOME=relative; do
  # Not each system gives a namespace for an account of ours.
  asAccount true 2>/dev/null || break
  rm -f "$work/account/.quillon_prefs"
  asAccount env "$setting" timeout 20 "$program" --start
  check "env $setting" [ -s "$work/account/.quillon_prefs" ]
done

# A closed stream must not be taken for a file that is opened later: the file would get the lines.
for streams in '<&-' '>&-' '2>&-' '<&- >&- 2>&-'; do
  check "closed streams: $streams" starts "$HOME" bash -c "\"\$@\" $streams" bash
done

# The program gives up on its lines after a while, and nothing else.
mkfifo "$work/pipe"
exec 9<>"$work/pipe"
yes 'disk /some/where.dsk' | head -n 2000 >"$HOME/.quillon_prefs"
check "a full pipe that nobody reads" bash -c "timeout 20 '$program' --start >'$work/pipe'"
check "and a complete file" lines $((2000 + keys))
exec 9>&-

# Each image writes all lists as they are by then, which is more than a disk holds: the lines end
# where there are too many of them.
seq -f 'disk /home/me/disk image %.0f.dsk' 200000 >"$HOME/.quillon_prefs"
check "200,000 images" bash -c "timeout 120 '$program' --start >'$work/lines'"
check "all of them are still there" lines $((200000 + keys))
check "the lines end" [ "$(stat -c %s "$work/lines")" -le $((1 << 30)) ]
exit $failed
