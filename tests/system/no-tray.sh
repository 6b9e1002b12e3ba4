#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Kavenda team
# SPDX-License-Identifier: GPL-3.0-or-later
# A desktop without a tray (stock GNOME): a session bus and a notification server (dunst), no
# tray. Started in the background the program shows no window and the calls still come with
# their stop action; the window closed while reminders are on leaves it running (one notice
# says so, with "خروج") and a later call still comes; kavenda --quit ends it; a tray that
# appears after the start gets the icon.
#
#   no-tray.sh KAVENDA RESOURCE_FOLDER SCREENSHOT_FOLDER
set -euo pipefail

program=$1
resources=$2
screenshots=$3

source "$(dirname "$0")/session.sh"
x_session "$0" "$@"
begin_work
export XDG_RUNTIME_DIR=$work/runtime
mkdir -m 0700 "$XDG_RUNTIME_DIR"

data=$work/data
evening=$(tehran_data "$data")
# The noon call moved to a minute after the evening one, for a second call while the window
# is closed.
noon=$(date -d "2026-11-22 $evening 1 minute" +%-H:%M)
sqlite3 "$data/Icons" "UPDATE tTimes SET T3 = '$noon' WHERE StateID = 39 AND Date = 1050901"
start=$(date -d "2026-11-22 $evening:00 15 seconds ago" +%Y-%m-%dT%H:%M:%S)
notification_server

running() { kill -0 "$1" 2>/dev/null; }

"$program" --background --data-dir "$data" --now "$start" >"$work/kavenda.log" 2>&1 &
first=$!
pids+=("$first")
sleep 3
running "$first" || fail "the program ended without a tray"
shown_window && fail "a start in the background showed the window"

within 40 grep -q "اذان مغرب به افق تهران" "$work/bus.log" || fail "the call never reached the notification server"
within 5 grep -q '"توقف"' "$work/bus.log" || fail "the call has no stop action"
dunstctl close-all

# Started again from the menu: the window; closed, the program stays and says so once.
timeout 10 "$program" --data-dir "$data" || fail "a second start did not hand over"
window=$(within 10 shown_window && shown_window) || fail "the running program did not show its window"
"$(dirname "$0")/x11-close.py" "$window"
within 10 sh -c "! xwininfo -id $window | grep -q IsViewable" || fail "the window did not close"
within 10 grep -q "در پس‌زمینه" "$work/bus.log" || fail "no notice that the program stays"
grep -q '"خروج"' "$work/bus.log" || fail "the notice has no quit action"
running "$first" || fail "closing the window ended the program"
timeout 10 "$program" --data-dir "$data"
window=$(within 10 shown_window && shown_window) || fail "the window did not come back"
"$(dirname "$0")/x11-close.py" "$window"
sleep 1
[[ $(grep -c "در پس‌زمینه" "$work/bus.log") == 1 ]] || fail "the notice came more than once"

within 90 grep -q "اذان ظهر به افق تهران" "$work/bus.log" || fail "no call after the window was closed"
mkdir -p "$screenshots"
import -window root "$screenshots/no-tray-call.png"

timeout 10 "$program" --quit --data-dir "$data" || fail "--quit found no program"
within 10 sh -c "! kill -0 $first" || fail "--quit did not end the program"
[[ -z $(ls "$XDG_RUNTIME_DIR" | grep kavenda || true) ]] || fail "the socket was left behind: $(ls "$XDG_RUNTIME_DIR")"
timeout 10 "$program" --quit --data-dir "$data" && fail "--quit with nothing running ended with 0"

# A tray that comes after the program (the panel starts later at login).
"$program" --background --data-dir "$data" >"$work/kavenda-later.log" 2>&1 &
later=$!
pids+=("$later")
sleep 2
start_tray
tray_icon() {
  local tray
  tray=$(xwininfo -root -tree | awk '/\("panel" "trayer"\)/ {print $1; exit}')
  xwininfo -tree -id "$tray" | grep -q '"kavenda"'
}
within 15 tray_icon || fail "the tray that came later has no icon"
import -window root "$screenshots/no-tray-later-tray.png"
# A logout's SIGTERM ends it as cleanly as --quit.
kill -TERM "$later"
within 10 sh -c "! kill -0 $later" || fail "SIGTERM did not end the program"
[[ -z $(ls "$XDG_RUNTIME_DIR" | grep kavenda || true) ]] || fail "SIGTERM left the socket behind"
echo "ok: no window in the background, calls notified, window closed keeps announcing, --quit and SIGTERM end it, late tray used"
