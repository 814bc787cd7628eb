#!/usr/bin/env bash
# Installs the build into a scratch DESTDIR under an unusual prefix and checks what landed there:
# the files, that the desktop's tools accept the metadata, that the man pages render cleanly, and
# that the installed programs run and find their module and data relative to themselves.
# Usage: check-install.sh BUILD_DIR SCRATCH_DIR APP_ID VERSION LIBDIR BIN_TO_RESOURCEDIR BIN_TO_MODULEDIR MOVIE
set -euo pipefail
build=$1 scratch=$2 app_id=$3 version=$4 libdir=$5 bin_to_resources=$6 bin_to_module=$7 movie=$8

fail() { echo "FAIL: $*" >&2; exit 1; }

prefix=/opt/dt
rm -rf "$scratch"
mkdir -p "$scratch"
DESTDIR="$scratch/root" cmake --install "$build" --prefix "$prefix" >"$scratch/install.log" \
  || fail "cmake --install: $(cat "$scratch/install.log")"
root="$scratch/root$prefix"

expected=(
  bin/dashtrack bin/dashtrack-window bin/dashtrack-gps "$libdir/dashtrack/dashtrack-gps-probe.so"
  share/dashtrack/Env.plist share/dashtrack/DigifaceWide.ttf share/dashtrack/DigifaceWide-OFL.txt
  share/doc/dashtrack/DigifaceWide-OFL.txt
  "share/applications/$app_id.desktop" "share/metainfo/$app_id.metainfo.xml"
  "share/icons/hicolor/scalable/apps/$app_id.svg"
  share/man/man1/dashtrack.1.gz share/man/man1/dashtrack-gps.1.gz
)
for size in 16 32 48 64 128 256 512; do expected+=("share/icons/hicolor/${size}x${size}/apps/$app_id.png"); done
for file in "${expected[@]}"; do [ -f "$root/$file" ] || fail "not installed: $file"; done
[ -d "$root/share/dashtrack/translations" ] || fail "no folder for translations"
# The programs look for their data and module at these places relative to themselves.
[ -f "$root/bin/$bin_to_resources/Env.plist" ] || fail "resources not at bin/$bin_to_resources"
[ -f "$root/bin/$bin_to_module/dashtrack-gps-probe.so" ] || fail "module not at bin/$bin_to_module"
# Nothing of the build tree: no sample movies, test programs or helpers.
unexpected=$(cd "$root" && find . -type f \( -name '*.mp4' -o -name '*.MP4' -o -name '*_tests' -o -name '*samplegen*' \))
[ -z "$unexpected" ] || fail "installed by mistake: $unexpected"

desktop="$root/share/applications/$app_id.desktop"
desktop-file-validate "$desktop" || fail "desktop-file-validate"
grep -qx 'Exec=dashtrack %F' "$desktop" || fail "Exec line"
grep -qx "Icon=$app_id" "$desktop" || fail "Icon line"
for type in video/mp4 video/quicktime video/mp2t; do
  grep -q "^MimeType=.*$type;" "$desktop" || fail "MimeType lacks $type"
done
metainfo="$root/share/metainfo/$app_id.metainfo.xml"
appstreamcli validate --no-net "$metainfo" || fail "appstreamcli validate"
grep -q "<id>$app_id</id>" "$metainfo" || fail "metainfo id"
grep -q "<launchable type=\"desktop-id\">$app_id.desktop</launchable>" "$metainfo" || fail "metainfo launchable"
grep -q "<release version=\"$version\"" "$metainfo" || fail "metainfo release $version"
# The screenshots are served from the repository: each must be there.
source_root=$(cd "$(dirname "$0")/../.." && pwd)
screenshots=$(sed -n 's|.*<image[^>]*>https://raw.githubusercontent.com/[^/]*/[^/]*/[^/]*/\([^<]*\)</image>.*|\1|p' "$metainfo")
[ -n "$screenshots" ] || fail "metainfo shows no screenshot"
for shot in $screenshots; do [ -f "$source_root/$shot" ] || fail "screenshot not in the repository: $shot"; done

for page in dashtrack dashtrack-gps; do
  source=$(gzip -dc "$root/share/man/man1/$page.1.gz") || fail "$page.1.gz does not unpack"
  warnings=$(LC_ALL=C.UTF-8 groff -man -Tutf8 -ww -z 2>&1 <<<"$source")
  [ -z "$warnings" ] || fail "$page.1: $warnings"
  grep -q "Dashtrack $version" <<<"$source" || fail "$page.1 names no version"
done

# The installed tool loads its movie test from the installed module, and fails without it.
line=$("$root/bin/dashtrack-gps" probe "$movie") || fail "installed dashtrack-gps probe"
[ "$(printf '%s' "$line" | cut -f2)" = movie ] || fail "probe did not see a movie: $line"
mv "$root/$libdir/dashtrack/dashtrack-gps-probe.so" "$scratch/moved.so"
if "$root/bin/dashtrack-gps" probe "$movie" >/dev/null 2>&1; then fail "probe ran without its installed module"; fi
mv "$scratch/moved.so" "$root/$libdir/dashtrack/dashtrack-gps-probe.so"

shown=$(QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR="$scratch" "$root/bin/dashtrack" --version 2>/dev/null) \
  || fail "installed dashtrack --version"
[ "$shown" = "Dashtrack $version" ] || fail "dashtrack --version said: $shown"

# The installed player reads its shipped settings and LED font from the installed data, not from
# the build tree this stage lies in: traced while it opens a movie and quits at its first frame.
if strace -o /dev/null true 2>/dev/null; then
  runtime="$scratch/runtime"
  mkdir -m 700 "$runtime"
  QT_QPA_PLATFORM=offscreen DASHTRACK_AUDIO_OUTPUT=null QT_LOGGING_RULES=dashtrack.route=false \
    XDG_CONFIG_HOME="$scratch/config" XDG_RUNTIME_DIR="$runtime" \
    strace -f -qq -e trace=openat -o "$scratch/opened" "$root/bin/dashtrack" --quit-at-first-frame "$movie" \
    || fail "installed dashtrack did not play $movie"
  for file in Env.plist DigifaceWide.ttf; do
    grep -qF "\"$root/share/dashtrack/$file\", O_RDONLY" "$scratch/opened" || fail "installed dashtrack did not read $file"
  done
  if grep -F "\"$build/resources/" "$scratch/opened"; then fail "installed dashtrack read the build tree's resources"; fi
else
  echo "note: strace cannot trace here, so the player's resource reads were not checked"
fi

# An installed program must not look into the build tree for libraries.
for file in bin/dashtrack bin/dashtrack-window bin/dashtrack-gps "$libdir/dashtrack/dashtrack-gps-probe.so"; do
  if readelf -d "$root/$file" | grep -E 'R(UN)?PATH'; then fail "$file has a library search path"; fi
done
echo "installed and checked under $root"
