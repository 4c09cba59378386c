# What zsh offers after a line, in a shell of its own on a terminal of its own:
# completion_test.zsh [FOLDER], in examples/; without a folder as installed.
setopt no_unset
zmodload zsh/zpty || exit 1
failures=0

# What stands on the terminal after LINE and a tab, up to the word @END@.
offered() {
  local text= part
  zpty shell zsh -f
  zpty -w shell "fpath=(${folder:+${(q)folder}} \$fpath); autoload -Uz compinit && compinit -u -D; PS1=; PS2="
  zpty -w shell "zstyle ':completion:*' menu no; setopt no_beep list_rows_first; LISTMAX=1000"
  zpty -w shell "bindkey '^I' complete-word; print @READY@"
  zpty -r shell part '*@READY@*@READY@*' # the echo of the line, then its output
  zpty -w -n shell "$1"$'\t'
  zpty -w -n shell $'\t'
  sleep 1
  while zpty -r -t shell part; do
    text+=$part
  done
  zpty -d shell
  print -r -- "$text"
}

expect() {
  local text=$(offered "$1") word
  shift
  for word in "$@"; do
    if [[ $text != *$word* ]]; then
      print -r -- "expected \"$word\" in \"$text\""
      failures=$((failures + 1))
    fi
  done
}

folder=${1:-}
expect 'tervix sche' 'schematic'
expect 'tervix profile ' activate add copy delete rename
expect 'tervix show --fr' --front-end
expect 'tervix show amp-flat/amp.t' amp-flat/amp.tvp
exit $((failures > 0))
