// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <initializer_list>
#include <list>
#include <string>

#include "vek/selection/Junction.h"
#include "vek/selection/Node.h"

namespace test_support {

// Six nodes that stand in an array, so that their addresses rise with their index, under names that
// do not: 0 to 5 are called f b d a e c. Lists of nodes are written as texts: "a b c".
class NamedNodes {
 public:
  vek::selection::Node* Get(char inName) { return &mNodes[kNames.find(inName)]; }
  std::list<vek::selection::Node*> List(const std::string& inNames) {
    std::list<vek::selection::Node*> nodes;
    for (const char name : inNames) {
      if (name != ' ') nodes.push_back(Get(name));
    }
    return nodes;
  }
  std::string Text(const std::list<vek::selection::Node*>& inNodes) const {
    std::string text;
    for (const vek::selection::Node* node : inNodes) {
      if (!text.empty()) text += ' ';
      text += kNames[static_cast<std::size_t>(node - mNodes.data())];
    }
    return text;
  }

 private:
  inline static const std::string kNames = "fbdaec";
  std::array<vek::selection::Node, 6> mNodes;
};

// Knows the nodes that the test says, and counts how often it is asked.
class RecordingJunction : public vek::selection::Junction {
 public:
  std::list<vek::selection::Node*> AllSelectables() override {
    ++mAsked;
    return mKnown;
  }

  std::list<vek::selection::Node*> mKnown;
  int mAsked = 0;
};

}  // namespace test_support
