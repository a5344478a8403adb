#pragma once

#include <QString>
#include <QStringList>

// Keys of the comment editor's bar that its source files share.
namespace sv::commentbar {

// The "other" group and its item, which shows the tag list.
inline const QString kOther = QStringLiteral("other");
inline const QString kFlags = QStringLiteral("flags");
// The item of the flags group that holds the flag check boxes.
inline const QString kContainer = QStringLiteral("checkboxcontainer");
// Items of page layouts start with this.
inline const QString kLayoutPrefix = QStringLiteral("inplaceedit");
// The designer class of a tag that has no page.
inline const QString kNoDesigner = QStringLiteral("{None}");
// Items every bar keeps; their pages are no editor.
inline const QStringList kFixedItems = {kOther, kFlags, kContainer};

}  // namespace sv::commentbar
