// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "support/Row.h"

#include <cstdio>
#include <iomanip>

namespace bench {

namespace {

// Three significant digits, and never an exponent.
std::string Digits(double inValue) {
  const double size = inValue < 0 ? -inValue : inValue;
  char text[64];
  std::snprintf(text, sizeof text, "%.*f", size >= 100 ? 0 : size >= 10 ? 1 : 2, inValue);
  return text;
}

std::string Digits(const std::optional<double>& inValue) {
  return inValue ? Digits(*inValue) : "-";
}

std::string GoalText(const Row& inRow) {
  if (!inRow.goal) return "-";
  const std::string limit = Digits(inRow.goal->atMost);
  if (inRow.goal->of == Goal::Of::kRatio) return "ratio <= " + limit;
  return "<= " + limit + " " + inRow.unit;
}

std::string Quoted(const std::string& inText) {
  std::string quoted = "\"";
  for (const char c : inText) {
    if (c == '"' || c == '\\') quoted += '\\';
    quoted += c;
  }
  return quoted + "\"";
}

std::string Number(const std::optional<double>& inValue) {
  if (!inValue) return "null";
  char text[64];
  std::snprintf(text, sizeof text, "%.6g", *inValue);
  return text;
}

void PrintCells(std::ostream& ioOut, const std::string (&inCells)[8]) {
  ioOut << std::left << std::setw(11) << inCells[0] << std::setw(56) << inCells[1] << std::right
        << std::setw(9) << inCells[2] << std::setw(9) << inCells[3] << "  " << std::left
        << std::setw(7) << inCells[4] << std::right << std::setw(6) << inCells[5] << "  "
        << std::left << std::setw(15) << inCells[6] << inCells[7] << std::endl;
}

}  // namespace

std::optional<double> Row::Ratio() const {
  if (!ours || !peer || *peer == 0) return std::nullopt;
  return *ours / *peer;
}

// A case that gave no figure has missed its goal.
std::optional<bool> Row::Met() const {
  if (!goal) return std::nullopt;
  const std::optional<double> value = goal->of == Goal::Of::kRatio ? Ratio() : ours;
  return value && *value <= goal->atMost;
}

void PrintHeader(std::ostream& ioOut) {
  PrintCells(ioOut, {"topic", "case", "ours", "peer", "unit", "ratio", "goal", "met"});
}

void PrintRow(std::ostream& ioOut, const Row& inRow) {
  const std::optional<bool> met = inRow.Met();
  PrintCells(ioOut, {inRow.topic, inRow.name, Digits(inRow.ours), Digits(inRow.peer), inRow.unit,
                     Digits(inRow.Ratio()), GoalText(inRow),
                     !met   ? "-"
                     : *met ? "yes"
                            : "MISSED"});
}

void PrintJSON(std::ostream& ioOut, const Row& inRow) {
  const std::optional<bool> met = inRow.Met();
  ioOut << "{\"topic\": " << Quoted(inRow.topic) << ", \"case\": " << Quoted(inRow.name)
        << ", \"ours\": " << Number(inRow.ours) << ", \"peer\": " << Number(inRow.peer)
        << ", \"unit\": " << Quoted(inRow.unit) << ", \"ratio\": " << Number(inRow.Ratio())
        << ", \"goal\": " << (inRow.goal ? Quoted(GoalText(inRow)) : "null") << ", \"met\": "
        << (!met   ? "null"
            : *met ? "true"
                   : "false")
        << "}" << std::endl;
}

}  // namespace bench
