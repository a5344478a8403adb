#include "project/file/CommentXml.h"

#include "model/TaggedComment.h"
#include "model/TaggedComments.h"
#include "project/core/CommentList.h"
#include "project/core/ProjectComment.h"
#include "project/file/XmlSource.h"
#include "project/file/XmlText.h"
#include "project/model/ProjectModel.h"

namespace sv {

namespace {

QString itemPath(const QString& prefix, const QString& qualifiedName) {
  return prefix + QStringLiteral("Item[%1]").arg(qualifiedName);
}

QString commentPath(const QString& item, const QString& id) {
  return item + QStringLiteral("/Comment[%1]").arg(id);
}

void writeComment(pugi::xml_node parent, const TaggedComment& comment,
                  const std::map<QString, QByteArray>& foreign, const QString& path) {
  pugi::xml_node node = parent.append_child("Comment");
  xml::SetAttribute(node, "id", comment.Id());
  xml::SetAttribute(node, "tag", comment.TagIdentifier());
  if (comment.Status() != CommentStatus::Unchanged)
    xml::SetAttribute(node, "status", QString::number(comment.Status()));
  if (!comment.Qualifier().isEmpty()) xml::SetAttribute(node, "qualifier", comment.Qualifier());
  if (!comment.XMLCommentType().isEmpty())
    xml::SetAttribute(node, "xmlType", comment.XMLCommentType());
  if (comment.IsHidden()) xml::SetAttribute(node, "hidden", xml::BoolText(true));
  xml::SetText(node, comment.Text());
  ForeignXml::Restore(foreign, commentPath(path, comment.Id()), node);
}

std::shared_ptr<TaggedComment> readComment(const XmlSource& source, const pugi::xml_node& node) {
  auto comment = std::make_shared<ProjectComment>(source.Required(node, "id"));
  comment->setTagIdentifier(source.Required(node, "tag"));
  const long status = source.Long(node, "status", CommentStatus::Unchanged);
  if (status < CommentStatus::Unchanged || status > CommentStatus::Deleted)
    source.Fail(node,
                QStringLiteral("The status of a comment must be 0 to 3, not %1.").arg(status));
  comment->setStatus(status);
  comment->setQualifier(xml::Attribute(node, "qualifier"));
  comment->setXMLCommentType(xml::Attribute(node, "xmlType"));
  comment->setIsHidden(source.Bool(node, "hidden", false));
  comment->setText(xml::Text(node));
  return comment;
}

}  // namespace

void CommentXml::WriteItem(pugi::xml_node parent, const QString& qualifiedName,
                           const TaggedComments& comments,
                           const std::map<QString, QByteArray>& foreign,
                           const QString& pathPrefix) {
  if (comments.UnDeletedCount() == 0) return;
  const QString path = itemPath(pathPrefix, qualifiedName);
  pugi::xml_node item = parent.append_child("Item");
  xml::SetAttribute(item, "name", qualifiedName);
  for (const auto& comment : comments)
    if (comment->Status() != CommentStatus::Deleted) writeComment(item, *comment, foreign, path);
  ForeignXml::Restore(foreign, path, item);
}

void CommentXml::ReadItems(const XmlSource& source, const pugi::xml_node& parent,
                           ProjectModel& project, ForeignXml::Collector& foreign,
                           const QString& pathPrefix) {
  for (const pugi::xml_node& item : parent.children("Item")) {
    const QString name = source.Required(item, "name");
    const QString path = itemPath(pathPrefix, name);
    foreign.Scan(item, path, {"name"}, {"Comment"});
    const auto comments = project.CommentsFor(name);
    for (const pugi::xml_node& node : item.children("Comment")) {
      auto comment = readComment(source, node);
      if (comments->Item(comment->Id()))
        source.Fail(node, QStringLiteral("The comment id %1 occurs twice.").arg(comment->Id()));
      foreign.Scan(node, commentPath(path, comment->Id()),
                   {"id", "tag", "status", "qualifier", "xmlType", "hidden"}, {});
      comments->Add(comment, comment->Id());
    }
  }
}

}  // namespace sv
