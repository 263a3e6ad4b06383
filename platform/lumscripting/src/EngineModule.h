// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

namespace lumscripting {

// A function of the module of the script engine, which lies in the folder of this library's own
// file and stays loaded up to the end of the process. Throws a lumcore::filesupport::FileError with
// the module's path where it is missing, lacks a library of its own, or is another version's.
void* FindInEngineModule(const char* inName);

}  // namespace lumscripting
