// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/app/App.h"

namespace vek::app {

namespace {

App*& Instance() {
  static App* sApp = nullptr;
  return sApp;
}

}  // namespace

App::App() : CommandHandler(nullptr) {
  Instance() = this;
  SetDefaultCommandHandler(this);
}

App::~App() {
  Instance() = nullptr;
}

App* App::GetApp() {
  return Instance();
}

}  // namespace vek::app
