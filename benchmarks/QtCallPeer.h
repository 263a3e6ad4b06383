// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

// What a script's call of the user interface is measured beside: a thread that calls an object of
// the main thread by a queued connection and waits for each answer. Runs the main thread's loop
// until all calls are answered, and returns how many there were.
int CallByQtFromAThread(int inCalls);
