#include "studio/ImageListIcons.h"

#include <QBitmap>
#include <QImage>
#include <QPainter>
#include <QPixmap>

#include "studio/QtConvert.h"

namespace sv {

namespace {

constexpr int kIconSize = 16;
// Overlays of overlays are allowed, but a list that refers to itself must not loop.
constexpr int kMaxDepth = 8;

QIcon iconFromPicture(const QVariant& picture) {
  switch (picture.metaType().id()) {
    case QMetaType::QIcon:
      return picture.value<QIcon>();
    case QMetaType::QPixmap:
      return QIcon(picture.value<QPixmap>());
    case QMetaType::QImage:
      return QIcon(QPixmap::fromImage(picture.value<QImage>()));
    case QMetaType::QString:
      return QIcon(picture.toString());
    default:
      return {};
  }
}

}  // namespace

ImageListIcons::~ImageListIcons() {
  QObject::disconnect(mWatch);
}

void ImageListIcons::watch(const ImageList* list) {
  if (mList == list) return;
  QObject::disconnect(mWatch);
  mIcons.clear();
  mList = list;
  mWatch = QObject::connect(list, &ImageList::imagesChanged, [this] { mIcons.clear(); });
}

QIcon ImageListIcons::Icon(const ImageList* list, const QString& key) {
  if (!list || key.isEmpty()) return {};
  watch(list);
  const auto cached = mIcons.constFind(key);
  if (cached != mIcons.constEnd()) return *cached;
  const QIcon icon = make(*list, key, 0);
  mIcons.insert(key, icon);
  return icon;
}

QIcon ImageListIcons::make(const ImageList& list, const QString& key, int depth) const {
  if (depth > kMaxDepth || !list.Exists(key)) return {};
  const ImageList::ListImage& image = list.Item(key);
  if (image.BaseKey.isEmpty()) return iconFromPicture(image.Picture);
  QPixmap base = make(list, image.BaseKey, depth + 1).pixmap(kIconSize, kIconSize);
  if (base.isNull()) {
    base = QPixmap(kIconSize, kIconSize);
    base.fill(Qt::transparent);
  }
  QPixmap overlay = make(list, image.OverlayKey, depth + 1).pixmap(kIconSize, kIconSize);
  // The list's back colour counts as transparent in the picture drawn on top.
  if (!overlay.isNull() && !overlay.hasAlphaChannel())
    overlay.setMask(
        overlay.createMaskFromColor(QtConvert::ToQColor(list.BackColor()), Qt::MaskInColor));
  QPainter painter(&base);
  painter.drawPixmap(0, 0, overlay);
  painter.end();
  return QIcon(base);
}

}  // namespace sv
