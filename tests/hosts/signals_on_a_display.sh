#!/bin/bash
# Copyright (c) 2026 The vek authors
# SPDX-License-Identifier: MIT
#
# signals_on_a_display.sh PROGRAM FOLDER: on the display of the environment, asks the program to stop as
# the system does, while a dialog or a question is open too. It ends and has kept its settings and the
# workspace. The folder is made anew.
set -eu
program=$1
folder=$2

rm -rf "$folder"
mkdir -p "$folder"
printf '<opml version="2.0"><body><outline text="a"/></body></opml>\n' >"$folder/o.opml"

fail() {
  echo "$1" >&2
  kill -KILL "$pid" 2>/dev/null || true
  exit 1
}
await_window() {
  until [ "$(xdotool getactivewindow getwindowname 2>/dev/null)" = "$1" ]; do
    kill -0 "$pid" 2>/dev/null || fail "the program has ended while \"$1\" was waited for"
    sleep 0.05
  done
}
# A key that does no harm twice: the window may have to wait for the keyboard.
press_until() {
  until [ "$(xdotool getactivewindow getwindowname 2>/dev/null)" = "$2" ]; do
    kill -0 "$pid" 2>/dev/null || fail "the program has ended while \"$2\" was waited for"
    xdotool key "$1"
    sleep 0.05
  done
}
# The window is there a moment before the program takes the signal: bit 14 of those that are caught.
await_handler() {
  until grep -q '^SigCgt:.*[4-7c-f]...$' "/proc/$pid/status"; do
    sleep 0.05
  done
}
start() {
  rm -rf "$folder/settings"
  "$program" --settings "$folder/settings" "$folder/o.opml" &
  pid=$!
  await_window "o.opml — outliner"
  await_handler
}
ends_with() {
  local code=0
  wait "$pid" || code=$?
  [ $code -eq "$1" ] || fail "the program ended with $code, not with $1"
  grep -qF "$folder/o.opml" "$folder/settings/AppPrefs.xml" || fail "the recent files were not kept"
  [ -e "$folder/settings/Workspaces/Writing.workspace" ] || fail "the workspace was not kept"
}

start
kill -TERM "$pid"
ends_with 143

start
xdotool key alt+e key k
await_window "Keyboard Shortcuts"
kill -TERM "$pid"
ends_with 143

# A row more is a change, and closing asks about it.
start
press_until Return "*o.opml — outliner"
press_until ctrl+w "Unsaved changes"
kill -TERM "$pid"
ends_with 143
