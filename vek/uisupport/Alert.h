// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "vek/config/Export.h"

namespace lumui::ui {
class UI_Node;
}

// Message boxes. Each blocks until the user answers. The parent is the window that the box belongs
// to; null, or a node that is no top-level window, gives a box of its own.
namespace vek::uisupport::Alert {

enum Type : int {
  eTypeOK = 0,
  eTypeOKCancel = 1,
  eTypeAbortRetryIgnore = 2,
  eTypeYesNoCancel = 3,
  eTypeYesNo = 4,
  eTypeRetryCancel = 5,
  eTypeSaveDiscardCancel = 6,  // shown as Yes, No and Cancel
};

enum Icon : int {
  eIconNone = 0,
  eIconStop = 1,
  eIconQuestion = 2,  // shown without a picture
  eIconCaution = 3,
  eIconNote = 4,
};

enum Response : int {
  eResponseOK = 0,
  eResponseCancel = 1,
  eResponseAbort = 2,
  eResponseIgnore = 3,
  eResponseYes = 4,
  eResponseNo = 5,
  eResponseRetry = 6,
};

VEK_API Response Show(Type inType, Icon inIcon, const lumcore::UTF16String& inTitle,
                      const lumcore::UTF16String& inText, lumui::ui::UI_Node* inParent);
VEK_API void ShowCaution(const lumcore::UTF16String& inTitle, const lumcore::UTF16String& inText,
                         lumui::ui::UI_Node* inParent);
VEK_API void ShowNote(const lumcore::UTF16String& inTitle, const lumcore::UTF16String& inText,
                      lumui::ui::UI_Node* inParent);
VEK_API void ShowStop(const lumcore::UTF16String& inTitle, const lumcore::UTF16String& inText,
                      lumui::ui::UI_Node* inParent);

}  // namespace vek::uisupport::Alert
