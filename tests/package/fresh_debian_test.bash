# What a newcomer does on a fresh Debian: install the three packages, build the example, read the
# man page, press the tab key. Runs as root in the folder /trial, which scripts/package fills.
set -euo pipefail
cd "$(dirname "$0")/.."

dpkg --install ./*.deb
[ "$(tervix --version)" = "tervix $(dpkg-query -W -f='${Version}' tervix | cut -d- -f1)" ]
! ldd /usr/bin/tervix /usr/lib/*/libTervixExplorer.so | grep 'not found'
tervix show examples/amp-flat/amp.tvp | head -3

cmake -S examples/front-end -B with-cmake
cmake --build with-cmake
sh package/front_end_test.sh "$PWD/with-cmake/front_end" examples

# shellcheck disable=SC2046 # the flags are words
g++ -std=c++17 examples/front-end/front_end.cpp -o front_end $(pkg-config --cflags --libs TervixExplorer)
sh package/front_end_test.sh "$PWD/front_end" examples

bash usage/man_page_test.bash "$(man --where tervix)" tervix
whatis tervix
cd examples
bash -c 'source /usr/share/bash-completion/bash_completion
  _completion_loader tervix; [[ $(complete -p tervix) == *_tervix* ]]'
bash ../usage/completion_test.bash /usr/share/bash-completion/completions tervix
zsh -f ../usage/completion_test.zsh

dpkg --remove tervix libtervixexplorer-dev libtervixexplorer1
[ -z "$(find /usr -iname '*tervix*' -not -path '*/doc/*')" ]
echo "The packages work on a fresh Debian."
