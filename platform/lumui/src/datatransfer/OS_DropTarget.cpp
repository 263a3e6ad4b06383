// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/datatransfer/OS_DropTarget.h"

#include <QDropEvent>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QWidget>

#include "datatransfer/DragEvents.h"
#include "datatransfer/DropState.h"
#include "lumcore/debug/Contract.h"
#include "lumui/ui/OS_Window.h"
#include "ui/NodeManagerImpl.h"
#include "ui/NodePeer.h"

namespace lumui::datatransfer {

using ui::UI_DragDropHandler;

namespace {

QHash<const QWidget*, OS_DropTarget::Impl*>& Targets() {
  static QHash<const QWidget*, OS_DropTarget::Impl*> sTargets;
  return sTargets;
}

void LeaveAll() {
  if (auto* const manager = ui::NodeManagerImplIfAny()) manager->drops.Leave();
}

}  // namespace

class OS_DropTarget::Impl : public QObject {
 public:
  void Attach(QWidget* inWidget) {
    Detach();
    mWidget = inWidget;
    mKey = inWidget;
    Targets().insert(mKey, this);
    mWidget->setAcceptDrops(true);
    mWidget->installEventFilter(this);
  }
  void Detach() {
    if (mKey) Targets().remove(std::exchange(mKey, nullptr));
    if (!mWidget) return;
    LeaveAll();
    mWidget->removeEventFilter(this);
    mWidget->setAcceptDrops(false);
    mWidget = nullptr;
  }
  bool IsAttached() const { return mWidget; }

  boost::shared_ptr<UI_DragDropHandler> mFallback;

 protected:
  bool eventFilter(QObject*, QEvent* inEvent) override {
    if (inEvent->type() == QEvent::Hide) LeaveAll();
    return mWidget && HandleDragEvent(*mWidget, *inEvent);
  }

 private:
  QPointer<QWidget> mWidget;
  const QWidget* mKey = nullptr;  // the widget, also when it has gone
};

bool HandleDragEvent(QWidget& inWidget, QEvent& ioEvent) {
  switch (ioEvent.type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
      break;
    case QEvent::DragLeave:
      LeaveAll();
      return true;
    default:
      return false;
  }
  const ui::UI_Node* const node = ui::NodePeer::NodeOf(&inWidget);
  const ui::OS_Window* const window = node ? node->UI_GetWindowNode() : nullptr;
  const OS_DropTarget::Impl* const target =
      window ? Targets().value(window->GetPeer()->GetWidget()) : nullptr;
  if (!target) {
    ioEvent.ignore();
    return true;
  }
  ui::NodeManagerImpl().drops.Handle(inWidget, target->mFallback,
                                     static_cast<QDropEvent&>(ioEvent));
  return true;
}

OS_DropTarget::OS_DropTarget() : mImpl(std::make_unique<Impl>()) {}

OS_DropTarget::~OS_DropTarget() {
  mImpl->Detach();
}

void OS_DropTarget::Attach(ui::OS_Window& inWindow) {
  LUM_INPUT_CONTRACT(inWindow.UI_GetHandle() != nullptr);
  mImpl->Attach(inWindow.GetPeer()->GetWidget());
}

void OS_DropTarget::Detach() {
  mImpl->Detach();
}

bool OS_DropTarget::IsAttached() const {
  return mImpl->IsAttached();
}

void OS_DropTarget::SetFallbackHandler(const boost::shared_ptr<UI_DragDropHandler>& inHandler) {
  mImpl->mFallback = inHandler;
}

}  // namespace lumui::datatransfer
