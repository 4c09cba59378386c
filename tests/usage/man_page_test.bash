# The page is one that man formats without a warning, and tells of every command and option that
# the tool's help tells of: man_page_test.bash PAGE TOOL.
set -euo pipefail
page=$1
tool=$2

warnings=$(MANROFFSEQ='' LC_ALL=C.UTF-8 MANWIDTH=100 man --warnings -E UTF-8 -l "$page" 2>&1 >/dev/null)
[ -z "$warnings" ] || { echo "$warnings"; exit 1; }
text=$(LC_ALL=C.UTF-8 MANWIDTH=100 man --no-hyphenation -l "$page" | sed 's/.\x08//g')

failures=0
expect() {
  grep -q -F -- "$1" <<<"$text" || { echo "the page does not hold \"$1\""; failures=1; }
}

# The names below "Subcommands:" in a help.
commands_of() {
  "$tool" "$@" --help | sed -n '/^Subcommands:/,/^$/s/^  \([a-z][a-z-]*\) .*/\1/p'
}
options_of() {
  "$tool" "$@" --help | sed -n '/^Options:/,/^$/s/^  [^ ]*\(--[a-z-]*\).*/\1/p'
}
walk() {
  local sub subs option
  subs=$(commands_of "$@")
  [ -n "$subs" ] || expect "tervix $*"
  for option in $(options_of "$@"); do
    expect "$option"
  done
  for sub in $subs; do
    walk "$@" "$sub"
  done
}
walk
exit $failures
