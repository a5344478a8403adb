#pragma once

#include <QString>

namespace sv {

class CommunityConnection {
 public:
  QString HostingKey() const { return mHostingKey; }
  void setHostingKey(const QString& value) { mHostingKey = value; }
  QString ServerURL() const { return mServerURL; }
  void setServerURL(const QString& value) { mServerURL = value; }

 private:
  QString mHostingKey;
  QString mServerURL;
};

}  // namespace sv
