// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <ostream>
#include <string>

#include "support/Pair.h"

namespace bench {

// One line of the table.
struct Row {
  std::string topic;
  std::string name;
  std::string unit;
  std::optional<Goal> goal;
  std::optional<double> ours;  // nothing where the case failed
  std::optional<double> peer;

  std::optional<double> Ratio() const;
  std::optional<bool> Met() const;
};

void PrintHeader(std::ostream& ioOut);
void PrintRow(std::ostream& ioOut, const Row& inRow);
void PrintJSON(std::ostream& ioOut, const Row& inRow);

}  // namespace bench
