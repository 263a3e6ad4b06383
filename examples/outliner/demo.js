// Edits the sample as its user does at the window: with keys, with commands by their names and with
// clicks. ./run runs it where there is no display, from the root of the sources and on a copy of
// the file. help() at the end of a script of your own tells of all that there is.
"use strict";

// Listeners hear of the commands behind the script, also of those that keys have given.
const heard = {};
Command.addEventListener(CommandEvent.EVENT_INVOKE_COMMAND, event => {
  heard[event.title] = (heard[event.title] || 0) + 1;
});

function rowsAsText() {
  const lines = [];
  for (let row = 0; row < Outliner.rowCount; ++row)
    lines.push("  ".repeat(Outliner.rowLevel(row) - 1) + Outliner.rowText(row));
  return lines.join("\n");
}

function findRow(text) {
  for (let row = 0; row < Outliner.rowCount; ++row)
    if (Outliner.rowText(row) === text) return row;
  throw new Error("there is no row \"" + text + "\"");
}

Outliner.setSize(960, 680);
Outliner.print(Outliner.title);

// A row behind "Read the drawings twice", and one below the new one.
Outliner.click(300, 158);
Outliner.key("Return");
Outliner.type("Make a model of card, one to ten");
Outliner.key("Ctrl+Return");
Outliner.type("Two evenings");
Outliner.key("Up");

// The new rows go up; undo and redo bring them back and forth.
const place = findRow("Make a model of card, one to ten");
Outliner.key("Ctrl+Up");
Command.invokeCommand(Command.COMMAND_OUTLINER_EDIT_UNDO);
if (findRow("Make a model of card, one to ten") !== place) throw new Error("undo left the row up");
Command.invokeCommand(Command.COMMAND_OUTLINER_EDIT_REDO);

// A text is corrected at its front: given up once, then kept.
Outliner.key("F2");
Outliner.key("Home");
Outliner.type("Nobody wants this.");
Outliner.key("Escape");
Outliner.key("F2");
Outliner.key("Home");
Outliner.type("First: ");
Outliner.key("Up");

// What goes wrong in a step can be caught.
try {
  Outliner.rowText(Outliner.rowCount);
} catch (error) {
  Outliner.print(error.message);
}

// Rows in two places are selected, and each place moves its rows up.
Outliner.click(300, 216);
Outliner.click(300, 330, "Ctrl");
Outliner.click(300, 348, "Ctrl");
Outliner.print("selected: " + Outliner.selection);
Outliner.key("Alt+Up");
Outliner.picture("build/run/outliner.png");
if (Outliner.isDirty) Outliner.save();

Outliner.print(Outliner.title);
Outliner.print(rowsAsText());

// One more listener, added last, hears of the last command behind all others.
Command.addEventListener(CommandEvent.EVENT_INVOKE_COMMAND, event => {
  if (event.name !== "outliner.select.all") return;
  for (const title in heard) Outliner.print(title + ": " + heard[title]);
});
Command.invokeCommand("outliner.select.all");
