#pragma once

#include <QString>
#include <array>

#include "model/CommentOptions.h"
#include "model/DiagramStyle.h"

namespace sv::schema {

// Names and versions shared by the reader and the writer of project and content files.
inline constexpr const char* kProjectRoot = "ScrivaraProject";
inline constexpr const char* kContentRoot = "ScrivaraContent";
inline constexpr int kMajor = 1;
inline constexpr int kMinor = 0;

inline QString Version() {
  return QStringLiteral("%1.%2").arg(kMajor).arg(kMinor);
}

// An attribute bound to a getter and setter of a settings record, so that one table drives
// both reading and writing.
template <class Record, class Value>
struct Field {
  const char* name;
  Value (Record::*get)() const;
  void (Record::*set)(Value);
};

inline constexpr std::array<Field<DiagramStyle, bool>, 4> kDiagramFlags{{
    {"useDiagramShapes", &DiagramStyle::UseDiagramShapes, &DiagramStyle::setUseDiagramShapes},
    {"bold", &DiagramStyle::Bold, &DiagramStyle::setBold},
    {"centerCaptions", &DiagramStyle::CenterCaptions, &DiagramStyle::setCenterCaptions},
    {"dropShadow", &DiagramStyle::DropShadow, &DiagramStyle::setDropShadow},
}};

inline constexpr std::array<Field<DiagramStyle, long>, 2> kDiagramNumbers{{
    {"styleSource", &DiagramStyle::StyleSource, &DiagramStyle::setStyleSource},
    {"border", &DiagramStyle::Border, &DiagramStyle::setBorder},
}};

inline constexpr std::array<Field<DiagramStyle, OleColor>, 6> kDiagramColors{{
    {"collectionBorderColor", &DiagramStyle::CollectionBorderColor,
     &DiagramStyle::setCollectionBorderColor},
    {"collectionTextColor", &DiagramStyle::CollectionTextColor,
     &DiagramStyle::setCollectionTextColor},
    {"collectionFillColor", &DiagramStyle::CollectionFillColor,
     &DiagramStyle::setCollectionFillColor},
    {"objectBorderColor", &DiagramStyle::ObjectBorderColor, &DiagramStyle::setObjectBorderColor},
    {"objectTextColor", &DiagramStyle::ObjectTextColor, &DiagramStyle::setObjectTextColor},
    {"objectFillColor", &DiagramStyle::ObjectFillColor, &DiagramStyle::setObjectFillColor},
}};

inline constexpr std::array<Field<CommentOptions, bool>, 4> kCommentOptionFlags{{
    {"excludeEditorBrowsable", &CommentOptions::ExcludeEditorBrowsable,
     &CommentOptions::setExcludeEditorBrowsable},
    {"useOverloadSummaryForMasterSummary", &CommentOptions::UseOverloadSummaryForMasterSummary,
     &CommentOptions::setUseOverloadSummaryForMasterSummary},
    {"drillCommentFiles", &CommentOptions::DrillCommentFiles,
     &CommentOptions::setDrillCommentFiles},
    {"useCommentFiles", &CommentOptions::UseCommentFiles, &CommentOptions::setUseCommentFiles},
}};

// The place of a record in the file for kept foreign XML: "Section/Element[key]".
inline QString RecordPath(const char* section, const char* element, const QString& key) {
  return QStringLiteral("%1/%2[%3]").arg(QLatin1String(section), QLatin1String(element), key);
}

// The prefix of the places inside a content file, by its root item.
inline QString ContentPrefix(const QString& rootItemName) {
  return QStringLiteral("content[%1]/").arg(rootItemName);
}

}  // namespace sv::schema
