#!/usr/bin/env bash
# Installs the build into a temporary prefix and starts the game from there: every file lands
# where a desktop looks for it and validates, the game reads the installed bands.dat (also
# once the installed tree has moved), and the menu's launcher runs the game in the player's
# own folder. Then the Debian package: what it holds, what lintian says, and the game started
# from it unpacked.
#
#   install_test.sh BUILD_DIR SOURCE_DIR MAKE_BANDS CPACK
set -euo pipefail
build="$1"
source="$2"
make_bands="$3"
cpack="$4"
id=io.github.tourvane.Tourvane

work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
prefix="$work/prefix"
cmake --install "$build" --prefix "$prefix" >/dev/null

failures=0
check() {  # check WHAT COMMAND...: runs the command, and counts a failure if it fails
    local what="$1"
    shift
    if "$@"; then echo "ok: $what"; else echo "FAILED: $what"; failures=$((failures + 1)); fi
}
same() { [ "$1" = "$2" ] || { echo "  got:      $1"; echo "  expected: $2"; return 1; }; }
png_size() {  # the width and height in a PNG's header
    python3 -c 'import struct,sys; d=open(sys.argv[1],"rb").read(24); print("%dx%d" % struct.unpack(">II", d[16:24]) if d[:8]==b"\x89PNG\r\n\x1a\n" else "not a PNG")' "$1"
}

check "bands.dat is installed in the data folder" test -f "$prefix/share/tourvane/bands.dat"
check "the script driver is installed" test -x "$prefix/bin/tourvane-script"

gui=false
[ -e "$prefix/bin/tourvane" ] && gui=true
if $gui; then
    check "the game and its launcher are installed" test -x "$prefix/bin/tourvane" -a -x "$prefix/bin/tourvane-launch"
    desktop="$prefix/share/applications/$id.desktop"
    metainfo="$prefix/share/metainfo/$id.metainfo.xml"
    check "the menu entry is valid" desktop-file-validate "$desktop"
    check "the menu entry starts the launcher" grep -qx "Exec=tourvane-launch" "$desktop"
    check "the menu entry names the icon" grep -qx "Icon=$id" "$desktop"
    check "the AppStream metainfo is valid" appstreamcli validate --no-net "$metainfo"
    check "the metainfo names the licence" grep -q "<project_license>GPL-3.0-or-later</project_license>" "$metainfo"
    check "the metainfo launches the menu entry" grep -q "<launchable type=\"desktop-id\">$id.desktop</launchable>" "$metainfo"
    check "the scalable icon is an SVG" grep -q "<svg" "$prefix/share/icons/hicolor/scalable/apps/$id.svg"
    for size in 16 22 24 32 48 64 128 256; do
        check "the ${size}px icon is a ${size}x${size} PNG" \
            same "$(png_size "$prefix/share/icons/hicolor/${size}x${size}/apps/$id.png")" "${size}x${size}"
    done
fi

# The rival band of chart row 20 as the installed driver sees it from an empty folder.
row20() { (cd "$work/play" && printf 'get chartband 20\n' | "$1/bin/tourvane-script" --seed 1); }
mkdir "$work/play"
first_band="$(grep -v '^#' "$source/data/bands.txt" | grep -v '^[[:space:]]*$' | head -1 | cut -d'|' -f1 | sed 's/[[:space:]]*$//')"
check "the installed game starts with the first band of data/bands.txt" \
    same "$(row20 "$prefix")" "chartband(20) = \"$first_band\""
# A different installed file shows that it is the installed file that is read, and not the
# copy built into the game.
python3 - "$source/data/bands.txt" "$work/bands.txt" <<'PY'
import sys
lines = open(sys.argv[1], encoding="utf-8").read().split("\n")
for i, line in enumerate(lines):
    if line.strip() and not line.startswith("#"):
        lines[i] = "Installed Test Band |" + line.split("|", 1)[1]
        break
open(sys.argv[2], "w", encoding="utf-8").write("\n".join(lines))
PY
"$make_bands" "$work/bands.txt" "$prefix/share/tourvane/bands.dat" "$work/builtin.cpp"
check "the installed bands.dat is the one read" \
    same "$(row20 "$prefix")" 'chartband(20) = "Installed Test Band"'
mv "$prefix" "$work/moved"
prefix="$work/moved"
check "a moved installation still finds its bands.dat" \
    same "$(row20 "$prefix")" 'chartband(20) = "Installed Test Band"'

if $gui; then
    # The launcher, beside a stand-in game that says where it was started and with what.
    mkdir "$work/fake"
    cp "$prefix/bin/tourvane-launch" "$work/fake/"
    printf '#!/bin/sh\npwd\necho "$@"\n' >"$work/fake/tourvane"
    chmod +x "$work/fake/tourvane"
    check "the launcher runs the game in XDG_DATA_HOME/tourvane" \
        same "$(XDG_DATA_HOME="$work/xdg" "$work/fake/tourvane-launch" --one two)" \
        "$work/xdg/tourvane
--one two"
    mkdir "$work/home"
    check "without XDG_DATA_HOME it uses ~/.local/share/tourvane" \
        same "$(env -u XDG_DATA_HOME HOME="$work/home" "$work/fake/tourvane-launch")" \
        "$work/home/.local/share/tourvane"
    # The real game through the real launcher, headless: it draws its title screen and quits.
    started="$(XDG_DATA_HOME="$work/player" QT_QPA_PLATFORM=offscreen \
        timeout 60 "$prefix/bin/tourvane-launch" --measure-startup 2>"$work/game.err" || true)"
    check "the installed game starts from the launcher" \
        grep -q "the title screen was drawn" <<<"$started"
    check "the launcher made the player's folder" test -d "$work/player/tourvane"
    [ -s "$work/game.err" ] && sed 's/^/  game: /' "$work/game.err"
fi

if $gui; then
    "$cpack" -G DEB --config "$build/CPackConfig.cmake" -B "$work/deb" >"$work/cpack.log" 2>&1 ||
        sed 's/^/  cpack: /' "$work/cpack.log"
    deb="$(find "$work/deb" -maxdepth 1 -name '*.deb')"
    dpkg-deb -x "$deb" "$work/root"
    check "the package has a maintainer with an address" grep -q '^Maintainer: .*<.*@.*>$' <(dpkg-deb -f "$deb")
    check "the package's dependencies were computed" grep -q '^Depends: .*libqt6widgets6' <(dpkg-deb -f "$deb")
    check "the package holds the copyright file" \
        grep -q '^License: GPL-3.0-or-later' "$work/root/usr/share/doc/tourvane/copyright"
    for page in tourvane tourvane-script; do
        check "the package holds the manual page $page(6), compressed" \
            gzip -t "$work/root/usr/share/man/man6/$page.6.gz"
    done
    # A build for /usr puts the programs in /usr/games as Debian wants; others keep bin/.
    keep=()
    [ -d "$work/root/usr/games" ] || keep=(--suppress-tags package-section-games-but-contains-no-game)
    check "lintian finds no error in the package" lintian --fail-on error "${keep[@]}" "$deb"
    game="$(find "$work/root/usr" -name tourvane -type f -perm -u+x)"
    started="$(cd "$work/play" && QT_QPA_PLATFORM=offscreen timeout 60 "$game" --measure-startup 2>&1 || true)"
    check "the game starts from the unpacked package" grep -q "the title screen was drawn" <<<"$started"
fi

echo "install: $((failures == 0 ? 1 : 0)) passed, $((failures > 0 ? 1 : 0)) failed"
[ "$failures" -eq 0 ]
