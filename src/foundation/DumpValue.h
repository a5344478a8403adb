#pragma once

#include "foundation/DumpVariant.h"

#include <QString>
#include <initializer_list>
#include <span>

namespace sv {

// The report's XML text of one value: one element per line, each line ending in CR LF and
// indented by indent blanks. The tag is name up to its first blank, so a name may carry
// attributes (' Index="3"') that the closing tag leaves out. Collections nest their members
// while maxDepth lasts. Never throws: a value that cannot be formatted says so in its text.
QString DumpValue(const QString& name, const DumpVariant& value, int maxDepth = 99, int indent = 0);

// The dumps of several named values, joined; empty when there are none.
QString DumpValues(std::span<const DumpArg> values, int maxDepth = 99, int indent = 0);
QString DumpValues(std::initializer_list<DumpArg> values, int maxDepth = 99, int indent = 0);

}  // namespace sv
