// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "lumui/Export.h"

namespace lumui::skins::core {

// How one class of control is drawn, where that is not the control's own way. Each class that can
// be drawn by skins says in an interface derived from this what it asks of one.
class LUMUI_API Skin {
 public:
  virtual ~Skin();

 protected:
  Skin() = default;
  Skin(const Skin&) = default;
  Skin& operator=(const Skin&) = default;
};

// The skins of one look, by the name of the class that they draw ("vek::hierarchyview::...").
class LUMUI_API SkinSet {
 public:
  explicit SkinSet(std::string_view inName);
  ~SkinSet();
  SkinSet(const SkinSet&) = delete;
  SkinSet& operator=(const SkinSet&) = delete;

  const std::string& GetName() const { return mName; }
  // Replaces the skin that the class had. Null takes it away.
  void RegisterSkin(std::string_view inClass, std::shared_ptr<const Skin> inSkin);
  // Null where the control draws itself, which is so for every class at the start.
  const Skin* FindSkin(std::string_view inClass) const;
  // The class's skin as the interface that the class asks for; null for a skin of another kind.
  template <class Interface>
  const Interface* FindSkinFor(std::string_view inClass) const {
    return dynamic_cast<const Interface*>(FindSkin(inClass));
  }

 private:
  std::string mName;
  std::map<std::string, std::shared_ptr<const Skin>, std::less<>> mSkins;
};

// The set in use. There is one from Initialize to Terminate.
class LUMUI_API SkinManager {
 public:
  // An empty set of this name; a set of before goes.
  static void Initialize(std::string_view inSetName);
  static void Terminate();
  static SkinSet* GetDefaultSet();  // null before Initialize and after Terminate
};

}  // namespace lumui::skins::core
