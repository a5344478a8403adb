#pragma once

#include <QString>
#include <memory>

class QObject;

namespace sv {

class CodeItem;
class NamespaceDef;
class NamespaceDefs;
class SVProject;

// Shows a folder picker that may create folders, owned by ownerForm when given, starting at
// initDir or, when that is empty, at LastPath. Answers the chosen folder, empty when cancelled.
QString GetPath(QObject* ownerForm, const QString& title, const QString& initDir);
// Marks a definition as prepared; done each time before a provider is used with it.
void PrepNamespaceDef(NamespaceDef& nd);
// The root item that a moniker names, from the provider of the root definition (item 1). The
// moniker goes to the provider unread. A project without that provider is an error.
std::shared_ptr<CodeItem> GetRootItem(SVProject& project, const NamespaceDefs& namespaceDefs,
                                      const QString& moniker);
// A hook for tracing: it takes the message and does nothing with it.
void OutputDebugString(const QString& message);
// Every form and control calls this once as it loads: it goes to the common UI hook with both
// options on.
void ConfigureForCommonUI(QObject* obj);

}  // namespace sv
