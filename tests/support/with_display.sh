#!/bin/sh
# Copyright (c) 2026 The vek authors
# SPDX-License-Identifier: MIT
#
# with_display.sh PROGRAM ARGUMENTS...: runs the program on an X server of its own that shows nothing,
# with a window manager, and ends both when the program ends. Needs Xvfb, openbox, setxkbmap, xdotool.
set -eu

folder=$(mktemp -d)
server=
manager=
# Only what was started here is ended, by its number.
finish() {
  [ -z "$manager" ] || kill "$manager" 2>/dev/null || true
  [ -z "$server" ] || kill "$server" 2>/dev/null || true
  wait
  rm -rf "$folder"
}
trap finish EXIT
trap 'exit 1' HUP INT TERM

Xvfb -displayfd 3 -screen 0 800x600x24 -nolisten tcp -noreset 3>"$folder/display" 2>"$folder/server.log" &
server=$!
until [ -s "$folder/display" ]; do
  kill -0 "$server" 2>/dev/null || { cat "$folder/server.log" >&2; exit 1; }
  sleep 0.02
done
DISPLAY=":$(cat "$folder/display")"
export DISPLAY
# No message bus: the program would start one and leave it running.
export DBUS_SESSION_BUS_ADDRESS=disabled:
setxkbmap us

# Its own word that it is ready: what it announces on the root window comes before it looks after
# windows, and one that is shown in between never gets the keyboard.
openbox --startup "touch $folder/ready" >"$folder/manager.log" 2>&1 &
manager=$!
until [ -e "$folder/ready" ]; do
  kill -0 "$manager" 2>/dev/null || { cat "$folder/manager.log" >&2; exit 1; }
  sleep 0.02
done

# The first key that a tool sends makes the server switch to the keyboard that the tool's keys come from,
# and tell every program of a new key map; the program is spared that in the middle of its first key.
xdotool key Shift_L

"$@"
