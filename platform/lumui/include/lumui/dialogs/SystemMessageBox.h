// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "lumui/Export.h"

namespace lumui::ui {
class OS_Window;
}

namespace lumui::dialogs {

// Flags and results have the numbers that Windows gives its message box.
constexpr unsigned kBoxOK = 0x0;
constexpr unsigned kBoxOKCancel = 0x1;
constexpr unsigned kBoxAbortRetryIgnore = 0x2;
constexpr unsigned kBoxYesNoCancel = 0x3;
constexpr unsigned kBoxYesNo = 0x4;
constexpr unsigned kBoxRetryCancel = 0x5;
constexpr unsigned kBoxButtons = 0xF;  // the bits that hold one of the above
constexpr unsigned kBoxIconStop = 0x10;
constexpr unsigned kBoxIconCaution = 0x30;
constexpr unsigned kBoxIconNote = 0x40;
constexpr unsigned kBoxIcons = 0xF0;

constexpr int kResultOK = 1;
constexpr int kResultCancel = 2;
constexpr int kResultAbort = 3;
constexpr int kResultRetry = 4;
constexpr int kResultIgnore = 5;
constexpr int kResultYes = 6;
constexpr int kResultNo = 7;

// The message box of the system in the numbers above, over RunMessageDialog: what answers that one
// answers this one, and it throws where that one does. The owner may be null. Buttons that are not
// known stand for OK alone.
LUMUI_API int ShowSystemMessageBox(ui::OS_Window* inOwner, const lumcore::UTF16String& inText,
                                   const lumcore::UTF16String& inTitle, unsigned inFlags);

}  // namespace lumui::dialogs
