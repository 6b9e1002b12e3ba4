#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Kavenda team
# SPDX-License-Identifier: GPL-3.0-or-later
# The program left in the tray of a real desktop session: a tray (trayer), a notification
# server (dunst), a session bus. A minute before the evening call it starts in the background;
# the call reaches dunst with its stop action, the action stops the sound, and a second start
# leaves the first one alone.
#
#   tray-call.sh KAVENDA RESOURCE_FOLDER SCREENSHOT_FOLDER
set -euo pipefail

program=$1
resources=$2
screenshots=$3

source "$(dirname "$0")/session.sh"
x_session "$0" "$@"
begin_work

data=$work/data
evening=$(tehran_data "$data")
# Start 15 seconds before the call.
start=$(date -d "2026-11-22 $evening:00 15 seconds ago" +%Y-%m-%dT%H:%M:%S)

notification_server
start_tray

"$program" --background --data-dir "$data" --now "$start" >"$work/kavenda.log" 2>&1 &
first=$!
pids+=("$first")

within 40 grep -q "اذان مغرب به افق تهران" "$work/bus.log" || fail "the call never reached the notification server"
within 5 grep -q '"توقف"' "$work/bus.log" || fail "the call has no stop action"
within 5 grep -q '"desktop-entry"' "$work/bus.log" || fail "no desktop entry hint"
within 5 grep -q "sound playing: 3.wav" "$work/kavenda.log" || fail "the call's sound does not play"
within 5 sh -c "dunstctl count displayed | grep -qx 1" || fail "dunst does not show the call"
mkdir -p "$screenshots"
import -window root "$screenshots/tray-call.png"

# The stop action, as a click on it in dunst, while the call still sounds.
dunstctl action 0
within 5 grep -q "sound stopped" "$work/kavenda.log" || fail "the stop action did not stop the sound"
grep -q "ActionInvoked" "$work/bus.log" || fail "dunst sent no action"

# A second start, in the background and then for the window, hands over and ends.
timeout 10 "$program" --background --data-dir "$data" || fail "a second start in the background did not end with 0"
timeout 10 "$program" --data-dir "$data" || fail "a second start did not end with 0"
within 10 shown_window || fail "the running program did not show its window"
# The terminal options run beside it.
timeout 20 "$program" --data-dir "$data" --screenshot "$work/beside.png" || fail "a screenshot beside it failed"
timeout 20 "$program" --data-dir "$data" --reminders | grep -q "اذان صبح به افق تهران" || fail "--reminders beside it failed"
kill -0 "$first" || fail "the first program ended"
[[ $(pgrep -c -f -- "--data-dir $data") == 1 ]] || fail "more than one program runs on the data folder"
echo "ok: call notified, sound stopped by its action, second starts handed over, terminal options beside"
