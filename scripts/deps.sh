#!/usr/bin/env bash
# Installs what building and testing Tourvane needs on Debian, if anything is missing.
# Safe to run again: it only calls apt-get when a package is not installed yet.
set -euo pipefail

packages=(
  g++ cmake make python3
  qt6-base-dev libgl-dev fonts-liberation
  libgtest-dev libgmock-dev libbenchmark-dev
  clang libclang-rt-14-dev
  desktop-file-utils appstream
  xvfb xauth
)

missing=()
for p in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
    missing+=("$p")
  fi
done

if [ ${#missing[@]} -gt 0 ]; then
  echo "Installing: ${missing[*]}"
  sudo=""
  if [ "$(id -u)" -ne 0 ]; then sudo="sudo"; fi
  export DEBIAN_FRONTEND=noninteractive
  $sudo apt-get update -qq
  $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
