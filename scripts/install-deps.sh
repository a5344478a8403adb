#!/usr/bin/env bash
# Installs every Debian package Scrivara needs to build, test and run.
# Idempotent: packages already present are skipped, so a second run is quick.
set -euo pipefail

packages=(
  build-essential cmake ninja-build pkg-config git
  qt6-base-dev qt6-base-dev-tools libqt6svg6 qt6-qpa-plugins
  libgl-dev libxkbcommon-dev
  libpugixml-dev libgumbo-dev libhunspell-dev hunspell-en-us
  libcurl4-openssl-dev
  doxygen
  libgtest-dev libgmock-dev googletest libbenchmark-dev
  clang-format ccache
  xvfb xauth fonts-dejavu-core
)

missing=()
for p in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed'; then
    missing+=("$p")
  fi
done

if [ ${#missing[@]} -eq 0 ]; then
  exit 0
fi

echo "install-deps: installing ${missing[*]}"
sudo_cmd=()
if [ "$(id -u)" -ne 0 ]; then sudo_cmd=(sudo); fi
export DEBIAN_FRONTEND=noninteractive
if ! "${sudo_cmd[@]}" apt-get install -y --no-install-recommends "${missing[@]}"; then
  "${sudo_cmd[@]}" apt-get update
  "${sudo_cmd[@]}" apt-get install -y --no-install-recommends "${missing[@]}"
fi
