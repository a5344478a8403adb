#pragma once

#include <QString>
#include <memory>

#include "model/DocType.h"

namespace sv {

class ProjectTOCChoice;

// One kind of output of a project: its key and caption, whether the project produces it, the
// name of its template and its table of contents choice. The template object is the one of
// that name in the application's templates, or the one set directly.
class ProjectDocType : public DocType, public std::enable_shared_from_this<ProjectDocType> {
 public:
  static std::shared_ptr<ProjectDocType> Create(const QString& key, const QString& caption,
                                                const QString& templateName,
                                                std::shared_ptr<bool> dirty);

  std::shared_ptr<sv::TOCChoice> TOCChoice() const override;
  std::shared_ptr<CommentCollection> ModelComments() const override { return mModelComments; }
  // The template's namespace definitions; null without a template.
  std::shared_ptr<sv::NamespaceDefs> NamespaceDefs() const override;
  std::shared_ptr<DocTypePlugIn> PlugIn() const override { return mPlugIn; }
  void setPlugIn(std::shared_ptr<DocTypePlugIn> plugIn) { mPlugIn = std::move(plugIn); }
  std::shared_ptr<sv::Template> Template() const override;
  void setTemplate(std::shared_ptr<sv::Template> value);
  QString Key() const override { return mKey; }
  int ItemCount() const override { return mItemCount; }
  void setItemCount(int value) { mItemCount = value; }
  QString Caption() const override { return mCaption; }

  QString TemplateName() const { return mTemplateName; }
  void setTemplateName(const QString& value);
  bool Selected() const { return mSelected; }
  void setSelected(bool value);

 private:
  ProjectDocType(QString key, QString caption, QString templateName, std::shared_ptr<bool> dirty);

  QString mKey;
  QString mCaption;
  QString mTemplateName;
  bool mSelected = false;
  int mItemCount = 0;
  std::shared_ptr<bool> mDirty;
  std::shared_ptr<ProjectTOCChoice> mTOCChoice;
  std::shared_ptr<CommentCollection> mModelComments = std::make_shared<CommentCollection>();
  std::shared_ptr<DocTypePlugIn> mPlugIn;
  std::shared_ptr<sv::Template> mTemplate;
};

}  // namespace sv
