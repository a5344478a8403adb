#pragma once

#include <QString>

namespace sv {
class NamespaceDefs;
class TaggedComments;
}  // namespace sv

namespace sv::test {

class ModelBuilder;

// Models printed in the notation of ModelBuilder, leaving out what equals the default, so that
// a test compares short text and a failure shows what differs. Every line ends in "\n".

// The set's header line and its definitions as a tree from item 1; a definition met again
// prints as "@Key", definitions outside that tree follow as further top lines.
QString DefinitionsText(const NamespaceDefs& defs);
// The items of a builder as a tree, with their comments (ids left out) before their children.
QString ItemsText(const ModelBuilder& model);
// One line per comment, tombstones included: tag, quoted text, then status, hidden, xml and
// qualifier when set.
QString CommentsText(const TaggedComments& comments);

}  // namespace sv::test
