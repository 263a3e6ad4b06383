// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumcore/config/ClientInfo.h"

namespace lumcore::config {

namespace {

struct ClientInfo {
  static ClientInfo& Get() {
    static ClientInfo* const sInfo = new ClientInfo;
    return *sInfo;
  }
  UTF16String mClientName;
  UTF16String mApplicationName;
  UTF16String mClientVersion;
  UTF16String mClientInternalVersion;
  UTF16String mCompanyName;
  UTF16String mClientBuildNumber;
  UTF16String mClientPrefsDir;
};

}  // namespace

void SetClientName(const UTF16String& inName) {
  ClientInfo::Get().mClientName = inName;
}

void SetApplicationName(const UTF16String& inName) {
  ClientInfo::Get().mApplicationName = inName;
}

void SetClientVersion(const UTF16String& inVersion) {
  ClientInfo::Get().mClientVersion = inVersion;
}

void SetClientInternalVersion(const UTF16String& inVersion) {
  ClientInfo::Get().mClientInternalVersion = inVersion;
}

void SetCompanyName(const UTF16String& inName) {
  ClientInfo::Get().mCompanyName = inName;
}

void SetClientBuildNumber(const UTF16String& inNumber) {
  ClientInfo::Get().mClientBuildNumber = inNumber;
}

void SetClientPrefsDir(const UTF16String& inPath) {
  ClientInfo::Get().mClientPrefsDir = inPath;
}

const UTF16String& GetClientName() {
  return ClientInfo::Get().mClientName;
}

const UTF16String& GetApplicationName() {
  return ClientInfo::Get().mApplicationName;
}

const UTF16String& GetClientVersion() {
  return ClientInfo::Get().mClientVersion;
}

const UTF16String& GetClientInternalVersion() {
  return ClientInfo::Get().mClientInternalVersion;
}

const UTF16String& GetCompanyName() {
  return ClientInfo::Get().mCompanyName;
}

const UTF16String& GetClientBuildNumber() {
  return ClientInfo::Get().mClientBuildNumber;
}

const UTF16String& GetClientPrefsDir() {
  return ClientInfo::Get().mClientPrefsDir;
}

}  // namespace lumcore::config
