#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Kavenda team
# SPDX-License-Identifier: GPL-3.0-or-later
# Many first starts at once on an empty data folder (a login that runs the autostart while the
# person opens the menu entry): one copy of the database, one running program, no error.
# Offscreen, no display needed.
#
#   parallel-start.sh KAVENDA [ROUNDS] [STARTS]
set -euo pipefail

program=$1
rounds=${2:-20}
starts=${3:-20}

resources=""
source "$(dirname "$0")/session.sh"
begin_work
export XDG_RUNTIME_DIR=$work/runtime QT_QPA_PLATFORM=offscreen
mkdir -m 0700 "$XDG_RUNTIME_DIR"

for ((round = 1; round <= rounds; round++)); do
  data=$work/data-$round
  logs=$work/round-$round
  mkdir -p "$logs"
  started=()
  for ((n = 1; n <= starts; n++)); do
    "$program" --background --data-dir "$data" >"$logs/$n.log" 2>&1 &
    started+=($!)
  done
  pids+=("${started[@]}")
  # All but one hand over and end at once.
  within 60 sh -c "[ \$(pgrep -c -f -- '--data-dir $data\$') -le 1 ]" || fail "round $round: the starts did not end"
  sleep 0.5
  alive=$(pgrep -c -f -- "--data-dir $data\$" || true)
  [[ $alive == 1 ]] || fail "round $round: $alive programs run on the folder"
  if grep -q -e "kavenda:" -e "lacks" -e "cannot" "$logs"/*.log; then
    fail "round $round: $(cat "$logs"/*.log)"
  fi
  [[ $(sqlite3 "$data/Icons" "SELECT COUNT(*) FROM tStates") -gt 60 ]] || fail "round $round: the copy is not whole"
  [[ -z $(ls "$data" | grep partial || true) ]] || fail "round $round: a partial copy was left"
  timeout 10 "$program" --quit --data-dir "$data" || fail "round $round: --quit found no program"
  within 10 sh -c "[ \$(pgrep -c -f -- '--data-dir $data\$' || true) -eq 0 ]" || fail "round $round: --quit did not end it"
  for pid in "${started[@]}"; do
    wait "$pid" || fail "round $round: a start ended with $?"
  done
done
echo "ok: $rounds rounds of $starts first starts at once: one program each, no error"
