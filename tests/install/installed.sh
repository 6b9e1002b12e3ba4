#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Kavenda team
# SPDX-License-Identifier: GPL-3.0-or-later
# installed.sh <check> <prefix> <build folder>: one check of Kavenda installed into <prefix>.
#   install   installs the build into a fresh <prefix>, as `cmake --install` does for a person
#   entries   the menu and autostart entries and the AppStream metadata pass their validators
#   layout    exactly the program and its files are installed, every resource among them
#   program   the installed program starts on a fresh home, finds its resources and shows its window
#   manual    the manual page formats without a warning and describes every option of --help
#   package   cpack builds the Debian package, with the installed files in their Debian places
# The environment gives KAVENDA_VERSION, KAVENDA_RESOURCE_DIR, CMAKE_COMMAND and CPACK_COMMAND.
set -euo pipefail

check=$1 prefix=$2 build=$3
id=org.kavenda.Kavenda
failures=0

fail()
{
    echo "FAIL: $*" >&2
    failures=$((failures + 1))
}

# The "W x H" of a PNG, from its header.
png_size()
{
    file -b "$1" | sed -nE 's/^PNG image data, ([0-9]+) x ([0-9]+),.*/\1x\2/p'
}

# Files under a folder, one relative path a line, sorted.
files_under()
{
    (cd "$1" && find . -type f | sed 's|^\./||' | LC_ALL=C sort)
}

case $check in
install)
    rm -rf "$prefix"
    "$CMAKE_COMMAND" --install "$build" --prefix "$prefix" >/dev/null
    ;;

entries)
    for entry in "$prefix/share/applications/$id.desktop" "$prefix/etc/xdg/autostart/$id.desktop"; do
        report=$(desktop-file-validate "$entry" 2>&1) || fail "desktop-file-validate rejects $entry"
        [[ -z $report ]] || fail "desktop-file-validate on $entry: $report"
    done
    appstreamcli validate --no-net --strict "$prefix/share/metainfo/$id.metainfo.xml" \
        || fail "appstreamcli rejects the metadata"
    grep -qx 'Exec=kavenda' "$prefix/share/applications/$id.desktop" || fail "the menu entry does not run kavenda"
    grep -q '^Categories=.*;X-Islamic-Software;' "$prefix/share/applications/$id.desktop" \
        || fail "the menu entry is not in the Islamic programs' menu"
    grep -qx 'Exec=kavenda --background' "$prefix/etc/xdg/autostart/$id.desktop" \
        || fail "the autostart entry does not start kavenda in the background"
    grep -q "<release version=\"$KAVENDA_VERSION\"" "$prefix/share/metainfo/$id.metainfo.xml" \
        || fail "the metadata lacks the release $KAVENDA_VERSION"
    ;;

layout)
    [[ $(ls "$prefix") == $'bin\netc\nlib\nshare' ]] || fail "top folders: $(ls "$prefix" | xargs)"
    [[ $(ls "$prefix/bin") == kavenda ]] || fail "bin holds: $(ls "$prefix/bin" | xargs)"
    # The window module that the command loads, and the audio module the window loads on its
    # first sound, with the entry points they resolve.
    [[ $(files_under "$prefix/lib" | xargs) == "kavenda/kavenda_audio.so kavenda/kavenda_window.so" ]] \
        || fail "lib holds: $(files_under "$prefix/lib" | xargs)"
    for entry in audio:kavenda_audio_player audio:kavenda_audio_playable window:kavenda_window_main; do
        nm -D --defined-only "$prefix/lib/kavenda/kavenda_${entry%%:*}.so" | grep -qw "${entry#*:}" \
            || fail "the ${entry%%:*} module lacks ${entry#*:}"
    done
    [[ $(ls "$prefix/share") == $'applications\ndoc\nicons\nkavenda\nman\nmetainfo' ]] \
        || fail "share holds: $(ls "$prefix/share" | xargs)"
    # Every resource the build made, and nothing of CMake's own.
    resources=$(files_under "$KAVENDA_RESOURCE_DIR" | grep -vE '^CMakeFiles/|\.cmake$|^Makefile$' || true)
    [[ -n $resources ]] || fail "the build made no resources"
    while read -r name; do
        cmp -s "$KAVENDA_RESOURCE_DIR/$name" "$prefix/share/kavenda/$name" \
            || fail "resource $name not installed as built"
    done <<<"$resources"
    [[ $(files_under "$prefix/share/kavenda") == "$resources" ]] \
        || fail "share/kavenda holds other files than the build's resources"
    # Each icon is drawn at the size of its folder; 48 x 48 is the size every menu may ask for.
    [[ -f $prefix/share/icons/hicolor/48x48/apps/kavenda.png ]] || fail "no 48x48 icon"
    for icon in "$prefix"/share/icons/hicolor/*/apps/kavenda.png; do
        folder=$(basename "$(dirname "$(dirname "$icon")")")
        [[ $(png_size "$icon") == "$folder" ]] || fail "$icon is $(png_size "$icon")"
    done
    ;;

program)
    home=$(mktemp -d)
    trap 'rm -rf "$home"' EXIT
    program=$prefix/bin/kavenda
    "$program" --help | grep -q -- '--data-dir' || fail "kavenda --help does not list the options"
    [[ $("$program" --version) == "kavenda $KAVENDA_VERSION" ]] || fail "kavenda --version says $("$program" --version)"
    # Without a display the window says so in one line, and the terminal commands still serve.
    out=$(env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM HOME="$home" "$program" 2>&1) && fail "a window opened without a display"
    [[ $out == "kavenda: no display to open the window on (set DISPLAY or WAYLAND_DISPLAY)" ]] || fail "without a display: $out"
    env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM HOME="$home" "$program" --month 1405-09 | grep -q "آذر" \
        || fail "--month wants a display"
    [[ ! -e $home/.local ]] || fail "--month before the first start wrote into the home: $(find "$home/.local")"
    # The terminal commands load no window library.
    ! ldd "$program" | grep -q libQt || fail "kavenda links Qt: $(ldd "$program" | grep libQt | xargs)"
    # A first start, with the data folder in its default place under a fresh home.
    env -u XDG_DATA_HOME HOME="$home" QT_QPA_PLATFORM=offscreen \
        "$program" --now 2013-07-01T12:00 --screenshot "$home/first.png" || fail "the first start failed"
    [[ $(png_size "$home/first.png") == 320x460 ]] || fail "the screenshot is not the 320 x 460 window"
    working=$home/.local/share/kavenda/Icons
    [[ -f $working ]] || fail "no working database in ~/.local/share/kavenda"
    cmp -s "$working" "$prefix/share/kavenda/Icons" || fail "the working database is not the installed copy"
    ;;

manual)
    page=$prefix/share/man/man1/kavenda.1.gz
    warnings=$(zcat "$page" | groff -man -Tutf8 -ww -z 2>&1) || fail "groff cannot format the manual page"
    [[ -z $warnings ]] || fail "groff warns: $warnings"
    source=$(zcat "$page")
    for option in $("$prefix/bin/kavenda" --help | grep -oE -- '(^|[ ,])--?[a-z][a-z-]*' | tr -d ' ,' | sort -u); do
        grep -qF -- "${option//-/\\-}" <<<"$source" || fail "the manual page does not describe $option"
    done
    ;;

package)
    output=$build/package
    rm -rf "$output"
    "$CPACK_COMMAND" -G DEB --config "$build/CPackConfig.cmake" -B "$output" >/dev/null
    deb=$output/kavenda_${KAVENDA_VERSION}_$(dpkg --print-architecture).deb
    [[ -f $deb ]] || fail "no $deb: $(ls "$output")"
    depends=$(dpkg-deb -f "$deb" Depends)
    # From shlibdeps, and the run-time packages the libraries do not name.
    for package in libc6 libqt6widgets6 libqt6multimedia6 libsqlite3-0 qt6-qpa-plugins \
        gstreamer1.0-plugins-good fonts-farsiweb; do
        [[ $depends =~ (^|, )$package( |,|$) ]] || fail "Depends lacks $package: $depends"
    done
    [[ $(dpkg-deb -f "$deb" Maintainer) == *@* ]] || fail "no maintainer address"
    [[ $(dpkg-deb -f "$deb" Suggests) =~ (^|, )islamic-menus( |,|$) ]] || fail "does not suggest islamic-menus"
    ar t "$deb" | grep -qx 'data.tar.xz' || fail "the contents are not compressed with xz: $(ar t "$deb" | xargs)"
    size=$(stat -c %s "$deb")
    ((size <= 3 * 1000 * 1000)) || fail "the package is $size bytes, more than 3 MB"
    # The installed tree, with /usr for the prefix and the autostart entry in /etc.
    unpacked=$(mktemp -d)
    trap 'rm -rf "$unpacked"' EXIT
    dpkg-deb -x "$deb" "$unpacked"
    [[ $(ls "$unpacked") == $'etc\nusr' ]] || fail "the package's top folders: $(ls "$unpacked" | xargs)"
    [[ $(files_under "$unpacked/usr") == "$(files_under "$prefix" | grep -v '^etc/')" ]] \
        || fail "the package's /usr differs from an installed prefix"
    [[ $(files_under "$unpacked/etc") == "$(files_under "$prefix/etc")" ]] || fail "the package's /etc differs"
    dpkg-deb --ctrl-tarfile "$deb" | tar -xO ./conffiles | grep -qx "/etc/xdg/autostart/$id.desktop" \
        || fail "the autostart entry is not a conffile"
    copyright=$unpacked/usr/share/doc/kavenda/copyright
    head -1 "$copyright" | grep -qx 'Format: https://www.debian.org/doc/packaging-manuals/copyright-format/1.0/' \
        || fail "no machine-readable copyright file"
    grep -qx 'License: GPL-3.0-or-later' "$copyright" || fail "the copyright file names no licence"
    grep -qF /usr/share/common-licenses/GPL-3 "$copyright" || fail "the copyright file does not point to GPL-3"
    file -b "$unpacked/usr/bin/kavenda" | grep -q ', stripped' || fail "the packaged program is not stripped"
    ;;

*)
    echo "installed.sh: unknown check $check" >&2
    exit 2
    ;;
esac

[[ $failures -eq 0 ]]
