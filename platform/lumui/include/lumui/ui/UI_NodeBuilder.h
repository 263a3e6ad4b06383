// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/function.hpp>
#include <boost/intrusive_ptr.hpp>
#include <boost/shared_ptr.hpp>
#include <cstdint>
#include <map>

#include "lumcore/Strings.h"
#include "lumui/Export.h"
#include "lumui/ui/UI_Node.h"

namespace lumcore::proplist {
class PropList;
}

namespace lumui::utility {
class ResourceManager;
}

namespace lumui::ui {

struct NodeSource;

// Makes nodes out of an archive: a property list in which each node names the class that it is made
// of, and has a section of properties for that class and each of its bases. See UI_NodeAdapter.h.
class LUMUI_API UI_NodeBuilder {
 public:
  // Makes a node of a class that no adapter is registered for; null for one that it does not know
  // either.
  using CustomNodeFunction =
      boost::function<boost::intrusive_ptr<UI_Node>(const lumcore::UTF16String&)>;
  using NodeMap = std::map<lumcore::UTF8String, UI_Node*>;

  // The bytes of the archive's file. The name stands in error texts.
  explicit UI_NodeBuilder(const lumcore::UTF8String& inArchive,
                          const lumcore::UTF16String& inName = lumcore::UTF16String());
  // One that has been read already.
  UI_NodeBuilder(const boost::shared_ptr<const lumcore::proplist::PropList>& inArchive,
                 const lumcore::UTF16String& inName);

  // Where the pictures that the archive names are; without it, controls have none. Borrowed.
  void SetResources(const utility::ResourceManager* inResources) { mResources = inResources; }

  // Returns the root, or null for an archive without any bytes. The map is emptied first, and
  // filled with the nodes that have an id, borrowed from the root; of several with the same, the
  // first in depth-first order is there.
  //
  // Throws xml::ParseError for what is no property list, and a config::Error that names archive and
  // node for what is no node: the map then is empty. Properties and sections that nobody knows are
  // passed over. The supplier makes the pictures; null for the default one.
  boost::intrusive_ptr<UI_Node> Build(const drawbot::SupplierInterface* inSupplier,
                                      NodeMap& outNodes,
                                      const CustomNodeFunction& inCustomNode = {}) const;

  // An archive that builds nodes like these. Of nodes that were built from one, a text that is
  // still what the archive said comes out as it stood there, with its key, and so do properties,
  // sections and classes that no adapter knows.
  static lumcore::UTF8String Write(const UI_Node& inRoot);

 private:
  static constexpr std::uint32_t kArchiveVersion = 1;

  boost::intrusive_ptr<UI_Node> BuildNode(const lumcore::proplist::PropList& inList,
                                          const lumcore::UTF16String& inPlace,
                                          const drawbot::SupplierInterface* inSupplier,
                                          const CustomNodeFunction& inCustomNode) const;
  boost::intrusive_ptr<UI_Node> BuildRoot(const lumcore::proplist::PropList& inArchive,
                                          const drawbot::SupplierInterface* inSupplier,
                                          NodeMap& outNodes,
                                          const CustomNodeFunction& inCustomNode) const;
  void BuildChildren(UI_Node& ioNode, const lumcore::proplist::PropList& inSection,
                     const NodeSource& inSource, const lumcore::UTF16String& inPlace,
                     const CustomNodeFunction& inCustomNode) const;

  lumcore::UTF8String mArchive;
  lumcore::UTF16String mName;
  const utility::ResourceManager* mResources = nullptr;
  boost::shared_ptr<const lumcore::proplist::PropList> mRead;  // in the place of the bytes
};

}  // namespace lumui::ui
