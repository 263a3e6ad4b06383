// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "lumcore/proplist/PropList.h"
#include "lumui/Export.h"
#include "lumui/ui/UI_Node.h"
#include "lumui/ui/UI_NodeProperties.h"

namespace lumui::ui {

// What makes a class of nodes available to archives: how one is made, and what it keeps in its
// section. A node has a section for its class and for each class that this one is based on, and
// each is the business of that class's adapter, so that an adapter knows the properties of one
// class.
class LUMUI_API UI_NodeAdapterBase {
 public:
  // The names are those in the archives, of the class and of its base; the latter is empty for
  // UI_Node alone.
  UI_NodeAdapterBase(std::string inClassName, std::string inBaseName)
      : mClassName(std::move(inClassName)), mBaseName(std::move(inBaseName)) {}
  virtual ~UI_NodeAdapterBase();
  UI_NodeAdapterBase(const UI_NodeAdapterBase&) = delete;
  UI_NodeAdapterBase& operator=(const UI_NodeAdapterBase&) = delete;

  const std::string& GetNodeClass() const { return mClassName; }
  const std::string& GetBaseName() const { return mBaseName; }

  // Null for a class that is only a base of others.
  boost::intrusive_ptr<UI_Node> CreateNode(const NodeSource& inSource) const {
    return DoCreateNode(inSource);
  }
  // Whether the node is of the class.
  bool Fits(const UI_Node& inNode) const { return DoFits(inNode); }
  // Of a node that fits. Properties that are not known are passed over.
  void SetProperties(UI_Node& ioNode, const UI_NodeProperties& inProperties) const {
    DoSetProperties(ioNode, inProperties);
  }
  void GetProperties(const UI_Node& inNode, lumcore::proplist::PropList& outSection) const {
    DoGetProperties(inNode, outSection);
  }
  // Whether a node of the class makes its children by itself, so that archives have none of them.
  bool MakesItsChildren() const { return DoMakesItsChildren(); }

 private:
  virtual boost::intrusive_ptr<UI_Node> DoCreateNode(const NodeSource& inSource) const = 0;
  virtual bool DoFits(const UI_Node& inNode) const = 0;
  virtual void DoSetProperties(UI_Node& ioNode, const UI_NodeProperties& inProperties) const = 0;
  virtual void DoGetProperties(const UI_Node& inNode,
                               lumcore::proplist::PropList& outSection) const = 0;
  virtual bool DoMakesItsChildren() const { return false; }

  std::string mClassName;
  std::string mBaseName;
};

// An adapter made of a list of properties, each with what reads it from a node and what sets it:
//   UI_NodeAdapterT<Lamp> adapter("host::Lamp", "lumui::ui::UI_SubView");
//   adapter.Add("lit", &Lamp::IsLit, &Lamp::SetLit);
// A property may be of each type that UI_NodeProperties reads, or an enumeration, which is stored
// as its number. A class without a public default constructor is only a base of others.
template <class Class>
class UI_NodeAdapterT : public UI_NodeAdapterBase {
 public:
  using UI_NodeAdapterBase::UI_NodeAdapterBase;

  template <class Get, class Set>
  UI_NodeAdapterT& Add(const char* inKey, Get inGet, Set inSet) {
    using Value = std::decay_t<std::invoke_result_t<Get, const Class&>>;
    using Stored = typename StoredType<Value>::Type;
    mProperties.push_back(
        {[inKey, inGet, inSet](Class& ioNode, const UI_NodeProperties& inAll) {
           // A property that is there in part keeps what the node has.
           auto stored = static_cast<Stored>(std::invoke(inGet, static_cast<const Class&>(ioNode)));
           if (!inAll.Read(inKey, stored)) return;
           std::invoke(inSet, ioNode, static_cast<Value>(stored));
         },
         [inKey, inGet](const Class& inNode, lumcore::proplist::PropList& outSection) {
           const auto stored = static_cast<Stored>(std::invoke(inGet, inNode));
           WriteProperty(outSection, inKey, stored);
         }});
    return *this;
  }

 protected:
  void DoSetProperties(UI_Node& ioNode, const UI_NodeProperties& inProperties) const override {
    for (const Property& property : mProperties)
      property.set(dynamic_cast<Class&>(ioNode), inProperties);
  }
  void DoGetProperties(const UI_Node& inNode,
                       lumcore::proplist::PropList& outSection) const override {
    for (const Property& property : mProperties)
      property.get(dynamic_cast<const Class&>(inNode), outSection);
  }

 private:
  template <class Value, bool = std::is_enum_v<Value>>
  struct StoredType {
    using Type = Value;
  };
  template <class Value>
  struct StoredType<Value, true> {
    using Type = int;
  };
  struct Property {
    std::function<void(Class&, const UI_NodeProperties&)> set;
    std::function<void(const Class&, lumcore::proplist::PropList&)> get;
  };

  boost::intrusive_ptr<UI_Node> DoCreateNode(const NodeSource&) const override {
    if constexpr (std::is_default_constructible_v<Class>) {
      return boost::intrusive_ptr<UI_Node>(new Class);
    } else {
      return nullptr;
    }
  }
  bool DoFits(const UI_Node& inNode) const override {
    if constexpr (std::is_same_v<Class, UI_Node>) {
      return true;
    } else {
      return dynamic_cast<const Class*>(&inNode) != nullptr;
    }
  }

  std::vector<Property> mProperties;
};

// The adapters by the names of their classes. The framework's own are there from the start.
class LUMUI_API UI_NodeAdapterRegistry {
 public:
  static UI_NodeAdapterRegistry& Get();
  // Without what was registered besides the framework's own.
  static void Reset();

  // The name and that of the base, which is registered first, are contracts: the one is new, the
  // other is known.
  void Register(std::unique_ptr<UI_NodeAdapterBase> inAdapter);
  // Nothing where the name is known already.
  void RegisterIfNew(std::unique_ptr<UI_NodeAdapterBase> inAdapter);
  const UI_NodeAdapterBase* Find(const std::string& inClassName) const;  // null if there is none
  // Of those that fit the node, the one with the most bases. Never null.
  const UI_NodeAdapterBase& FindFor(const UI_Node& inNode) const;

 private:
  UI_NodeAdapterRegistry();

  std::vector<std::unique_ptr<UI_NodeAdapterBase>> mAdapters;
};

}  // namespace lumui::ui
