// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <boost/shared_ptr.hpp>
#include <functional>
#include <vector>

#include "lumcore/Strings.h"
#include "lumui/controls/UI_TextEdit.h"
#include "lumui/ui/UI_SubView.h"

namespace lumui::controls {
class UI_ScrollView;
class UI_StaticText;
class UI_TextButton;
}  // namespace lumui::controls

namespace outliner {

// An attribute as a panel shows it.
struct Property {
  lumcore::UTF16String name;
  lumcore::UTF16String label;
  lumcore::UTF16String value;  // empty where the rows differ
  bool isMixed = false;
  bool isLong = false;  // in a field of several lines
  bool canBeRemoved = false;
};

// The attributes below each other, each with its label and a field to edit it, and some with a
// button that takes it away. Fields stay as long as the same attributes are shown, so that the
// keyboard does.
class PropertyRows final : public lumui::ui::UI_SubView {
 public:
  struct Functions {
    // The text in the field, after each change of it by the user. Escape has brought it back to
    // the value.
    std::function<void(const Property&, const lumcore::UTF16String&)> typed;
    std::function<void()> commit;  // the field was left, or the text was entered
    std::function<void(const Property&)> remove;
  };

  PropertyRows();
  ~PropertyRows() override;

  void SetFunctions(Functions inFunctions) { mFunctions = std::move(inFunctions); }
  // What is typed in a field stays there where its value is the same as before; inTyped is what
  // a field shows in place of the value, null for the value.
  using FindTyped = std::function<const lumcore::UTF16String*(const Property&)>;
  void Show(const std::vector<Property>& inProperties, const FindTyped& inFindTyped);
  // False where there is none of that name.
  bool FocusField(const lumcore::UTF16String& inName);

  void UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const override;

 protected:
  void UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) override;

 private:
  class Content;
  class Field;
  using Message = lumui::controls::UI_InteractiveControlChangedMessage;
  using ChangedFunction = lumui::controls::UI_InteractiveControlView::ChangedFunction;

  struct Row {
    Property property;
    boost::intrusive_ptr<lumui::controls::UI_StaticText> label;
    boost::intrusive_ptr<Field> field;
    boost::intrusive_ptr<lumui::controls::UI_TextButton> remover;  // null for none
    boost::shared_ptr<ChangedFunction> edited;
    boost::shared_ptr<ChangedFunction> removed;
  };

  bool HasFieldsFor(const std::vector<Property>& inProperties) const;
  void MakeFields(const std::vector<Property>& inProperties);
  void DropFields();
  void Connect(Row& ioRow);
  void PlaceFields();
  void ScrollTo(const Field& inField);

  Functions mFunctions;
  boost::intrusive_ptr<Content> mContent;
  boost::intrusive_ptr<lumui::controls::UI_ScrollView> mScrollView;
  boost::shared_ptr<ChangedFunction> mScrolled;
  std::vector<Row> mRows;
};

}  // namespace outliner
