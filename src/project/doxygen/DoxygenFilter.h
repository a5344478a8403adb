#pragma once

#include <QString>

#include "project/doxygen/DoxygenKinds.h"

namespace sv {

// The filter string a code tree hands to GetItems: comma-separated "name=value" words whose
// names ignore case ("IgnoreNamespaceIncludeFlag=true,scope=public+protected,
// IncludeInherited=False"). Words we do not know are passed over; without "scope=" every
// access is shown.
class DoxygenFilter {
 public:
  explicit DoxygenFilter(const QString& text);

  bool Shows(DoxygenAccess access) const;
  bool IncludeInherited() const { return mIncludeInherited; }

 private:
  bool mAnyScope = true;
  bool mPublic = false;
  bool mProtected = false;
  bool mPrivate = false;
  bool mFriend = false;
  bool mIncludeInherited = false;
};

}  // namespace sv
