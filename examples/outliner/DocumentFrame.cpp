// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "DocumentFrame.h"

#include <algorithm>
#include <utility>

#include "DocumentPane.h"
#include "DocumentTabs.h"
#include "OutlineDocument.h"
#include "Palette.h"
#include "Texts.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/drawbot/Drawbot.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "vek/app/DocumentApplication.h"

namespace outliner {

using lumcore::UTF16String;
using vek::app::DocStatusMessage;

namespace {

constexpr float kHintSize = 12;  // of the rows, so that no other font is read at the start
constexpr float kHintTop = 60;

}  // namespace

DocumentFrame::DocumentFrame(Functions inFunctions) : mFunctions(std::move(inFunctions)) {
  mTabs.reset(
      new DocumentTabs([this](std::size_t inTab) { mFunctions.show(*mPages[inTab].document); },
                       [this](std::size_t inTab) { mFunctions.close(*mPages[inTab].document); }));
  mTabs->UI_SetNodeID("documents");
  mTabs->UI_Show(false);
  UI_AddChild(mTabs);
  vek::app::DocumentApplication::GetDocStatusNotifier().AddListener(this);
}

DocumentFrame::~DocumentFrame() {
  for (const Page& page : mPages)
    page.pane->Detach();
}

UTF16String DocumentFrame::TabTitleOf(const OutlineDocument& inDocument) {
  const UTF16String title = inDocument.GetTitle();
  return inDocument.IsDirty() ? lumcore::utility::ToUTF16("*") + title : title;
}

void DocumentFrame::ListenToMessage(const DocStatusMessage inMessage) {
  auto& document = *static_cast<OutlineDocument*>(inMessage.GetDocument());
  if (inMessage.IsClosing()) {
    DropPage(document);
  } else if (inMessage.BecomesActive()) {
    ShowPage(document);
  } else {
    mCurrent = nullptr;
  }
  ShowState();
}

std::size_t DocumentFrame::FindPage(const OutlineDocument& inDocument) const {
  const auto found = std::find_if(mPages.begin(), mPages.end(), [&](const Page& inPage) {
    return inPage.document == &inDocument;
  });
  return static_cast<std::size_t>(found - mPages.begin());
}

void DocumentFrame::ShowPage(OutlineDocument& inDocument) {
  mCurrent = &inDocument;
  if (FindPage(inDocument) == mPages.size()) {
    const boost::intrusive_ptr<DocumentPane> pane(
        new DocumentPane(inDocument, {[this] { ShowState(); }, mFunctions.openRowMenu,
                                      mFunctions.getColumns, mFunctions.keepColumns}));
    mPages.push_back({&inDocument, pane});
    UI_AddChild(pane);
  }
  PlaceNodes();
  // The new one first, so that the keyboard goes from pane to pane.
  DocumentPane& shown = *mPages[FindPage(inDocument)].pane;
  shown.UI_Show(true);
  shown.FocusRows();
  for (const Page& page : mPages)
    page.pane->UI_Show(page.document == mCurrent);
}

void DocumentFrame::DropPage(const OutlineDocument& inDocument) {
  const std::size_t place = FindPage(inDocument);
  if (place == mPages.size()) return;
  const boost::intrusive_ptr<DocumentPane> pane = mPages[place].pane;
  mPages.erase(mPages.begin() + static_cast<std::ptrdiff_t>(place));
  pane->Detach();
  UI_RemoveChild(pane.get());
  PlaceNodes();
}

void DocumentFrame::UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) {
  UI_SubView::UI_SizeChanged(inRect);
  PlaceNodes();
}

void DocumentFrame::PlaceNodes() {
  const auto& area = UI_GetLocalRectF();
  const float tabs = mPages.size() > 1 ? DocumentTabs::kHeight : 0;
  mTabs->UI_Show(tabs > 0);
  mTabs->UI_SetLocalRectF({0, 0, area.width, DocumentTabs::kHeight});
  for (const Page& page : mPages)
    page.pane->UI_SetLocalRectF({0, tabs, area.width, std::max(0.0f, area.height - tabs)});
}

void DocumentFrame::ShowState() {
  std::vector<UTF16String> titles;
  for (const Page& page : mPages)
    titles.push_back(TabTitleOf(*page.document));
  const std::size_t current = mCurrent ? FindPage(*mCurrent) : titles.size();
  mTabs->SetTabs(titles, current);
  mFunctions.stateChanged();
}

UTF16String DocumentFrame::GetWindowTitle() const {
  if (!mCurrent) return Localized("$$$/outliner/Window/NoDocument=outliner");
  return lumcore::utility::ReplaceInString(
      Localized("$$$/outliner/Window/Title=@0 \xE2\x80\x94 outliner"), {TabTitleOf(*mCurrent)});
}

DocumentPane* DocumentFrame::FindCurrentPane() const {
  return mCurrent ? mPages[FindPage(*mCurrent)].pane.get() : nullptr;
}

void DocumentFrame::FocusRows() {
  if (DocumentPane* const pane = FindCurrentPane()) pane->FocusRows();
}

void DocumentFrame::UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const {
  const auto& area = UI_GetLocalRectF();
  inDrawbot->FillRect({0, 0, area.width, area.height}, palette::Strip());
  if (mCurrent) return;
  const auto font = inDrawbot->GetSupplier()->NewFont(nullptr, kHintSize);
  inDrawbot->DrawStringInRect(
      Localized("$$$/outliner/Frame/Empty=Ctrl+N begins an outline, Ctrl+O opens one"), font,
      palette::FaintInk(), {0, kHintTop, area.width, 2 * kHintSize},
      lumui::drawbot::TextAlignment::kCenter);
}

}  // namespace outliner
