#pragma once

#include <QString>
#include <QStringList>
#include <memory>
#include <variant>

#include "model/KeyedCollection.h"
#include "model/ModelTypes.h"

namespace sv {

// One data cell handed to a designer: a text, a list of texts, an element or a comment.
using DesignerCell =
    std::variant<QString, QStringList, std::shared_ptr<CodeItem>, std::shared_ptr<TaggedComment>>;

// The cells a designer gets at Initialize, keyed "ModuleNames", "ProjectName", "CodeElement",
// "AppName", "BaseURL", "TagIdentifier" and "TaggedComment".
using DesignerCells = KeyedCollection<DesignerCell>;

// The value of a cell of that type; empty (or null) when the cell is missing or holds another
// type.
QString CellText(const DesignerCells& cells, const QString& key);
QStringList CellTexts(const DesignerCells& cells, const QString& key);
std::shared_ptr<CodeItem> CellItem(const DesignerCells& cells, const QString& key);
std::shared_ptr<TaggedComment> CellComment(const DesignerCells& cells, const QString& key);

}  // namespace sv
