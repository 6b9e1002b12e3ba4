#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Kavenda team
# SPDX-License-Identifier: GPL-3.0-or-later
# A panel whose status-notifier tray comes up after the program (an autostart before the
# panel, a tray extension turned on later): the program, started in the background without a
# tray, starts again and shows its icon there; a call still reaches the notification server.
#
#   late-status-notifier.sh KAVENDA RESOURCE_FOLDER WATCHER
set -euo pipefail

program=$1
resources=$2
watcher=$3

source "$(dirname "$0")/session.sh"
x_session "$0" "$@"
begin_work
export XDG_RUNTIME_DIR=$work/runtime
mkdir -m 0700 "$XDG_RUNTIME_DIR"

data=$work/data
evening=$(tehran_data "$data")
start=$(date -d "2026-11-22 $evening:00 20 seconds ago" +%Y-%m-%dT%H:%M:%S)
notification_server

"$program" --background --data-dir "$data" --now "$start" >"$work/kavenda.log" 2>&1 &
first=$!
pids+=("$first")
sleep 3
kill -0 "$first" || fail "the program ended without a tray"

"$watcher" >"$work/items.log" 2>&1 &
pids+=($!)
within 15 grep -q "^item " "$work/items.log" || fail "no status-notifier item registered: $(cat "$work/items.log")"
kill -0 "$first" || fail "the program that started again is not the same process"
[[ $(pgrep -c -f -- "--data-dir $data") == 1 ]] || fail "more than one program runs on the data folder"
within 40 grep -q "اذان مغرب به افق تهران" "$work/bus.log" || fail "the call never reached the notification server"
echo "ok: the tray that came later holds the icon ($(head -1 "$work/items.log")), the call still came"
