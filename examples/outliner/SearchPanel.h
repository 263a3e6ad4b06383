// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <boost/shared_ptr.hpp>
#include <vector>

#include "ArchivedPanels.h"
#include "LineField.h"
#include "OutlineFollower.h"
#include "OutlineSearch.h"
#include "SearchResults.h"
#include "vek/workspace/GenericPanelController.h"

namespace lumui::controls {
class UI_Checkbox;
class UI_StaticText;
}  // namespace lumui::controls

namespace outliner {

class OutlinerApp;

// The panel that finds texts in the rows of the current outline, as they are typed, and replaces
// them: what its archive does not say. What is looked for is the application's, so that the keys
// for the next and the previous row work without the panel.
class SearchController final : public vek::workspace::GenericPanelController, public TakesKeyboard {
 public:
  explicit SearchController(vek::workspace::GenericPanel* inPanel);
  ~SearchController() override;

  void ConnectControls() override;
  void FocusField() override;

 private:
  using Message = lumui::controls::UI_InteractiveControlChangedMessage;
  using ChangedFunction = lumui::controls::UI_InteractiveControlView::ChangedFunction;

  boost::intrusive_ptr<lumui::ui::UI_Node> CreateCustomNode(
      const lumcore::UTF16String& inClassName) override;

  boost::shared_ptr<ChangedFunction> NewFunction(ChangedFunction inFunction);
  void ConnectTexts();
  void ConnectButton(const char* inID, void (SearchController::*inDo)());
  void Show();
  void ShowSummary();
  void TermChanged();
  void Next();
  void Previous();
  void Step(bool inForward);
  void Replace();
  void ReplaceAll();
  void Choose(OutlineRow::Id inRow, bool inIsFinal);
  SearchResults& GetList() const { return mResults->GetList(); }

  OutlinerApp& mApp;
  OutlineFollower mFollower;
  SearchTerm mShownTerm;
  unsigned mShownVersion = 0;
  lumcore::UTF16String mNews;  // in place of the summary, until the next step
  boost::intrusive_ptr<SearchResultsPane> mResults;
  boost::intrusive_ptr<LineField> mField;
  boost::intrusive_ptr<LineField> mReplacement;
  boost::intrusive_ptr<lumui::controls::UI_Checkbox> mCase;
  boost::intrusive_ptr<lumui::controls::UI_Checkbox> mWords;
  std::vector<boost::shared_ptr<ChangedFunction>> mFunctions;
};

}  // namespace outliner
