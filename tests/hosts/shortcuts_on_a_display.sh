#!/bin/bash
# Copyright (c) 2026 The vek authors
# SPDX-License-Identifier: MIT
#
# shortcuts_on_a_display.sh PROGRAM FOLDER: on the display of the environment, gives "Save" the key of
# "Select All" in the shortcut dialog, with nothing but keys, presses it, starts the program again and
# presses it once more. What a key has done is seen in the files. Nothing waits for time: what does no harm
# twice is sent until it has come in. The folder is made anew.
set -eu
program=$1
folder=$2
pause=0.05

rm -rf "$folder"
mkdir -p "$folder"
outline=$folder/o.opml
keys=$folder/settings/Shortcuts/\(Custom\).xml
printf '<opml version="2.0"><body><outline text="a"/></body></opml>\n' >"$folder/first.opml"

fail() {
  echo "$1" >&2
  kill "$pid" 2>/dev/null || true
  exit 1
}
# The window of a title, as soon as it is in front and has the keyboard, which comes a little later.
has_keyboard() {
  xdotool getactivewindow getwindowname 2>/dev/null | grep -qF "$1" &&
    [ "$(xdotool getactivewindow 2>/dev/null)" = "$(xdotool getwindowfocus -f 2>/dev/null)" ]
}
await_window() {
  until has_keyboard "$1"; do
    kill -0 "$pid" 2>/dev/null || fail "the program has ended while \"$1\" was waited for"
    sleep $pause
  done
}
start() {
  cp "$folder/first.opml" "$outline"
  "$program" --settings "$folder/settings" "$outline" &
  pid=$!
  await_window "o.opml"
}
# The command writes the outline, which is gone by then.
press_until_saved() {
  rm -f "$outline"
  until [ -e "$outline" ]; do
    kill -0 "$pid" 2>/dev/null || fail "the program has ended"
    await_window "o.opml"
    xdotool key ctrl+a
    sleep $pause
  done
}
quit() {
  while kill -0 "$pid" 2>/dev/null; do
    xdotool key ctrl+q
    sleep $pause
  done
  wait "$pid" || fail "the program ended with $?"
}

start
xdotool key alt+e key k
await_window "Keyboard Shortcuts"
# The only command that is found stands below its category; its bubble takes the key. Enter in the
# search field is OK.
xdotool type "Writes the outline"
xdotool key Tab Tab Down Down Tab space ctrl+a shift+Tab shift+Tab shift+Tab Return
await_window "o.opml"
tr -d '\r\n' <"$keys" | grep -qF '<cmd>outliner.file.save</cmd><uchar>A</uchar><mod><cmdkey/></mod>' ||
  fail "$keys: Ctrl+A is not the key of Save"
if tr -d '\r\n' <"$keys" | grep -qF '<cmd>outliner.select.all</cmd><uchar>A</uchar>'; then
  fail "$keys: Ctrl+A is still the key of Select All"
fi
press_until_saved
quit
start
press_until_saved
quit
