// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "lumui/ui/OS_Event.h"
#include "lumui/ui/OS_Frame.h"
#include "lumui/ui/UI_Node.h"

namespace lumui::ui {

class WindowPeer;

// A top-level window. Its native part exists from UI_ConstructWindow to UI_DestroyWindow; while it
// does, the window has a handle and every message to it passes the application's gate and then the
// window's event function.
//
// A close that the event function permits (see OS_Event) ends in UI_DoClose. The last message is
// kMessageDestroy, once for each native window, also when the node is destroyed first.
class LUMUI_API OS_Window : public UI_Node {
 public:
  // The event function may be null. inConstructNow makes the native window at once, hidden.
  explicit OS_Window(OSEventFunction inEventFunction = nullptr, bool inConstructNow = true);
  ~OS_Window() override;

  // Before the first window and after the last, of an application that works with window classes.
  // There is an application object (a contract). The end forgets frames and classes.
  static void UI_Initialize(HINSTANCE inApplication);
  static void UI_Terminate();

  // The window of a handle; null for a handle that no window has, or has no more.
  static OS_Window* UI_GetWindow(HWND inHandle);
  // What a window does about a message that its event function leaves alone: it permits a close and
  // the end of the session. The result is that of the message.
  static LRESULT UI_DefaultEventProc(HWND inHandle, unsigned inMessage, WPARAM inWParam,
                                     LPARAM inLParam);

  // A null rectangle leaves place and size to the system. Does nothing if there is a native window.
  virtual void UI_ConstructWindow(const lumcore::geom::RectT<int>* inRect);
  // The native window to come has the frame's handle, title and style, its size unless a rectangle
  // is given, and an empty menu in a bar where its class names one. False for what is no frame and
  // where there is a native window already.
  bool UI_TakeFrame(HWND inFrame);
  void UI_DestroyWindow();
  HWND UI_GetHandle() const { return mHandle; }  // null without a native window

  void UI_SetTitle(const lumcore::UTF16String& inTitle);
  const lumcore::UTF16String& UI_GetTitle() const { return mTitle; }
  void UI_SetSize(int inWidth, int inHeight);  // without the frame
  // Shows the window if need be and brings it to the front with the keyboard.
  void UI_Activate();
  bool UI_IsActive() const;
  // Of a window that has just been shown: what it shows is on the screen when this returns. Nothing
  // else of what waits is handled meanwhile, neither input nor timers nor posted functions. Gives
  // up where the window system does not show the window within half a second.
  void UI_PaintNow();
  // Over the whole screen but for the system's own bars. A window that is hidden comes so when it
  // is shown.
  void UI_SetMaximized(bool inMaximized);
  bool UI_IsMaximized() const;
  // Where the window is when it is not maximised, as UI_GetLocalRectF. Null rectangle without a
  // native window.
  lumcore::geom::RectT<float> UI_GetRestoredRect() const;
  // Between the coordinates of the window's nodes and those of the screen. Unchanged without a
  // native window.
  void UI_WindowToScreen(lumcore::geom::PointT<int>& ioPoint) const;
  void UI_ScreenToWindow(lumcore::geom::PointT<int>& ioPoint) const;
  // The node that has the keyboard when this window is in front; null if none has.
  UI_Node* UI_GetFocusNode() const;

  // The menu in the bar above the nodes; null for none. The nodes' coordinates begin below the bar,
  // and the window's rectangle does not count it. What a bar takes and gives is height of the
  // nodes. A menu that is replaced lives on; the present one is destroyed with the native part.
  // False for a handle that is no menu.
  bool UI_SetMenu(HMENU inMenu);
  HMENU UI_GetMenu() const;

  // Window styles by the numbers that Windows gives them; of these the caption (0xC00000) and the
  // sizing frame (0x40000) change how the window looks.
  unsigned UI_GetWindowStyleFlags() const { return mStyleFlags; }
  void UI_SetWindowStyleFlags(unsigned inFlags);

  OSEventFunction UI_GetEventFunction() const { return mEventFunction; }
  void UI_SetEventFunction(OSEventFunction inFunction) { mEventFunction = inFunction; }
  // Passes a message through the gate to the event function, as the system would; returns its
  // result. The gate's first step may consume it, where it can (see Application::PreEventStep): the
  // result then is the one it started with.
  LRESULT UI_SendMessage(unsigned inMessage, WPARAM inWParam, LPARAM inLParam);

  // Writes what the window shows as a PNG file; throws lumcore::config::Error with the path.
  void UI_SavePicture(const lumcore::UTF16String& inPath);

  // A close has been permitted. The base operation destroys the native window.
  virtual void UI_DoClose();

 protected:
  OS_Window(OSEventFunction inEventFunction, std::unique_ptr<WindowPeer> inPeer);

 private:
  friend class NodePeer;
  WindowPeer& GetWindowPeer() const;
  void ApplyFrame(const OS_Frame::Description& inFrame);

  OSEventFunction mEventFunction;
  HWND mHandle = nullptr;
  HWND mFrame = nullptr;  // until there is a native window
  HMENU mMenu = nullptr;
  unsigned mStyleFlags;
  lumcore::UTF16String mTitle;
};

}  // namespace lumui::ui
