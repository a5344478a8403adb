#pragma once

#include <QHash>
#include <QIcon>
#include <QMetaObject>
#include <QPointer>
#include <QString>

#include "ui/ImageList.h"

namespace sv {

// Turns an ImageList's keyed pictures into icons, composing overlaid images, and remembers them
// until the list changes. A picture may be a QIcon, QPixmap or QImage, or a file or resource
// path; anything else draws nothing.
class ImageListIcons {
 public:
  ImageListIcons() = default;
  ~ImageListIcons();
  ImageListIcons(const ImageListIcons&) = delete;
  ImageListIcons& operator=(const ImageListIcons&) = delete;

  // A null icon for an empty or missing key.
  QIcon Icon(const ImageList* list, const QString& key);

 private:
  void watch(const ImageList* list);
  QIcon make(const ImageList& list, const QString& key, int depth) const;

  QPointer<const ImageList> mList;
  QMetaObject::Connection mWatch;
  QHash<QString, QIcon> mIcons;
};

}  // namespace sv
