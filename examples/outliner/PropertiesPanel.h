// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <boost/shared_ptr.hpp>
#include <vector>

#include "ArchivedPanels.h"
#include "AttributeEditor.h"
#include "LineField.h"
#include "OutlineFollower.h"
#include "PropertyRows.h"
#include "vek/workspace/GenericPanelController.h"

namespace outliner {

// The panel with the attributes of the selected rows: what its archive does not say. Each field
// shows what the rows have in common, and what is typed there becomes one deed for all of them.
class PropertiesController final : public vek::workspace::GenericPanelController,
                                   public TakesKeyboard {
 public:
  explicit PropertiesController(vek::workspace::GenericPanel* inPanel);
  ~PropertiesController() override;

  void ConnectControls() override;
  void FocusField() override;

 private:
  using Message = lumui::controls::UI_InteractiveControlChangedMessage;
  using ChangedFunction = lumui::controls::UI_InteractiveControlView::ChangedFunction;

  boost::intrusive_ptr<lumui::ui::UI_Node> CreateCustomNode(
      const lumcore::UTF16String& inClassName) override;

  void Show();
  void ShowTitle(const std::vector<OutlineRow*>& inRows);
  void ShowHint(const lumcore::UTF16String& inText);
  void Typed(const Property& inProperty, const lumcore::UTF16String& inText);
  void Remove(const Property& inProperty);
  void AddAttribute();
  std::vector<OutlineRow*> FindRows() const;

  OutlineFollower mFollower;
  AttributeEditor::Rows mRows;   // that the fields show
  lumcore::UTF16String mWanted;  // the field that gets the keyboard as soon as it is there
  boost::intrusive_ptr<PropertyRows> mFields;
  boost::intrusive_ptr<LineField> mNewName;
  boost::shared_ptr<ChangedFunction> mAdd;
};

// The attributes of the rows, those that every row could have first. Their values are as edits
// handle them.
std::vector<Property> CollectProperties(const OutlineDocument& inDocument,
                                        const std::vector<OutlineRow*>& inRows);

}  // namespace outliner
