#include "ui/ImageList.h"

namespace sv {

ImageList::ImageList(QObject* parent) : QObject(parent) {}

const ImageList::ListImage& ImageList::Add(const QString& key, const QVariant& picture,
                                           const QString& tag) {
  return add(ListImage{key, tag, picture, {}, {}, 0});
}

const ImageList::ListImage& ImageList::AddOverlay(const QString& key, const QString& baseKey,
                                                  const QString& overlayKey) {
  const ListImage& base = Item(baseKey);
  Item(overlayKey);
  return add(ListImage{key, {}, base.Picture, baseKey, overlayKey, 0});
}

const ImageList::ListImage& ImageList::add(ListImage image) {
  auto entry = std::make_shared<ListImage>(std::move(image));
  mImages.Add(entry, entry->Key);
  entry->Index = mImages.Count();
  emit imagesChanged();
  return *entry;
}

void ImageList::Remove(const QString& key) {
  mImages.Remove(key);
  int index = 0;
  for (const auto& image : mImages) image->Index = ++index;
  emit imagesChanged();
}

void ImageList::Clear() {
  mImages.Clear();
  emit imagesChanged();
}

}  // namespace sv
