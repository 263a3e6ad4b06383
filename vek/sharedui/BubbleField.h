// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/function.hpp>
#include <boost/intrusive_ptr.hpp>
#include <vector>

#include "lumui/ui/UI_SubView.h"
#include "vek/config/Export.h"
#include "vek/sharedui/TextBubble.h"

namespace vek::sharedui {

// The shortcuts of the selected command, in as many lines as its width needs.
class VEK_API BubbleField : public lumui::ui::UI_SubView {
 public:
  struct Functions {
    TextBubble::AssignFunction assign;
    TextBubble::BubbleFunction remove;
    boost::function<float(const lumcore::UTF16String&)> measure;  // a text's width, in units
    boost::function<void(float)> heightChanged;
    TextBubble::BubbleFunction focused;
  };

  BubbleField(int inCommand, const Functions& inFunctions);
  ~BubbleField() override;

  int GetCommand() const { return mCommand; }
  // A bubble for each plain mapping that the command has now, in the place of all that are there.
  void ShowMappings();
  // A new one, being edited.
  TextBubble& AddNew();
  void Remove(TextBubble& inBubble);
  // After a bubble has got another text.
  void LayOutBubbles();

  const std::vector<boost::intrusive_ptr<TextBubble>>& GetBubbles() const { return mBubbles; }
  bool HasNew() const;
  std::vector<uisupport::KeyCommand> GetKeys() const;  // without those of new ones
  float GetHeight() const { return mHeight; }          // as the bubbles need it

 protected:
  void UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) override;

 private:
  lumcore::UTF16String Fitted(const lumcore::UTF16String& inText, float inWidth) const;
  void Append(const uisupport::KeyCommand& inKey, bool inIsNew);

  int mCommand;
  Functions mFunctions;
  std::vector<boost::intrusive_ptr<TextBubble>> mBubbles;
  float mHeight = TextBubble::kHeight;
};

}  // namespace vek::sharedui
