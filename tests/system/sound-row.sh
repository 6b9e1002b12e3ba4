#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Kavenda team
# SPDX-License-Identifier: GPL-3.0-or-later
# A screen reader's way through the program, over the real accessibility bus: the sound row
# "اذان مدینه" pressed by its action is chosen, and Save stores it (tSetting.Item6 = 7).
#
#   sound-row.sh KAVENDA RESOURCE_FOLDER
set -euo pipefail

program=$1
resources=$2
here=$(cd "$(dirname "$0")" && pwd)

if [[ ${KAVENDA_INSIDE_SESSION:-} != 1 ]]; then
  export KAVENDA_INSIDE_SESSION=1
  exec xvfb-run -a -s "-screen 0 800x600x24" dbus-run-session -- "$0" "$@"
fi

work=$(mktemp -d)
pids=()
cleanup() {
  for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null || true; done
  wait 2>/dev/null || true
  rm -rf "$work"
}
trap cleanup EXIT

data=$work/data
mkdir -p "$data"
cp "$resources/Icons" "$data/Icons"
chmod u+w "$data/Icons"
sqlite3 "$data/Icons" "INSERT INTO tSelectedStates(StateID, Ordering)VALUES(39, 1); UPDATE tSetting SET Item6 = 3;"

/usr/libexec/at-spi-bus-launcher --launch-immediately &
pids+=($!)
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 NO_AT_BRIDGE=0
"$program" --data-dir "$data" >"$work/kavenda.log" 2>&1 &
pids+=($!)

if ! /usr/bin/python3 "$here/sound-row.py"; then
  echo "--- program log" >&2; cat "$work/kavenda.log" >&2
  exit 1
fi
for ((i = 0; i < 50; i++)); do
  stored=$(sqlite3 "$data/Icons" "SELECT Item6 FROM tSetting")
  [[ $stored == 7 ]] && break
  sleep 0.1
done
echo "tSetting.Item6 = $stored"
[[ $stored == 7 ]] || { echo "FAIL: Item6 is $stored, not 7" >&2; exit 1; }
