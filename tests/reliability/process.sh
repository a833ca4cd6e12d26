#!/usr/bin/env bash
# shellcheck disable=SC2317  # the functions are run by name
# The program as a process, from its command line to its end. Arguments: its built bundle, the tests'
# program that performs steps in the window, the stand-in for the emulator.
# shellcheck source=tests/reliability/check.sh
. "$(dirname "$0")/check.sh"
performer=$2
cp -R "$3" "$work/Quillon.app"
export QUILLON_STAND_IN_REPORT=$work/report
prefs=$HOME/.quillon_prefs
bundle=$work/QuillonSettings.app

# ends STATUS COMMAND...: the command ends by itself with that status. Its lines are in $said.
ends() { said=$(timeout 20 "${@:2}" 2>&1 | tr -d '\0'); [ $? -eq "$1" ]; }
# shellcheck disable=SC2053  # it is a pattern
says() { [[ $said == $1 ]]; }
performs() { ends 0 "$performer" --run "$HOME" "$bundle" "$@"; }
files() { (cd "$HOME" && find . -printf '%p %y' ! -type d -printf ' %s %T@' -o -printf '\n'); }

# leaves TEXT STEP...: the window ends by these steps, having written the text, and no file changes.
leaves() {
  local before
  before=$(files)
  performs "${@:2}" && says "*$1*" && [ "$(files)" = "$before" ]
}

check "a first start" ends 0 "$program" --start
sed 's/^ramsize .*/ramsize 134217728/; s/^nocdrom .*/nocdrom 1/' "$prefs" >"$work/default"
printf '# comment\nramsize 134217728\ndisk /a b.dsk\nnocdrom 1\nother x' >"$prefs"
check "--start" ends 0 "$program" --start
check "what it says" says "local path is: $work"$'\n*No match for: idlewait *post write prefs*'
check "what the emulator sees" says $'*\ndisk 1: /a b.dsk\n*\nramsize = 134217728\n*'
check "the saved file" cmp "$prefs" <(echo 'disk /a b.dsk' | cat - "$work/default")

printf 'rom /a\ncomment' >"$prefs"
for step in isQuit '&Quit' 2 15; do
  check "ending by $step" leaves '' "$step"
done
check "closing the window" leaves windowWillClose close
check "a signal under a sheet" leaves 'create loaded' bitCreate 1
check "closing over the preferences" leaves 'is empty' openPreferences quilOff close
check "quitting under a sheet" leaves 'create loaded' bitCreate isQuit
check "not agreeing" leaves Disagree '&Beta Agreement…' disAgree

printf 'rom /a\tb\e[1m\n' >"$prefs"
before=$(files)
check "--check with something that stops" ends 1 "$program" --check
check "what it tells" says $'*stops\trom\tThe ROM file "/a\\\\x09b\\\\x1b\\[1m" is missing.\n*'
check "nothing else" [ -z "$(grep -vP '^(stops|warning|note)\t' <<<"$said")" ]
for arguments in --nonsense file '--start file' '--check file'; do
  # shellcheck disable=SC2086  # they are several
  check "refusing $arguments" ends 2 "$program" $arguments
done
check "help without a screen" env QT_QPA_PLATFORM=xcb "$program" --help
check "no file changed" [ "$before" = "$(files)" ]
rm "$prefs"
check "--check without preferences" ends 1 "$program" --check
check "it makes none" [ ! -e "$prefs" ]
head -c 65536 /dev/zero >"$HOME/rom"
echo 'rom rom' >"$prefs"
check "--check with nothing that stops" ends 0 "$program" --check
for output in '| true' '>/dev/full'; do
  check "--start $output" bash -o pipefail -c "'$program' --start 2>/dev/null $output"
done

sed -i '/Quit on Start/ { n; s/false/true/ }' "$bundle/Contents/Resources/Prefs.plist"
check "Start that quits" performs startQuil
check "what it started" says $'*\nrom = /never/saved/unless/asked\n*'
rm -r "$work/Quillon.app"
check "Start that quits, with no emulator" performs startQuil
check "--start without an emulator" ends 1 "$program" --start
check "it says why in a line" [ "$(grep -c '^quillon-settings: .*Quillon.app' <<<"$said")" -eq 1 ]
printf 'rom /\xff\n' >"$prefs"
before=$(files)
check "--start over a file that it cannot read" ends 1 "$program" --start
check "which it leaves" [ "$before" = "$(files)" ]
exit $failed
