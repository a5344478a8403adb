#include "widgets/frmTipPopup.h"

#include <QRegularExpression>
#include <QStringList>
#include <algorithm>

#include "foundation/DumpValue.h"
#include "foundation/ErrorTrap.h"
#include "ui/TextMeasure.h"

namespace sv {

namespace {

// The lines a tip shows: tips are small HTML fragments, broken at paragraphs and line breaks,
// and measured without their tags.
QStringList shownLines(const QString& html) {
  static const QRegularExpression lineEnd(QStringLiteral("</p>|<br\\s*/?>|\\n"),
                                          QRegularExpression::CaseInsensitiveOption);
  static const QRegularExpression tag(QStringLiteral("<[^>]*>"));
  QStringList lines;
  for (QString line : html.split(lineEnd)) {
    line.remove(tag);
    line.replace(QStringLiteral("&nbsp;"), QStringLiteral(" "));
    line.replace(QStringLiteral("&lt;"), QStringLiteral("<"));
    line.replace(QStringLiteral("&gt;"), QStringLiteral(">"));
    line.replace(QStringLiteral("&amp;"), QStringLiteral("&"));
    if (!line.trimmed().isEmpty()) lines << line.trimmed();
  }
  return lines;
}

}  // namespace

frmTipPopup::frmTipPopup(QObject* parent) : QObject(parent) {}

QString frmTipPopup::DumpMembers() const {
  return DumpValues({{"Tip", Tip.Caption}, {"Width", mWidth}, {"Height", mHeight}});
}

void frmTipPopup::setTipText(const QString& value) {
  Trap(this, "TipText",
       [&] {
         Tip.Caption = value;
         const QStringList lines = shownLines(value);
         int widest = 0;
         for (const QString& line : lines) widest = std::max(widest, TextWidth(line, Tip.Font));
         Tip.Width = widest;
         Tip.Height = static_cast<int>(lines.size()) * LineHeight(Tip.Font);
         mWidth = 2 * Tip.Left + Tip.Width;
         mHeight = 2 * Tip.Top + Tip.Height;
         emit changed();
       },
       {{"Value", value}});
}

}  // namespace sv
