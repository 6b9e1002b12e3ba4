#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Kavenda team
# SPDX-License-Identifier: GPL-3.0-or-later
# The program on Wayland (Debian's GNOME session is one): a headless weston compositor, the
# program's window comes up on it (its surface committed with the window's title), a second
# start hands over, and --screenshot works there too.
#
#   wayland.sh KAVENDA RESOURCE_FOLDER SCREENSHOT_FOLDER
set -euo pipefail

program=$1
resources=$2
screenshots=$3

if ! command -v weston >/dev/null || [[ ! -e /usr/lib/x86_64-linux-gnu/qt6/plugins/platforms/libqwayland-generic.so ]]; then
  echo "SKIP: needs weston and qt6-wayland (scripts/bootstrap installs them)"
  exit 77
fi
if [[ ${KAVENDA_INSIDE_SESSION:-} != 1 ]]; then
  export KAVENDA_INSIDE_SESSION=1
  exec dbus-run-session -- "$0" "$@"
fi

source "$(dirname "$0")/session.sh"
begin_work
export XDG_RUNTIME_DIR=$work/runtime
mkdir -m 0700 "$XDG_RUNTIME_DIR"
unset DISPLAY
export QT_QPA_PLATFORM=wayland WAYLAND_DISPLAY=wayland-kavenda

weston --backend=headless-backend.so --socket=$WAYLAND_DISPLAY --idle-time=0 >"$work/weston.log" 2>&1 &
pids+=($!)
within 20 test -S "$XDG_RUNTIME_DIR/$WAYLAND_DISPLAY" || fail "weston did not start: $(cat "$work/weston.log")"

data=$work/data
tehran_data "$data" >/dev/null

# The client's side of the protocol shows the window's toplevel and its first drawn frame.
WAYLAND_DEBUG=client "$program" --data-dir "$data" --now 2026-11-22T12:00 >"$work/kavenda.log" 2>&1 &
first=$!
pids+=("$first")
within 30 grep -q 'xdg_toplevel@[0-9]*.set_title("کاوندا")' "$work/kavenda.log" || fail "no window on Wayland"
within 10 grep -q 'xdg_surface@[0-9]*.ack_configure' "$work/kavenda.log" || fail "the window was never configured"
within 10 sh -c "grep -A200 'ack_configure' '$work/kavenda.log' | grep -q 'wl_surface@[0-9]*.commit()'" \
  || fail "the window was never drawn"

timeout 20 "$program" --data-dir "$data" || fail "a second start did not hand over"
kill -0 "$first" || fail "the first program ended"
[[ $(pgrep -c -f -- "--data-dir $data") == 1 ]] || fail "more than one program runs on the data folder"

mkdir -p "$screenshots"
timeout 30 "$program" --data-dir "$data" --now 2026-11-22T12:00 --screenshot "$screenshots/wayland-main.png" \
  || fail "--screenshot failed on Wayland"
[[ $(stat -c %s "$screenshots/wayland-main.png") -gt 1000 ]] || fail "the screenshot is empty"

timeout 10 "$program" --quit --data-dir "$data" || fail "--quit found no program"
within 10 sh -c "! kill -0 $first" || fail "--quit did not end the program"
echo "ok: window on Wayland, second start handed over, screenshot written"
