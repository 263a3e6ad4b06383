// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "PropertiesPanel.h"

#include <algorithm>
#include <string>
#include <unordered_map>

#include "AttributeEdits.h"
#include "OutlineDocument.h"
#include "Texts.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/controls/UI_StaticText.h"
#include "lumui/controls/UI_TextButton.h"
#include "lumui/ui/UI_NodeManager.h"
#include "vek/workspace/GenericPanel.h"

namespace outliner {

using lumcore::UTF16String;
using lumcore::utility::ToUTF16;

namespace {

// Adds what one row says about an attribute; inIsFirst for the first of all rows.
void Merge(Property& ioProperty, const UTF16String& inValue, bool inIsFirst) {
  if (!ioProperty.isLong && inValue.find('\n') != inValue.npos) ioProperty.isLong = true;
  if (inIsFirst) {
    ioProperty.value = inValue;
  } else if (!ioProperty.isMixed && ioProperty.value != inValue) {
    ioProperty.isMixed = true;
    ioProperty.value.clear();
  }
}

Property Common(const UTF16String& inName, const char* inLabelKey) {
  Property property;
  property.name = inName;
  property.label = Localized(inLabelKey);
  return property;
}

}  // namespace

std::vector<Property> CollectProperties(const OutlineDocument& inDocument,
                                        const std::vector<OutlineRow*>& inRows) {
  if (inRows.empty()) return {};
  std::vector<Property> properties = {
      Common(attributes::Text(), "$$$/outliner/Properties/Text=Text"),
      Common(attributes::Type(), "$$$/outliner/Properties/Type=Type"),
      Common(attributes::Created(), "$$$/outliner/Properties/Created=Created"),
      Common(attributes::Link(), "$$$/outliner/Properties/Link=Link"),
      Common(attributes::Note(), "$$$/outliner/Properties/Note=Note")};
  properties.back().isLong = true;
  for (Property& property : properties) {
    for (const OutlineRow* row : inRows) {
      if (property.isMixed && property.isLong) break;
      Merge(property, edits::GetAttribute(inDocument, *row, property.name), row == inRows.front());
    }
  }
  struct Seen {
    std::size_t place;
    std::size_t rows;
  };
  std::unordered_map<TextPool::Id, Seen> others;
  const TextPool& names = inDocument.GetTree().GetNames();
  for (const OutlineRow* row : inRows) {
    for (std::size_t at = 0; at < row->GetAttributeCount(); ++at) {
      const UTF16String& name = names.Get(row->GetAttribute(at).name);
      if (AttributeEditor::IsCommon(name)) continue;
      const auto [seen, isNew] =
          others.try_emplace(row->GetAttribute(at).name, Seen{properties.size(), 0});
      if (isNew) {
        properties.push_back(Common(name, ""));
        properties.back().label = name;
        properties.back().canBeRemoved = true;
      }
      ++seen->second.rows;
      Merge(properties[seen->second.place], edits::GetAttribute(inDocument, *row, name), isNew);
    }
  }
  // A row without the attribute differs from those that have it.
  for (const auto& other : others) {
    Property& property = properties[other.second.place];
    if (other.second.rows == inRows.size()) continue;
    property.isMixed = true;
    property.value.clear();
  }
  return properties;
}

PropertiesController::PropertiesController(vek::workspace::GenericPanel* inPanel)
    : GenericPanelController(inPanel), mFollower([this] { Show(); }) {}

PropertiesController::~PropertiesController() {
  if (mNewName) mNewName->SetFunctions({});
  if (mAdd) mAdd->clear();
  if (mFields) mFields->SetFunctions({});
}

boost::intrusive_ptr<lumui::ui::UI_Node> PropertiesController::CreateCustomNode(
    const UTF16String& inClassName) {
  if (inClassName != ToUTF16("outliner::PropertyRows")) return nullptr;
  return boost::intrusive_ptr<lumui::ui::UI_Node>(new PropertyRows);
}

void PropertiesController::ConnectControls() {
  mFields = GetControl<PropertyRows>("PropertyRows");
  PropertyRows::Functions functions;
  functions.typed = [this](const Property& inProperty, const UTF16String& inText) {
    Typed(inProperty, inText);
  };
  functions.commit = [this] {
    if (mFollower.GetDocument()) mFollower.GetDocument()->GetAttributeEditor().Commit();
  };
  functions.remove = [this](const Property& inProperty) { Remove(inProperty); };
  mFields->SetFunctions(functions);
  mNewName = GetControl<LineField>("NewAttribute");
  mNewName->SetFunctions({[this](const UTF16String&) { ShowHint(UTF16String()); },
                          [this] { AddAttribute(); }, nullptr, nullptr, nullptr});
  mAdd.reset(new ChangedFunction([this](Message*) { AddAttribute(); }));
  GetControl<lumui::controls::UI_TextButton>("AddAttribute")->NotifyWhenChanged(mAdd);
}

void PropertiesController::FocusField() {
  mWanted = attributes::Text();
  mFollower.ShowSoon();
}

// What was typed for other rows becomes a deed as soon as these are shown.
void PropertiesController::Show() {
  OutlineDocument* const document = mFollower.GetDocument();
  const auto rows = mFollower.GetSelectedRows();
  mRows.clear();
  for (const OutlineRow* row : rows)
    mRows.push_back(row->GetId());
  ShowTitle(rows);
  mNewName->UI_SetEnabled(!rows.empty());
  GetControlForID("AddAttribute")->UI_SetDisabled(rows.empty());
  mFields->Show(rows.empty() ? std::vector<Property>() : CollectProperties(*document, rows),
                [&](const Property& inProperty) {
                  return document->GetAttributeEditor().FindValue(mRows, inProperty.name);
                });
  if (!mWanted.empty()) mFields->FocusField(std::exchange(mWanted, UTF16String()));
  if (document && !document->GetAttributeEditor().IsFor(mRows)) {
    document->GetAttributeEditor().Commit();
  }
}

void PropertiesController::ShowTitle(const std::vector<OutlineRow*>& inRows) {
  UTF16String title;
  if (!mFollower.GetDocument()) {
    title = Localized("$$$/outliner/Properties/NoDocument=No outline is open");
  } else if (inRows.empty()) {
    title = Localized("$$$/outliner/Properties/NoRow=No row is selected");
  } else if (inRows.size() > 1) {
    title = lumcore::utility::ReplaceInString(Localized("$$$/outliner/Properties/Rows=@0 rows"),
                                              {ToUTF16(std::to_string(inRows.size()))});
  } else {
    title = Localized("$$$/outliner/Properties/OneRow=One row");
  }
  const auto text = GetControl<lumui::controls::UI_StaticText>("PropertiesTitle");
  if (text->GetText() != title) text->SetText(title);
}

void PropertiesController::ShowHint(const UTF16String& inText) {
  GetControl<lumui::controls::UI_StaticText>("PropertiesHint")->SetText(inText);
}

// The value that the field began with is nothing typed: with several rows it may stand for many.
void PropertiesController::Typed(const Property& inProperty, const UTF16String& inText) {
  if (!mFollower.GetDocument() || mRows.empty()) return;
  AttributeEditor& editor = mFollower.GetDocument()->GetAttributeEditor();
  if (inText != inProperty.value) {
    editor.SetValue(mRows, inProperty.name, inText);
  } else if (editor.FindValue(mRows, inProperty.name)) {
    editor.Cancel();
  }
}

std::vector<OutlineRow*> PropertiesController::FindRows() const {
  std::vector<OutlineRow*> rows;
  if (!mFollower.GetDocument()) return rows;
  for (const OutlineRow::Id id : mRows) {
    if (OutlineRow* const row = mFollower.GetDocument()->GetTree().FindRow(id)) rows.push_back(row);
  }
  return rows;
}

void PropertiesController::Remove(const Property& inProperty) {
  if (!mFollower.GetDocument()) return;
  mFollower.GetDocument()->CommitTyping();
  edits::SetAttribute(*mFollower.GetDocument(), FindRows(), inProperty.name, std::nullopt);
}

void PropertiesController::AddAttribute() {
  OutlineDocument* const document = mFollower.GetDocument();
  const UTF16String name = mNewName->GetText();
  if (!document || name.empty()) return;
  const bool isShown = AttributeEditor::IsCommon(name);
  if (!isShown && !edits::CanBeAttribute(*document, name)) {
    ShowHint(Localized(
        "$$$/outliner/Properties/NoName=Letters, digits, - _ and . only, a letter first"));
    return;
  }
  document->CommitTyping();
  if (!isShown) edits::AddAttribute(*document, FindRows(), name);
  mNewName->SetText(UTF16String());
  mWanted = name;
  mFollower.ShowSoon();
}

}  // namespace outliner
