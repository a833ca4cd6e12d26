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

# leaves LINE STEP...: the window ends by these steps, having written the line, and no file changes.
leaves() {
  local before
  before=$(files)
  performs "${@:2}" && grep -q "^$1" <<<"$said" && [ "$(files)" = "$before" ]
}

check "a first start" ends 0 "$program" --start
sed 's/^ramsize .*/ramsize 134217728/; s/^nocdrom .*/nocdrom 1/' "$prefs" >"$work/default"
printf '# comment\nramsize 134217728\ndisk /a b.dsk\nnocdrom 1\nother x' >"$prefs"
check "--start" ends 0 "$program" --start
check "what it says" says "local path is: $work"$'\n*No match for: idlewait *post write prefs*'
check "what the emulator sees" says $'*\ndisk 1: /a b.dsk\n*\nramsize = 134217728\n*'
check "the saved file" cmp "$prefs" <(echo 'disk /a b.dsk' | cat - "$work/default")

printf 'rom /a\ncomment' >"$prefs"
check "closing the window" leaves windowWillClose close
for step in isQuit '&Quit' 2 15; do
  check "ending by $step" leaves '' "$step"
done
check "a signal under a sheet" leaves 'create loaded' bitCreate 1
check "closing over the preferences" leaves 'is empty' openPreferences quilOff close
check "quitting under a sheet" leaves 'create loaded' bitCreate isQuit
check "agreeing" leaves Agree '&Beta Agreement…' Agree close
check "not agreeing" leaves Disagree '&Beta Agreement…' disAgree

# shellcheck disable=SC2016  # until each is run
for make in 'mkdir "$prefs"' 'mkfifo "$prefs"' 'ln -s /dev/zero "$prefs"' 'ln -s no/such "$prefs"' \
  ': >"$prefs"' 'printf "rom \xff\nramsize 1\n" >"$prefs"' 'printf "rom a\0b\ndisk \0" >"$prefs"' \
  'head -c 1000000 /dev/zero | tr "\0" x >"$prefs"' 'seq -f "key%.0f x" 200000 >"$prefs"'; do
  rm -rf "$prefs"
  eval "$make"
  check "opening after $make" leaves '' close
done

echo 'rom /a' >"$prefs"
# tells LINE: --check says this line.
tells() { grep -qxP "$1" <<<"$said"; }
before=$(files)
check "--check with something that stops" ends 1 "$program" --check
check "what it tells" tells 'stops\trom\tThe ROM file "/a" is missing\.'
check "nothing else" [ -z "$(grep -vP '^(stops|warning|note)\t' <<<"$said")" ]
check "it changes no file" [ "$before" = "$(files)" ]
rm "$prefs"
check "--check without preferences" ends 1 "$program" --check
check "it makes none" [ ! -e "$prefs" ]
head -c 65536 /dev/zero >"$HOME/rom"
printf 'rom rom\ndisk a\tb\e[1m\n' >"$prefs"
check "--check with nothing that stops" ends 0 "$program" --check
check "a path with control characters" tells 'warning\tdisk\t[^\t\e]*a\\x09b\\x1b\[1m.*'

echo 'rom /a' >"$prefs"
for arguments in --nonsense file '--start file' '--check file'; do
  # shellcheck disable=SC2086  # they are several
  check "refusing $arguments" ends 2 "$program" $arguments
done
export QT_QPA_PLATFORM=xcb
check "help without a screen" ends 0 "$program" --help
export QT_QPA_PLATFORM=offscreen
check "no file changed" grep -qx 'rom /a' "$prefs"
for output in '| true' '>/dev/full'; do
  check "--start $output" bash -o pipefail -c "'$program' --start 2>/dev/null $output"
done

sed -i '/Quit on Start/ { n; s/false/true/ }' "$bundle/Contents/Resources/Prefs.plist"
check "Start that quits" performs startQuil
check "what it started" grep -qx 'rom = /never/saved/unless/asked' <<<"$said"
rm -r "$work/Quillon.app"
check "Start that quits, with no emulator" performs startQuil
check "--start without an emulator" ends 1 "$program" --start
check "it says why in a line" [ "$(grep -c '^quillon-settings: .*Quillon.app' <<<"$said")" -eq 1 ]
rm "$prefs"
ln -s no/such "$prefs"
check "--start that cannot save" ends 1 "$program" --start
rm "$prefs"
printf 'rom /\xff\n' >"$prefs"
check "--start over a file that it cannot read" ends 1 "$program" --start
check "which it leaves" cmp "$prefs" <(printf 'rom /\xff\n')
exit $failed
