// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "Asked.h"

using lumcore::UTF16String;

Asked::~Asked() = default;

Level::Level(Level* inParent) : CommandHandler(inParent) {}

bool Level::Execute(int inCommand) {
  return inCommand < 0;
}

bool Level::AskEnablement(int inCommand, bool&, bool&, UTF16String&) {
  return inCommand < 0;
}

bool Level::DoHandleCommand(int inCommand) {
  return inCommand < 0;
}

bool Level::DoCommandEnabled(int inCommand, bool&, bool&, UTF16String&) {
  return inCommand < 0;
}

bool Attachment::Execute(int inCommand) {
  return inCommand < 0;
}

bool Attachment::AskEnablement(int inCommand, bool&, bool&, UTF16String&) {
  return inCommand < 0;
}

bool Attachment::DoHandleCommand(int inCommand) {
  return inCommand < 0;
}

bool Attachment::DoCommandEnabled(int inCommand, bool&, bool&, UTF16String&) {
  return inCommand < 0;
}
