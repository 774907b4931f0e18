#pragma once

#include "core/block.h"
#include "core/complaint.h"

#include <optional>

namespace orvane {

// What the kinds of rows that a block can have share: checks of one row and of a list of them, and
// how a wizard mends them.

/// A link as a wizard mends it.
Text MendedLink(TextView link);

/// Words of a block's content that stand on one line: with a blank in place of a line end, and one
/// where several stand.
Text TidyLine(TextView words);

/// Whether a colour may stand in a style: nothing in it can end the declaration.
bool IsStyleColor(TextView color);

/// The complaint about a row without words, or nothing.
std::optional<Complaint> Check(const BlockRow& row);
std::optional<Complaint> Check(const ColoredRow& row);
std::optional<Complaint> Check(const QuoteRow& row);

/// The complaint about a trigger without words or without a picture that it shows, or nothing.
std::optional<Complaint> Check(const RolloverRow& row);

/// Mends a row as a wizard does: its words in order, its link with what it begins with, no colour
/// in place of what is none.
void Tidy(BlockRow& row);
void Tidy(ColoredRow& row);
void Tidy(QuoteRow& row);
void Tidy(RolloverRow& row);

/// The complaint about a list in which no row has words, or nothing.
std::optional<Complaint> CheckRows(const BlockRows& rows, ControlName control);
std::optional<Complaint> CheckRows(const ColoredRows& rows, ControlName control);
std::optional<Complaint> CheckRows(const QuoteRows& rows, ControlName control);

} // namespace orvane
