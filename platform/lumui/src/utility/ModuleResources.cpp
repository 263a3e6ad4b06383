// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/utility/ModuleResources.h"

#include <QResource>
#include <algorithm>
#include <utility>
#include <vector>

#include "drawbot/QtConvert.h"
#include "lumui/ui/ModuleHandle.h"
#include "utility/ContainerChecksum.h"
#include "utility/ResourceError.h"
#include "utility/ResourceKey.h"
#include "utility/ResourceRegistry.h"

namespace lumui::utility {

using lumcore::UTF16String;

struct ModuleResources::Container {
  Container(const unsigned char* inBytes, std::size_t inSize, std::uint64_t inChecksum)
      : mBytes(inBytes),
        mSize(inSize),
        mChecksum(inChecksum),
        mModule(ui::ModuleOfAddress(inBytes)) {}
  ~Container() {
    if (!mRoot.isEmpty()) QResource::unregisterResource(mBytes, mRoot);
  }

  void Open();

  const unsigned char* mBytes;
  std::size_t mSize;
  std::uint64_t mChecksum;
  HINSTANCE mModule;
  QString mRoot;  // empty until the container is open
};

namespace {

// Statics of a library are destroyed before those of the libraries that it needs, so the list
// outlives what other modules have in it.
template <class Container>
std::vector<Container*>& Containers() {
  static std::vector<Container*> sContainers;
  return sContainers;
}

// The toolkit has one tree of names for the whole process. A root for each container keeps equal
// names of different modules apart.
QString NextRoot() {
  static int sCount = 0;
  return QStringLiteral("/lumui/modules/%1").arg(++sCount);
}

}  // namespace

void ModuleResources::Container::Open() {
  if (!mRoot.isEmpty()) return;
  // The toolkit trusts the offsets in the bytes, so they are checked before it sees them.
  if (ContainerChecksum(mBytes, mSize) != mChecksum) {
    ThrowDamagedContainer(mModule, "the checksum differs from that of the build");
  }
  QString root = NextRoot();
  if (!QResource::registerResource(mBytes, root)) {
    ThrowDamagedContainer(mModule, "it is of a form that is not known here");
  }
  mRoot = std::move(root);
}

ModuleResources::ModuleResources(const unsigned char* inBytes, std::size_t inSize,
                                 std::uint64_t inChecksum)
    : mContainer(std::make_unique<Container>(inBytes, inSize, inChecksum)) {
  Containers<Container>().push_back(mContainer.get());
}

ModuleResources::~ModuleResources() {
  auto& all = Containers<Container>();
  all.erase(std::remove(all.begin(), all.end(), mContainer.get()), all.end());
}

ResourceRegistry::Found ResourceRegistry::Find(HINSTANCE inModule, const UTF16String& inName,
                                               const UTF16String& inType) {
  const QString key = ResourceKey(drawbot::ToQt(inType), drawbot::ToQt(inName));
  for (ModuleResources::Container* container : Containers<ModuleResources::Container>()) {
    if (container->mModule != inModule) continue;
    container->Open();
    if (key.isEmpty()) continue;
    const QResource resource(QLatin1Char(':') + container->mRoot + QLatin1Char('/') + key);
    if (!resource.isValid()) continue;
    return {true, std::string_view(reinterpret_cast<const char*>(resource.data()),
                                   static_cast<std::size_t>(resource.size()))};
  }
  return {false, {}};
}

}  // namespace lumui::utility
