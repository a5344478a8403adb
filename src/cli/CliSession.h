#pragma once

#include <QString>
#include <memory>

class QTextStream;

namespace sv {

class AppConfig;
class IMessageService;
class ModelFactory;
class NamespaceDefs;

// What a command runs in: console message boxes, our model over the shipped configuration
// (found as AppDataFolder says), and a report object that writes trapped failures to the error
// stream and counts them. The services and the model it replaced come back when it ends, so
// commands can run in-process.
class CliSession {
 public:
  // Raises as AppConfig does when the configuration cannot be read.
  explicit CliSession(QTextStream& err);
  ~CliSession();

  CliSession(const CliSession&) = delete;
  CliSession& operator=(const CliSession&) = delete;

  // Failures trapped and reported so far.
  int Failures() const { return *mFailures; }
  // The definition set of C++ code ("sv.cpp").
  std::shared_ptr<sv::NamespaceDefs> CppDefinitions() const;

 private:
  std::shared_ptr<int> mFailures;
  std::shared_ptr<AppConfig> mConfig;
  std::shared_ptr<IMessageService> mPreviousMessages;
  std::shared_ptr<ModelFactory> mPreviousModel;
};

}  // namespace sv
