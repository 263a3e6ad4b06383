// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <cstddef>
#include <functional>
#include <vector>

#include "lumcore/geom/Point.h"
#include "lumui/ui/UI_SubView.h"
#include "vek/app/DocStatusMessage.h"
#include "vek/messaging/Listener.h"

namespace outliner {

class DocumentPane;
class DocumentTabs;
class OutlineDocument;

// What stands in the panel of the outline: the pane of the current document, over it the tabs once
// there is more than one, and words of help while there is none. It follows the application's
// messages about documents, also while its panel is closed.
class DocumentFrame final : public lumui::ui::UI_SubView,
                            private vek::messaging::Listener<const vek::app::DocStatusMessage> {
 public:
  // What is asked of the application.
  struct Functions {
    std::function<void(OutlineDocument&)> show;
    std::function<void(OutlineDocument&)> close;
    std::function<void(const lumcore::geom::PointT<int>&)> openRowMenu;
    // The columns of the rows as the user has left them, for all documents. See OutlineList.
    std::function<lumcore::UTF16String()> getColumns;
    std::function<void(const lumcore::UTF16String&)> keepColumns;
    // After each change of the documents and of what is selected, typed or done in one.
    std::function<void()> stateChanged;
  };

  explicit DocumentFrame(Functions inFunctions);
  ~DocumentFrame() override;

  lumcore::UTF16String GetWindowTitle() const;
  // Gives the keyboard to the current document's rows, if there is one and it is on screen.
  void FocusRows();
  DocumentPane* FindCurrentPane() const;  // null without a document
  // The tab's title: the document's, with "*" before it when there is something to save.
  static lumcore::UTF16String TabTitleOf(const OutlineDocument& inDocument);

  void UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const override;

 protected:
  void UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) override;

 private:
  struct Page {
    OutlineDocument* document;
    boost::intrusive_ptr<DocumentPane> pane;
  };

  void ListenToMessage(const vek::app::DocStatusMessage inMessage) override;

  void ShowState();
  std::size_t FindPage(const OutlineDocument& inDocument) const;
  void ShowPage(OutlineDocument& inDocument);
  void DropPage(const OutlineDocument& inDocument);
  void PlaceNodes();

  Functions mFunctions;
  boost::intrusive_ptr<DocumentTabs> mTabs;
  std::vector<Page> mPages;  // in the order of the tabs
  OutlineDocument* mCurrent = nullptr;
};

}  // namespace outliner
