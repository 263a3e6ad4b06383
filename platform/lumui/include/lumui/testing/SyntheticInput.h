// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <string>
#include <vector>

#include "lumcore/Strings.h"
#include "lumcore/geom/Point.h"
#include "lumui/Export.h"
#include "lumui/ui/KeyboardCode.h"
#include "lumui/ui/ModifierKeys.h"
#include "lumui/ui/PointerEvent.h"
#include "lumui/ui/UI_DragDropHandler.h"

namespace lumui::ui {
class OS_Window;
}

// Input as the window system would send it, for tests and for runs by script. All of it passes the
// event gate. Positions are in the window's coordinates. Every call returns after the event has
// been handled. The window has a native part (a contract); it need not be in front.
namespace lumui::testing {

using Position = lumcore::geom::PointT<float>;

LUMUI_API void PressKey(ui::OS_Window& inWindow, ui::KeyboardCode inKey,
                        ui::ModifierKeys inModifiers = ui::ModifierKeys(), bool inRepeat = false);
LUMUI_API void ReleaseKey(ui::OS_Window& inWindow, ui::KeyboardCode inKey,
                          ui::ModifierKeys inModifiers = ui::ModifierKeys());
LUMUI_API void TapKey(ui::OS_Window& inWindow, ui::KeyboardCode inKey,
                      ui::ModifierKeys inModifiers = ui::ModifierKeys());
// A key that types something else than its cap: a character of the third level, which some systems
// tell with Ctrl and Alt, or of a key without a code (no key).
LUMUI_API void PressTypingKey(ui::OS_Window& inWindow, ui::KeyboardCode inKey,
                              ui::ModifierKeys inModifiers, const lumcore::UTF16String& inText);
// Taps the keys that type the text, one after the other.
LUMUI_API void TypeText(ui::OS_Window& inWindow, const lumcore::UTF16String& inText);
// Text as an input method commits it, without keys.
LUMUI_API void CommitInputMethodText(ui::OS_Window& inWindow, const lumcore::UTF16String& inText);

LUMUI_API void MoveMouse(ui::OS_Window& inWindow, const Position& inPosition,
                         ui::ModifierKeys inModifiers = ui::ModifierKeys());
LUMUI_API void PressMouse(ui::OS_Window& inWindow, const Position& inPosition,
                          ui::PointerEvent::Button inButton = ui::PointerEvent::kLeftButton,
                          ui::ModifierKeys inModifiers = ui::ModifierKeys());
LUMUI_API void ReleaseMouse(ui::OS_Window& inWindow, const Position& inPosition,
                            ui::PointerEvent::Button inButton = ui::PointerEvent::kLeftButton,
                            ui::ModifierKeys inModifiers = ui::ModifierKeys());
LUMUI_API void ClickMouse(ui::OS_Window& inWindow, const Position& inPosition,
                          ui::PointerEvent::Button inButton = ui::PointerEvent::kLeftButton,
                          ui::ModifierKeys inModifiers = ui::ModifierKeys());
// Two clicks, the second in the time of a double click.
LUMUI_API void DoubleClickMouse(ui::OS_Window& inWindow, const Position& inPosition,
                                ui::PointerEvent::Button inButton = ui::PointerEvent::kLeftButton,
                                ui::ModifierKeys inModifiers = ui::ModifierKeys());
LUMUI_API void LeaveWindow(ui::OS_Window& inWindow);
// Fingers on a touch pad that move by so many units of the view, as long after their last move, in
// seconds. What a kBegin or kEnd moves by is nothing.
LUMUI_API void MoveFingers(ui::OS_Window& inWindow, const Position& inPosition,
                           ui::WheelEvent::Touch inTouch, const lumcore::geom::PointT<float>& inWay,
                           double inSeconds);
// In notches with fractions; see ui::WheelEvent for the signs.
LUMUI_API void TurnWheel(ui::OS_Window& inWindow, const Position& inPosition,
                         const lumcore::geom::PointT<float>& inNotches,
                         ui::ModifierKeys inModifiers = ui::ModifierKeys());

// A drag of another program's over a window of ours. It need not come to an end here: it may leave,
// or go out of being as when the other program crashes. Bytes go by the names of media types.
class LUMUI_API ForeignDrag {
 public:
  explicit ForeignDrag(ui::OS_Window& inWindow,
                       int inAllowedEffects = ui::kDropCopy | ui::kDropMove);
  ~ForeignDrag();
  ForeignDrag(const ForeignDrag&) = delete;
  ForeignDrag& operator=(const ForeignDrag&) = delete;

  void AddFiles(const std::vector<lumcore::UTF16String>& inPaths);
  void AddText(const lumcore::UTF16String& inText);
  void AddBytes(const char* inFormat, const std::string& inBytes);

  // What a drop there would do, and what it has done.
  int Move(const Position& inPosition, ui::ModifierKeys inModifiers = ui::ModifierKeys());
  int Drop(const Position& inPosition, ui::ModifierKeys inModifiers = ui::ModifierKeys());
  void Leave();

 private:
  class Impl;
  std::unique_ptr<Impl> mImpl;
};

// Files, by their full paths, and a text that another program drags into the window, moves to the
// position and drops there. What the drop has done.
LUMUI_API int DropOnWindow(ui::OS_Window& inWindow, const Position& inPosition,
                           const std::vector<lumcore::UTF16String>& inFiles,
                           const lumcore::UTF16String& inText);

// As the cross in the window's frame does.
LUMUI_API void RequestClose(ui::OS_Window& inWindow);
// Brings a window to the front; null takes the application from it.
LUMUI_API void ActivateWindow(ui::OS_Window* inWindow);
// As a session manager does: asks whether the session may end. It may go on all the same, if some
// other program refuses.
LUMUI_API bool AskSessionEnd();
// Asks, and if nobody refuses, ends. True if the session ended.
LUMUI_API bool EndSession();

// Handles everything that waits, and what that brings, until nothing is left.
LUMUI_API void ProcessEvents();

}  // namespace lumui::testing
