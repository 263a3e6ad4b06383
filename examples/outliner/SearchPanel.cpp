// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "SearchPanel.h"

#include <string>

#include "OutlineDocument.h"
#include "OutlinerApp.h"
#include "Texts.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/controls/UI_Checkbox.h"
#include "lumui/controls/UI_StaticText.h"
#include "vek/workspace/GenericPanel.h"

namespace outliner {

using lumcore::UTF16String;
using lumcore::utility::ReplaceInString;
using lumcore::utility::ToUTF16;

SearchController::SearchController(vek::workspace::GenericPanel* inPanel)
    : GenericPanelController(inPanel),
      mApp(static_cast<OutlinerApp&>(*vek::app::App::GetApp())),
      mFollower([this] { Show(); }) {}

SearchController::~SearchController() {
  for (const auto& function : mFunctions)
    function->clear();
  if (!mResults) return;
  mField->SetFunctions({});
  mReplacement->SetFunctions({});
  GetList().SetChooseFunction(nullptr);
  GetList().Forget();
}

boost::intrusive_ptr<lumui::ui::UI_Node> SearchController::CreateCustomNode(
    const UTF16String& inClassName) {
  if (inClassName != ToUTF16("outliner::SearchResults")) return nullptr;
  return boost::intrusive_ptr<lumui::ui::UI_Node>(new SearchResultsPane(true));
}

boost::shared_ptr<SearchController::ChangedFunction> SearchController::NewFunction(
    ChangedFunction inFunction) {
  mFunctions.emplace_back(new ChangedFunction(std::move(inFunction)));
  return mFunctions.back();
}

void SearchController::ConnectControls() {
  mResults = GetControl<SearchResultsPane>("SearchResults");
  GetList().SetChooseFunction(
      [this](OutlineRow::Id inRow, bool inIsFinal) { Choose(inRow, inIsFinal); });
  mFollower.SetGoneFunction([this] { GetList().Forget(); });
  ConnectTexts();
  ConnectButton("SearchNext", &SearchController::Next);
  ConnectButton("SearchPrevious", &SearchController::Previous);
  ConnectButton("SearchReplace", &SearchController::Replace);
  ConnectButton("SearchReplaceAll", &SearchController::ReplaceAll);
  ConnectButton("SearchCase", &SearchController::TermChanged);
  ConnectButton("SearchWords", &SearchController::TermChanged);
}

void SearchController::ConnectTexts() {
  const SearchWish& wish = mApp.GetSearchWish();
  mField = GetControl<LineField>("SearchField");
  mReplacement = GetControl<LineField>("SearchReplacement");
  mCase = GetControl<lumui::controls::UI_Checkbox>("SearchCase");
  mWords = GetControl<lumui::controls::UI_Checkbox>("SearchWords");
  mField->SetText(wish.term.text);
  mReplacement->SetText(wish.replacement);
  mCase->SetDownState(wish.term.matchesCase);
  mWords->SetDownState(wish.term.wholeWords);
  const auto focusList = [this] { mResults->FocusList(); };
  mField->SetFunctions({[this](const UTF16String&) { TermChanged(); }, [this] { Next(); },
                        focusList, focusList, nullptr});
  mReplacement->SetFunctions(
      {[this](const UTF16String& inText) { mApp.GetSearchWish().replacement = inText; },
       [this] { Replace(); }, nullptr, nullptr, nullptr});
}

void SearchController::ConnectButton(const char* inID, void (SearchController::*inDo)()) {
  GetControl<lumui::controls::UI_Button>(inID)->NotifyWhenChanged(
      NewFunction([this, inDo](Message*) { (this->*inDo)(); }));
}

void SearchController::FocusField() {
  mField->UI_SetKeyboardFocus(lumui::ui::kFocusTab);
  mField->SelectAll();
}

void SearchController::TermChanged() {
  mApp.GetSearchWish().term = {mField->GetText(), mCase->GetDownState(), mWords->GetDownState()};
  mNews.clear();
  Show();
}

// What was found stays found while neither the outline nor the term is another.
void SearchController::Show() {
  const SearchTerm& term = mApp.GetSearchWish().term;
  const OutlineDocument* const document = mFollower.GetDocument();
  if (term == mShownTerm && mFollower.GetVersion() == mShownVersion) {
    GetList().ShowSelection();
  } else {
    mShownTerm = term;
    mShownVersion = mFollower.GetVersion();
    GetList().Show(
        document, term,
        document ? search::FindRows(*document, TextSearch(term)) : std::vector<OutlineRow::Id>());
  }
  ShowSummary();
}

void SearchController::ShowSummary() {
  const std::size_t count = GetList().GetRows().size();
  const std::size_t present = GetList().GetPresent();
  UTF16String text = mNews;
  if (!text.empty() || mShownTerm.text.empty()) {
    // the news, or nothing
  } else if (!mFollower.GetDocument()) {
    text = Localized("$$$/outliner/Search/NoDocument=No outline is open");
  } else if (count == 0) {
    text = Localized("$$$/outliner/Search/None=No row has this text");
  } else if (present == LinesView::kNoLine) {
    text = ReplaceInString(Localized(count == 1 ? "$$$/outliner/Search/OneRow=@0 row"
                                                : "$$$/outliner/Search/Rows=@0 rows"),
                           {NumberText(count)});
  } else {
    text = ReplaceInString(Localized("$$$/outliner/Search/Place=Row @0 of @1"),
                           {NumberText(present + 1), NumberText(count)});
  }
  GetControl<lumui::controls::UI_StaticText>("SearchSummary")->SetText(text);
}

void SearchController::Next() {
  Step(true);
}

void SearchController::Previous() {
  Step(false);
}

void SearchController::Step(bool inForward) {
  mNews.clear();
  mApp.FindNext(inForward);
  mFollower.ShowSoon();
}

// At once, as the next key of a fast hand goes on from there.
void SearchController::Choose(OutlineRow::Id inRow, bool inIsFinal) {
  OutlineDocument* const document = mFollower.GetDocument();
  if (!document) return;
  mNews.clear();
  document->CommitTyping();
  if (OutlineRow* const row = document->GetTree().FindRow(inRow)) document->SelectRows({row});
  Show();
  if (inIsFinal) mApp.FocusRows();
}

// A row that was not chosen yet is chosen first, so that the user sees what would be replaced.
void SearchController::Replace() {
  OutlineDocument* const document = mFollower.GetDocument();
  if (!document) return;
  mNews.clear();
  document->CommitTyping();
  const OutlineRow* const row = document->GetOnlySelectedRow();
  const TextSearch search(mApp.GetSearchWish().term);
  if (row && search::IsInRow(*document, *row, search)) {
    search::Replace(*document, {row->GetId()}, search, mApp.GetSearchWish().replacement);
  }
  Step(true);
}

void SearchController::ReplaceAll() {
  OutlineDocument* const document = mFollower.GetDocument();
  if (!document) return;
  document->CommitTyping();
  const TextSearch search(mApp.GetSearchWish().term);
  const std::size_t count = search::Replace(*document, search::FindRows(*document, search), search,
                                            mApp.GetSearchWish().replacement);
  mNews =
      ReplaceInString(Localized(count == 1 ? "$$$/outliner/Search/ReplacedOne=Replaced in @0 row"
                                           : "$$$/outliner/Search/Replaced=Replaced in @0 rows"),
                      {NumberText(count)});
  mFollower.ShowSoon();
}

}  // namespace outliner
