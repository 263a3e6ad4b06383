#!/bin/sh
# Copyright (c) 2026 The vek authors
# SPDX-License-Identifier: MIT
#
# with_display.sh PROGRAM ARGUMENTS...: runs the program on an X server of its own that shows nothing,
# with a window manager, and ends both when the program ends. Needs Xvfb, openbox, xprop, setxkbmap.
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

openbox >"$folder/manager.log" 2>&1 &
manager=$!
until xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q '#'; do
  kill -0 "$manager" 2>/dev/null || { cat "$folder/manager.log" >&2; exit 1; }
  sleep 0.02
done

"$@"
