#!/usr/bin/env bash
# Builds the Debian package in a build folder (default: build), lists it,
# unpacks it into a temporary root and tries the unpacked product the way a
# new machine would: the unpacked host must find the unpacked plug-in and save
# every picture of its tour, in English and in German, and send the controller
# the same lines in both languages. The German catalogue must be complete.
set -euo pipefail
cd "$(dirname "$0")/.."
dir=${1:-build}
export QT_QPA_PLATFORM=offscreen
unset DISPLAY WAYLAND_DISPLAY

fail() { echo "package-check: $*" >&2; exit 1; }

echo "== translations"
for ts in translations/*.ts; do
    report=$(lrelease "$ts" -qm /dev/null 2>&1)
    echo "$ts: $report"
    grep -q ' 0 unfinished' <<<"$report" || fail "$ts has unfinished translations"
    ! grep -q 'untranslated' <<<"$report" || fail "$ts has untranslated texts"
done

echo "== package"
cmake --build "$dir" -j "$(nproc)" --target norvane-host norvane-simd InertialTracking translations
rm -f "$dir"/norvane-inertial_*.deb
(cd "$dir" && cpack -G DEB >/dev/null)
debs=("$dir"/norvane-inertial_*.deb)
[ ${#debs[@]} -eq 1 ] && [ -f "${debs[0]}" ] || fail "cpack made no single norvane-inertial package"
deb=${debs[0]}
dpkg-deb -I "$deb"
dpkg-deb -c "$deb"
depends=$(dpkg-deb -f "$deb" Depends)
grep -q 'libqt5widgets5' <<<"$depends" || fail "Depends was not computed from the binaries: '$depends'"
[ "$(dpkg-deb -f "$deb" Version)" = "$(sed -n 's/^project([^)]*VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)" ] \
    || fail "the package's version is not the project's"

root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
dpkg-deb -x "$deb" "$root"
multiarch=$(dpkg-architecture -qDEB_HOST_MULTIARCH 2>/dev/null || gcc -print-multiarch)
for f in usr/bin/norvane-host usr/bin/norvane-simd "usr/lib/$multiarch/norvane/plugins/libInertialTracking.so" \
         usr/share/applications/norvane-host.desktop usr/share/icons/hicolor/64x64/apps/norvane-host.png \
         usr/share/norvane/translations/norvane_de.qm usr/share/norvane/scenarios/default.json \
         usr/share/doc/norvane-inertial/README.md; do
    [ -f "$root/$f" ] || fail "the package lacks /$f"
done
grep -q '^Exec=norvane-host$' "$root/usr/share/applications/norvane-host.desktop" || fail "the menu entry does not start norvane-host"
if command -v desktop-file-validate >/dev/null; then
    desktop-file-validate "$root/usr/share/applications/norvane-host.desktop"
fi

# The tour leaves the build tree out of reach: the unpacked host has only
# what the package gave it.
# Installed, the host shares bin/ with libraries that are no modules (Debian
# keeps ld.so there); it must not try to load them.
foreign=$(ldd "$root/usr/bin/norvane-host" | awk '/libstdc\+\+/ { print $3 }')
[ -f "$foreign" ] || fail "cannot find the C++ library norvane-host links"
ln -s "$foreign" "$root/usr/bin/libforeign.so"
# The tour scenario's short calibrations, with a pause before the hybrid body
# one, show every dialog, the countdown included, in half a minute.
tour() { # language folder
    LANG=$1 LC_ALL= LANGUAGE= "$root/usr/bin/norvane-host" --tour "$root/$2" --trace "$root/$2.trace" \
        --scenario "$root/usr/share/norvane/scenarios/tour.json" 2>"$root/$2.err" \
        || { cat "$root/$2.err" >&2; fail "the $2 tour did not complete"; }
    ! grep -q 'cannot be loaded\|kann nicht geladen werden' "$root/$2.err" \
        || { cat "$root/$2.err" >&2; fail "the $2 tour tried to load what is no module"; }
}
echo "== tour from the unpacked package, English and German"
tour C.UTF-8 tour-en
tour de_DE.UTF-8 tour-de
expected="add-sensor calibration-progress countdown delete-sensor-question hybrid-body hybrid-body-help
hybrid-body-result inertial-sensor inertial-sensor-calibration inertial-sensor-calibration-help
inertial-sensor-calibration-residuals inertial-sensor-calibration-result inertial-sensor-hybrid-bodies
inertial-sensor-tracking-frequency main-window"
for language in en de; do
    for picture in $expected; do
        [ -s "$root/tour-$language/$picture.png" ] || fail "the $language tour saved no $picture.png"
    done
done
ls "$root/tour-en" | wc -l | xargs echo "pictures per tour:"
help=$(LANG=de_DE.UTF-8 LC_ALL= LANGUAGE= "$root/usr/bin/norvane-host" --help 2>/dev/null)
grep -q 'Module aus <Ordner> laden' <<<"$help" || fail "the unpacked host does not speak German under LANG=de_DE.UTF-8"

# Requests only, without the time and duration columns; the set of lines,
# because the status bar's once-a-second poll makes their count depend on time.
requests() { sed -E 's/^[0-9:.]+ +[0-9.]+ ms  //; s/  ->  .*$//' "$1" | sort -u; }
diff <(requests "$root/tour-en.trace") <(requests "$root/tour-de.trace") \
    || fail "the controller was sent different lines in German"
echo "package-check: $deb is complete; both tours sent the same $(requests "$root/tour-en.trace" | wc -l) distinct lines"
