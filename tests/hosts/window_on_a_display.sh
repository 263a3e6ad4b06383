#!/bin/bash
# Copyright (c) 2026 The vek authors
# SPDX-License-Identifier: MIT
#
# window_on_a_display.sh PROGRAM FOLDER: on the display of the environment, runs the smallest host with a
# window, and quits it by its menu. What it keeps goes into the folder, which is made anew.
set -eu
program=$1
folder=$2
pause=0.05

rm -rf "$folder"
mkdir -p "$folder"
export HOME=$folder XDG_CONFIG_HOME=$folder/config
"$program" &
pid=$!
until xdotool getactivewindow getwindowname 2>/dev/null | grep -qx window; do
  kill -0 "$pid" 2>/dev/null || { echo "the program ended without a window" >&2; exit 1; }
  sleep $pause
done
while kill -0 "$pid" 2>/dev/null; do
  xdotool key alt+f key g key alt+f key q
  sleep $pause
done
wait "$pid"
[ -n "$(find "$folder/config" -name AppPrefs.xml)" ] || { echo "no settings were kept" >&2; exit 1; }
