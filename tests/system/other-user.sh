#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Kavenda team
# SPDX-License-Identifier: GPL-3.0-or-later
# Another local user cannot stand in for the program: the user nobody takes every name it can
# in the shared temporary folder first (the fallback folder of our sockets, and sockets under
# the names a start would look for). Our start still runs and announces, with or without
# $XDG_RUNTIME_DIR, and with it a second start still hands over.
#
#   other-user.sh KAVENDA RESOURCE_FOLDER
set -euo pipefail

program=$1
resources=$2

if [[ $(id -u) != 0 ]] || ! command -v setpriv >/dev/null; then
  echo "SKIP: needs root and setpriv to act as a second user"
  exit 77
fi
source "$(dirname "$0")/session.sh"
x_session "$0" "$@"
begin_work
chmod 0755 "$work"
# The shared temporary folder of this test: open to all, like /tmp.
export TMPDIR=$work/tmp
mkdir -m 1777 "$TMPDIR"

data=$work/data
evening=$(tehran_data "$data")
notification_server

# nobody's squatting: our fallback folder, open to all, full of listening sockets under every
# name a start of ours could use (the hashed name, the old /tmp names).
as_nobody() { setpriv --reuid=nobody --regid=nogroup --clear-groups -- env PATH=/usr/bin:/bin "$@"; }
as_nobody mkdir -m 0777 "$TMPDIR/kavenda-0"
as_nobody python3 - "$TMPDIR" "$data" >"$work/nobody.log" 2>&1 <<'PY' &
import hashlib, os, socket, sys
folder, data = sys.argv[1], sys.argv[2]
def fnv(text):
    h = 14695981039346656037
    for byte in text.encode():
        h = ((h ^ byte) * 1099511628211) % 2**64
    return "%016x" % h
names = [os.path.join(folder, "kavenda-0", "kavenda-" + fnv(os.path.realpath(data)))]
old = hashlib.sha1(os.path.realpath(data).encode()).hexdigest()[:16]
names += [os.path.join(folder, "kavenda-0-" + name) for name in (fnv(os.path.realpath(data)), old)]
held = []
for name in names:
    s = socket.socket(socket.AF_UNIX, socket.SOCK_STREAM)
    s.bind(name)
    s.listen(8)
    held.append(s)
open(os.path.join(folder, "squatting"), "w").close()
while True:
    for s in held:
        s.settimeout(0.2)
        try:
            peer, _ = s.accept()
            print("nobody received:", peer.recv(64), flush=True)
        except OSError:
            pass
PY
pids+=($!)
within 10 test -e "$TMPDIR/squatting" || fail "nobody did not squat"
# The background job is the function's shell; the listener itself must end with the test too.
pids+=($(pgrep -u nobody -f -- "python3 - $TMPDIR"))

# Without $XDG_RUNTIME_DIR: the fallback folder is nobody's, so our start runs on its own.
call_at() { date -d "2026-11-22 $evening:00 $1 seconds ago" +%Y-%m-%dT%H:%M:%S; }
unset XDG_RUNTIME_DIR
"$program" --background --data-dir "$data" --now "$(call_at 10)" >"$work/kavenda.log" 2>&1 &
first=$!
pids+=("$first")
within 30 grep -q "اذان مغرب به افق تهران" "$work/bus.log" || fail "the call never reached the notification server"
kill -0 "$first" || fail "the program ended"
kill "$first"
wait "$first" 2>/dev/null || true

# With a runtime folder of our own, nobody's names are not looked at: a second start hands over.
export XDG_RUNTIME_DIR=$work/runtime
mkdir -m 0700 "$XDG_RUNTIME_DIR"
"$program" --background --data-dir "$data" --now "$(call_at 10)" >"$work/kavenda-2.log" 2>&1 &
second=$!
pids+=("$second")
sleep 3
timeout 10 "$program" --background --data-dir "$data" || fail "a second start did not hand over"
[[ $(pgrep -c -f -- "--data-dir $data") == 1 ]] || fail "more than one program runs on the data folder"
within 30 sh -c "[ \$(grep -c 'اذان مغرب به افق تهران' '$work/bus.log') -ge 2 ]" || fail "the second call never came"
timeout 10 "$program" --quit --data-dir "$data" || fail "--quit found no program"
within 10 sh -c "! kill -0 $second" || fail "--quit did not end the program"
[[ ! -s $work/nobody.log ]] || fail "nobody heard from us: $(cat "$work/nobody.log")"
echo "ok: another user's squatting neither stops nor silences a start, nor receives its messages"
