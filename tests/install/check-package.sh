#!/usr/bin/env bash
# Builds the Debian package from the build folder and checks its control fields and contents, and
# that the unpacked programs run from where the package puts them with no trace of the build tree.
# Usage: check-package.sh BUILD_DIR SCRATCH_DIR APP_ID VERSION LIBDIR MOVIE
set -euo pipefail
build=$1 scratch=$2 app_id=$3 version=$4 libdir=$5 movie=$6

fail() { echo "FAIL: $*" >&2; exit 1; }

rm -rf "$scratch"
mkdir -p "$scratch"
cpack --config "$build/CPackConfig.cmake" -B "$scratch" >"$scratch/cpack.log" 2>&1 \
  || fail "cpack: $(cat "$scratch/cpack.log")"
debs=("$scratch"/dashtrack_*.deb)
[ ${#debs[@]} -eq 1 ] && [ -f "${debs[0]}" ] || fail "expected one package, found: ${debs[*]}"
deb=${debs[0]}

field() { dpkg-deb -f "$deb" "$1"; }
[ "$(field Package)" = dashtrack ] || fail "Package: $(field Package)"
[ "$(field Version)" = "$version" ] || fail "Version: $(field Version)"
[ "$(field Section)" = video ] || fail "Section: $(field Section)"
[ -n "$(field Maintainer)" ] || fail "no Maintainer"
[ -n "$(field Homepage)" ] || fail "no Homepage"
[ -n "$(field Description)" ] || fail "no Description"
depends=$(field Depends)
for library in libmpv libqt6widgets6 libqt6svg6 libavformat libplist libqt6sql6-sqlite; do
  [[ "$depends" == *"$library"* ]] || fail "Depends lacks $library: $depends"
done

contents=$(dpkg-deb -c "$deb" | awk '{print $6}')
for file in ./usr/bin/dashtrack ./usr/bin/dashtrack-window ./usr/bin/dashtrack-gps "./usr/$libdir/dashtrack/dashtrack-gps-probe.so" \
            "./usr/share/applications/$app_id.desktop" "./usr/share/metainfo/$app_id.metainfo.xml" \
            ./usr/share/dashtrack/Env.plist ./usr/share/man/man1/dashtrack.1.gz; do
  grep -qxF "$file" <<<"$contents" || fail "not in the package: $file"
done
outside=$(grep -v '^\./usr/' <<<"$contents" | grep -vx '\./' || true)
[ -z "$outside" ] || fail "outside /usr: $outside"

unpacked="$scratch/unpacked"
dpkg-deb -x "$deb" "$unpacked"
build_tree=$(cd "$build" && pwd -P)
found=$(grep -r -l -a -F "$build_tree" "$unpacked" || true)
[ -z "$found" ] || fail "build-tree path in: $found"
line=$("$unpacked/usr/bin/dashtrack-gps" probe "$movie") || fail "unpacked dashtrack-gps probe"
[ "$(printf '%s' "$line" | cut -f2)" = movie ] || fail "probe did not see a movie: $line"
echo "packaged and checked: $deb"
