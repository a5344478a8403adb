#pragma once

#include <QString>
#include <memory>
#include <optional>

#include "model/Error.h"
#include "model/ModelTypes.h"

namespace sv {

class TaggedComments;
class VBProject;

// An object of the code model as a provider hands it out. Only QualifiedName, Name, Access and
// TaggedComments are common to most items; everything an item may lack answers "absent"
// (std::nullopt or a null pointer), and writing a member the item lacks raises NotSupported.
class CodeItem {
 public:
  virtual ~CodeItem() = default;

  // The run-time type name ("Class", "Component", "Member", ...), as a type test reads it.
  virtual QString TypeName() const = 0;

  virtual std::optional<QString> QualifiedName() const = 0;
  virtual std::optional<QString> Name() const = 0;
  virtual std::optional<QString> Access() const = 0;
  virtual std::shared_ptr<sv::TaggedComments> TaggedComments() const = 0;
  virtual void setTaggedComments(std::shared_ptr<sv::TaggedComments> comments) {
    (void)comments;
    unsupported("TaggedComments");
  }

  virtual std::optional<bool> RootFlag() const { return std::nullopt; }
  virtual void setRootFlag(bool value) {
    (void)value;
    unsupported("RootFlag");
  }
  virtual std::optional<bool> IncludeFlag() const { return std::nullopt; }
  virtual void setIncludeFlag(bool value) {
    (void)value;
    unsupported("IncludeFlag");
  }
  virtual std::optional<bool> ExcludeFlag() const { return std::nullopt; }
  virtual void setExcludeFlag(bool value) {
    (void)value;
    unsupported("ExcludeFlag");
  }
  // The project group a source project belongs to; null when it is not in one.
  virtual std::shared_ptr<CodeItem> VBProjectGroup() const { return nullptr; }

 protected:
  [[noreturn]] static void unsupported(const char* member) {
    Raise(ErrorNumber::NotSupported,
          QStringLiteral("Object doesn't support this property or method: %1")
              .arg(QLatin1String(member)));
  }
};

}  // namespace sv
