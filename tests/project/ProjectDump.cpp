#include "ProjectDump.h"

#include <QStringList>
#include <QVariant>

#include "model/AdditionalFiles.h"
#include "model/ProjectVariables.h"
#include "model/TOCChoice.h"
#include "model/TaggedComment.h"
#include "model/TaggedComments.h"
#include "project/file/ProjectXmlSchema.h"
#include "project/model/ContentFile.h"
#include "project/model/ProjectDocType.h"
#include "project/model/ProjectDocTypes.h"
#include "project/model/ProjectModel.h"

namespace sv::test {

namespace {

template <class Record, class Value, std::size_t N>
void dumpFields(QStringList& parts, const Record& record,
                const std::array<schema::Field<Record, Value>, N>& fields) {
  for (const auto& field : fields)
    parts << QStringLiteral("%1=%2").arg(QLatin1String(field.name),
                                         QVariant::fromValue((record.*field.get)()).toString());
}

QString strings(const StringCollection& collection) {
  QStringList parts;
  for (int i = 1; i <= collection.Count(); ++i)
    parts << QStringLiteral("%1:%2").arg(collection.KeyAt(i), collection.Item(i));
  return parts.join(QLatin1Char(' '));
}

}  // namespace

QString DumpComments(const ProjectModel& project) {
  QStringList lines;
  QStringList names = project.CommentedItems();
  names.sort(Qt::CaseInsensitive);
  for (const QString& name : names) {
    const auto comments = project.FindComments(name);
    if (comments->Count() == 0) continue;
    lines << name;
    for (const auto& comment : *comments)
      lines << QStringLiteral("  %1 %2 [%3 %4 %5 %6]: %7")
                   .arg(comment->Id(), comment->TagIdentifier())
                   .arg(comment->Status())
                   .arg(comment->Qualifier(), comment->XMLCommentType(),
                        comment->IsHidden() ? QStringLiteral("hidden") : QStringLiteral("shown"),
                        comment->Text());
  }
  return lines.join(QLatin1Char('\n'));
}

QString DumpProject(const ProjectModel& project) {
  QStringList lines;
  for (const SettingDef& def : SettingTable())
    if (project.SettingValue(def.id) != def.defaultValue)
      lines << QStringLiteral("%1=%2").arg(QLatin1String(def.name),
                                           SettingText(def.id, project.SettingValue(def.id)));
  const auto docTypes = project.ProjectDocTypeList();
  lines << QStringLiteral("DocTypes help=%1")
               .arg(docTypes->HelpTemplatesFrom() ? docTypes->HelpTemplatesFrom()->Key()
                                                  : QString());
  for (int i = 1; i <= docTypes->Count(); ++i) {
    const auto docType = docTypes->Find(docTypes->Item(i)->Key());
    lines << QStringLiteral("  %1 \"%2\" template=%3%4 toc=%5:%6")
                 .arg(docType->Key(), docType->Caption(), docType->TemplateName(),
                      docType->Selected() ? QStringLiteral(" selected") : QString())
                 .arg(docType->TOCChoice()->Source())
                 .arg(docType->TOCChoice()->DefinitionName());
  }
  lines << QStringLiteral("Exclusions %1").arg(strings(*project.NamespaceExclusions()));
  lines << QStringLiteral("Profiles %1").arg(strings(*project.ModelCommentProfiles()));
  QStringList parts;
  const auto& map = *project.ElementNamespaces();
  for (int i = 1; i <= map.Count(); ++i)
    parts << QStringLiteral("%1=%2").arg(map.KeyAt(i)).arg(map.Item(i));
  lines << QStringLiteral("ElementNamespaces %1").arg(parts.join(QLatin1Char(' ')));
  parts.clear();
  for (const auto& variable : *project.Variables())
    parts << (variable->HasValue()
                  ? QStringLiteral("%1=%2").arg(variable->Name(), variable->Value())
                  : QStringLiteral("%1(default)").arg(variable->Name()));
  lines << QStringLiteral("Variables %1").arg(parts.join(QLatin1Char(' ')));
  parts.clear();
  for (const auto& file : *project.AdditionalFiles())
    parts << QStringLiteral("%1<-%2").arg(file->FileName(), file->SourceFolder());
  lines << QStringLiteral("AdditionalFiles %1").arg(parts.join(QLatin1Char(' ')));
  parts.clear();
  for (const auto& file : *project.CommentFiles())
    parts << QStringLiteral("%1->%2(%3)")
                 .arg(file->RootItemName(), file->FileName(),
                      file->DocType() ? file->DocType()->Key() : QString());
  lines << QStringLiteral("ContentFiles %1").arg(parts.join(QLatin1Char(' ')));
  parts.clear();
  const auto& filters = *project.ExcludeFilters();
  for (int i = 1; i <= filters.Count(); ++i)
    parts << QStringLiteral("%1:%2").arg(filters.KeyAt(i), filters.Item(i)->Pattern());
  lines << QStringLiteral("ExcludeFilters %1").arg(parts.join(QLatin1Char(' ')));
  parts.clear();
  const auto& ignored = *project.IgnoreRelationships();
  for (int i = 1; i <= ignored.Count(); ++i)
    parts << QStringLiteral("%1:%2.%3")
                 .arg(ignored.KeyAt(i), ignored.Item(i)->ModuleName(),
                      ignored.Item(i)->ProcedureName());
  lines << QStringLiteral("IgnoreRelationships %1").arg(parts.join(QLatin1Char(' ')));
  parts.clear();
  dumpFields(parts, *project.DiagramStyle(), schema::kDiagramNumbers);
  dumpFields(parts, *project.DiagramStyle(), schema::kDiagramFlags);
  dumpFields(parts, *project.DiagramStyle(), schema::kDiagramColors);
  lines << QStringLiteral("DiagramStyle %1").arg(parts.join(QLatin1Char(' ')));
  parts.clear();
  dumpFields(parts, *project.CommentOptions(), schema::kCommentOptionFlags);
  lines << QStringLiteral("CommentOptions %1").arg(parts.join(QLatin1Char(' ')));
  lines << QStringLiteral("Community %1 %2")
               .arg(project.CommunityConnection()->HostingKey(),
                    project.CommunityConnection()->ServerURL());
  lines << DumpComments(project);
  return lines.join(QLatin1Char('\n'));
}

}  // namespace sv::test
