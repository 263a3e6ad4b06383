// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Export.h"
#include "lumcore/Strings.h"

namespace lumcore::config {

// Who the program is. The application says so once, when it starts; until then all texts are empty.
// Files carry the application's name and its version as they are, so these must not contain "&",
// "<" or a quote.
LUMCORE_API void SetClientName(const UTF16String& inName);
LUMCORE_API void SetApplicationName(const UTF16String& inName);
LUMCORE_API void SetClientVersion(const UTF16String& inVersion);
LUMCORE_API void SetClientInternalVersion(const UTF16String& inVersion);
LUMCORE_API void SetCompanyName(const UTF16String& inName);
LUMCORE_API void SetClientBuildNumber(const UTF16String& inNumber);

// A folder's full path, where the settings shall lie in another place than the system's own; empty
// for that one.
LUMCORE_API void SetClientPrefsDir(const UTF16String& inPath);

LUMCORE_API const UTF16String& GetClientName();
LUMCORE_API const UTF16String& GetApplicationName();
LUMCORE_API const UTF16String& GetClientVersion();
LUMCORE_API const UTF16String& GetClientInternalVersion();
LUMCORE_API const UTF16String& GetCompanyName();
LUMCORE_API const UTF16String& GetClientBuildNumber();
LUMCORE_API const UTF16String& GetClientPrefsDir();

}  // namespace lumcore::config
