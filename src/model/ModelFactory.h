#pragma once

#include <QString>
#include <memory>

namespace sv {

class AppSettings;
class Example;
class ParserTemplate;
class StringBuilder;
class TaggedComment;
class TaggedComments;

// Makes the model objects that components create themselves, and hands out the one
// application-wide settings object. The model implementation installs it at start-up.
class ModelFactory {
 public:
  virtual ~ModelFactory() = default;

  // A comment with a fresh unique Id and Status New.
  virtual std::shared_ptr<TaggedComment> NewTaggedComment() = 0;
  virtual std::shared_ptr<TaggedComments> NewTaggedComments() = 0;
  virtual std::shared_ptr<StringBuilder> NewStringBuilder() = 0;
  virtual std::shared_ptr<ParserTemplate> NewParserTemplate() = 0;
  virtual std::shared_ptr<Example> NewExample() = 0;
  virtual std::shared_ptr<sv::AppSettings> AppSettings() = 0;
};

// The installed factory; raises an error when no model has been installed.
ModelFactory& Model();
// Installs a factory and answers the one it replaced, so that tests can restore it.
std::shared_ptr<ModelFactory> InstallModel(std::shared_ptr<ModelFactory> factory);

}  // namespace sv
