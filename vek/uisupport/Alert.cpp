// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/uisupport/Alert.h"

#include "lumui/dialogs/SystemMessageBox.h"
#include "lumui/ui/OS_Window.h"

namespace vek::uisupport::Alert {

namespace {

namespace dialogs = lumui::dialogs;

unsigned ButtonFlags(Type inType) {
  switch (static_cast<int>(inType)) {
    case eTypeOKCancel:
      return dialogs::kBoxOKCancel;
    case eTypeAbortRetryIgnore:
      return dialogs::kBoxAbortRetryIgnore;
    case eTypeYesNoCancel:
    case eTypeSaveDiscardCancel:
      return dialogs::kBoxYesNoCancel;
    case eTypeYesNo:
      return dialogs::kBoxYesNo;
    case eTypeRetryCancel:
      return dialogs::kBoxRetryCancel;
    default:
      return dialogs::kBoxOK;
  }
}

unsigned IconFlags(Icon inIcon) {
  switch (static_cast<int>(inIcon)) {
    case eIconStop:
      return dialogs::kBoxIconStop;
    case eIconCaution:
      return dialogs::kBoxIconCaution;
    case eIconNote:
      return dialogs::kBoxIconNote;
    default:
      return 0;
  }
}

Response ToResponse(int inResult) {
  switch (inResult) {
    case dialogs::kResultOK:
      return eResponseOK;
    case dialogs::kResultAbort:
      return eResponseAbort;
    case dialogs::kResultRetry:
      return eResponseRetry;
    case dialogs::kResultIgnore:
      return eResponseIgnore;
    case dialogs::kResultYes:
      return eResponseYes;
    case dialogs::kResultNo:
      return eResponseNo;
    default:
      return eResponseCancel;
  }
}

}  // namespace

Response Show(Type inType, Icon inIcon, const lumcore::UTF16String& inTitle,
              const lumcore::UTF16String& inText, lumui::ui::UI_Node* inParent) {
  auto* const owner = dynamic_cast<lumui::ui::OS_Window*>(inParent);
  return ToResponse(dialogs::ShowSystemMessageBox(owner, inText, inTitle,
                                                  ButtonFlags(inType) | IconFlags(inIcon)));
}

void ShowCaution(const lumcore::UTF16String& inTitle, const lumcore::UTF16String& inText,
                 lumui::ui::UI_Node* inParent) {
  Show(eTypeOK, eIconCaution, inTitle, inText, inParent);
}

void ShowNote(const lumcore::UTF16String& inTitle, const lumcore::UTF16String& inText,
              lumui::ui::UI_Node* inParent) {
  Show(eTypeOK, eIconNote, inTitle, inText, inParent);
}

void ShowStop(const lumcore::UTF16String& inTitle, const lumcore::UTF16String& inText,
              lumui::ui::UI_Node* inParent) {
  Show(eTypeOK, eIconStop, inTitle, inText, inParent);
}

}  // namespace vek::uisupport::Alert
