#include "project/file/ProjectReader.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "model/AdditionalFiles.h"
#include "project/doxygen/CodeSources.h"
#include "project/file/CommentXml.h"
#include "project/file/ForeignXml.h"
#include "project/file/ProjectXmlSchema.h"
#include "project/file/XmlSource.h"
#include "project/file/XmlText.h"
#include "project/model/ContentFile.h"
#include "project/model/ProjectDocType.h"
#include "project/model/ProjectDocTypes.h"
#include "project/model/ProjectModel.h"
#include "project/model/ProjectTOCChoice.h"
#include "project/model/ProjectVariableSet.h"

namespace sv {

namespace {

class Reader {
 public:
  Reader(const XmlSource& source, ProjectModel& project, ForeignXml::Collector& foreign)
      : mSource(source), mProject(project), mForeign(foreign) {}

  void ReadProject(const pugi::xml_node& root) {
    mForeign.Scan(
        root, QString(), {"version"},
        {"CodeSource", "Settings", "DocTypes", "NamespaceExclusions", "ElementNamespaces",
         "Variables", "AdditionalFiles", "ContentFiles", "ExcludeFilters", "IgnoreRelationships",
         "DiagramStyle", "CommentOptions", "Community", "ModelCommentProfiles", "Comments"});
    readCodeSource(root.child("CodeSource"));
    readSettings(root.child("Settings"));
    readDocTypes(root.child("DocTypes"));
    readStrings(root.child("NamespaceExclusions"), "Exclude", *mProject.NamespaceExclusions());
    readStrings(root.child("ModelCommentProfiles"), "Profile", *mProject.ModelCommentProfiles());
    readElementNamespaces(root.child("ElementNamespaces"));
    readVariables(root.child("Variables"));
    readAdditionalFiles(root.child("AdditionalFiles"));
    readContentFiles(root.child("ContentFiles"));
    readExcludeFilters(root.child("ExcludeFilters"));
    readIgnoreRelationships(root.child("IgnoreRelationships"));
    readDiagramStyle(root.child("DiagramStyle"));
    readCommentOptions(root.child("CommentOptions"));
    readCommunity(root.child("Community"));
    if (const pugi::xml_node comments = root.child("Comments")) {
      mForeign.Scan(comments, QStringLiteral("Comments"), {}, {"Item"});
      CommentXml::ReadItems(mSource, comments, mProject, mForeign, QStringLiteral("Comments/"));
    }
  }

 private:
  // Scans a section for foreign XML and answers its records of one element name.
  pugi::xml_object_range<pugi::xml_named_node_iterator> records(const pugi::xml_node& section,
                                                                const char* element) {
    mForeign.Scan(section, QString::fromUtf8(section.name()), {}, {element});
    return section.children(element);
  }

  // The key a record is stored under: its key attribute, else fallback.
  static QString keyOf(const pugi::xml_node& node, const QString& fallback) {
    const QString key = xml::Attribute(node, "key");
    return key.isEmpty() ? fallback : key;
  }

  void readCodeSource(const pugi::xml_node& node) {
    if (!node) return;
    mForeign.Scan(node, QStringLiteral("CodeSource"), {"provider", "xml", "root"}, {});
    const sv::CodeSource source{mSource.Required(node, "provider"), mSource.Required(node, "xml"),
                                xml::Attribute(node, "root")};
    if (!CodeSources::Knows(source.provider))
      mSource.Fail(node, QStringLiteral("The code provider %1 is unknown.").arg(source.provider));
    mProject.setCodeSource(source);
  }

  void readSettings(const pugi::xml_node& section) {
    mForeign.Scan(section, QStringLiteral("Settings"), {}, {"Setting"});
    for (const pugi::xml_node& node : section.children("Setting")) {
      const auto id = SettingByName(xml::Attribute(node, "name"));
      if (!id) {
        // A setting of a newer version.
        mForeign.KeepElement(QStringLiteral("Settings"), node);
        continue;
      }
      const auto value = ConvertSetting(*id, xml::Text(node));
      if (!value)
        mSource.Fail(node, QStringLiteral("The setting %1 cannot be \"%2\".")
                               .arg(QLatin1String(SettingDefOf(*id).name), xml::Text(node)));
      mProject.setSettingValue(*id, *value);
    }
  }

  void readDocTypes(const pugi::xml_node& section) {
    mForeign.Scan(section, QStringLiteral("DocTypes"), {"helpTemplatesFrom"}, {"DocType"});
    auto docTypes = mProject.ProjectDocTypeList();
    for (const pugi::xml_node& node : section.children("DocType")) {
      const QString key = mSource.Required(node, "key");
      if (docTypes->Find(key))
        mSource.Fail(node, QStringLiteral("The document type %1 occurs twice.").arg(key));
      mForeign.Scan(node, schema::RecordPath("DocTypes", "DocType", key),
                    {"key", "caption", "template", "selected"}, {"TOC"});
      auto docType =
          docTypes->Add(key, xml::Attribute(node, "caption"), xml::Attribute(node, "template"));
      docType->setSelected(mSource.Bool(node, "selected", false));
      const pugi::xml_node toc = node.child("TOC");
      if (!toc) continue;
      mForeign.Scan(toc, schema::RecordPath("DocTypes", "DocType", key) + QStringLiteral("/TOC"),
                    {"source", "definition"}, {});
      docType->TOCChoice()->setSource(mSource.Long(toc, "source", TOCChoice::SourceTemplate));
      docType->TOCChoice()->setDefinitionName(xml::Attribute(toc, "definition"));
    }
    const QString helpFrom = xml::Attribute(section, "helpTemplatesFrom");
    if (helpFrom.isEmpty()) return;
    const auto docType = docTypes->Find(helpFrom);
    if (!docType)
      mSource.Fail(
          section,
          QStringLiteral("helpTemplatesFrom names the unknown document type %1.").arg(helpFrom));
    docTypes->setHelpTemplatesFrom(docType);
  }

  void readStrings(const pugi::xml_node& section, const char* element, StringCollection& strings) {
    for (const pugi::xml_node& node : records(section, element)) {
      const QString value = xml::Text(node);
      const QString key = keyOf(node, value);
      if (strings.Contains(key))
        mSource.Fail(node, QStringLiteral("The entry %1 occurs twice.").arg(key));
      mForeign.Scan(node, schema::RecordPath(section.name(), element, key), {"key"}, {});
      strings.Add(value, key);
    }
  }

  void readElementNamespaces(const pugi::xml_node& section) {
    auto& map = *mProject.ElementNamespaces();
    for (const pugi::xml_node& node : records(section, "Namespace")) {
      const QString key = mSource.Required(node, "key");
      if (map.Contains(key))
        mSource.Fail(node, QStringLiteral("The namespace %1 occurs twice.").arg(key));
      mForeign.Scan(node, schema::RecordPath("ElementNamespaces", "Namespace", key),
                    {"key", "documented"}, {});
      map.Add(mSource.Bool(node, "documented", false), key);
    }
  }

  void readVariables(const pugi::xml_node& section) {
    auto variables = mProject.VariableSet();
    for (const pugi::xml_node& node : records(section, "Variable")) {
      const QString name = mSource.Required(node, "name");
      mForeign.Scan(node, schema::RecordPath("Variables", "Variable", name), {"name", "useDefault"},
                    {});
      auto variable = variables->Add(name);
      if (!mSource.Bool(node, "useDefault", false)) variable->setValue(xml::Text(node));
    }
  }

  void readAdditionalFiles(const pugi::xml_node& section) {
    auto& files = *mProject.AdditionalFiles();
    for (const pugi::xml_node& node : records(section, "File")) {
      auto file = std::make_shared<AdditionalFile>();
      file->setFileName(mSource.Required(node, "fileName"));
      file->setSourceFolder(xml::Attribute(node, "sourceFolder"));
      if (files.Exists(file->FileName()))
        mSource.Fail(node, QStringLiteral("The file %1 occurs twice.").arg(file->FileName()));
      mForeign.Scan(node, schema::RecordPath("AdditionalFiles", "File", file->FileName()),
                    {"fileName", "sourceFolder"}, {});
      files.Add(file);
    }
  }

  void readContentFiles(const pugi::xml_node& section) {
    for (const pugi::xml_node& node : records(section, "ContentFile")) {
      const QString root = mSource.Required(node, "root");
      if (mProject.CommentFiles()->Contains(root))
        mSource.Fail(node, QStringLiteral("Two content files hold %1.").arg(root));
      mForeign.Scan(node, schema::RecordPath("ContentFiles", "ContentFile", root),
                    {"root", "file", "docType"}, {});
      mProject.AddContentFile(mSource.Required(node, "file"), root,
                              mProject.ProjectDocTypeList()->Find(xml::Attribute(node, "docType")));
    }
  }

  void readExcludeFilters(const pugi::xml_node& section) {
    auto& filters = *mProject.ExcludeFilters();
    for (const pugi::xml_node& node : records(section, "Filter")) {
      auto filter = std::make_shared<ExcludeFilter>();
      filter->setPattern(xml::Attribute(node, "pattern"));
      const QString key = xml::Attribute(node, "key");
      mForeign.Scan(node,
                    schema::RecordPath("ExcludeFilters", "Filter",
                                       keyOf(node, QString::number(filters.Count() + 1))),
                    {"key", "pattern"}, {});
      filters.Add(filter, key);
    }
  }

  void readIgnoreRelationships(const pugi::xml_node& section) {
    auto& ignored = *mProject.IgnoreRelationships();
    for (const pugi::xml_node& node : records(section, "Ignore")) {
      auto entry = std::make_shared<IgnoreRelationship>();
      entry->setModuleName(xml::Attribute(node, "module"));
      entry->setProcedureName(xml::Attribute(node, "procedure"));
      const QString key = xml::Attribute(node, "key");
      mForeign.Scan(node,
                    schema::RecordPath("IgnoreRelationships", "Ignore",
                                       keyOf(node, QString::number(ignored.Count() + 1))),
                    {"key", "module", "procedure"}, {});
      ignored.Add(entry, key);
    }
  }

  template <class Record, class Value, std::size_t N>
  void readFields(const pugi::xml_node& node, Record& record,
                  const std::array<schema::Field<Record, Value>, N>& fields) {
    for (const auto& field : fields) {
      if (!node.attribute(field.name)) continue;
      if constexpr (std::is_same_v<Value, bool>)
        (record.*field.set)(mSource.Bool(node, field.name, false));
      else
        (record.*field.set)(static_cast<Value>(mSource.Long(node, field.name, 0)));
    }
  }

  void readDiagramStyle(const pugi::xml_node& node) {
    mForeign.Scan(
        node, QStringLiteral("DiagramStyle"),
        {"styleSource", "useDiagramShapes", "bold", "border", "centerCaptions", "dropShadow",
         "collectionBorderColor", "collectionTextColor", "collectionFillColor", "objectBorderColor",
         "objectTextColor", "objectFillColor"},
        {});
    auto& style = *mProject.DiagramStyle();
    readFields(node, style, schema::kDiagramFlags);
    readFields(node, style, schema::kDiagramNumbers);
    readFields(node, style, schema::kDiagramColors);
  }

  void readCommentOptions(const pugi::xml_node& node) {
    mForeign.Scan(node, QStringLiteral("CommentOptions"),
                  {"excludeEditorBrowsable", "useOverloadSummaryForMasterSummary",
                   "drillCommentFiles", "useCommentFiles"},
                  {});
    readFields(node, *mProject.CommentOptions(), schema::kCommentOptionFlags);
  }

  void readCommunity(const pugi::xml_node& node) {
    mForeign.Scan(node, QStringLiteral("Community"), {"hostingKey", "serverURL"}, {});
    mProject.CommunityConnection()->setHostingKey(xml::Attribute(node, "hostingKey"));
    mProject.CommunityConnection()->setServerURL(xml::Attribute(node, "serverURL"));
  }

  const XmlSource& mSource;
  ProjectModel& mProject;
  ForeignXml::Collector& mForeign;
};

void readContentFile(const QString& path, const ContentFile& file, ProjectModel& project,
                     ForeignXml::Collector& foreign) {
  if (!QFile::exists(path)) return;
  const XmlSource source(path);
  source.CheckRoot(schema::kContentRoot, schema::kMajor);
  const QString prefix = schema::ContentPrefix(file.RootItemName());
  foreign.Scan(source.Root(), prefix, {"version", "root"}, {"Item"});
  CommentXml::ReadItems(source, source.Root(), project, foreign, prefix);
}

}  // namespace

std::shared_ptr<ProjectModel> ProjectReader::Load(const QString& path) {
  const XmlSource source(path);
  source.CheckRoot(schema::kProjectRoot, schema::kMajor);
  auto project = std::make_shared<ProjectModel>();
  {
    ForeignXml::Collector foreign(project->ForeignXml());
    Reader(source, *project, foreign).ReadProject(source.Root());
    const QDir folder = QFileInfo(path).absoluteDir();
    for (const auto& entry : *project->CommentFiles()) {
      const auto& file = static_cast<const ContentFile&>(*entry);
      readContentFile(folder.filePath(file.FileName()), file, *project, foreign);
    }
  }
  project->setFileName(QFileInfo(path).absoluteFilePath());
  CodeSources::Open(project);
  project->setDirty(false);
  return project;
}

}  // namespace sv
