#pragma once

#include <QString>
#include <cstdint>
#include <memory>

#include "model/KeyedCollection.h"

namespace sv {

class CodeItem;
class TaggedComment;
class FilePath;      // the path object of foundation/FilePath.h
class HtmlDocument;  // the document object of ui/HtmlDocument.h

// A colour as the project stores it: 0x00BBGGRR.
using OleColor = std::uint32_t;

// Collections the model hands out as plain keyed collections.
using StringCollection = KeyedCollection<QString>;
using ItemCollection = KeyedCollection<std::shared_ptr<CodeItem>>;
using CommentCollection = KeyedCollection<std::shared_ptr<TaggedComment>>;
// Key (a namespace definition's key) to whether the definition's elements are documented.
using ElementNamespaceMap = KeyedCollection<bool>;

}  // namespace sv
