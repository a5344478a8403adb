#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <memory>

namespace sv {

// The help window that follows the author: it asks the control in use which keywords and
// attributes describe what the author is working on, and is told when that changes.
class IDynamicHelpHost {
 public:
  virtual ~IDynamicHelpHost() = default;
  virtual void ContextChanged() = 0;
};

// A control that describes its context to the help window.
class IDynamicHelpContext {
 public:
  virtual ~IDynamicHelpContext() = default;
  // Hands the control the help window it tells of changes; null detaches it.
  virtual void Initialise(const std::shared_ptr<IDynamicHelpHost>& Notify) = 0;
  // Adds the control's keywords and sets its attributes (name to value).
  virtual void QueryContext(QStringList& KeywordCollection, QMap<QString, QString>& Attributes) = 0;
};

}  // namespace sv
