// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/function.hpp>
#include <boost/intrusive_ptr.hpp>
#include <memory>
#include <string>
#include <vector>

#include "lumcore/Strings.h"
#include "lumcore/geom/Point.h"
#include "lumui/Export.h"
#include "lumui/ui/OS_Event.h"

namespace lumui::drawbot {
class ImageInterface;
}

namespace lumui::datatransfer {

// What leaves a view by drag: whoever begins one asks the view that has the pointer for it, fills
// it in all the forms that receivers may want, and sends it. Receivers are other programs and the
// windows of this one alike. The same form given again takes the place of the first.
class LUMUI_API OS_SendDataBase {
 public:
  virtual ~OS_SendDataBase();
  OS_SendDataBase(const OS_SendDataBase&) = delete;
  OS_SendDataBase& operator=(const OS_SendDataBase&) = delete;

  virtual void AddText(const lumcore::UTF16String& inText) = 0;
  // Full paths (a contract).
  virtual void AddFiles(const std::vector<lumcore::UTF16String>& inPaths) = 0;
  // inFormat is the name of a media type, "application/x-rows" (a contract: with a slash).
  virtual void AddBytes(const char* inFormat, const std::string& inBytes) = 0;
  // Made when a receiver reads them, each time anew, and only until SendByDrag returns. What the
  // function throws goes to the application's error function; the receiver gets nothing then.
  virtual void AddBytesOnDemand(const char* inFormat,
                                const boost::function<std::string()>& inMake) = 0;
  // What is seen under the pointer; inHotSpot is the pointer's place in it, in units. Without one
  // the window system shows something of its own.
  virtual void SetDragImage(const boost::intrusive_ptr<drawbot::ImageInterface>& inImage,
                            const lumcore::geom::PointT<float>& inHotSpot) = 0;

  // Drags until the button is released or the user gives up, in a loop of its own: anything may
  // have happened meanwhile. A running input capture is cancelled, and no release comes. The
  // effects are those of ui::DropEffect; the result is what the receiver has done, kDropNone if
  // nobody has taken it, or at once if no button is held or another drag runs. After a kDropMove
  // the sender removes its own; a program that never says that it has got the data has moved
  // nothing, and one that moves where it may not has done the least of what it may.
  virtual int SendByDrag(int inAllowedEffects, int inPreferredEffect) = 0;

 protected:
  OS_SendDataBase() = default;
};

// Data that begins its way with one message of the window system.
class LUMUI_API OS_SendData : public OS_SendDataBase {
 public:
  // Null outside a message: it begins with an empty one then.
  explicit OS_SendData(const ui::OS_Event* inEvent);
  ~OS_SendData() override;

  const ui::OS_Event& GetOSEvent() const { return mEvent; }

  void AddText(const lumcore::UTF16String& inText) override;
  void AddFiles(const std::vector<lumcore::UTF16String>& inPaths) override;
  void AddBytes(const char* inFormat, const std::string& inBytes) override;
  void AddBytesOnDemand(const char* inFormat,
                        const boost::function<std::string()>& inMake) override;
  void SetDragImage(const boost::intrusive_ptr<drawbot::ImageInterface>& inImage,
                    const lumcore::geom::PointT<float>& inHotSpot) override;
  int SendByDrag(int inAllowedEffects, int inPreferredEffect) override;

 private:
  class Content;

  const ui::OS_Event mEvent;
  std::unique_ptr<Content> mContent;
};

}  // namespace lumui::datatransfer
