#!/bin/sh
# The small front end lists profiles with their output files and renames one; a name that is taken
# or a change that fails leaves everything: front_end_test.sh PROGRAM EXAMPLES [EMULATOR]. With an
# emulator, the program is one for Windows, which has this system's files on the drive Z.
set -eu
program=$1
emulator=${3:-}
drive=${3:+Z:}
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cp -r "$2/amp-simulation" "$folder/old"
cp -r "$2/amp-simulation" "$folder/amp"
cd "$folder/amp"
top=$folder/amp/amp-TervixFiles/TOP
shown=$drive$top

listed() {
  $emulator "$program" amp.tvp | tr -d '\r' >../listed
  cat >../expected
  diff ../expected ../listed
}
listed <<END
TOP tran $shown/tran/tran.out
TOP ac $shown/ac/ac.out
BIAS dc $drive$folder/amp/amp-TervixFiles/BIAS/dc/dc.out
END

refused() {
  if $emulator "$program" "$@" 2>/dev/null; then
    echo "renamed, though it should not: $*"
    exit 1
  fi
  diff -r ../old .
}
refused amp.tvp TOP tran ac
refused amp.tvp TOP none startup
mkdir "$top/startup.sim.new" ../old/amp-TervixFiles/TOP/startup.sim.new # in the way of the new text
refused amp.tvp TOP tran startup
rmdir "$top/startup.sim.new"

$emulator "$program" amp.tvp TOP tran startup
listed <<END
TOP startup $shown/startup/startup.out
TOP ac $shown/ac/ac.out
BIAS dc $drive$folder/amp/amp-TervixFiles/BIAS/dc/dc.out
END
[ ! -e "$top/tran" ] && [ ! -e "$top/tran.sim" ]
cmp "$top/startup/startup.dat" ../old/amp-TervixFiles/TOP/tran/tran.dat
