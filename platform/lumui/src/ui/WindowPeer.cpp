// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "ui/WindowPeer.h"

#include <QIcon>
#include <QMenuBar>
#include <QPixmap>
#include <QStyleOptionMenuItem>
#include <QVBoxLayout>

#include "drawbot/QtImage.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/ui/OS_Window.h"
#include "lumui/utility/DrawbotImageResourceCache.h"
#include "lumui/utility/ResourceManager.h"
#include "ui/EventGate.h"
#include "ui/Menu.h"
#include "ui/MenuPeer.h"

namespace lumui::ui {

class WindowPeer::Bar : public QMenuBar {
 public:
  Bar(WindowPeer& inPeer, QWidget* inParent) : QMenuBar(inParent), mPeer(&inPeer) {
    setNativeMenuBar(false);
  }
  // It may live until the end of the running event.
  void Forget() { mPeer = nullptr; }
  void FitCorner() {
    // A bar that another one has taken the place of has no say in it any more.
    QWidget* const corner = mPeer ? cornerWidget() : nullptr;
    if (corner) corner->setVisible(WidthOfMenus() + corner->sizeHint().width() <= width());
  }

 protected:
  void resizeEvent(QResizeEvent* inEvent) override {
    FitCorner();
    QMenuBar::resizeEvent(inEvent);
    if (mPeer) mPeer->SetChromeHeight(height());
  }
  void actionEvent(QActionEvent* inEvent) override {
    QMenuBar::actionEvent(inEvent);
    FitCorner();
  }

 private:
  // With room for all of them, as the bar lays them out.
  int WidthOfMenus() const {
    const auto metric = [this](QStyle::PixelMetric inMetric) {
      return style()->pixelMetric(inMetric, nullptr, this);
    };
    int width = 2 * (metric(QStyle::PM_MenuBarPanelWidth) + metric(QStyle::PM_MenuBarHMargin));
    for (QAction* const action : actions()) {
      QStyleOptionMenuItem option;
      initStyleOption(&option, action);
      const QSize text = fontMetrics().size(Qt::TextShowMnemonic, action->text());
      width += metric(QStyle::PM_MenuBarItemSpacing) +
               style()->sizeFromContents(QStyle::CT_MenuBarItem, &option, text, this).width();
    }
    return width;
  }

  WindowPeer* mPeer;
};

WindowPeer::WindowPeer() = default;

WindowPeer::~WindowPeer() {
  DropBar();
}

QMenuBar* WindowPeer::GetBar() const {
  return mBar;
}

void WindowPeer::SetBarCorner(QWidget* inCorner) {
  mCorner = inCorner;
  PlaceCorner();
}

void WindowPeer::PlaceCorner() {
  if (mBar) {
    mBar->setCornerWidget(mCorner);
    mBar->FitCorner();
  } else {
    HideCorner();
  }
}

void WindowPeer::HideCorner() {
  if (!mCorner) return;
  mCorner->hide();
  mCorner->setParent(GetWidget());
}

QWidget* WindowPeer::DoMakeWidget(QWidget* inParent) {
  DropBar();
  mContainer = nullptr;
  return NodePeer::DoMakeWidget(inParent);
}

void WindowPeer::DropBar() {
  if (mBar) mBar->Forget();
  mBar = nullptr;
  SetChromeHeight(0);
}

QWidget* WindowPeer::DoGetContainer() {
  return mContainer ? mContainer.data() : GetWidget();
}

// A window without its icon is better than none: what is wrong with it is reported.
void WindowPeer::ApplyIcon(const OS_Frame::Description& inFrame) {
  if (inFrame.iconID == 0) return;
  EventGate::Get()->RunGuarded([&] {
    const std::string name = "ICON_" + std::to_string(inFrame.iconID);
    const utility::ResourceManager resources(inFrame.resources);
    const auto has = [&](const char* inType) {
      return resources.HasBinary(lumcore::utility::ToUTF16(name), inType);
    };
    if (!has("PNG") && !has("SVG")) return;
    const auto image = utility::DrawbotImageResourceCache().GetImage(
        resources, *drawbot::GetDefaultSupplier(), lumcore::utility::ToUTF8(name));
    QIcon icon;
    for (const float scale : {1.0f, 2.0f, 3.0f}) {
      const QSize pixels(qRound(image->GetWidth() * scale), qRound(image->GetHeight() * scale));
      icon.addPixmap(QPixmap::fromImage(drawbot::AsQtImage(*image).GetRaster(scale, pixels)));
    }
    GetWidget()->setWindowIcon(icon);
  });
}

void WindowPeer::MakeContainer() {
  if (mContainer) return;
  auto* const container = new QWidget(GetWidget());
  container->setMouseTracking(true);
  auto* const layout = new QVBoxLayout(GetWidget());
  layout->setContentsMargins(0, 0, 0, 0);
  // How small the window may be is not the bar's business.
  layout->setSizeConstraint(QLayout::SetNoConstraint);
  layout->addWidget(container);
  mContainer = container;
  // Whoever is moved loses the keyboard.
  const QPointer<QWidget> focus = GetWidget()->focusWidget();
  for (std::size_t i = 0; i < GetNode()->UI_GetChildCount(); ++i) {
    UI_Node* const child = GetNode()->UI_GetChild(i);
    if (child->GetPeer()->GetWidget()) PlaceChild(*child, nullptr);
  }
  container->show();
  if (focus) focus->setFocus(Qt::OtherFocusReason);
}

void WindowPeer::ShowMenu(HMENU inMenu) {
  MakeContainer();
  QLayout* const layout = GetWidget()->layout();
  layout->setMenuBar(nullptr);
  HideCorner();
  if (mBar) {
    // The menu that asks for the change may stand in it.
    mBar->hide();
    mBar->deleteLater();
  }
  if (Menu* const menu = FindMenu(inMenu)) {
    if (mBar) mBar->Forget();
    mBar = new Bar(*this, GetWidget());
    MenuPeer::Of(*menu).FillBar(*mBar);
    PlaceCorner();
    layout->setMenuBar(mBar);
    mBar->show();
    // What the layout does as well, once the window is seen.
    SetChromeHeight(mBar->heightForWidth(GetWidget()->width()));
  } else {
    DropBar();
  }
  layout->activate();
}

}  // namespace lumui::ui
