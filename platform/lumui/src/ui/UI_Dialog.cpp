// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/ui/UI_Dialog.h"

#include <QEventLoop>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <exception>
#include <utility>

#include "dialogs/AnnouncedModal.h"
#include "dialogs/AnsweredDialog.h"
#include "lumcore/debug/Contract.h"
#include "lumcore/utility/ScopedValue.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/dialogs/DialogDriver.h"
#include "lumui/testing/SyntheticInput.h"
#include "lumui/ui/Application.h"
#include "lumui/ui/KeyboardEvent.h"
#include "ui/QuitWatch.h"
#include "ui/WindowPeer.h"
#include "ui/WindowRegistry.h"

namespace lumui::dialogs {

namespace {

DialogDriver& CurrentDriver() {
  static DialogDriver sDriver;
  return sDriver;
}

}  // namespace

DialogDriver SetDialogDriver(DialogDriver inDriver) {
  return std::exchange(CurrentDriver(), std::move(inDriver));
}

}  // namespace lumui::dialogs

namespace lumui::ui {

// Ends with the dialog, with its widget, or with the application.
class UI_Dialog::Loop {
 public:
  explicit Loop(QWidget& inWidget) {
    QObject::connect(&inWidget, &QObject::destroyed, &mLoop, [this] { mLoop.quit(); });
  }

  void Run(UI_Dialog& ioDialog, const dialogs::DialogDriver& inDriver) {
    if (inDriver) {
      QTimer::singleShot(0, &mLoop, [&] {
        try {
          // What showing the dialog has left: it comes to the front, and the keyboard to it.
          Application::Get()->PumpPendingEvents();
          if (ioDialog.IsOpen()) inDriver(ioDialog);
          dialogs::RequireAnswer(mWatch.HasQuit() || !ioDialog.IsLeftOpen(),
                                 ioDialog.UI_GetTitle());
        } catch (...) {
          mFailure = std::current_exception();
          mLoop.quit();
        }
      });
    }
    if (!mWatch.HasQuit()) mLoop.exec();
    if (ioDialog.mOpen) ioDialog.CloseWith(kCancel);
    if (mFailure) std::rethrow_exception(mFailure);
  }
  void Quit() { mLoop.quit(); }

 private:
  QEventLoop mLoop;
  QuitWatch mWatch{[this] { mLoop.quit(); }};
  std::exception_ptr mFailure;
};

// Ends a dialog without a loop when its window goes: at the next turn, since whoever destroys the
// window works on the dialog still.
class UI_Dialog::WindowWatch : public QObject {
 public:
  explicit WindowWatch(UI_Dialog& inDialog) {
    QObject::connect(
        inDialog.GetPeer()->GetWidget(), &QObject::destroyed, this,
        [&inDialog] { inDialog.CloseWith(kCancel); }, Qt::QueuedConnection);
  }
};

UI_Dialog::UI_Dialog(const lumcore::UTF16String& inTitle, UI_Node* inParent)
    : OS_Window(nullptr, false), mContent(new UI_SubView) {
  UI_SetTitle(inTitle);
  UI_AddChild(mContent);
  if (const OS_Window* const owner = inParent ? inParent->UI_GetWindowNode() : nullptr) {
    mOwner = owner->UI_GetHandle();
  }
  UI_Dialog::UI_ConstructWindow(nullptr);
}

UI_Dialog::~UI_Dialog() {
  SetButtons(nullptr, nullptr);
}

void UI_Dialog::UI_ConstructWindow(const lumcore::geom::RectT<int>* inRect) {
  if (UI_GetHandle()) return;
  OS_Window::UI_ConstructWindow(inRect);
  QWidget* const widget = GetPeer()->GetWidget();
  widget->setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
  widget->setMinimumSize(qRound(mMinimumSize.x), qRound(mMinimumSize.y));
  widget->winId();
}

boost::shared_ptr<UI_Dialog::ChangedFunction> UI_Dialog::EndsWith(controls::UI_TextButton* inButton,
                                                                  int inResult) {
  if (!inButton) return nullptr;
  const boost::shared_ptr<ChangedFunction> function(
      new ChangedFunction([this, inResult](auto*) { EndDialog(inResult); }));
  inButton->NotifyWhenChangedInteractively(function);
  return function;
}

void UI_Dialog::SetButtons(const boost::intrusive_ptr<controls::UI_TextButton>& inOK,
                           const boost::intrusive_ptr<controls::UI_TextButton>& inCancel) {
  if (mOnOK) mOnOK->clear();
  if (mOnCancel) mOnCancel->clear();
  mOKButton = inOK;
  mCancelButton = inCancel;
  mOnOK = EndsWith(inOK.get(), kOK);
  mOnCancel = EndsWith(inCancel.get(), kCancel);
  if (!inOK) return;
  controls::ButtonOptions options = inOK->GetOptions();
  options.defaultAppearance = true;
  inOK->SetOptions(options);
}

boost::intrusive_ptr<UI_Node> UI_Dialog::GetNodeForID(const lumcore::UTF8String& inID) const {
  return mContent->UI_GetNodeForID(inID);
}

boost::intrusive_ptr<UI_Node> UI_Dialog::GetNodeForID(const char* inID) const {
  return GetNodeForID(lumcore::utility::ToUTF8(std::string_view(inID)));
}

int UI_Dialog::RunModal() {
  const dialogs::DialogDriver driver = dialogs::CurrentDriver();
  dialogs::RequireAnswer(static_cast<bool>(driver), UI_GetTitle());
  const lumcore::utility::StKeepAlive keepAlive(*this);
  const dialogs::StAnnouncedModal announced;
  Open(true);
  Loop loop(*GetPeer()->GetWidget());
  const lumcore::utility::StScopedValue<Loop*> running(mLoop, &loop);
  loop.Run(*this, driver);
  return mResult;
}

void UI_Dialog::RunModeless(const boost::function<void(int)>& inEnded) {
  const dialogs::DialogDriver driver = dialogs::CurrentDriver();
  Open(false);
  mEnded = inEnded;
  mSelf.reset(this);
  mWatch = std::make_unique<WindowWatch>(*this);
  const boost::intrusive_ptr<UI_Dialog> keepAlive(this);
  if (driver) driver(*this);
}

void UI_Dialog::Open(bool inModal) {
  LUM_INPUT_CONTRACT(!mOpen);
  UI_ConstructWindow(nullptr);
  if (!mHasPlace) PlaceInMiddle();
  QWidget* const widget = GetPeer()->GetWidget();
  widget->setWindowModality(inModal ? Qt::ApplicationModal : Qt::NonModal);
  const OS_Window* const owner = OS_Window::UI_GetWindow(mOwner);
  widget->windowHandle()->setTransientParent(owner ? NativeOf(*owner) : nullptr);
  mResult = kNoResult;
  mOpen = true;
  UI_Activate();
  GetPeer()->FocusFirst();
}

void UI_Dialog::EndDialog(int inResult) {
  if (!mOpen) return;
  const lumcore::utility::StKeepAlive keepAlive(*this);
  if (!DoMayEnd(inResult) || !mOpen) return;
  CloseWith(inResult);
}

void UI_Dialog::CloseWith(int inResult) {
  mOpen = false;
  mResult = inResult;
  mWatch.reset();
  const bool wasActive = GetPeer()->GetWidget() && UI_IsActive();
  UI_Show(false);
  // Without a display there is no window manager to bring the window behind it to the front.
  if (wasActive && Application::Get()->IsHeadless()) {
    testing::ActivateWindow(OS_Window::UI_GetWindow(mOwner));
  }
  if (mLoop) mLoop->Quit();
  const boost::intrusive_ptr<UI_Dialog> self = std::move(mSelf);
  mSelf.reset();
  const boost::function<void(int)> ended = mEnded;
  mEnded.clear();
  if (ended) ended(inResult);
}

bool UI_Dialog::DoMayEnd(int) {
  return true;
}

void UI_Dialog::SetMinimumSize(float inWidth, float inHeight) {
  mMinimumSize = lumcore::geom::PointT<float>(inWidth, inHeight);
  if (UI_GetHandle()) GetPeer()->GetWidget()->setMinimumSize(qRound(inWidth), qRound(inHeight));
  SetSize(GetBounds().width, GetBounds().height);
}

void UI_Dialog::SetSize(float inWidth, float inHeight) {
  UI_SetSize(qRound(std::max(inWidth, mMinimumSize.x)), qRound(std::max(inHeight, mMinimumSize.y)));
}

void UI_Dialog::SetBounds(const lumcore::geom::RectT<float>& inBounds) {
  mHasPlace = true;
  UI_SetLocalRectF(lumcore::geom::RectT<float>(inBounds.x, inBounds.y,
                                               std::max(inBounds.width, mMinimumSize.x),
                                               std::max(inBounds.height, mMinimumSize.y)));
}

void UI_Dialog::PlaceInMiddle() {
  mHasPlace = true;
  const OS_Window* const owner = OS_Window::UI_GetWindow(mOwner);
  const QWidget* const over = owner ? owner->GetPeer()->GetWidget() : nullptr;
  const QScreen* const screen = over ? over->screen() : QGuiApplication::primaryScreen();
  const QRect available = screen ? screen->availableGeometry() : QRect();
  const QRect around = over ? over->geometry() : available;
  lumcore::geom::RectT<float> bounds = GetBounds();
  const QSize size(qRound(bounds.width), qRound(bounds.height));
  // The near edges stay on the screen.
  const auto middle = [](int inStart, int inRoom, int inSize, int inLeast) {
    return static_cast<float>(std::max(inLeast, inStart + (inRoom - inSize) / 2));
  };
  bounds.x = middle(around.x(), around.width(), size.width(), available.x());
  bounds.y = middle(around.y(), around.height(), size.height(), available.y());
  UI_SetLocalRectF(bounds);
}

void UI_Dialog::UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) {
  OS_Window::UI_SizeChanged(inRect);
  mContent->UI_SetLocalRectF(inRect);
}

bool UI_Dialog::UI_DoKeyboardEvent(UI_Node* inNode, const KeyboardEvent& inEvent) {
  if (OS_Window::UI_DoKeyboardEvent(inNode, inEvent)) return true;
  if (!mOpen || !inEvent.IsActionKeyDown() || inEvent.IsRepeat()) return false;
  if (inEvent.GetModKey().HasAny(kModCommand | kModAlt)) return false;
  const auto key = inEvent.GetCode().GetControlCode(false);
  if (key == KeyboardCode::kReturn || key == KeyboardCode::kEnter) {
    if (mOKButton) mOKButton->Press();
    return true;
  }
  if (key != KeyboardCode::kEscape) return false;
  UI_DoClose();
  return true;
}

void UI_Dialog::UI_DoClose() {
  if (mCancelButton) {
    mCancelButton->Press();
  } else {
    EndDialog(kCancel);
  }
}

// By a driver, where nobody else can close it.
bool UI_Dialog::IsLeftOpen() const {
  return mOpen && UI_GetHandle() && Application::Get()->IsHeadless();
}

}  // namespace lumui::ui
