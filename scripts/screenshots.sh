#!/usr/bin/env bash
# Takes the screenshots of the studio shown in README.md: the bundled sample as it opens, with a
# class selected and its summary shown, and with a member selected. The studio runs under a
# virtual X display (xvfb-run) at 1280x800 and writes each picture itself (--screenshot).
#
#   scripts/screenshots.sh                  builds the release studio, writes docs/screenshots/
#   BUILD_DIR=build/other scripts/screenshots.sh   uses another configured build folder
set -euo pipefail
cd "$(dirname "$0")/.."

build=${BUILD_DIR:-build/release}
out=docs/screenshots

command -v xvfb-run >/dev/null || bash scripts/install-deps.sh
if [ ! -f "$build/build.ninja" ]; then
  if [ "$build" != build/release ]; then
    echo "screenshots.sh: $build is not a configured build folder" >&2
    exit 1
  fi
  cmake --preset release
fi
cmake --build "$build" -j "$(nproc)" --target scrivara-studio sv_sample_xml

# A copy of the sample whose code source is this build's XML, and settings of its own, so that
# neither the repository nor the person's window layout changes.
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
xml=$(cd "$build/samples/geometry/xml" && pwd)
sed "s#xml=\"[^\"]*\"#xml=\"$xml\"#" samples/geometry/geometry.svproj > "$work/geometry.svproj"
export SCRIVARA_USER_SETTINGS_DIR="$work/settings"
unset QT_QPA_PLATFORM

mkdir -p "$out"
shoot() {
  local name=$1
  shift
  xvfb-run -a -s "-screen 0 1280x800x24" \
    "$build/src/studio/scrivara-studio" --screenshot "$out/$name.png" "$@" "$work/geometry.svproj"
  echo "wrote $out/$name.png"
}
shoot sample-start
shoot class-summary --select 'geometry~geometry~shapes~Circle'
shoot member --select 'geometry~geometry~shapes~Circle~area'
