#include "comments/DesignerCells.h"

namespace sv {

namespace {

template <class T>
T cellValue(const DesignerCells& cells, const QString& key) {
  const auto cell = cells.Find(key);
  if (!cell) return T();
  const T* value = std::get_if<T>(&*cell);
  return value ? *value : T();
}

}  // namespace

QString CellText(const DesignerCells& cells, const QString& key) {
  return cellValue<QString>(cells, key);
}

QStringList CellTexts(const DesignerCells& cells, const QString& key) {
  return cellValue<QStringList>(cells, key);
}

std::shared_ptr<CodeItem> CellItem(const DesignerCells& cells, const QString& key) {
  return cellValue<std::shared_ptr<CodeItem>>(cells, key);
}

std::shared_ptr<TaggedComment> CellComment(const DesignerCells& cells, const QString& key) {
  return cellValue<std::shared_ptr<TaggedComment>>(cells, key);
}

}  // namespace sv
