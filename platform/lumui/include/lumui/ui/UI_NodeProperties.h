// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <cstdint>
#include <vector>

#include "lumcore/Strings.h"
#include "lumcore/geom/Rect.h"
#include "lumcore/proplist/PropList.h"
#include "lumui/Export.h"
#include "lumui/drawbot/Image.h"

namespace lumui::drawbot {
class SupplierInterface;
}

namespace lumui::utility {
class ResourceManager;
}

namespace lumui::ui {

// Where a node stands in its archive, and what it is built with.
struct NodeSource {
  lumcore::UTF16String archive;  // its name or path, for error texts
  lumcore::UTF16String place;    // "root/child-2", and the id if there is one
  const utility::ResourceManager* resources = nullptr;  // where pictures are; null for nowhere
  const drawbot::SupplierInterface* supplier = nullptr;

  // Throws a config::Error that says where, and inCause.
  [[noreturn]] LUMUI_API void ThrowError(const lumcore::UTF16String& inCause) const;
  // The image of that name, which is read once: the module of the resources stays loaded. While the
  // ground is dark, that with "_D" behind its name where there is one. Null for an empty name, or
  // where there are no resources. Throws as above for one that is not there or damaged.
  LUMUI_API boost::intrusive_ptr<drawbot::ImageInterface> LoadImage(
      const lumcore::UTF16String& inName) const;
};

// The properties of one class of a node, as an archive has them. Reading answers false and leaves
// the result alone where there is no such property; one of another type throws a config::Error that
// names archive, node and property.
class LUMUI_API UI_NodeProperties {
 public:
  UI_NodeProperties(const lumcore::proplist::PropList& inSection, const NodeSource& inSource)
      : mSection(inSection), mSource(inSource) {}

  bool Read(const char* inKey, bool& outValue) const;
  // Either of the two integer types, or a choice, of which it is the selected index.
  bool Read(const char* inKey, int& outValue) const;
  bool Read(const char* inKey, float& outValue) const;  // integers too
  // "($$$/key=English text)" is localised; any other text stays as it is.
  bool Read(const char* inKey, lumcore::UTF16String& outValue) const;
  bool Read(const char* inKey, lumcore::UTF8String& outValue) const;  // of either text type
  // An array of texts, each as above, or a choice, of which it is the items.
  bool Read(const char* inKey, std::vector<lumcore::UTF16String>& outValue) const;
  bool Read(const char* inKey, lumcore::geom::RectT<float>& outValue) const;
  const lumcore::proplist::PropList* ReadList(const char* inKey) const;  // null where there is none

  const NodeSource& GetSource() const { return mSource; }
  const lumcore::proplist::PropList& GetSection() const { return mSection; }

 private:
  [[noreturn]] void ThrowWrongType(const char* inKey, const char* inTypeKey) const;

  const lumcore::proplist::PropList& mSection;
  const NodeSource& mSource;
};

// The other way: what Read reads back as the same.
LUMUI_API void WriteProperty(lumcore::proplist::PropList& ioSection, const char* inKey,
                             bool inValue);
LUMUI_API void WriteProperty(lumcore::proplist::PropList& ioSection, const char* inKey,
                             int inValue);
LUMUI_API void WriteProperty(lumcore::proplist::PropList& ioSection, const char* inKey,
                             float inValue);
LUMUI_API void WriteProperty(lumcore::proplist::PropList& ioSection, const char* inKey,
                             const lumcore::UTF16String& inValue);
LUMUI_API void WriteProperty(lumcore::proplist::PropList& ioSection, const char* inKey,
                             const lumcore::UTF8String& inValue);
LUMUI_API void WriteProperty(lumcore::proplist::PropList& ioSection, const char* inKey,
                             const std::vector<lumcore::UTF16String>& inValue);
LUMUI_API void WriteProperty(lumcore::proplist::PropList& ioSection, const char* inKey,
                             const lumcore::geom::RectT<float>& inValue);

}  // namespace lumui::ui
