// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <private/qhighdpiscaling_p.h>
#include <qpa/qplatformdrag.h>
#include <qpa/qwindowsysteminterface.h>

#include <QMimeData>
#include <QUrl>
#include <QWindow>

#include "datatransfer/ReceivedMimeData.h"
#include "drawbot/QtConvert.h"
#include "lumcore/debug/Contract.h"
#include "lumui/testing/SyntheticInput.h"
#include "lumui/ui/OS_Window.h"
#include "ui/NodePeer.h"
#include "ui/QtEvents.h"
#include "ui/WindowRegistry.h"

namespace lumui::testing {

namespace {

using System = QWindowSystemInterface;

int EffectOf(const QPlatformDropQtResponse& inResponse) {
  if (!inResponse.isAccepted()) return ui::kDropNone;
  return datatransfer::EffectsOf(inResponse.acceptedAction());
}

}  // namespace

class ForeignDrag::Impl {
 public:
  // In the screen's pixels; nodes know nothing of the bar above them.
  QPoint Place(const Position& inPosition) const {
    const QPointF local =
        drawbot::ToQt(inPosition) + QPointF(0, window->GetPeer()->GetChromeHeight());
    return QHighDpi::toNativeLocalPosition(local, Native()).toPoint();
  }
  QWindow* Native() const {
    QWindow* const native = ui::NativeOf(*window);
    LUM_INPUT_CONTRACT(native != nullptr);
    return native;
  }

  boost::intrusive_ptr<ui::OS_Window> window;
  Qt::DropActions actions;
  QMimeData data;
};

ForeignDrag::ForeignDrag(ui::OS_Window& inWindow, int inAllowedEffects)
    : mImpl(std::make_unique<Impl>()) {
  mImpl->window = &inWindow;
  mImpl->actions = datatransfer::ActionsOf(inAllowedEffects);
}

ForeignDrag::~ForeignDrag() = default;

void ForeignDrag::AddFiles(const std::vector<lumcore::UTF16String>& inPaths) {
  QList<QUrl> urls;
  for (const lumcore::UTF16String& path : inPaths)
    urls << QUrl::fromLocalFile(drawbot::ToQt(path));
  mImpl->data.setUrls(urls);
}

void ForeignDrag::AddText(const lumcore::UTF16String& inText) {
  mImpl->data.setText(drawbot::ToQt(inText));
}

void ForeignDrag::AddBytes(const char* inFormat, const std::string& inBytes) {
  mImpl->data.setData(QString::fromUtf8(inFormat), QByteArray::fromStdString(inBytes));
}

int ForeignDrag::Move(const Position& inPosition, ui::ModifierKeys inModifiers) {
  return EffectOf(System::handleDrag(mImpl->Native(), &mImpl->data, mImpl->Place(inPosition),
                                     mImpl->actions, Qt::LeftButton,
                                     ui::QtFromModifiers(inModifiers)));
}

int ForeignDrag::Drop(const Position& inPosition, ui::ModifierKeys inModifiers) {
  return EffectOf(System::handleDrop(mImpl->Native(), &mImpl->data, mImpl->Place(inPosition),
                                     mImpl->actions, Qt::LeftButton,
                                     ui::QtFromModifiers(inModifiers)));
}

void ForeignDrag::Leave() {
  System::handleDrag(mImpl->Native(), nullptr, QPoint(), Qt::IgnoreAction, Qt::NoButton,
                     Qt::NoModifier);
}

int DropOnWindow(ui::OS_Window& inWindow, const Position& inPosition,
                 const std::vector<lumcore::UTF16String>& inFiles,
                 const lumcore::UTF16String& inText) {
  ForeignDrag drag(inWindow);
  if (!inFiles.empty()) drag.AddFiles(inFiles);
  if (!inText.empty()) drag.AddText(inText);
  // The first move enters the window.
  drag.Move(Position(0, inPosition.y));
  drag.Move(inPosition);
  return drag.Drop(inPosition);
}

}  // namespace lumui::testing
