// The editing commands a host's toolbar sends to an HtmlEditor.
#include "ui/HtmlEditor.h"

#include <QHash>

#include "model/Error.h"

namespace sv {

namespace {

// The value of a property in an inline style ("color: red; font-weight: bold"), or empty.
QString styleValue(const QString& style, const QString& property) {
  for (const QString& declaration : style.split(QLatin1Char(';'))) {
    const qsizetype colon = declaration.indexOf(QLatin1Char(':'));
    if (colon < 0) continue;
    if (declaration.left(colon).trimmed().compare(property, Qt::CaseInsensitive) != 0) continue;
    return declaration.mid(colon + 1).trimmed();
  }
  return {};
}

}  // namespace

void HtmlEditor::InsertTable(int rows, int columns) {
  if (rows < 1 || columns < 1)
    Raise(ErrorNumber::InvalidCall,
          QStringLiteral("A table needs at least one row and one column, not %1 x %2")
              .arg(rows)
              .arg(columns));
  const QString row = QStringLiteral("<tr>") + QStringLiteral("<td>&nbsp;</td>").repeated(columns) +
                      QStringLiteral("</tr>");
  setSelectedHTML(QStringLiteral("<table border=\"1\"><tbody>") + row.repeated(rows) +
                  QStringLiteral("</tbody></table>"));
}

void HtmlEditor::SetForeColorByName(const QString& colour) {
  edit([&] { wrapSelection(QStringLiteral("font"), QStringLiteral("color"), colour); });
}

void HtmlEditor::SetFillColorByName(const QString& colour) {
  edit([&] {
    wrapSelection(QStringLiteral("span"), QStringLiteral("style"),
                  QStringLiteral("background-color: ") + colour + QLatin1Char(';'));
  });
}

QString HtmlEditor::GetForeColorName() const {
  return inheritedStyle(QStringLiteral("color"), QStringLiteral("color"));
}

QString HtmlEditor::GetFillColorName() const {
  return inheritedStyle(QStringLiteral("background-color"), {});
}

bool HtmlEditor::ClickTool(const QString& tool) {
  static const QHash<QString, QString> wrappers = {
      {QStringLiteral("bold"), QStringLiteral("b")},
      {QStringLiteral("italic"), QStringLiteral("i")},
      {QStringLiteral("underline"), QStringLiteral("u")},
      {QStringLiteral("strikethrough"), QStringLiteral("strike")},
      {QStringLiteral("superscript"), QStringLiteral("sup")},
      {QStringLiteral("subscript"), QStringLiteral("sub")}};
  const QString name = tool.toLower();
  if (wrappers.contains(name)) return edit([&] { wrapSelection(wrappers.value(name), {}, {}); });
  if (name == QLatin1String("insertorderedlist") || name == QLatin1String("insertunorderedlist")) {
    const QString list =
        name == QLatin1String("insertorderedlist") ? QStringLiteral("ol") : QStringLiteral("ul");
    return edit([&] {
      if (wrapSelection(QStringLiteral("li"), {}, {})) wrapSelection(list, {}, {});
    });
  }
  if (name == QLatin1String("inserthorizontalrule"))
    return edit([&] { insertNodes({mDocument.createElement(QStringLiteral("hr"))}); });
  return false;
}

bool HtmlEditor::wrapSelection(const QString& tag, const QString& attribute, const QString& value) {
  const Range range = selection();
  if (range.start == range.end) return false;
  auto wrapper = mDocument.createElement(tag);
  if (!attribute.isEmpty()) wrapper->setAttribute(attribute, value);
  const auto& children = range.container->childNodes();
  const std::vector<std::shared_ptr<HtmlNode>> selected(children.begin() + range.start,
                                                        children.begin() + range.end);
  wrapper->insertChildren(0, selected);
  range.container->insertChildren(range.start, {wrapper});
  Select(range.container, range.start, range.start + 1);
  return true;
}

QString HtmlEditor::inheritedStyle(const QString& property, const QString& fontAttribute) const {
  const Range range = selection();
  const HtmlNode* node = range.start < range.container->childCount()
                             ? range.container->childNodes()[range.start].get()
                             : range.container;
  for (; node; node = node->parentNode()) {
    if (!node->isElement()) continue;
    const auto& element = static_cast<const HtmlElement&>(*node);
    const QString styled = styleValue(element.getAttribute(QStringLiteral("style")), property);
    if (!styled.isEmpty()) return styled;
    if (!fontAttribute.isEmpty() && element.localName() == QLatin1String("font") &&
        element.hasAttribute(fontAttribute))
      return element.getAttribute(fontAttribute);
  }
  return {};
}

}  // namespace sv
