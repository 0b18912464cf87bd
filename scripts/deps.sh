#!/usr/bin/env bash
# Installs what Tourvane needs on Debian, if anything is missing. Safe to run again: it only
# calls apt-get when a package is not installed yet.
#
#   deps.sh play   what building and running the game needs
#   deps.sh web    that, and what building and serving the web page needs
#   deps.sh test   all of that, and what the tests, benchmarks, fuzzing, the package test and
#                  the browser tests need
#
# As root it runs apt-get itself, as another user through sudo; without sudo it prints what
# to install and fails.
set -euo pipefail

play=(
  g++ cmake make
  qt6-base-dev qt6-svg-dev libgl-dev qt6-qpa-plugins fonts-liberation
)
web=(
  emscripten node-acorn python3
)
test=(
  python3
  libgtest-dev libgmock-dev libbenchmark-dev
  clang libclang-rt-dev
  xvfb xauth
  desktop-file-utils appstream
  dpkg-dev fakeroot lintian man-db
  chromium
)
# The browser tests' packages come through npm, which some builds of nodejs carry themselves.
command -v npm >/dev/null || test+=(npm)

case "${1:-}" in
  play) packages=("${play[@]}") ;;
  web) packages=("${play[@]}" "${web[@]}") ;;
  test) packages=("${play[@]}" "${web[@]}" "${test[@]}") ;;
  *) echo "usage: deps.sh play|web|test" >&2; exit 2 ;;
esac

missing=()
for p in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
    missing+=("$p")
  fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

sudo=()
if [ "$(id -u)" -ne 0 ]; then
  if ! command -v sudo >/dev/null; then
    echo "Tourvane needs these Debian packages; as root, install them with:" >&2
    echo "  apt-get install ${missing[*]}" >&2
    exit 1
  fi
  sudo=(sudo)
fi
echo "Installing: ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
"${sudo[@]}" apt-get update -qq
"${sudo[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
