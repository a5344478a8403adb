#pragma once

#include <QObject>
#include <QString>
#include <QVariant>
#include <memory>

#include "model/KeyedCollection.h"

namespace sv {

// Keyed pictures for trees and docks. The picture itself is opaque here (the studio stores
// what it draws); an image made by overlaying one picture on another records both keys and
// the renderer composes them.
class ImageList : public QObject {
  Q_OBJECT

 public:
  struct ListImage {
    QString Key;
    QString Tag;
    QVariant Picture;
    QString BaseKey;     // overlaid images: the picture underneath
    QString OverlayKey;  // overlaid images: the picture drawn on top
    int Index = 0;       // one-based position in the list
  };

  explicit ImageList(QObject* parent = nullptr);

  int Count() const { return mImages.Count(); }
  bool Exists(const QString& key) const { return mImages.Contains(key); }
  // Missing indexes and keys raise, as in any keyed collection.
  const ListImage& Item(int index) const { return *mImages.Item(index); }
  const ListImage& Item(const QString& key) const { return *mImages.Item(key); }

  const ListImage& Add(const QString& key, const QVariant& picture = {}, const QString& tag = {});
  // Adds `key` drawn as the image `baseKey` with the image `overlayKey` on top; both must exist.
  const ListImage& AddOverlay(const QString& key, const QString& baseKey,
                              const QString& overlayKey);
  void Remove(const QString& key);
  void Clear();

  // The colour treated as transparent while overlays are made (0xRRGGBB).
  quint32 BackColor() const { return mBackColor; }
  void setBackColor(quint32 value) { mBackColor = value; }

 signals:
  void imagesChanged();

 private:
  const ListImage& add(ListImage image);

  KeyedCollection<std::shared_ptr<ListImage>> mImages;
  quint32 mBackColor = 0xFFFFFF;
};

}  // namespace sv
