// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/datatransfer/Clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

#include "drawbot/QtConvert.h"

namespace lumui::datatransfer {

void NewClipboardSendData(const lumcore::UTF16String& inText) {
  QGuiApplication::clipboard()->setText(drawbot::ToQt(inText));
}

lumcore::UTF16String GetClipboardText() {
  return drawbot::FromQt(QGuiApplication::clipboard()->text());
}

}  // namespace lumui::datatransfer
