# What bash offers after a line: completion_test.bash FOLDER, in examples/.
set -u
source "${1:-/usr/share/bash-completion/completions}/${2:-tervix.bash}" || exit 1
failures=0

# expect "LINE" WORD...: the last word of the line is the one being completed.
expect() {
  local line=$1 offered expected
  shift
  read -r -a COMP_WORDS <<<"$line"
  [[ $line == *' ' ]] && COMP_WORDS+=('')
  COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
  _tervix
  offered=$(printf '%s\n' "${COMPREPLY[@]}" | sort | tr '\n' ' ')
  expected=$(printf '%s\n' "$@" | sort | tr '\n' ' ')
  if [[ $offered != "$expected" ]]; then
    echo "after \"$line\": offered \"$offered\", expected \"$expected\""
    failures=$((failures + 1))
  fi
}

expect 'tervix pro' profile project
expect 'tervix profile ' activate add copy delete rename
expect 'tervix profile ren' rename
expect 'tervix show --j' --json
expect 'tervix --v' --version
expect 'tervix show --front-end ' 0 1 2
expect 'tervix profile rename --keep-old --dr' --dry-run
expect 'tervix show amp-flat/amp.t' amp-flat/amp.tvp
expect 'tervix show --front-end 2 amp-flat/amp.t' amp-flat/amp.tvp
# No file but those that hold or belong to a project.
expect 'tervix show amp-flat/amp-TOP-tran.' amp-flat/amp-TOP-tran.sim
expect 'tervix show amp-fl' amp-flat
# The name of a profile is not to be told from the command line alone.
expect 'tervix profile rename amp-flat/amp.tvp ' ''
exit $((failures > 0))
