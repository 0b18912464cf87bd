#!/usr/bin/env bash
# install_test.sh BUILD_DIR SOURCE_DIR MAKE_BANDS CPACK: the build installed into a temporary
# prefix, then as a Debian package; every file where a desktop looks, valid; the game starts.
set -euo pipefail
build="$1" source="$2" make_bands="$3" cpack="$4" id=io.github.tourvane.Tourvane
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT && p="$work/prefix"
cmake --install "$build" --prefix "$p" >/dev/null
ok() { "$@" || { echo "FAILED: $*"; exit 1; }; }
same() { [ "$1" = "$2" ] || { printf '  got:      %s\n  expected: %s\n' "$1" "$2"; return 1; }; }
starts() { grep -q "the title screen was drawn" <<<"$1" || { echo "$1"; return 1; }; }

ok test -f "$p/share/tourvane/bands.dat" -a -x "$p/bin/tourvane-script"
gui=false && [ -e "$p/bin/tourvane" ] && gui=true
if $gui; then
    ok test -x "$p/bin/tourvane" -a -x "$p/bin/tourvane-launch"
    d="$p/share/applications/$id.desktop" m="$p/share/metainfo/$id.metainfo.xml"
    ok desktop-file-validate "$d" && ok same "$(grep -cx -e Exec=tourvane-launch -e "Icon=$id" "$d")" 2
    ok appstreamcli validate --no-net "$m"
    ok grep -q "<project_license>GPL-3.0-or-later</project_license>" "$m"
    ok grep -q "<launchable type=\"desktop-id\">$id.desktop</launchable>" "$m"
    ok grep -q "<svg" "$p/share/icons/hicolor/scalable/apps/$id.svg"
    for n in 16 22 24 32 48 64 128 256; do  # the width and height in each PNG's header
        ok same "$(python3 -c 'import struct,sys; d=open(sys.argv[1],"rb").read(24); print(d[:8]==b"\x89PNG\r\n\x1a\n" and "%dx%d" % struct.unpack(">II", d[16:24]))' "$p/share/icons/hicolor/${n}x$n/apps/$id.png")" "${n}x$n"
    done
fi

# Chart row 20's rival band as the installed driver sees it from an empty folder: the first band
# of data/bands.txt; then of an installed bands.dat made from a changed list, so that it is the
# installed file that is read and not the copy built into the game; then after a move.
mkdir "$work/play" "$work/fake" "$work/home"
row20() { (cd "$work/play" && printf 'get chartband 20\n' | "$p/bin/tourvane-script" --seed 1); }
first="$(grep -v -e '^#' -e '^[[:space:]]*$' "$source/data/bands.txt" | head -1 | cut -d'|' -f1)"
ok same "$(row20)" "chartband(20) = \"$(sed 's/[[:space:]]*$//' <<<"$first")\""
awk -F'|' -v OFS='|' '!done && NF > 1 && !/^#/ { $1 = "Installed Test Band "; done = 1 } 1' \
    "$source/data/bands.txt" >"$work/bands.txt"
"$make_bands" "$work/bands.txt" "$p/share/tourvane/bands.dat" "$work/builtin.cpp"
ok same "$(row20)" 'chartband(20) = "Installed Test Band"'
mv "$p" "$work/moved" && p="$work/moved"
ok same "$(row20)" 'chartband(20) = "Installed Test Band"'
$gui || exit 0

# The launcher beside a stand-in game that says where it was started and with what; then the
# real game through the real launcher, headless: it draws its title screen and quits.
cp "$p/bin/tourvane-launch" "$work/fake/" && printf '#!/bin/sh\npwd\necho "$@"\n' >"$work/fake/tourvane"
chmod +x "$work/fake/tourvane"
ok same "$(XDG_DATA_HOME="$work/xdg" "$work/fake/tourvane-launch" --one two)" "$work/xdg/tourvane
--one two"
ok same "$(env -u XDG_DATA_HOME HOME="$work/home" "$work/fake/tourvane-launch")" "$work/home/.local/share/tourvane"
export QT_QPA_PLATFORM=offscreen
ok starts "$(XDG_DATA_HOME="$work/player" timeout 60 "$p/bin/tourvane-launch" --measure-startup 2>&1)"
ok test -d "$work/player/tourvane"

"$cpack" -G DEB --config "$build/CPackConfig.cmake" -B "$work/deb" >"$work/cpack.log" 2>&1 || cat "$work/cpack.log"
deb="$(find "$work/deb" -maxdepth 1 -name '*.deb')" && dpkg-deb -x "$deb" "$work/root"
ok grep -q '^Maintainer: .*<.*@.*>$' <(dpkg-deb -f "$deb") && ok grep -q '^Depends: .*libqt6widgets6' <(dpkg-deb -f "$deb")
ok grep -q '^License: GPL-3.0-or-later' "$work/root/usr/share/doc/tourvane/copyright"
ok gzip -t "$work/root/usr/share/man/man6/tourvane.6.gz" "$work/root/usr/share/man/man6/tourvane-script.6.gz"
# A build for /usr puts the programs in /usr/games as Debian wants; others keep bin/.
keep=() && [ -d "$work/root/usr/games" ] || keep=(--suppress-tags package-section-games-but-contains-no-game)
ok lintian --fail-on error "${keep[@]}" "$deb"
ok starts "$(cd "$work/play" && timeout 60 "$(find "$work/root/usr" -name tourvane -type f -perm -u+x)" --measure-startup 2>&1)"
echo "install: all checks passed"
