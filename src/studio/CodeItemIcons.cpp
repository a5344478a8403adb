#include "studio/CodeItemIcons.h"

#include <QColor>
#include <QHash>
#include <QIcon>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include "model/NamespaceDef.h"
#include "model/NamespaceDefs.h"
#include "ui/ImageList.h"

namespace sv {

namespace {

constexpr int kSize = 16;

struct Badge {
  QChar letter;
  QColor colour;
};

// Known kinds; any other gets a grey badge with its first letter.
const QHash<QString, Badge>& badges() {
  static const QHash<QString, Badge> known{
      {QStringLiteral("project"), {QLatin1Char('P'), QColor(0x55, 0x66, 0x77)}},
      {QStringLiteral("namespace"), {QLatin1Char('N'), QColor(0x4a, 0x6f, 0xa5)}},
      {QStringLiteral("class"), {QLatin1Char('C'), QColor(0xd0, 0x7a, 0x1e)}},
      {QStringLiteral("struct"), {QLatin1Char('S'), QColor(0x1f, 0x8a, 0x8a)}},
      {QStringLiteral("union"), {QLatin1Char('U'), QColor(0x6d, 0x8a, 0x1f)}},
      {QStringLiteral("interface"), {QLatin1Char('I'), QColor(0x8a, 0x5a, 0xc0)}},
      {QStringLiteral("enum"), {QLatin1Char('E'), QColor(0xb8, 0x9a, 0x10)}},
      {QStringLiteral("enumvalue"), {QLatin1Char('e'), QColor(0xb8, 0x9a, 0x10)}},
      {QStringLiteral("method"), {QLatin1Char('M'), QColor(0x7a, 0x3f, 0xb0)}},
      {QStringLiteral("constructor"), {QLatin1Char('K'), QColor(0x7a, 0x3f, 0xb0)}},
      {QStringLiteral("property"), {QLatin1Char('P'), QColor(0x2e, 0x7d, 0x32)}},
      {QStringLiteral("field"), {QLatin1Char('F'), QColor(0x1e, 0x6f, 0xc0)}},
      {QStringLiteral("event"), {QLatin1Char('!'), QColor(0xc0, 0x3a, 0x2b)}},
      {QStringLiteral("typedef"), {QLatin1Char('T'), QColor(0x60, 0x70, 0x80)}},
  };
  return known;
}

QPixmap blank() {
  QPixmap picture(kSize, kSize);
  picture.fill(Qt::transparent);
  return picture;
}

QIcon badge(const QString& kind) {
  const Badge shape = badges().value(
      kind.toLower(), {kind.isEmpty() ? QLatin1Char('?') : kind.at(0).toUpper(), Qt::gray});
  QPixmap picture = blank();
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(shape.colour);
  painter.drawRoundedRect(QRectF(1, 1, kSize - 2, kSize - 2), 3, 3);
  QFont font = painter.font();
  font.setPixelSize(11);
  font.setBold(true);
  painter.setFont(font);
  painter.setPen(Qt::white);
  painter.drawText(QRect(0, 0, kSize, kSize), Qt::AlignCenter, QString(shape.letter));
  return QIcon(picture);
}

QIcon folder(bool open) {
  QPixmap picture = blank();
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QColor(0xa0, 0x7a, 0x10));
  painter.setBrush(QColor(0xf2, 0xc9, 0x4c));
  painter.drawRect(QRectF(1.5, 2.5, 6, 3));
  painter.drawRect(QRectF(1.5, 4.5, 13, 9));
  if (open) {
    painter.setBrush(QColor(0xf8, 0xdf, 0x8a));
    QPainterPath flap;
    flap.moveTo(3.5, 7.5);
    flap.lineTo(15.5, 7.5);
    flap.lineTo(13.5, 13.5);
    flap.lineTo(1.5, 13.5);
    flap.closeSubpath();
    painter.drawPath(flap);
  }
  return QIcon(picture);
}

// A mark in the lower right corner, drawn over an item's badge.
QIcon mark(const QColor& colour, bool cross) {
  QPixmap picture = blank();
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  if (cross) {
    painter.setPen(QPen(colour, 2.5, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(9, 9), QPointF(15, 15));
    painter.drawLine(QPointF(15, 9), QPointF(9, 15));
    return QIcon(picture);
  }
  painter.setPen(QPen(Qt::white, 1));
  painter.setBrush(colour);
  painter.drawEllipse(QRectF(8.5, 8.5, 7, 7));
  return QIcon(picture);
}

// A key the tree made without a picture gets one, in its place.
void put(ImageList& images, const QString& key, const QIcon& picture, const QString& tag = {}) {
  if (images.Exists(key)) {
    if (!images.Item(key).Picture.isNull()) return;
    images.Remove(key);
  }
  images.Add(key, picture, tag);
}

}  // namespace

void CodeItemIcons::Install(ImageList& images, const NamespaceDefs& definitions) {
  put(images, QStringLiteral("Closed"), folder(false));
  put(images, QStringLiteral("Open"), folder(true));
  put(images, QStringLiteral("Private"), mark(QColor(0xc0, 0x2b, 0x2b), false));
  put(images, QStringLiteral("Protected"), mark(QColor(0xe0, 0xa0, 0x10), false));
  put(images, QStringLiteral("Friend"), mark(QColor(0x2b, 0x6c, 0xc0), false));
  put(images, QStringLiteral("Excluded"), mark(QColor(0xc0, 0x2b, 0x2b), true));
  // "OVERLAY" asks the tree for the access variants of a picture.
  for (const auto& definition : definitions) {
    const QString kind = definition->ImageName();
    if (!kind.isEmpty()) put(images, kind, badge(kind), QStringLiteral("OVERLAY"));
  }
}

}  // namespace sv
