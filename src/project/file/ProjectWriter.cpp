#include "project/file/ProjectWriter.h"

#include <QDir>
#include <QFileInfo>
#include <sstream>
#include <vector>

#include "model/AdditionalFiles.h"
#include "model/DocType.h"
#include "model/ProjectVariables.h"
#include "model/TOCChoice.h"
#include "model/TaggedComment.h"
#include "model/TaggedComments.h"
#include "project/file/CommentXml.h"
#include "project/file/ForeignXml.h"
#include "project/file/ProjectXmlSchema.h"
#include "project/file/XmlText.h"
#include "project/model/ContentFile.h"
#include "project/model/ProjectDocType.h"
#include "project/model/ProjectDocTypes.h"
#include "project/model/ProjectModel.h"

namespace sv {

namespace {

QByteArray serialise(const pugi::xml_document& document) {
  std::ostringstream out;
  document.save(out, "  ", pugi::format_indent, pugi::encoding_utf8);
  return QByteArray::fromStdString(out.str());
}

pugi::xml_node newRoot(pugi::xml_document& document, const char* name) {
  pugi::xml_node root = document.append_child(name);
  xml::SetAttribute(root, "version", schema::Version());
  return root;
}

class Writer {
 public:
  explicit Writer(const ProjectModel& project)
      : mProject(project), mForeign(project.ForeignXml()) {}

  void WriteProject(pugi::xml_node root) {
    writeCodeSource(root);
    writeSettings(root.append_child("Settings"));
    writeDocTypes(root.append_child("DocTypes"));
    writeStrings(root.append_child("NamespaceExclusions"), "Exclude",
                 *mProject.NamespaceExclusions());
    writeStrings(root.append_child("ModelCommentProfiles"), "Profile",
                 *mProject.ModelCommentProfiles());
    writeElementNamespaces(root.append_child("ElementNamespaces"));
    writeVariables(root.append_child("Variables"));
    writeAdditionalFiles(root.append_child("AdditionalFiles"));
    writeContentFiles(root.append_child("ContentFiles"));
    writeExcludeFilters(root.append_child("ExcludeFilters"));
    writeIgnoreRelationships(root.append_child("IgnoreRelationships"));
    writeDiagramStyle(root.append_child("DiagramStyle"));
    writeCommentOptions(root.append_child("CommentOptions"));
    writeCommunity(root.append_child("Community"));
    pugi::xml_node comments = root.append_child("Comments");
    for (const QString& name : mProject.CommentedItems())
      if (!mProject.ContentFileFor(name)) writeItem(comments, name, QStringLiteral("Comments/"));
    restore(comments, QStringLiteral("Comments"));
    restore(root, QString());
  }

  QByteArray ContentText(const ContentFile& file) {
    pugi::xml_document document;
    pugi::xml_node root = newRoot(document, schema::kContentRoot);
    xml::SetAttribute(root, "root", file.RootItemName());
    const QString prefix = schema::ContentPrefix(file.RootItemName());
    for (const QString& name : mProject.CommentedItems())
      if (mProject.ContentFileFor(name).get() == &file) writeItem(root, name, prefix);
    restore(root, prefix);
    return serialise(document);
  }

 private:
  void restore(pugi::xml_node node, const QString& path) {
    ForeignXml::Restore(mForeign, path, node);
  }

  // A record's element with its foreign XML written back.
  pugi::xml_node record(pugi::xml_node section, const char* element, const QString& key) {
    pugi::xml_node node = section.append_child(element);
    mPending.push_back({node, schema::RecordPath(section.name(), element, key)});
    return node;
  }

  // Foreign XML of records goes in after the record's own attributes are written.
  void flushPending() {
    for (const auto& [node, path] : mPending) restore(node, path);
    mPending.clear();
  }

  void writeItem(pugi::xml_node parent, const QString& name, const QString& prefix) {
    CommentXml::WriteItem(parent, name, *mProject.FindComments(name), mForeign, prefix);
  }

  void writeCodeSource(pugi::xml_node root) {
    const sv::CodeSource& source = mProject.CodeSource();
    if (source.IsEmpty()) return;
    pugi::xml_node node = root.append_child("CodeSource");
    xml::SetAttribute(node, "provider", source.provider);
    xml::SetAttribute(node, "xml", source.xml);
    if (!source.root.isEmpty()) xml::SetAttribute(node, "root", source.root);
    restore(node, QStringLiteral("CodeSource"));
  }

  void writeSettings(pugi::xml_node section) {
    for (const SettingDef& def : SettingTable()) {
      pugi::xml_node node = section.append_child("Setting");
      xml::SetAttribute(node, "name", QLatin1String(def.name));
      xml::SetText(node, SettingText(def.id, mProject.SettingValue(def.id)));
    }
    restore(section, QStringLiteral("Settings"));
  }

  void writeDocTypes(pugi::xml_node section) {
    const auto docTypes = mProject.ProjectDocTypeList();
    if (const auto helpFrom = docTypes->HelpTemplatesFrom())
      xml::SetAttribute(section, "helpTemplatesFrom", helpFrom->Key());
    for (int i = 1; i <= docTypes->Count(); ++i) {
      const auto docType = docTypes->Find(docTypes->Item(i)->Key());
      pugi::xml_node node = record(section, "DocType", docType->Key());
      xml::SetAttribute(node, "key", docType->Key());
      xml::SetAttribute(node, "caption", docType->Caption());
      xml::SetAttribute(node, "template", docType->TemplateName());
      xml::SetAttribute(node, "selected", xml::BoolText(docType->Selected()));
      pugi::xml_node toc = node.append_child("TOC");
      xml::SetAttribute(toc, "source", QString::number(docType->TOCChoice()->Source()));
      xml::SetAttribute(toc, "definition", docType->TOCChoice()->DefinitionName());
      restore(toc,
              schema::RecordPath("DocTypes", "DocType", docType->Key()) + QStringLiteral("/TOC"));
    }
    flushPending();
    restore(section, QStringLiteral("DocTypes"));
  }

  void writeStrings(pugi::xml_node section, const char* element, const StringCollection& strings) {
    for (int i = 1; i <= strings.Count(); ++i) {
      const QString& key = strings.KeyAt(i);
      const QString& value = strings.Item(i);
      pugi::xml_node node = record(section, element, key.isEmpty() ? value : key);
      if (!key.isEmpty() && key != value) xml::SetAttribute(node, "key", key);
      xml::SetText(node, value);
    }
    flushPending();
    restore(section, QString::fromUtf8(section.name()));
  }

  void writeElementNamespaces(pugi::xml_node section) {
    const auto& map = *mProject.ElementNamespaces();
    for (int i = 1; i <= map.Count(); ++i) {
      pugi::xml_node node = record(section, "Namespace", map.KeyAt(i));
      xml::SetAttribute(node, "key", map.KeyAt(i));
      xml::SetAttribute(node, "documented", xml::BoolText(map.Item(i)));
    }
    flushPending();
    restore(section, QStringLiteral("ElementNamespaces"));
  }

  void writeVariables(pugi::xml_node section) {
    for (const auto& variable : *mProject.Variables()) {
      pugi::xml_node node = record(section, "Variable", variable->Name());
      xml::SetAttribute(node, "name", variable->Name());
      if (!variable->HasValue()) xml::SetAttribute(node, "useDefault", xml::BoolText(true));
      xml::SetText(node, variable->Value());
    }
    flushPending();
    restore(section, QStringLiteral("Variables"));
  }

  void writeAdditionalFiles(pugi::xml_node section) {
    for (const auto& file : *mProject.AdditionalFiles()) {
      pugi::xml_node node = record(section, "File", file->FileName());
      xml::SetAttribute(node, "fileName", file->FileName());
      if (!file->SourceFolder().isEmpty())
        xml::SetAttribute(node, "sourceFolder", file->SourceFolder());
    }
    flushPending();
    restore(section, QStringLiteral("AdditionalFiles"));
  }

  void writeContentFiles(pugi::xml_node section) {
    for (const auto& file : *mProject.CommentFiles()) {
      pugi::xml_node node = record(section, "ContentFile", file->RootItemName());
      xml::SetAttribute(node, "root", file->RootItemName());
      xml::SetAttribute(node, "file", file->FileName());
      if (file->DocType()) xml::SetAttribute(node, "docType", file->DocType()->Key());
    }
    flushPending();
    restore(section, QStringLiteral("ContentFiles"));
  }

  // Records without a key are placed by their one-based position.
  template <class T>
  pugi::xml_node keyedRecord(pugi::xml_node section, const char* element,
                             const KeyedCollection<T>& records, int index) {
    const QString& key = records.KeyAt(index);
    pugi::xml_node node = record(section, element, key.isEmpty() ? QString::number(index) : key);
    if (!key.isEmpty()) xml::SetAttribute(node, "key", key);
    return node;
  }

  void writeExcludeFilters(pugi::xml_node section) {
    const auto& filters = *mProject.ExcludeFilters();
    for (int i = 1; i <= filters.Count(); ++i) {
      pugi::xml_node node = keyedRecord(section, "Filter", filters, i);
      xml::SetAttribute(node, "pattern", filters.Item(i)->Pattern());
    }
    flushPending();
    restore(section, QStringLiteral("ExcludeFilters"));
  }

  void writeIgnoreRelationships(pugi::xml_node section) {
    const auto& ignored = *mProject.IgnoreRelationships();
    for (int i = 1; i <= ignored.Count(); ++i) {
      pugi::xml_node node = keyedRecord(section, "Ignore", ignored, i);
      xml::SetAttribute(node, "module", ignored.Item(i)->ModuleName());
      xml::SetAttribute(node, "procedure", ignored.Item(i)->ProcedureName());
    }
    flushPending();
    restore(section, QStringLiteral("IgnoreRelationships"));
  }

  template <class Record, class Value, std::size_t N>
  static void writeFields(pugi::xml_node node, const Record& record,
                          const std::array<schema::Field<Record, Value>, N>& fields) {
    for (const auto& field : fields) {
      const Value value = (record.*field.get)();
      if constexpr (std::is_same_v<Value, bool>)
        xml::SetAttribute(node, field.name, xml::BoolText(value));
      else if constexpr (std::is_same_v<Value, OleColor>)
        xml::SetAttribute(node, field.name,
                          QStringLiteral("0x") +
                              QStringLiteral("%1").arg(value, 6, 16, QLatin1Char('0')).toUpper());
      else
        xml::SetAttribute(node, field.name, QString::number(value));
    }
  }

  void writeDiagramStyle(pugi::xml_node node) {
    const auto& style = *mProject.DiagramStyle();
    writeFields(node, style, schema::kDiagramNumbers);
    writeFields(node, style, schema::kDiagramFlags);
    writeFields(node, style, schema::kDiagramColors);
    restore(node, QStringLiteral("DiagramStyle"));
  }

  void writeCommentOptions(pugi::xml_node node) {
    writeFields(node, *mProject.CommentOptions(), schema::kCommentOptionFlags);
    restore(node, QStringLiteral("CommentOptions"));
  }

  void writeCommunity(pugi::xml_node node) {
    xml::SetAttribute(node, "hostingKey", mProject.CommunityConnection()->HostingKey());
    xml::SetAttribute(node, "serverURL", mProject.CommunityConnection()->ServerURL());
    restore(node, QStringLiteral("Community"));
  }

  const ProjectModel& mProject;
  const std::map<QString, QByteArray>& mForeign;
  std::vector<std::pair<pugi::xml_node, QString>> mPending;
};

// Drops the tombstones of deleted comments once the files no longer hold them.
void purgeDeleted(ProjectModel& project) {
  for (const QString& name : project.CommentedItems()) {
    const auto comments = project.FindComments(name);
    QStringList deleted;
    for (const auto& comment : *comments)
      if (comment->Status() == CommentStatus::Deleted) deleted.append(comment->Id());
    for (const QString& id : deleted) comments->Remove(id);
  }
}

}  // namespace

QByteArray ProjectWriter::ProjectText(const ProjectModel& project) {
  pugi::xml_document document;
  Writer(project).WriteProject(newRoot(document, schema::kProjectRoot));
  return serialise(document);
}

void ProjectWriter::Save(ProjectModel& project, const QString& path,
                         const AtomicFile::FaultInjector& fault) {
  const QString target = QFileInfo(path.isEmpty() ? project.FileName() : path).absoluteFilePath();
  if (path.isEmpty() && project.FileName().isEmpty())
    Raise(ErrorNumber::InvalidCall, QStringLiteral("The project has no file name to save to."));
  const QDir folder = QFileInfo(target).absoluteDir();
  Writer writer(project);
  for (const auto& entry : *project.CommentFiles()) {
    const auto file = std::dynamic_pointer_cast<ContentFile>(entry);
    if (file)
      AtomicFile::Write(folder.filePath(file->FileName()), writer.ContentText(*file), fault);
  }
  AtomicFile::Write(target, ProjectText(project), fault);
  project.setFileName(target);
  purgeDeleted(project);
  project.setDirty(false);
}

}  // namespace sv
