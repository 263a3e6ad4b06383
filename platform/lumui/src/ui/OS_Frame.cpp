// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/ui/OS_Frame.h"

#include <QString>
#include <cstdint>
#include <map>
#include <string>

#include "drawbot/QtConvert.h"
#include "ui/FrameRegistry.h"

namespace lumui::ui {

namespace {

struct KnownClass {
  HINSTANCE resources = nullptr;
  int iconID = 0;
  int menuID = 0;
};

std::map<std::wstring, KnownClass>& Classes() {
  static std::map<std::wstring, KnownClass> sClasses;
  return sClasses;
}

std::map<HWND, OS_Frame::Description>& Frames() {
  static std::map<HWND, OS_Frame::Description> sFrames;
  return sFrames;
}

}  // namespace

HWND NewWindowHandle() {
  static std::uintptr_t sLast = 0;
  return reinterpret_cast<HWND>(++sLast);
}

bool RemoveFrame(HWND inFrame) {
  return Frames().erase(inFrame) != 0;
}

bool OS_Frame::Register(const Class& inClass) {
  if (!inClass.name || !*inClass.name) return false;
  Classes()[inClass.name] = KnownClass{inClass.resources, inClass.iconID, inClass.menuID};
  return true;
}

HWND OS_Frame::Create(const wchar_t* inClassName, const wchar_t* inTitle, unsigned inStyle,
                      int inWidth, int inHeight) {
  const auto found = inClassName ? Classes().find(inClassName) : Classes().end();
  if (found == Classes().end()) return nullptr;
  Description frame;
  if (inTitle) frame.title = drawbot::FromQt(QString::fromWCharArray(inTitle));
  frame.style = inStyle;
  frame.width = inWidth;
  frame.height = inHeight;
  frame.resources = found->second.resources;
  frame.iconID = found->second.iconID;
  frame.menuID = found->second.menuID;
  const HWND handle = NewWindowHandle();
  Frames()[handle] = frame;
  return handle;
}

bool OS_Frame::GetDescription(HWND inFrame, Description& outDescription) {
  const auto found = Frames().find(inFrame);
  if (found == Frames().end()) return false;
  outDescription = found->second;
  return true;
}

void OS_Frame::ForgetAll() {
  Frames().clear();
  Classes().clear();
}

}  // namespace lumui::ui
