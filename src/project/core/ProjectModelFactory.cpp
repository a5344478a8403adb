#include "project/core/ProjectModelFactory.h"

#include "model/Error.h"
#include "project/core/CommentList.h"
#include "project/core/MemoryAppSettings.h"
#include "project/core/ProjectComment.h"
#include "project/attributes/AttributeStringBuilder.h"

namespace sv {

namespace {
[[noreturn]] void notAvailable(const char* what) {
  Raise(ErrorNumber::NotSupported,
        QStringLiteral("%1 is not available in this model").arg(QLatin1String(what)));
}
}  // namespace

ProjectModelFactory::ProjectModelFactory(std::shared_ptr<sv::AppSettings> settings)
    : mSettings(settings ? std::move(settings) : std::make_shared<MemoryAppSettings>()) {}

std::shared_ptr<TaggedComment> ProjectModelFactory::NewTaggedComment() {
  auto comment = std::make_shared<ProjectComment>();
  comment->setStatus(CommentStatus::New);
  comment->setTagDefinitions(mSettings->TaggedCommentDefs());
  return comment;
}

std::shared_ptr<TaggedComments> ProjectModelFactory::NewTaggedComments() {
  return std::make_shared<CommentList>();
}

std::shared_ptr<StringBuilder> ProjectModelFactory::NewStringBuilder() {
  return std::make_shared<AttributeStringBuilder>();
}

std::shared_ptr<ParserTemplate> ProjectModelFactory::NewParserTemplate() {
  notAvailable("ParserTemplate");
}

std::shared_ptr<Example> ProjectModelFactory::NewExample() {
  notAvailable("Example");
}

}  // namespace sv
