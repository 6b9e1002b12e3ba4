# SPDX-FileCopyrightText: 2026 Kavenda team
# SPDX-License-Identifier: GPL-3.0-or-later
# Shared by the system tests, sourced after `set -euo pipefail`.

# Runs the script again inside an X session (Xvfb and a session bus) unless it is in one.
x_session() {
  if [[ ${KAVENDA_INSIDE_SESSION:-} != 1 ]]; then
    export KAVENDA_INSIDE_SESSION=1
    exec xvfb-run -a -s "-screen 0 800x600x24" dbus-run-session -- "$@"
  fi
}

# A fresh folder $work for the test, removed at the end with every process in $pids.
begin_work() {
  work=$(mktemp -d)
  trap cleanup EXIT
}

pids=()
cleanup() {
  for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null || true; done
  wait 2>/dev/null || true
  rm -rf "$work"
}

fail() {
  echo "FAIL: $*" >&2
  echo "--- program log" >&2; cat "$work"/kavenda*.log >&2 || true
  echo "--- bus" >&2; tail -n 60 "$work/bus.log" >&2 || true
  exit 1
}

# Waits up to $1 seconds for the command after it to succeed.
within() {
  local seconds=$1; shift
  for ((i = 0; i < seconds * 10; i++)); do
    "$@" >/dev/null 2>&1 && return 0
    sleep 0.1
  done
  return 1
}

# A data folder ($1) whose only city is Tehran, with the three calls on and nothing else; prints
# the evening call's time of 1 Azar 1405 (22 November 2026, no summer hour any more).
tehran_data() {
  local data=$1
  mkdir -p "$data"
  cp "$resources/Icons" "$data/Icons"
  chmod u+w "$data/Icons"
  sqlite3 "$data/Icons" "INSERT INTO tSelectedStates(StateID, Ordering)VALUES(39, 1);
    UPDATE tSetting SET Item0 = 1, Item1 = 1, Item2 = 1, Item3 = 0, Item4 = 0, Item5 = 0, Item6 = 3, Item7 = '0';"
  sqlite3 "$data/Icons" "SELECT T5 FROM tTimes WHERE StateID = 39 AND Date = 1050901"
}

# The program's window, found by its class and mapped (a hidden one exists from the start).
shown_window() {
  local id
  for id in $(xwininfo -root -tree | awk '/\("kavenda" / {print $1}'); do
    xwininfo -id "$id" | grep -q IsViewable && echo "$id" && return 0
  done
  return 1
}

# A notification server and a watch on what reaches it.
notification_server() {
  dbus-monitor "interface='org.freedesktop.Notifications'" >"$work/bus.log" 2>&1 &
  pids+=($!)
  cat >"$work/dunstrc" <<'CONF'
[global]
    font = DejaVu Sans 10
    geometry = "360x5-10+40"
    show_actions = true
CONF
  dunst -config "$work/dunstrc" &
  pids+=($!)
  within 10 dunstctl is-paused || fail "no notification server"
}

start_tray() {
  trayer --edge top --align right --widthtype pixel --width 120 --height 28 --transparent false --tint 0xdddddd &
  pids+=($!)
  within 10 sh -c "xwininfo -root -tree | grep -qi trayer" || fail "no tray"
}
